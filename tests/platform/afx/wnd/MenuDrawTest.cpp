// Owner-drawn menu items: the owner window hands them to the menu's object.
#include <afxwin.h>

#include <gtest/gtest.h>

namespace
{
const UINT ItemId = 77;

class DrawnMenu : public CMenu
{
public:
    int drawn = 0;
    void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
    void MeasureItem(LPMEASUREITEMSTRUCT measure) override { measure->itemHeight = 44; }
};

// Stands for the time in which CMenu::TrackPopupMenu shows the menu.
class Tracking
{
public:
    Tracking(HMENU menu, HWND window)
    {
        AfxGetThreadState()->m_hTrackingMenu = menu;
        AfxGetThreadState()->m_hTrackingWindow = window;
    }
    ~Tracking()
    {
        AfxGetThreadState()->m_hTrackingMenu = nullptr;
        AfxGetThreadState()->m_hTrackingWindow = nullptr;
    }
};

class MenuDraw : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_window.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
        ASSERT_TRUE(m_menu.CreatePopupMenu());
        ::AppendMenu(m_menu.m_hMenu, MF_OWNERDRAW, ItemId, nullptr);
    }
    void TearDown() override { m_window.DestroyWindow(); }

    UINT Measure(UINT itemId = ItemId)
    {
        MEASUREITEMSTRUCT measure = {};
        measure.CtlType = ODT_MENU;
        measure.itemID = itemId;
        m_window.SendMessage(WM_MEASUREITEM, 0, LPARAM(&measure));
        return measure.itemHeight;
    }

    CWnd m_window;
    DrawnMenu m_menu;
};
} // namespace

TEST_F(MenuDraw, TheTrackedMenuMeasuresItsItems)
{
    EXPECT_NE(44u, Measure());
    const Tracking tracking(m_menu.m_hMenu, m_window.m_hWnd);
    EXPECT_EQ(44u, Measure());
    EXPECT_NE(44u, Measure(ItemId + 1));
}

TEST_F(MenuDraw, APopupInsideTheTrackedMenuMeasuresItsOwn)
{
    CMenu outer;
    ASSERT_TRUE(outer.CreatePopupMenu());
    ::AppendMenu(outer.m_hMenu, MF_POPUP, UINT_PTR(m_menu.m_hMenu), L"inner");
    {
        const Tracking tracking(outer.m_hMenu, m_window.m_hWnd);
        EXPECT_EQ(44u, Measure());
    }
    ::RemoveMenu(outer.m_hMenu, 0, MF_BYPOSITION);
}

TEST_F(MenuDraw, TheMenuOfTheMessageDrawsTheItem)
{
    DRAWITEMSTRUCT draw = {};
    draw.CtlType = ODT_MENU;
    draw.hwndItem = reinterpret_cast<HWND>(m_menu.m_hMenu);
    m_window.SendMessage(WM_DRAWITEM, 0, LPARAM(&draw));
    EXPECT_EQ(1, m_menu.drawn);
}
