// Where a window stands: moving, mapping, centring, and the layout of control bars.
#include <afxwin.h>
#include <afxpriv.h>

void CWnd::MoveWindow(int x, int y, int width, int height, BOOL repaint)
{
    ::MoveWindow(m_hWnd, x, y, width, height, repaint);
}

void CWnd::MoveWindow(LPCRECT rect, BOOL repaint)
{
    ::MoveWindow(m_hWnd, rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, repaint);
}

BOOL CWnd::SetWindowPos(const CWnd* insertAfter, int x, int y, int cx, int cy, UINT flags)
{
    return ::SetWindowPos(m_hWnd, insertAfter->GetSafeHwnd(), x, y, cx, cy, flags);
}

BOOL CWnd::GetWindowPlacement(WINDOWPLACEMENT* placement) const
{
    placement->length = sizeof(*placement);
    return ::GetWindowPlacement(m_hWnd, placement);
}

void CWnd::MapWindowPoints(CWnd* to, LPPOINT points, UINT count) const
{
    ::MapWindowPoints(m_hWnd, to->GetSafeHwnd(), points, count);
}

void CWnd::MapWindowPoints(CWnd* to, LPRECT rect) const
{
    ::MapWindowPoints(m_hWnd, to->GetSafeHwnd(), reinterpret_cast<POINT*>(rect), 2);
}

CPoint PASCAL CWnd::GetCaretPos()
{
    CPoint point;
    ::GetCaretPos(&point);
    return point;
}

void CWnd::CalcWindowRect(LPRECT clientRect, UINT adjustType)
{
    DWORD exStyle = GetExStyle();
    if (adjustType == adjustBorder)
        exStyle &= ~DWORD(WS_EX_CLIENTEDGE);
    ::AdjustWindowRectEx(clientRect, GetStyle(), FALSE, exStyle);
}

namespace
{
CRect WorkArea(HMONITOR monitor)
{
    MONITORINFO info = {};
    info.cbSize = sizeof(info);
    ::GetMonitorInfo(monitor, &info);
    return info.rcWork;
}

// The window that the dialog belongs over; an owner that isn't shown gives no place.
HWND CentreOf(const CWnd& window, const CWnd* alternate)
{
    if (alternate != nullptr)
        return alternate->m_hWnd;
    if (window.GetStyle() & WS_CHILD)
        return ::GetParent(window.m_hWnd);
    const HWND owner = ::GetWindow(window.m_hWnd, GW_OWNER);
    const HWND wanted = reinterpret_cast<HWND>(owner == nullptr ? 0 : ::SendMessage(owner, WM_QUERYCENTERWND, 0, 0));
    return wanted == nullptr ? owner : wanted;
}

bool IsUsableCentre(HWND centre)
{
    return centre != nullptr && ::IsWindowVisible(centre) && !::IsIconic(centre);
}

// The rectangle moved into the area; the top left corner wins where it is too large.
CRect MovedInto(CRect rect, const CRect& area)
{
    if (rect.right > area.right)
        rect.OffsetRect(area.right - rect.right, 0);
    if (rect.left < area.left)
        rect.OffsetRect(area.left - rect.left, 0);
    if (rect.bottom > area.bottom)
        rect.OffsetRect(0, area.bottom - rect.bottom);
    if (rect.top < area.top)
        rect.OffsetRect(0, area.top - rect.top);
    return rect;
}
} // namespace

