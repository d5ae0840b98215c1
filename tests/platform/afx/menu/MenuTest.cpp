#include <afxwin.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace
{
const UINT ID_ONE = 0x8101;
const UINT ID_TWO = 0x8102;
const UINT ID_INNER = 0x8103;
const int ItemWidth = 77;
const int ItemHeight = 23;

class OwnerDrawnMenu : public CMenu
{
public:
    std::vector<UINT> m_measured;
    std::vector<UINT> m_drawn;

    void MeasureItem(LPMEASUREITEMSTRUCT item) override
    {
        m_measured.push_back(item->itemID);
        item->itemWidth = ItemWidth;
        item->itemHeight = ItemHeight;
    }
    void DrawItem(LPDRAWITEMSTRUCT item) override { m_drawn.push_back(item->itemID); }
};

// Tracks menus, looks around while one is open, and closes it.
class MenuOwner : public CWnd
{
public:
    MenuOwner()
    {
        CreateEx(0, AfxRegisterWndClass(0), L"Owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(50, 50, 400, 300),
                 nullptr, 0);
    }
    ~MenuOwner() override { DestroyWindow(); }

    HMENU m_trackedMenu = nullptr;
    HWND m_trackedWindow = nullptr;
    bool m_closeAtOnce = true;

protected:
    afx_msg void OnEnterIdle(UINT, CWnd*)
    {
        m_trackedMenu = AfxGetThreadState()->m_hTrackingMenu;
        m_trackedWindow = AfxGetThreadState()->m_hTrackingWindow;
        if (m_closeAtOnce)
            ::EndMenu();
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(MenuOwner, CWnd)
    ON_WM_ENTERIDLE()
END_MESSAGE_MAP()
} // namespace

// An object owns its menu; a temporary one doesn't.

TEST(Menu, TheDestructorDestroysTheMenu)
{
    HMENU handle = nullptr;
    {
        CMenu menu;
        ASSERT_TRUE(menu.CreatePopupMenu());
        handle = menu;
        EXPECT_EQ(&menu, CMenu::FromHandlePermanent(handle));
    }
    EXPECT_FALSE(::IsMenu(handle));
    EXPECT_EQ(nullptr, CMenu::FromHandlePermanent(handle));
}

TEST(Menu, DetachGivesTheMenuAway)
{
    CMenu menu;
    ASSERT_TRUE(menu.CreateMenu());
    const HMENU handle = menu.Detach();
    EXPECT_EQ(nullptr, menu.m_hMenu);
    EXPECT_EQ(nullptr, CMenu::FromHandlePermanent(handle));
    EXPECT_TRUE(::IsMenu(handle));
    CMenu other;
    EXPECT_TRUE(other.Attach(handle));
    EXPECT_TRUE(other.DestroyMenu());
    EXPECT_FALSE(other.DestroyMenu());
}

TEST(Menu, TemporaryObjectsLeaveTheMenuAlone)
{
    const HMENU handle = ::CreatePopupMenu();
    CMenu* const first = CMenu::FromHandle(handle);
    ASSERT_NE(nullptr, first);
    EXPECT_EQ(first, CMenu::FromHandle(handle));
    EXPECT_EQ(nullptr, CMenu::FromHandlePermanent(handle));
    CMenu::DeleteTempMap();
    EXPECT_TRUE(::IsMenu(handle));
    EXPECT_TRUE(::DestroyMenu(handle));
    EXPECT_EQ(nullptr, CMenu::FromHandle(nullptr));
}

TEST(Menu, SubmenusAreTemporaryUnlessAnObjectOwnsThem)
{
    CMenu menu;
    menu.CreatePopupMenu();
    CMenu inner;
    inner.CreatePopupMenu();
    menu.AppendMenu(MF_POPUP, UINT_PTR(inner.m_hMenu), L"Inner");
    EXPECT_EQ(&inner, menu.GetSubMenu(0));
    inner.Detach();
    EXPECT_NE(&inner, menu.GetSubMenu(0));
    EXPECT_NE(nullptr, menu.GetSubMenu(0));
    EXPECT_EQ(nullptr, menu.GetSubMenu(1));
}

// Items.

TEST(Menu, ItemsAreCountedNamedAndFound)
{
    CMenu menu;
    menu.CreatePopupMenu();
    EXPECT_TRUE(menu.AppendMenu(MF_STRING, ID_ONE, L"One"));
    EXPECT_TRUE(menu.AppendMenu(MF_SEPARATOR));
    EXPECT_TRUE(menu.AppendMenu(MF_POPUP, UINT_PTR(::CreatePopupMenu()), L"More"));
    EXPECT_TRUE(menu.InsertMenu(1, MF_BYPOSITION | MF_STRING, ID_TWO, L"Two"));
    EXPECT_EQ(4u, menu.GetMenuItemCount());
    EXPECT_EQ(ID_ONE, menu.GetMenuItemID(0));
    EXPECT_EQ(ID_TWO, menu.GetMenuItemID(1));
    EXPECT_EQ(0u, menu.GetMenuItemID(2));
    EXPECT_EQ(UINT(-1), menu.GetMenuItemID(3));

    CString text;
    EXPECT_EQ(3, menu.GetMenuString(ID_TWO, text, MF_BYCOMMAND));
    EXPECT_STREQ(L"Two", text);
    EXPECT_TRUE(menu.ModifyMenu(ID_TWO, MF_BYCOMMAND | MF_STRING, ID_TWO, L"\u4E8C"));
    menu.GetMenuString(1, text, MF_BYPOSITION);
    EXPECT_STREQ(L"\u4E8C", text);
    EXPECT_TRUE(menu.DeleteMenu(ID_TWO, MF_BYCOMMAND));
    EXPECT_FALSE(menu.RemoveMenu(ID_TWO, MF_BYCOMMAND));
    EXPECT_EQ(3u, menu.GetMenuItemCount());
}

TEST(Menu, StatesOfItems)
{
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, ID_ONE, L"One");
    menu.AppendMenu(MF_STRING, ID_TWO, L"Two");
    EXPECT_EQ(static_cast<UINT>(MF_UNCHECKED), menu.CheckMenuItem(ID_ONE, MF_CHECKED));
    EXPECT_EQ(static_cast<UINT>(MF_ENABLED), menu.EnableMenuItem(ID_ONE, MF_GRAYED));
    EXPECT_EQ(static_cast<UINT>(MF_CHECKED | MF_GRAYED), menu.GetMenuState(ID_ONE, MF_BYCOMMAND));
    EXPECT_EQ(UINT(-1), menu.GetMenuState(ID_INNER, MF_BYCOMMAND));
    EXPECT_TRUE(menu.SetDefaultItem(ID_TWO));
    EXPECT_EQ(ID_TWO, menu.GetDefaultItem(GMDI_USEDISABLED));
    EXPECT_TRUE(menu.CheckMenuRadioItem(ID_ONE, ID_TWO, ID_TWO, MF_BYCOMMAND));
    EXPECT_TRUE(menu.GetMenuState(ID_TWO, MF_BYCOMMAND) & MF_CHECKED);
    EXPECT_FALSE(menu.GetMenuState(ID_ONE, MF_BYCOMMAND) & MF_CHECKED);
}

// Tracking: the thread knows the menu and its owner while it is open, and only then.

TEST(Menu, TrackingNamesMenuAndOwner)
{
    MenuOwner owner;
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, ID_ONE, L"One");
    menu.TrackPopupMenu(0, 100, 100, &owner);
    EXPECT_EQ(menu.m_hMenu, owner.m_trackedMenu);
    EXPECT_EQ(owner.m_hWnd, owner.m_trackedWindow);
    EXPECT_EQ(nullptr, AfxGetThreadState()->m_hTrackingMenu);
    EXPECT_EQ(nullptr, AfxGetThreadState()->m_hTrackingWindow);
}

