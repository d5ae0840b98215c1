// A hook that gives the popup menus of any window what those of a frame have: each item is enabled, checked and named
// by the window's update handlers when the menu opens.
//
//     CPopupMenuInitHandler m_popups;
//     m_popups.HookWindow(m_hWnd);
//
// The hook answers WM_INITMENUPOPUP (wParam: the menu; lParam: low word its place in its parent, high word whether it
// is the system menu) with 0 itself; nobody behind it sees the message.
#pragma once

#include <afxwin.h>

#include "app/DySubclassWnd.h"
#include "base/ZnktApi.h"

class ZNKT_API CPopupMenuInitHandler : public CDySubclassWnd
{
protected:
    virtual LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam);

    // Asks the window for the state of every item, in order; a separator has none, a submenu is represented by its
    // first item. An item that neither has an update handler nor a command handler is disabled, except for system
    // commands. Menus of the system (bSysMenu) are left alone. Handlers may remove items, and destroy the menu or the
    // window.
    virtual void OnInitMenuPopup(CMenu* pPopup, UINT nIndex, BOOL bSysMenu);
};
