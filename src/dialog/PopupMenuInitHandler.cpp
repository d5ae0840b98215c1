#include "dialog/PopupMenuInitHandler.h"

#include <afxstat_.h>

namespace
{

const UINT kFirstSystemCommand = 0xF000;
const UINT kSubmenu = static_cast<UINT>(-1); // what the menu tells as the identifier of an item that opens a submenu

// A menu of somebody else's, with an object of its own: the temporary one of the handle ends as soon as a handler lets
// the thread become idle.
class CBorrowedMenu : public CMenu
{
public:
    explicit CBorrowedMenu(HMENU menu) { m_hMenu = menu; }
    virtual ~CBorrowedMenu() { m_hMenu = NULL; }
};

// Points the state at the item with its index. False: there is nothing to update.
bool PointAtItem(CCmdUI& state)
{
    const int index = static_cast<int>(state.m_nIndex);
    state.m_nID = state.m_pMenu->GetMenuItemID(index);
    state.m_pSubMenu = NULL;
    if (state.m_nID != kSubmenu)
        return state.m_nID != 0;
    state.m_pSubMenu = state.m_pMenu->GetSubMenu(index);
    if (state.m_pSubMenu == NULL)
        return false;
    state.m_nID = state.m_pSubMenu->GetMenuItemID(0);
    return state.m_nID != 0 && state.m_nID != kSubmenu;
}

// Follows an update handler that removed or added items. The loop's own step makes the first item of an index of -1,
// where all that was done is gone.
void FollowCount(CCmdUI& state, UINT count)
{
    if (count < state.m_nIndexMax)
    {
        const UINT gone = state.m_nIndexMax - count;
        state.m_nIndex = gone > state.m_nIndex ? static_cast<UINT>(-1) : state.m_nIndex - gone;
        while (state.m_nIndex < count && state.m_pMenu->GetMenuItemID(static_cast<int>(state.m_nIndex)) == state.m_nID)
            ++state.m_nIndex;
    }
    state.m_nIndexMax = count;
}

void UpdateItem(CCmdUI& state, HWND hwnd)
{
    CWnd* const target = CWnd::FromHandle(hwnd);
    const bool mayDisable = state.m_pSubMenu == NULL && state.m_nID < kFirstSystemCommand;
    if (target != NULL)
        state.DoUpdate(target, mayDisable);
}

} // namespace

LRESULT CPopupMenuInitHandler::WindowProc(UINT msg, WPARAM wParam, LPARAM lParam)
{
    if (msg != WM_INITMENUPOPUP)
        return CDySubclassWnd::WindowProc(msg, wParam, lParam);
    OnInitMenuPopup(CMenu::FromHandle(reinterpret_cast<HMENU>(wParam)), LOWORD(lParam), HIWORD(lParam));
    return 0;
}

void CPopupMenuInitHandler::OnInitMenuPopup(CMenu* pPopup, UINT, BOOL bSysMenu)
{
    const HWND hwnd = GetHookedWindow();
    if (bSysMenu || pPopup == NULL || !::IsMenu(pPopup->m_hMenu))
        return;
    const HMENU handle = pPopup->m_hMenu;
    CBorrowedMenu menu(handle);
    CCmdUI state;
    state.m_pMenu = &menu;
    state.m_pParentMenu = AfxGetThreadState()->m_hTrackingMenu == handle ? &menu : NULL;
    state.m_nIndexMax = menu.GetMenuItemCount();
    for (; state.m_nIndex < state.m_nIndexMax && ::IsWindow(hwnd); ++state.m_nIndex)
    {
        if (!PointAtItem(state))
            continue;
        UpdateItem(state, hwnd);
        if (!::IsMenu(handle))
            break;
        FollowCount(state, menu.GetMenuItemCount());
    }
}