TEST(Menu, OwnerDrawnItemsAreMeasuredAndDrawnByTheirMenu)
{
    MenuOwner owner;
    OwnerDrawnMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_OWNERDRAW, ID_ONE, L"1");
    menu.AppendMenu(MF_OWNERDRAW, ID_TWO, L"2");
    menu.TrackPopupMenu(0, 100, 100, &owner);
    EXPECT_EQ((std::vector<UINT>{ID_ONE, ID_TWO}), menu.m_measured);
    EXPECT_NE(menu.m_drawn.end(), std::find(menu.m_drawn.begin(), menu.m_drawn.end(), ID_ONE));
    EXPECT_NE(menu.m_drawn.end(), std::find(menu.m_drawn.begin(), menu.m_drawn.end(), ID_TWO));
}

TEST(Menu, TheItemsOfASubmenuGoToItsOwnObject)
{
    MenuOwner owner;
    OwnerDrawnMenu outer;
    OwnerDrawnMenu inner;
    outer.CreatePopupMenu();
    inner.CreatePopupMenu();
    inner.AppendMenu(MF_OWNERDRAW, ID_INNER, L"3");
    outer.AppendMenu(MF_POPUP, UINT_PTR(inner.m_hMenu), L"Inner");
    AfxGetThreadState()->m_hTrackingMenu = outer.m_hMenu;
    AfxGetThreadState()->m_hTrackingWindow = owner.m_hWnd;

    MEASUREITEMSTRUCT measure = {};
    measure.CtlType = ODT_MENU;
    measure.itemID = ID_INNER;
    owner.SendMessage(WM_MEASUREITEM, 0, LPARAM(&measure));
    DRAWITEMSTRUCT draw = {};
    draw.CtlType = ODT_MENU;
    draw.itemID = ID_INNER;
    draw.hwndItem = reinterpret_cast<HWND>(inner.m_hMenu);
    owner.SendMessage(WM_DRAWITEM, 0, LPARAM(&draw));

    AfxGetThreadState()->m_hTrackingMenu = nullptr;
    AfxGetThreadState()->m_hTrackingWindow = nullptr;
    EXPECT_EQ(std::vector<UINT>{ID_INNER}, inner.m_measured);
    EXPECT_EQ(std::vector<UINT>{ID_INNER}, inner.m_drawn);
    EXPECT_TRUE(outer.m_measured.empty());
    EXPECT_TRUE(outer.m_drawn.empty());
    EXPECT_EQ(static_cast<UINT>(ItemWidth), measure.itemWidth);
    outer.RemoveMenu(0, MF_BYPOSITION); // inner destroys it
}

