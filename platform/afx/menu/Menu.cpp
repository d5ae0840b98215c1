#include "afx/menu/Menu.h"

#include "afx/app/Resource.h"
#include "afx/core/HandleMap.h"
#include "afx/core/ThreadLocal.h"
#include "afx/gdi/GdiObject.h"
#include "afx/wnd/Wnd.h"

IMPLEMENT_DYNCREATE(CMenu, CObject)

namespace
{
typedef CHandleMap<CMenu, HMENU> MenuMap;

CMenu* MakeTemporaryMenu(HMENU handle)
{
    CMenu* menu = new CMenu;
    menu->m_hMenu = handle;
    return menu;
}

void SetMenuHandle(CMenu* menu, HMENU handle)
{
    menu->m_hMenu = handle;
}

MenuMap& ThreadMenuMap()
{
    static CPerThread<MenuMap> maps;
    return maps.Get([] { return new MenuMap(&MakeTemporaryMenu, &SetMenuHandle); });
}

// A bitmap stands in a menu in the place of the text.
LPCTSTR BitmapAsItem(const CBitmap* bitmap)
{
    return reinterpret_cast<LPCTSTR>(bitmap->GetSafeHandle());
}

// Names the tracked menu and its owner in the thread state while a menu is open; menus can nest.
class TrackingScope
{
public:
    TrackingScope(HMENU menu, HWND window)
        : m_state(AfxGetThreadState()), m_menu(m_state->m_hTrackingMenu), m_window(m_state->m_hTrackingWindow)
    {
        m_state->m_hTrackingMenu = menu;
        m_state->m_hTrackingWindow = window;
    }
    ~TrackingScope()
    {
        m_state->m_hTrackingMenu = m_menu;
        m_state->m_hTrackingWindow = m_window;
    }
    TrackingScope(const TrackingScope&) = delete;
    TrackingScope& operator=(const TrackingScope&) = delete;

private:
    _AFX_THREAD_STATE* const m_state;
    const HMENU m_menu;
    const HWND m_window;
};
} // namespace

CMenu::CMenu() = default;

CMenu::~CMenu()
{
    DestroyMenu();
}

BOOL CMenu::CreateMenu()
{
    return Attach(::CreateMenu());
}

BOOL CMenu::CreatePopupMenu()
{
    return Attach(::CreatePopupMenu());
}

BOOL CMenu::LoadMenu(LPCTSTR resourceName)
{
    return Attach(::LoadMenu(AfxFindResourceHandle(resourceName, RT_MENU), resourceName));
}

BOOL CMenu::LoadMenu(UINT resourceId)
{
    return LoadMenu(MAKEINTRESOURCE(resourceId));
}

BOOL CMenu::LoadMenuIndirect(const void* menuTemplate)
{
    return Attach(::LoadMenuIndirect(menuTemplate));
}

BOOL CMenu::DestroyMenu()
{
    return m_hMenu != nullptr && ::DestroyMenu(Detach());
}

HMENU CMenu::GetSafeHmenu() const
{
    // Clients call this on the result of a search that may have found nothing.
    return this == nullptr ? nullptr : m_hMenu;
}

CMenu::operator HMENU() const
{
    return GetSafeHmenu();
}

BOOL CMenu::operator==(const CMenu& other) const
{
    return other.m_hMenu == m_hMenu;
}

BOOL CMenu::operator!=(const CMenu& other) const
{
    return other.m_hMenu != m_hMenu;
}

CMenu* PASCAL CMenu::FromHandle(HMENU menu)
{
    return ThreadMenuMap().FromHandle(menu);
}

CMenu* PASCAL CMenu::FromHandlePermanent(HMENU menu)
{
    return ThreadMenuMap().LookupPermanent(menu);
}

void PASCAL CMenu::DeleteTempMap()
{
    ThreadMenuMap().DeleteTemp();
}

BOOL CMenu::Attach(HMENU menu)
{
    if (menu == nullptr)
        return FALSE;
    ASSERT(m_hMenu == nullptr);
    ThreadMenuMap().SetPermanent(menu, this);
    m_hMenu = menu;
    return TRUE;
}

HMENU CMenu::Detach()
{
    const HMENU menu = m_hMenu;
    if (menu != nullptr && ThreadMenuMap().LookupPermanent(menu) == this)
        ThreadMenuMap().RemoveHandle(menu);
    m_hMenu = nullptr;
    return menu;
}

BOOL CMenu::DeleteMenu(UINT position, UINT flags)
{
    return ::DeleteMenu(m_hMenu, position, flags);
}

BOOL CMenu::RemoveMenu(UINT position, UINT flags)
{
    return ::RemoveMenu(m_hMenu, position, flags);
}

BOOL CMenu::AppendMenu(UINT flags, UINT_PTR newItemId, LPCTSTR newItem)
{
    return ::AppendMenu(m_hMenu, flags, newItemId, newItem);
}

BOOL CMenu::AppendMenu(UINT flags, UINT_PTR newItemId, const CBitmap* bitmap)
{
    return ::AppendMenu(m_hMenu, flags | MF_BITMAP, newItemId, BitmapAsItem(bitmap));
}

BOOL CMenu::InsertMenu(UINT position, UINT flags, UINT_PTR newItemId, LPCTSTR newItem)
{
    return ::InsertMenu(m_hMenu, position, flags, newItemId, newItem);
}