void CWnd::CenterWindow(CWnd* alternate)
{
    const bool child = (GetStyle() & WS_CHILD) != 0;
    const HWND centre = CentreOf(*this, alternate);

    CRect area;
    CRect over;
    if (child)
    {
        const HWND parent = ::GetParent(m_hWnd);
        ::GetClientRect(parent, &area);
        ::GetClientRect(centre, &over);
        ::MapWindowPoints(centre, parent, reinterpret_cast<POINT*>(&over), 2);
    }
    else if (IsUsableCentre(centre))
    {
        ::GetWindowRect(centre, &over);
        area = WorkArea(::MonitorFromWindow(centre, MONITOR_DEFAULTTONEAREST));
    }
    else
    {
        area = WorkArea(::MonitorFromWindow(m_hWnd, MONITOR_DEFAULTTOPRIMARY));
        over = area;
    }

    CRect rect;
    GetWindowRect(&rect);
    const CPoint middle = over.CenterPoint();
    const CPoint corner(middle.x - rect.Width() / 2, middle.y - rect.Height() / 2);
    const CRect place = MovedInto(CRect(corner, rect.Size()), area);
    ::SetWindowPos(m_hWnd, nullptr, place.left, place.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

namespace
{
// Each bar takes its edge off the layout. The child that gets the rest is the result.
HWND LetBarsTakeEdges(HWND window, UINT idFirst, UINT idLast, UINT idLeftOver, AFX_SIZEPARENTPARAMS& layout)
{
    HWND leftOver = nullptr;
    for (HWND child = ::GetTopWindow(window); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        const UINT id = LOWORD(::GetDlgCtrlID(child));
        if (id == idLeftOver)
            leftOver = child;
        else if (id >= idFirst && id <= idLast && CWnd::FromHandlePermanent(child) != nullptr)
            ::SendMessage(child, WM_SIZEPARENT, 0, LPARAM(&layout));
    }
    return leftOver;
}

// What was asked for: the area that is left of a stretched layout, the size of what the bars take of another.
void TellLayout(const AFX_SIZEPARENTPARAMS& layout, LPRECT result)
{
    if (layout.bStretch)
        *result = layout.rect;
    else
        ::SetRect(result, 0, 0, layout.sizeTotal.cx, layout.sizeTotal.cy);
}

void PlaceLeftOver(HWND window, const RECT& border, AFX_SIZEPARENTPARAMS& layout)
{
    layout.rect.left += border.left;
    layout.rect.top += border.top;
    layout.rect.right -= border.right;
    layout.rect.bottom -= border.bottom;
    CWnd::FromHandle(window)->CalcWindowRect(&layout.rect);
    AfxRepositionWindow(&layout, window, &layout.rect);
}
} // namespace

void CWnd::RepositionBars(UINT idFirst, UINT idLast, UINT idLeftOver, UINT flags, LPRECT param, LPCRECT client,
                          BOOL stretch)
{
    AFX_SIZEPARENTPARAMS layout = {};
    layout.bStretch = stretch;
    if (client != nullptr)
        layout.rect = *client;
    else
        GetClientRect(&layout.rect);

    if ((flags & ~UINT(reposExtra)) == reposQuery)
    {
        ASSERT(param != nullptr);
        LetBarsTakeEdges(m_hWnd, idFirst, idLast, idLeftOver, layout);
        TellLayout(layout, param);
        return;
    }
    const int expectedBars = 8;
    layout.hDWP = ::BeginDeferWindowPos(expectedBars);
    const HWND leftOver = LetBarsTakeEdges(m_hWnd, idFirst, idLast, idLeftOver, layout);
    const RECT noBorder = {};
    if (idLeftOver != 0 && leftOver != nullptr)
        PlaceLeftOver(leftOver, (flags & reposExtra) != 0 ? *param : noBorder, layout);
    if (layout.hDWP != nullptr)
        ::EndDeferWindowPos(layout.hDWP);
}

void AFXAPI AfxRepositionWindow(AFX_SIZEPARENTPARAMS* layout, HWND window, LPCRECT rect)
{
    if (layout != nullptr && layout->hDWP == nullptr)
        return; // only the sizes are asked for

    CRect now;
    ::GetWindowRect(window, &now);
    ::MapWindowPoints(nullptr, ::GetParent(window), reinterpret_cast<POINT*>(&now), 2);
    if (now == *rect)
        return;
    const int width = rect->right - rect->left;
    const int height = rect->bottom - rect->top;
    const UINT flags = SWP_NOACTIVATE | SWP_NOZORDER;
    if (layout == nullptr)
        ::SetWindowPos(window, nullptr, rect->left, rect->top, width, height, flags);
    else
        layout->hDWP = ::DeferWindowPos(layout->hDWP, window, nullptr, rect->left, rect->top, width, height, flags);
}
