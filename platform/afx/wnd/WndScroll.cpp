#include <afxwin.h>

namespace
{
// Some windows are scrolled by a scroll bar control instead of a bar of their own.
struct Bar
{
    Bar(const CWnd& window, int bar) : handle(window.m_hWnd), kind(bar)
    {
        const CScrollBar* const control = window.GetScrollBarCtrl(bar);
        if (control != nullptr)
        {
            handle = control->m_hWnd;
            kind = SB_CTL;
        }
    }

    HWND handle;
    int kind;
};
} // namespace

CScrollBar* CWnd::GetScrollBarCtrl(int) const
{
    return nullptr;
}

int CWnd::GetScrollPos(int bar) const
{
    const Bar target(*this, bar);
    return ::GetScrollPos(target.handle, target.kind);
}

int CWnd::SetScrollPos(int bar, int position, BOOL redraw)
{
    const Bar target(*this, bar);
    return ::SetScrollPos(target.handle, target.kind, position, redraw);
}

void CWnd::GetScrollRange(int bar, LPINT least, LPINT most) const
{
    const Bar target(*this, bar);
    ::GetScrollRange(target.handle, target.kind, least, most);
}

void CWnd::SetScrollRange(int bar, int least, int most, BOOL redraw)
{
    const Bar target(*this, bar);
    ::SetScrollRange(target.handle, target.kind, least, most, redraw);
}

BOOL CWnd::GetScrollInfo(int bar, LPSCROLLINFO info, UINT mask)
{
    const Bar target(*this, bar);
    info->cbSize = sizeof(*info);
    info->fMask = mask;
    return ::GetScrollInfo(target.handle, target.kind, info);
}

BOOL CWnd::SetScrollInfo(int bar, LPSCROLLINFO info, BOOL redraw)
{
    const Bar target(*this, bar);
    info->cbSize = sizeof(*info);
    ::SetScrollInfo(target.handle, target.kind, info, redraw);
    return TRUE;
}

// The last position that the thumb reaches: a page fits behind it.
int CWnd::GetScrollLimit(int bar)
{
    int least = 0;
    int most = 0;
    GetScrollRange(bar, &least, &most);
    SCROLLINFO info = {};
    if (GetScrollInfo(bar, &info, SIF_PAGE) && info.nPage > 1)
        most -= static_cast<int>(info.nPage) - 1;
    return most;
}

void CWnd::EnableScrollBarCtrl(int bar, BOOL enable)
{
    if (bar == SB_BOTH)
    {
        EnableScrollBarCtrl(SB_HORZ, enable);
        EnableScrollBarCtrl(SB_VERT, enable);
        return;
    }
    const Bar target(*this, bar);
    if (target.kind == SB_CTL)
        ::EnableWindow(target.handle, enable);
    else
        ::EnableScrollBar(target.handle, UINT(bar), enable ? ESB_ENABLE_BOTH : ESB_DISABLE_BOTH);
}

void CWnd::ScrollWindow(int dx, int dy, LPCRECT rect, LPCRECT clip)
{
    ::ScrollWindow(m_hWnd, dx, dy, rect, clip);
}

int CWnd::ScrollWindowEx(int dx, int dy, LPCRECT scroll, LPCRECT clip, CRgn* update, LPRECT updateRect, UINT flags)
{
    return ::ScrollWindowEx(m_hWnd, dx, dy, scroll, clip, static_cast<HRGN>(update->GetSafeHandle()), updateRect,
                            flags);
}
