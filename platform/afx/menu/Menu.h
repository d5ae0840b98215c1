// CMenu: a menu handle with its functions, and the place of owner-drawn menus.
//
// An object owns the handle that was created by, loaded into or attached to it: its destructor destroys the menu.
// FromHandle gives a temporary object for a menu that no object owns; it lives until the thread is idle again.
// A class that overrides DrawItem and MeasureItem receives the owner-draw messages of its own menu: the window that
// tracks the menu finds the object through the thread's map of permanent menu objects.
#pragma once

#include <afx.h>

class CBitmap;
class CMenu;
class CWnd;

class AFX_API CMenu : public CObject
{
    DECLARE_DYNCREATE(CMenu)

public:
    CMenu();
    ~CMenu() override;

    CMenu(const CMenu&) = delete;
    CMenu& operator=(const CMenu&) = delete;

    BOOL CreateMenu();
    BOOL CreatePopupMenu();
    // Looks the menu up through AfxFindResourceHandle at the time of the call.
    BOOL LoadMenu(LPCTSTR resourceName);
    BOOL LoadMenu(UINT resourceId);
    BOOL LoadMenuIndirect(const void* menuTemplate);
    BOOL DestroyMenu();

    HMENU m_hMenu = nullptr;
    HMENU GetSafeHmenu() const;
    operator HMENU() const;
    BOOL operator==(const CMenu& other) const;
    BOOL operator!=(const CMenu& other) const;

    // NULL for a NULL handle. The permanent form answers NULL where no object owns the handle.
    static CMenu* PASCAL FromHandle(HMENU menu);
    static CMenu* PASCAL FromHandlePermanent(HMENU menu);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HMENU menu);
    HMENU Detach();

    BOOL DeleteMenu(UINT position, UINT flags);
    BOOL RemoveMenu(UINT position, UINT flags);
    BOOL AppendMenu(UINT flags, UINT_PTR newItemId = 0, LPCTSTR newItem = nullptr);
    BOOL AppendMenu(UINT flags, UINT_PTR newItemId, const CBitmap* bitmap);
    BOOL InsertMenu(UINT position, UINT flags, UINT_PTR newItemId = 0, LPCTSTR newItem = nullptr);
    BOOL InsertMenu(UINT position, UINT flags, UINT_PTR newItemId, const CBitmap* bitmap);
    BOOL InsertMenuItem(UINT item, LPMENUITEMINFO info, BOOL byPosition = FALSE);
    BOOL ModifyMenu(UINT position, UINT flags, UINT_PTR newItemId = 0, LPCTSTR newItem = nullptr);
    BOOL ModifyMenu(UINT position, UINT flags, UINT_PTR newItemId, const CBitmap* bitmap);

    UINT CheckMenuItem(UINT checkItemId, UINT check);
    BOOL CheckMenuRadioItem(UINT firstId, UINT lastId, UINT itemId, UINT flags);
    UINT EnableMenuItem(UINT enableItemId, UINT enable);
    BOOL SetDefaultItem(UINT item, BOOL byPosition = FALSE);
    UINT GetDefaultItem(UINT flags, BOOL byPosition = FALSE);
    BOOL SetMenuItemBitmaps(UINT position, UINT flags, const CBitmap* unchecked, const CBitmap* checked);
    BOOL SetMenuItemInfo(UINT item, LPMENUITEMINFO info, BOOL byPosition = FALSE);
    BOOL GetMenuItemInfo(UINT item, LPMENUITEMINFO info, BOOL byPosition = FALSE);
    BOOL SetMenuInfo(LPCMENUINFO info);
    BOOL GetMenuInfo(LPMENUINFO info) const;
    BOOL SetMenuContextHelpId(DWORD contextHelpId);
    DWORD GetMenuContextHelpId() const;

    UINT GetMenuItemCount() const;
    // 0 for a separator, UINT(-1) for an item that opens a submenu.
    UINT GetMenuItemID(int position) const;
    UINT GetMenuState(UINT id, UINT flags) const;
    int GetMenuString(UINT itemId, LPTSTR text, int maxCount, UINT flags) const;
    int GetMenuString(UINT itemId, CString& text, UINT flags) const;
    // A temporary object unless an object of the client owns the submenu; NULL where the item opens none.
    CMenu* GetSubMenu(int position) const;

    // Shows the menu at screen coordinates and returns when it is closed. While it is open the thread's tracking menu
    // and window name this menu and the owner, so that the owner's measure and draw messages find the menu's objects.
    // Result: nonzero on success, or the chosen item's id with TPM_RETURNCMD.
    BOOL TrackPopupMenu(UINT flags, int x, int y, CWnd* owner, LPCRECT ignored = nullptr);
    BOOL TrackPopupMenuEx(UINT flags, int x, int y, CWnd* owner, LPTPMPARAMS parameters);

    // Overridables of owner-drawn menus.
    virtual void DrawItem(LPDRAWITEMSTRUCT drawItem);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT measureItem);
};
