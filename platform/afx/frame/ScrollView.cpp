#include <afxwin.h>

#include "afx/frame/ScrollView.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CScrollView, CView)

BEGIN_MESSAGE_MAP(CScrollView, CView)
    ON_WM_SIZE()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

namespace
{
const int DefaultShare = 10;

int OrShare(int value, int whole)
{
    return value > 0 ? value : whole / DefaultShare;
}
} // namespace

const SIZE CScrollView::sizeDefault = {0, 0};

CScrollView::CScrollView() = default;

void CScrollView::SetScrollSizes(int mapMode, SIZE total, const SIZE& page, const SIZE& line)
{
    ASSERT(mapMode == MM_TEXT);
    UNUSED(mapMode);
    m_total = total;
    m_page = CSize(OrShare(page.cx, total.cx), OrShare(page.cy, total.cy));
    m_line = CSize(OrShare(line.cx, m_page.cx), OrShare(line.cy, m_page.cy));
    if (m_hWnd != nullptr)
        UpdateBars();
}

void CScrollView::ScrollToPosition(POINT position)
{
    const CSize range = Range();
    const CPoint target(std::max(0, std::min<int>(position.x, range.cx)),
                        std::max(0, std::min<int>(position.y, range.cy)));
    const CSize by = m_position - target;
    if (by == CSize(0, 0))
        return;
    m_position = target;
    SetScrollPos(SB_HORZ, target.x);
    SetScrollPos(SB_VERT, target.y);
    ScrollWindow(by.cx, by.cy);
}

void CScrollView::OnDraw(CDC*) {}

void CScrollView::OnPrepareDC(CDC* dc)
{
    dc->SetViewportOrg(-m_position.x, -m_position.y);
}

void CScrollView::OnSize(UINT type, int cx, int cy)
{
    CView::OnSize(type, cx, cy);
    UpdateBars();
}

void CScrollView::OnHScroll(UINT code, UINT, CScrollBar* scrollBar)
{
    if (scrollBar == nullptr)
        ScrollToPosition(CPoint(Scrolled(SB_HORZ, code, m_position.x, m_page.cx, m_line.cx), m_position.y));
}

void CScrollView::OnVScroll(UINT code, UINT, CScrollBar* scrollBar)
{
    if (scrollBar == nullptr)
        ScrollToPosition(CPoint(m_position.x, Scrolled(SB_VERT, code, m_position.y, m_page.cy, m_line.cy)));
}

BOOL CScrollView::OnMouseWheel(UINT, short delta, CPoint)
{
    ScrollToPosition(CPoint(m_position.x, m_position.y - delta * m_line.cy / WHEEL_DELTA));
    return TRUE;
}

CSize CScrollView::Range() const
{
    CRect client;
    GetClientRect(&client);
    return CSize(std::max<int>(0, m_total.cx - client.Width()), std::max<int>(0, m_total.cy - client.Height()));
}

// A bar takes room from the other direction, so the system is asked in turn; it hides a bar whose page holds all.
void CScrollView::UpdateBars()
{
    if (m_total == CSize(0, 0))
        return;
    for (const int bar : {SB_HORZ, SB_VERT, SB_HORZ})
    {
        CRect client;
        GetClientRect(&client);
        SCROLLINFO info = {};
        info.fMask = SIF_RANGE | SIF_PAGE;
        info.nMax = std::max<int>(0, (bar == SB_HORZ ? m_total.cx : m_total.cy) - 1);
        info.nPage = static_cast<UINT>(bar == SB_HORZ ? client.Width() : client.Height());
        SetScrollInfo(bar, &info);
    }
    ScrollToPosition(m_position);
}

int CScrollView::Scrolled(int bar, UINT code, int position, int page, int line)
{
    SCROLLINFO info = {};
    switch (code)
    {
    case SB_LINEUP:
        return position - line;
    case SB_LINEDOWN:
        return position + line;
    case SB_PAGEUP:
        return position - page;
    case SB_PAGEDOWN:
        return position + page;
    case SB_TOP:
        return 0;
    case SB_BOTTOM:
        return INT_MAX;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        GetScrollInfo(bar, &info, SIF_TRACKPOS);
        return info.nTrackPos;
    default:
        return position;
    }
}
