// CCmdUI: how a command target tells a menu item, a pane or a button of a control bar what state to show.
//
// A window that is about to show a menu fills one of these for every item and calls DoUpdate, which routes
// CN_UPDATE_COMMAND_UI; the ON_UPDATE_COMMAND_UI handler answers with Enable, SetCheck, SetRadio and SetText.
// Exactly one of m_pMenu and m_pOther is set.
#pragma once

#include <afx.h>

class CCmdTarget;
class CMenu;
class CWnd;

class AFX_API CCmdUI
{
public:
    CCmdUI();
    virtual ~CCmdUI();

    UINT m_nID = 0;
    UINT m_nIndex = 0; // position in the menu, or of the pane or button

    CMenu* m_pMenu = nullptr;
    CMenu* m_pSubMenu = nullptr; // set where a submenu is represented by its first item
    CWnd* m_pOther = nullptr;

    // The entry of a submenu is left as it is: a handler that means it changes m_pMenu itself.
    virtual void Enable(BOOL on = TRUE);
    virtual void SetCheck(int check = 1); // 0 off, 1 on, 2 indeterminate (buttons only)
    virtual void SetRadio(BOOL on = TRUE);
    virtual void SetText(LPCTSTR text);

    // For a handler that wants the next handler of the chain to be asked as well.
    void ContinueRouting();

    // Asks target for the state of m_nID. With disableIfNoHandler an item that no update handler touched is enabled
    // exactly when a command handler exists for it. Result: an update handler was found.
    BOOL DoUpdate(CCmdTarget* target, BOOL disableIfNoHandler);

    BOOL m_bEnableChanged = FALSE;
    BOOL m_bContinueRouting = FALSE;
    UINT m_nIndexMax = 0;           // number of items in m_pMenu
    CMenu* m_pParentMenu = nullptr; // NULL or the menu that holds m_pMenu
};

// Runs DoUpdate over every item of a menu that is about to be shown by owner: the update loop of WM_INITMENUPOPUP.
// Submenus are represented by their first item; items above the range of user commands are never disabled.
AFX_API void AfxUpdateMenuItems(CMenu* menu, CMenu* parentMenu, CCmdTarget* target, BOOL disableIfNoHandler);
