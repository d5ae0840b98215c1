// The handlers of CWnd that do more than the default processing: messages of controls go back to the control, system
// changes go down to the children, the last message lets the object go.
#include <afxwin.h>

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_DESTROY()
    ON_WM_NCDESTROY()
    ON_WM_CTLCOLOR()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_DELETEITEM()
    ON_WM_COMPAREITEM()
    ON_WM_CHARTOITEM()
    ON_WM_VKEYTOITEM()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_PARENTNOTIFY()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_SETTINGCHANGE()
    ON_WM_DEVMODECHANGE()
    ON_WM_FONTCHANGE()
END_MESSAGE_MAP()

namespace
{
// The popup menu that holds the item, searched from the given menu down; null when no menu does.
CMenu* FindPopupOfItem(HMENU menu, UINT itemId)
{
    const int count = ::GetMenuItemCount(menu);
    for (int position = 0; position < count; ++position)
    {
        const HMENU popup = ::GetSubMenu(menu, position);
        if (popup != nullptr)
        {
            CMenu* const found = FindPopupOfItem(popup, itemId);
            if (found != nullptr)
                return found;
        }
        else if (::GetMenuItemID(menu, position) == itemId)
            return CMenu::FromHandlePermanent(menu);
    }
    return nullptr;
}

// The menu that the window shows now: the popup it tracks, otherwise its menu bar.
HMENU ShownMenu(HWND window)
{
    const _AFX_THREAD_STATE* const state = AfxGetThreadState();
    if (state->m_hTrackingMenu != nullptr && state->m_hTrackingWindow == window)
        return state->m_hTrackingMenu;
    return (::GetWindowLongPtr(window, GWL_STYLE) & WS_CHILD) ? nullptr : ::GetMenu(window);
}

void PassDown(HWND window)
{
    if (::GetWindowLongPtr(window, GWL_STYLE) & WS_CHILD)
        return;
    const MSG current = *CWnd::GetCurrentMessage();
    CWnd::SendMessageToDescendants(window, current.message, current.wParam, current.lParam, TRUE, TRUE);
}

void ForgetMainWindow(const CWnd* window)
{
    CWinThread* const thread = AfxGetThread();
    if (thread == nullptr)
        return;
    if (thread->m_pActiveWnd == window)
        thread->m_pActiveWnd = nullptr;
    if (thread->m_pMainWnd != window)
        return;
    thread->m_pMainWnd = nullptr;
    AfxPostQuitMessage(0);
}
} // namespace

void CWnd::OnDestroy()
{
    if (m_nFlags & WF_TOOLTIPS)
        EnableToolTips(FALSE);
    Default();
}

void CWnd::OnNcDestroy()
{
    ForgetMainWindow(this);

    // Whoever put a procedure in front of ours keeps it until the window is gone.
    const LONG_PTR procedure = ::GetWindowLongPtr(m_hWnd, GWLP_WNDPROC);
    Default();
    WNDPROC* const super = GetSuperWndProcAddr();
    if (*super != nullptr && ::GetWindowLongPtr(m_hWnd, GWLP_WNDPROC) == procedure &&
        procedure == LONG_PTR(AfxGetAfxWndProc()))
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, LONG_PTR(*super));
    *super = nullptr;

    Detach();
    PostNcDestroy(); // may delete this object
}

void CWnd::PostNcDestroy() {}

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* control, UINT)
{
    LRESULT brush = 0;
    if (control != nullptr && control->SendChildNotifyLastMsg(&brush))
        return reinterpret_cast<HBRUSH>(brush);
    return reinterpret_cast<HBRUSH>(Default());
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT drawItem)
{
    if (drawItem->CtlType == ODT_MENU)
    {
        CMenu* const menu = CMenu::FromHandlePermanent(reinterpret_cast<HMENU>(drawItem->hwndItem));
        if (menu != nullptr)
        {
            menu->DrawItem(drawItem);
            return;
        }
    }
    else if (ReflectLastMsg(drawItem->hwndItem))
        return;
    Default();
}

void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT measureItem)
{
    if (measureItem->CtlType == ODT_MENU)
    {
        CMenu* const menu = FindPopupOfItem(ShownMenu(m_hWnd), measureItem->itemID);
        if (menu != nullptr)
        {
            menu->MeasureItem(measureItem);
            return;
        }
    }
    else
    {
        CWnd* const child = GetDescendantWindow(static_cast<int>(measureItem->CtlID), TRUE);
        if (child != nullptr && child->SendChildNotifyLastMsg())
            return;
    }
    Default();
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT deleteItem)
{
    if (!ReflectLastMsg(deleteItem->hwndItem))
        Default();
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT compareItem)
{
    LRESULT order = 0;
    if (ReflectLastMsg(compareItem->hwndItem, &order))
        return static_cast<int>(order);
    return static_cast<int>(Default());
}

int CWnd::OnCharToItem(UINT, CListBox*, UINT)
{
    LRESULT item = 0;
    if (ReflectLastMsg(reinterpret_cast<HWND>(GetCurrentMessage()->lParam), &item))
        return static_cast<int>(item);
    return static_cast<int>(Default());
}

int CWnd::OnVKeyToItem(UINT, CListBox*, UINT)
{
    LRESULT item = 0;
    if (ReflectLastMsg(reinterpret_cast<HWND>(GetCurrentMessage()->lParam), &item))
        return static_cast<int>(item);
    return static_cast<int>(Default());
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar*)
{
    if (!ReflectLastMsg(reinterpret_cast<HWND>(GetCurrentMessage()->lParam)))
        Default();
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar*)
{
    if (!ReflectLastMsg(reinterpret_cast<HWND>(GetCurrentMessage()->lParam)))
        Default();
}

void CWnd::OnParentNotify(UINT message, LPARAM lParam)
{
    const UINT event = LOWORD(message);
    const bool namesChild = event == WM_CREATE || event == WM_DESTROY;
    if (!namesChild || !ReflectLastMsg(reinterpret_cast<HWND>(lParam)))
        Default();
}

void CWnd::OnSysColorChange()
{
    PassDown(m_hWnd);
    Default();
}

void CWnd::OnSettingChange(UINT, LPCTSTR)
{
    PassDown(m_hWnd);
    Default();
}

void CWnd::OnDevModeChange(LPTSTR)
{
    PassDown(m_hWnd);
    Default();
}

void CWnd::OnFontChange()
{
    PassDown(m_hWnd);
    Default();
}
