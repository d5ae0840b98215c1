#include "afx/menu/CmdUI.h"

#include "afx/menu/Menu.h"
#include "afx/wnd/Wnd.h"

#include <algorithm>

namespace
{
const UINT Popup = UINT(-1); // what GetMenuItemID answers for an item that opens a submenu
const UINT FirstSystemCommand = 0xF000;
const WORD NoId = 0xFFFF;

bool IsButton(HWND window)
{
    return (::SendMessage(window, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) != 0;
}

// A disabled window must not keep the focus: the keyboard would be dead.
void PassFocusOn(HWND window)
{
    if (::GetFocus() != window)
        return;
    const HWND next = ::GetNextDlgTabItem(::GetParent(window), window, FALSE);
    ::SetFocus(next != nullptr && next != window ? next : ::GetParent(window));
}

// Points state at the item at its index. False: nothing to update there (separator, empty submenu).
bool PrepareItem(CCmdUI& state)
{
    state.m_nID = state.m_pMenu->GetMenuItemID(static_cast<int>(state.m_nIndex));
    state.m_pSubMenu = nullptr;
    if (state.m_nID != Popup)
        return state.m_nID != 0;
    state.m_pSubMenu = state.m_pMenu->GetSubMenu(static_cast<int>(state.m_nIndex));
    if (state.m_pSubMenu == nullptr)
        return false;
    state.m_nID = state.m_pSubMenu->GetMenuItemID(0);
    return state.m_nID != 0 && state.m_nID != Popup;
}

// A menu that is gone has no items; the system says -1.
UINT ItemCount(const CMenu& menu)
{
    return static_cast<UINT>(std::max(0, ::GetMenuItemCount(menu.m_hMenu)));
}

// A handler may have removed or added items of the menu (lists of recent files do).
void FollowChangedCount(CCmdUI& state)
{
    const UINT count = ItemCount(*state.m_pMenu);
    if (count < state.m_nIndexMax)
    {
        const UINT gone = state.m_nIndexMax - count;
        state.m_nIndex = gone > state.m_nIndex ? UINT(-1) : state.m_nIndex - gone; // the loop's step makes -1 the first
        while (state.m_nIndex < count && state.m_pMenu->GetMenuItemID(static_cast<int>(state.m_nIndex)) == state.m_nID)
            ++state.m_nIndex;
    }
    state.m_nIndexMax = count;
}
} // namespace

CCmdUI::CCmdUI() = default;

CCmdUI::~CCmdUI() = default;

void CCmdUI::Enable(BOOL on)
{
    if (m_pMenu == nullptr)
    {
        if (!on)
            PassFocusOn(m_pOther->m_hWnd);
        m_pOther->EnableWindow(on);
    }
    else if (m_pSubMenu == nullptr)
    {
        m_pMenu->EnableMenuItem(m_nIndex, MF_BYPOSITION | (on ? MF_ENABLED : MF_GRAYED));
    }
    else
    {
        return;
    }
    m_bEnableChanged = TRUE;
}

void CCmdUI::SetCheck(int check)
{
    if (m_pMenu == nullptr)
    {
        if (IsButton(m_pOther->m_hWnd))
            m_pOther->SendMessage(BM_SETCHECK, check);
    }
    else if (m_pSubMenu == nullptr)
    {
        m_pMenu->CheckMenuItem(m_nIndex, MF_BYPOSITION | (check != 0 ? MF_CHECKED : MF_UNCHECKED));
    }
}

void CCmdUI::SetRadio(BOOL on)
{
    SetCheck(on ? BST_CHECKED : BST_UNCHECKED);
    if (m_pMenu == nullptr || m_pSubMenu != nullptr)
        return;
    MENUITEMINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE;
    if (!m_pMenu->GetMenuItemInfo(m_nIndex, &info, TRUE))
        return;
    info.fType |= MFT_RADIOCHECK;
    m_pMenu->SetMenuItemInfo(m_nIndex, &info, TRUE);
}

void CCmdUI::SetText(LPCTSTR text)
{
    if (m_pMenu == nullptr)
    {
        CString current;
        m_pOther->GetWindowText(current);
        if (current != text) // an unchanged text would only flicker
            m_pOther->SetWindowText(text);
    }
    else if (m_pSubMenu == nullptr)
    {
        MENUITEMINFO info = {};
        info.cbSize = sizeof(info);
        info.fMask = MIIM_STRING;
        info.dwTypeData = const_cast<LPTSTR>(text);
        m_pMenu->SetMenuItemInfo(m_nIndex, &info, TRUE);
    }
}

void CCmdUI::ContinueRouting()
{
    m_bContinueRouting = TRUE;
}

BOOL CCmdUI::DoUpdate(CCmdTarget* target, BOOL disableIfNoHandler)
{
    if (m_nID == 0 || LOWORD(m_nID) == NoId)
        return TRUE;

    m_bEnableChanged = FALSE;
    const BOOL updated = target->OnCmdMsg(m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), this, nullptr);
    if (disableIfNoHandler && !m_bEnableChanged)
    {
        AFX_CMDHANDLERINFO info = {};
        Enable(target->OnCmdMsg(m_nID, CN_COMMAND, this, &info));
    }
    return updated;
}

void AfxUpdateMenuItems(CMenu* menu, CMenu* parentMenu, CCmdTarget* target, BOOL disableIfNoHandler)
{
    CCmdUI state;
    state.m_pMenu = menu;
    state.m_pParentMenu = parentMenu;
    state.m_nIndexMax = ItemCount(*menu);
    for (; state.m_nIndex < state.m_nIndexMax; ++state.m_nIndex)
    {
        if (!PrepareItem(state))
            continue;
        const bool mayDisable = state.m_pSubMenu == nullptr && state.m_nID < FirstSystemCommand;
        state.DoUpdate(target, disableIfNoHandler && mayDisable);
        FollowChangedCount(state);
    }
}