BOOL CMenu::InsertMenu(UINT position, UINT flags, UINT_PTR newItemId, const CBitmap* bitmap)
{
    return ::InsertMenu(m_hMenu, position, flags | MF_BITMAP, newItemId, BitmapAsItem(bitmap));
}

BOOL CMenu::InsertMenuItem(UINT item, LPMENUITEMINFO info, BOOL byPosition)
{
    return ::InsertMenuItem(m_hMenu, item, byPosition, info);
}

BOOL CMenu::ModifyMenu(UINT position, UINT flags, UINT_PTR newItemId, LPCTSTR newItem)
{
    return ::ModifyMenu(m_hMenu, position, flags, newItemId, newItem);
}

BOOL CMenu::ModifyMenu(UINT position, UINT flags, UINT_PTR newItemId, const CBitmap* bitmap)
{
    return ::ModifyMenu(m_hMenu, position, flags | MF_BITMAP, newItemId, BitmapAsItem(bitmap));
}

UINT CMenu::CheckMenuItem(UINT checkItemId, UINT check)
{
    return ::CheckMenuItem(m_hMenu, checkItemId, check);
}

BOOL CMenu::CheckMenuRadioItem(UINT firstId, UINT lastId, UINT itemId, UINT flags)
{
    return ::CheckMenuRadioItem(m_hMenu, firstId, lastId, itemId, flags);
}

UINT CMenu::EnableMenuItem(UINT enableItemId, UINT enable)
{
    return static_cast<UINT>(::EnableMenuItem(m_hMenu, enableItemId, enable));
}

BOOL CMenu::SetDefaultItem(UINT item, BOOL byPosition)
{
    return ::SetMenuDefaultItem(m_hMenu, item, byPosition);
}

UINT CMenu::GetDefaultItem(UINT flags, BOOL byPosition)
{
    return ::GetMenuDefaultItem(m_hMenu, byPosition, flags);
}

BOOL CMenu::SetMenuItemBitmaps(UINT position, UINT flags, const CBitmap* unchecked, const CBitmap* checked)
{
    return ::SetMenuItemBitmaps(m_hMenu, position, flags, static_cast<HBITMAP>(unchecked->GetSafeHandle()),
                                static_cast<HBITMAP>(checked->GetSafeHandle()));
}

BOOL CMenu::SetMenuItemInfo(UINT item, LPMENUITEMINFO info, BOOL byPosition)
{
    return ::SetMenuItemInfo(m_hMenu, item, byPosition, info);
}

BOOL CMenu::GetMenuItemInfo(UINT item, LPMENUITEMINFO info, BOOL byPosition)
{
    return ::GetMenuItemInfo(m_hMenu, item, byPosition, info);
}

BOOL CMenu::SetMenuInfo(LPCMENUINFO info)
{
    return ::SetMenuInfo(m_hMenu, info);
}

BOOL CMenu::GetMenuInfo(LPMENUINFO info) const
{
    return ::GetMenuInfo(m_hMenu, info);
}

BOOL CMenu::SetMenuContextHelpId(DWORD contextHelpId)
{
    return ::SetMenuContextHelpId(m_hMenu, contextHelpId);
}

DWORD CMenu::GetMenuContextHelpId() const
{
    return ::GetMenuContextHelpId(m_hMenu);
}

UINT CMenu::GetMenuItemCount() const
{
    return static_cast<UINT>(::GetMenuItemCount(m_hMenu));
}

UINT CMenu::GetMenuItemID(int position) const
{
    return ::GetMenuItemID(m_hMenu, position);
}

UINT CMenu::GetMenuState(UINT id, UINT flags) const
{
    return ::GetMenuState(m_hMenu, id, flags);
}

int CMenu::GetMenuString(UINT itemId, LPTSTR text, int maxCount, UINT flags) const
{
    return ::GetMenuString(m_hMenu, itemId, text, maxCount, flags);
}

int CMenu::GetMenuString(UINT itemId, CString& text, UINT flags) const
{
    const int length = ::GetMenuString(m_hMenu, itemId, nullptr, 0, flags);
    const int copied = ::GetMenuString(m_hMenu, itemId, text.GetBufferSetLength(length), length + 1, flags);
    text.ReleaseBuffer(copied);
    return copied;
}

CMenu* CMenu::GetSubMenu(int position) const
{
    return FromHandle(::GetSubMenu(m_hMenu, position));
}

BOOL CMenu::TrackPopupMenu(UINT flags, int x, int y, CWnd* owner, LPCRECT ignored)
{
    const TrackingScope scope(m_hMenu, owner->GetSafeHwnd());
    return ::TrackPopupMenu(m_hMenu, flags, x, y, 0, owner->GetSafeHwnd(), ignored);
}

BOOL CMenu::TrackPopupMenuEx(UINT flags, int x, int y, CWnd* owner, LPTPMPARAMS parameters)
{
    const TrackingScope scope(m_hMenu, owner->GetSafeHwnd());
    return ::TrackPopupMenuEx(m_hMenu, flags, x, y, owner->GetSafeHwnd(), parameters);
}

void CMenu::DrawItem(LPDRAWITEMSTRUCT) {}

void CMenu::MeasureItem(LPMEASUREITEMSTRUCT) {}