// A child window may own a menu as well, a control for one.

namespace
{
class MenuButton : public CButton
{
public:
    explicit MenuButton(CWnd& parent) { Create(L"Menu", WS_CHILD | WS_VISIBLE, CRect(10, 10, 80, 40), &parent, 1); }
    ~MenuButton() override { DestroyWindow(); }

    UINT m_typed = 0;
    CMenu* m_typedIn = nullptr;
    std::vector<UINT> m_commands;
    UINT m_typeWhenOpen = 0;

protected:
    afx_msg void OnEnterIdle(UINT, CWnd* menuWindow)
    {
        if (m_typeWhenOpen == 0)
        {
            ::EndMenu();
            return;
        }
        ::PostMessage(menuWindow->m_hWnd, WM_CHAR, m_typeWhenOpen, 0);
        m_typeWhenOpen = 0;
    }
    afx_msg LRESULT OnMenuChar(UINT character, UINT, CMenu* menu)
    {
        m_typed = character;
        m_typedIn = menu;
        return MAKELRESULT(1, MNC_EXECUTE);
    }
    afx_msg void OnItem(UINT id) { m_commands.push_back(id); }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(MenuButton, CButton)
    ON_WM_ENTERIDLE()
    ON_WM_MENUCHAR()
    ON_COMMAND_RANGE(ID_ONE, ID_TWO, &MenuButton::OnItem)
END_MESSAGE_MAP()
} // namespace

TEST(Menu, AButtonThatOwnsAMenuNeedsNothingForItsDrawing)
{
    MenuOwner owner;
    MenuButton button(owner);
    OwnerDrawnMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_OWNERDRAW, ID_ONE, L"1");
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(MF_OWNERDRAW, ID_TWO, L"2");
    menu.TrackPopupMenu(0, 100, 100, &button);
    EXPECT_EQ((std::vector<UINT>{ID_ONE, ID_TWO}), menu.m_measured);
    EXPECT_NE(menu.m_drawn.end(), std::find(menu.m_drawn.begin(), menu.m_drawn.end(), ID_ONE));
    EXPECT_NE(menu.m_drawn.end(), std::find(menu.m_drawn.begin(), menu.m_drawn.end(), ID_TWO));
    EXPECT_EQ(menu.m_drawn.end(), std::find(menu.m_drawn.begin(), menu.m_drawn.end(), 0u));
}

TEST(Menu, TheOwnerIsAskedForUnknownCharactersWithTheMenusObject)
{
    MenuOwner owner;
    MenuButton button(owner);
    OwnerDrawnMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_OWNERDRAW, ID_ONE, L"1");
    menu.AppendMenu(MF_OWNERDRAW, ID_TWO, L"2");
    button.m_typeWhenOpen = L'x';
    menu.TrackPopupMenu(0, 100, 100, &button);
    EXPECT_EQ(UINT(L'x'), button.m_typed);
    EXPECT_EQ(&menu, button.m_typedIn);
    // The answer named the second item, whose command comes when the menu is closed.
    EXPECT_TRUE(button.m_commands.empty());
    MSG message;
    while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
        ::DispatchMessage(&message);
    EXPECT_EQ(std::vector<UINT>{ID_TWO}, button.m_commands);
}

TEST(Menu, ItemsOfAMenuWithoutAnObjectAreLeftToTheSystem)
{
    MenuOwner owner;
    const HMENU menu = ::CreatePopupMenu();
    ::AppendMenu(menu, MF_OWNERDRAW, ID_ONE, nullptr);
    MEASUREITEMSTRUCT measure = {};
    measure.CtlType = ODT_MENU;
    measure.itemID = ID_ONE;
    measure.itemWidth = 5;
    DRAWITEMSTRUCT draw = {};
    draw.CtlType = ODT_MENU;
    draw.itemID = ID_ONE;
    draw.hwndItem = reinterpret_cast<HWND>(menu);
    for (const HMENU tracked : {menu, HMENU(nullptr)})
    {
        AfxGetThreadState()->m_hTrackingMenu = tracked;
        AfxGetThreadState()->m_hTrackingWindow = owner.m_hWnd;
        EXPECT_EQ(0, owner.SendMessage(WM_MEASUREITEM, 0, LPARAM(&measure)));
        EXPECT_EQ(0, owner.SendMessage(WM_DRAWITEM, 0, LPARAM(&draw)));
    }
    AfxGetThreadState()->m_hTrackingMenu = nullptr;
    AfxGetThreadState()->m_hTrackingWindow = nullptr;
    EXPECT_EQ(5u, measure.itemWidth);
    ::DestroyMenu(menu);
}
