#include "host/StatusStrip.h"

#include "arx/ui/Colours.h"
#include "arx/ui/GdiGuards.h"
#include "arx/ui/UiFont.h"

namespace arxhost
{
namespace
{

const int stripHeight = 24;
const int margin = 8;
const int coordinatesWidth = 260;
const int progressWidth = 200;
const int progressMargin = 7;

} // namespace

BEGIN_MESSAGE_MAP(StatusStrip, CControlBar)
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
END_MESSAGE_MAP()

bool StatusStrip::Create(CFrameWnd& frame)
{
    m_dwStyle = CBRS_ALIGN_BOTTOM;
    const CString className = AfxRegisterWndClass(CS_HREDRAW, ::LoadCursor(NULL, IDC_ARROW));
    return CWnd::Create(className, NULL, WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, CRect(0, 0, 0, 0), &frame,
                        AFX_IDW_STATUS_BAR) != FALSE;
}

void StatusStrip::SetMessage(const CString& text)
{
    m_message = text;
    Invalidate(FALSE);
}

void StatusStrip::SetCoordinates(const CString& text)
{
    m_coordinates = text;
    Invalidate(FALSE);
}

void StatusStrip::SetProgress(double part)
{
    m_progress = part;
    Invalidate(FALSE);
    UpdateWindow();
}

CSize StatusStrip::CalcFixedLayout(BOOL /*stretch*/, BOOL /*horizontal*/)
{
    const int unlimited = 32767;
    return CSize(unlimited, stripHeight);
}

void StatusStrip::OnUpdateCmdUI(CFrameWnd* /*target*/, BOOL /*disableIfNoHandler*/) {}

BOOL StatusStrip::OnEraseBkgnd(CDC* /*dc*/)
{
    return TRUE;
}

void StatusStrip::OnPaint()
{
    CPaintDC paint(this);
    CRect client;
    GetClientRect(&client);
    const arxui::BackBuffer buffer(paint.GetSafeHdc(), client.Width(), client.Height());
    CDC dc;
    dc.Attach(buffer.Get());
    Draw(dc, client);
    dc.Detach();
    buffer.Show();
}

void StatusStrip::Draw(CDC& dc, const CRect& area)
{
    const arxui::SelectGuard font(dc.GetSafeHdc(), arxui::UiFont());
    arxui::FillColour(dc.GetSafeHdc(), area, arxui::colours::surface);
    arxui::FillColour(dc.GetSafeHdc(), CRect(area.left, area.top, area.right, area.top + 1), arxui::colours::border);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(arxui::colours::text);
    const UINT format = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;
    CRect right(area.right - coordinatesWidth, area.top, area.right - margin, area.bottom);
    dc.DrawText(m_coordinates, &right, format | DT_RIGHT);
    CRect left(area.left + margin, area.top, right.left, area.bottom);
    dc.DrawText(m_message, &left, format);
    if (m_progress < 0)
        return;
    CRect bar(right.left - progressWidth, area.top + progressMargin, right.left, area.bottom - progressMargin);
    arxui::FillColour(dc.GetSafeHdc(), bar, arxui::colours::splitter);
    bar.right = bar.left + static_cast<int>(bar.Width() * m_progress);
    arxui::FillColour(dc.GetSafeHdc(), bar, arxui::colours::captionActive);
}

} // namespace arxhost
