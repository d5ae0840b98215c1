#include "ZnQFCBaseU.h"

#include "SlidePainter.h"

namespace Tevrin
{
namespace
{
const COLORREF kErrorColor = RGB(128, 128, 128); // stands out from dark and from light
const int kTextMargin = 4;
const UINT kTextFormat = DT_CENTER | DT_WORDBREAK | DT_NOPREFIX;

void DrawCross(CDC& dc, const CRect& area)
{
    CPen pen(PS_SOLID, 1, kErrorColor);
    CPen* const former = dc.SelectObject(&pen);
    dc.MoveTo(area.left, area.top);
    dc.LineTo(area.right, area.bottom);
    dc.MoveTo(area.left, area.bottom - 1);
    dc.LineTo(area.right, area.top - 1);
    dc.SelectObject(former);
}

void DrawError(CDC& dc, const CRect& area, const CString& error)
{
    CRect room(area);
    room.DeflateRect(kTextMargin, kTextMargin);
    CRect text(room);
    dc.DrawText(error, -1, &text, kTextFormat | DT_CALCRECT);
    if (text.Width() > room.Width() || text.Height() > room.Height())
    {
        DrawCross(dc, area);
        return;
    }
    room.top += (room.Height() - text.Height()) / 2;
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(kErrorColor);
    dc.DrawText(error, -1, &room, kTextFormat);
}
} // namespace

IMPLEMENT_DYNCREATE(CSlideButton, CButton)

CSlideButton::CSlideButton() : m_background(RGB(0, 0, 0)), m_slide(new Slide) {}

CSlideButton::~CSlideButton()
{
    delete m_slide;
}

void CSlideButton::SetFileName(const wchar_t* name)
{
    m_fileName = name;
    m_error.Empty();
    if (m_fileName.IsEmpty())
        m_slide->Clear();
    else
        m_error = DescribeSlideResult(m_slide->Read(m_fileName));
    if (GetSafeHwnd() != NULL)
        Invalidate();
}

void CSlideButton::DrawItem(LPDRAWITEMSTRUCT item)
{
    CDC& dc = *CDC::FromHandle(item->hDC);
    PaintSlide(item->hDC, item->rcItem, *m_slide, m_background);
    if (m_error.IsEmpty())
        return;
    const int saved = dc.SaveDC();
    CFont* const font = GetSafeHwnd() == NULL ? NULL : GetFont();
    if (font != NULL)
        dc.SelectObject(font);
    DrawError(dc, item->rcItem, m_error);
    dc.RestoreDC(saved);
}
} // namespace Tevrin
