#include "afx/ctrl/ScrollBar.h"

IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

BOOL CScrollBar::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_SCROLLBAR, nullptr, style, rect, parent, id);
}

BOOL CScrollBar::SetScrollInfo(LPSCROLLINFO info, BOOL redraw)
{
    info->cbSize = sizeof(*info);
    ::SetScrollInfo(m_hWnd, SB_CTL, info, redraw);
    return TRUE;
}

BOOL CScrollBar::GetScrollInfo(LPSCROLLINFO info, UINT mask)
{
    info->cbSize = sizeof(*info);
    info->fMask = mask;
    return ::GetScrollInfo(m_hWnd, SB_CTL, info);
}

int CScrollBar::GetScrollLimit()
{
    SCROLLINFO info = {};
    if (!GetScrollInfo(&info, SIF_RANGE | SIF_PAGE))
        return 0;
    // With a page size the position stops where the last page begins.
    const int page = static_cast<int>(info.nPage);
    return page > 0 ? info.nMax - page + 1 : info.nMax;
}
