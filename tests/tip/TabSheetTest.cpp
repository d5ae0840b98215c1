// The tab sheet: which page it shows, and where.
#include "TabSheetFixture.h"

#include "GdiCount.h"

#include <string>

namespace
{

class TabSheet : public TabSheetFixture
{
protected:
    // A page's place in the sheet's client area.
    CRect PlaceOf(int page) const
    {
        CRect place = ScreenRect(m_pages[page].m_hWnd);
        m_sheet.ScreenToClient(&place);
        return place;
    }

    CRect ExpectedPlace() const
    {
        CRect client;
        CRect tab;
        m_sheet.GetClientRect(&client);
        m_sheet.GetItemRect(0, &tab);
        const int y = tab.bottom + 1;
        return CRect(CPoint(tab.left, y), CSize(client.right - tab.left - 2, client.bottom - y - 2));
    }
};

} // namespace

TEST_F(TabSheet, ShowMakesATabAndAChildDialogForEachPage)
{
    AddPages();
    EXPECT_EQ(0, m_sheet.GetItemCount());
    EXPECT_EQ(NULL, m_pages[0].GetSafeHwnd()) << "pages are created by Show";
    m_sheet.Show();
    ASSERT_EQ(3, m_sheet.GetItemCount());
    EXPECT_EQ(L"first", Title(0));
    EXPECT_EQ(L"second", Title(1));
    EXPECT_EQ(L"third", Title(2));
    for (const CountingPage& page : m_pages)
        EXPECT_EQ(m_sheet.m_hWnd, ::GetParent(page.m_hWnd));
    EXPECT_EQ(0, Shown());
    EXPECT_EQ(0, m_sheet.GetCurSel());
}

TEST_F(TabSheet, PagesWhoseTemplateIsVisibleAreHiddenToo)
{
    for (CountingPage& page : m_pages)
        m_sheet.AddPage(L"page", &page, IDD_TEST_VISIBLE_PAGE);
    m_sheet.Show();
    EXPECT_EQ(0, Shown());
}

TEST_F(TabSheet, EveryPageStandsBelowTheFirstTab)
{
    ShowPages();
    for (int i = 0; i < kPages; ++i)
        EXPECT_EQ(ExpectedPlace(), PlaceOf(i)) << i;
}

TEST_F(TabSheet, SetRectFollowsTheSizeOfTheSheet)
{
    ShowPages();
    const CRect before = ExpectedPlace();
    m_sheet.MoveWindow(10, 10, 250, 150);
    m_sheet.SetRect();
    EXPECT_NE(before, ExpectedPlace());
    for (int i = 0; i < kPages; ++i)
        EXPECT_EQ(ExpectedPlace(), PlaceOf(i)) << i;
}

TEST_F(TabSheet, SetRectShowsTheFirstPageWhileAnotherTabStaysSelected)
{
    ShowPages();
    Click(MiddleOfTab(2));
    ASSERT_EQ(2, Shown());
    m_sheet.SetRect();
    EXPECT_EQ(0, Shown());
    EXPECT_EQ(2, m_sheet.GetCurSel());
}

TEST_F(TabSheet, SetRectBringsThePagesToTheTop)
{
    ShowPages();
    CStatic other;
    other.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), &m_sheet);
    other.BringWindowToTop();
    m_sheet.SetRect();
    EXPECT_EQ(m_pages[2].m_hWnd, ::GetWindow(m_sheet.m_hWnd, GW_CHILD)) << "each comes before the one before";
}

TEST_F(TabSheet, ASheetTooSmallForPagesHasEmptyOnes)
{
    ShowPages();
    m_sheet.MoveWindow(10, 10, 3, 5);
    m_sheet.SetRect();
    EXPECT_TRUE(PlaceOf(0).IsRectEmpty());
}

TEST_F(TabSheet, SetRectWithoutPagesOrWindowDoesNothing)
{
    m_sheet.SetRect();
    m_sheet.Show();
    EXPECT_EQ(0, m_sheet.GetItemCount());
    EXPECT_EQ(-1, m_sheet.GetCurSel());
    CTabSheet none;
    none.SetRect();
    none.Show();
    EXPECT_EQ(-1, none.GetCurSel());
    EXPECT_EQ(-1, none.SetCurSel(0));
}

TEST_F(TabSheet, TheSeventeenthPageIsRefused)
{
    CDialog pages[17];
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(1, m_sheet.AddPage(L"page", &pages[i], IDD_TEST_PAGE)) << i;
    EXPECT_EQ(0, m_sheet.AddPage(L"one too many", &pages[16], IDD_TEST_PAGE));
    m_sheet.Show();
    EXPECT_EQ(16, m_sheet.GetItemCount());
    EXPECT_EQ(L"page", Title(15));
    EXPECT_EQ(NULL, pages[16].GetSafeHwnd());
    EXPECT_EQ(-1, m_sheet.SetCurSel(16));
    EXPECT_EQ(0, m_sheet.SetCurSel(15));
    EXPECT_TRUE(pages[15].IsWindowVisible());
}

TEST_F(TabSheet, SetCurSelSwitchesThePageAndTheTab)
{
    ShowPages();
    EXPECT_EQ(0, m_sheet.SetCurSel(2));
    EXPECT_EQ(2, Shown());
    EXPECT_EQ(2, m_sheet.GetCurSel());
    EXPECT_EQ(2, m_sheet.SetCurSel(1));
    EXPECT_EQ(1, Shown());
    EXPECT_EQ(1, m_sheet.GetCurSel());
}

TEST_F(TabSheet, SetCurSelOutsideThePagesChangesNothing)
{
    ShowPages();
    m_sheet.SetCurSel(1);
    for (const int index : {-1, kPages, 16, 1000})
        EXPECT_EQ(-1, m_sheet.SetCurSel(index)) << index;
    EXPECT_EQ(1, Shown());
    EXPECT_EQ(1, m_sheet.GetCurSel());
}

TEST_F(TabSheet, SetCurSelOfTheCurrentPageAnswersItWithoutRedrawing)
{
    ShowPages();
    m_sheet.SetCurSel(1);
    const int before = m_pages[1].changes;
    m_sheet.UpdateWindow();
    EXPECT_EQ(1, m_sheet.SetCurSel(1));
    EXPECT_EQ(before, m_pages[1].changes);
    CRect stale(0, 0, 0, 0);
    EXPECT_FALSE(m_sheet.GetUpdateRect(&stale));
}

TEST_F(TabSheet, SetCurSelTellsTheOwnerNothing)
{
    ShowPages();
    int told = 0;
    m_owner.onNotify = [&told](NMHDR& notification) { told += notification.code == TCN_SELCHANGE; };
    m_sheet.SetCurSel(1);
    EXPECT_EQ(0, told);
}

TEST_F(TabSheet, AClickOnATabShowsItsPage)
{
    ShowPages();
    Click(MiddleOfTab(1));
    EXPECT_EQ(1, Shown());
    EXPECT_EQ(1, m_sheet.GetCurSel());
    EXPECT_EQ(1, m_sheet.SetCurSel(1)) << "the clicked page is the current one";
}

TEST_F(TabSheet, AClickOnTheCurrentTabOrBesideTheTabsChangesNothing)
{
    ShowPages();
    const int before = m_pages[0].changes;
    Click(MiddleOfTab(0));
    CRect last;
    m_sheet.GetItemRect(2, &last);
    Click(CPoint(last.right + 5, last.CenterPoint().y));
    EXPECT_EQ(0, Shown());
    EXPECT_EQ(before, m_pages[0].changes);
}

TEST_F(TabSheet, AClickBeforeThereAreTabsChangesNothing)
{
    AddPages();
    m_sheet.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 10));
    m_sheet.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(10, 10));
    EXPECT_EQ(0, m_sheet.SetCurSel(1)) << "the first page is still the current one";
}

TEST_F(TabSheet, ArrowKeysDoNotSwitchThePage)
{
    ShowPages();
    m_sheet.SetFocus();
    m_sheet.SendMessage(WM_KEYDOWN, VK_RIGHT, 0);
    EXPECT_EQ(1, m_sheet.GetCurSel()) << "the tab is selected";
    EXPECT_EQ(0, Shown());
}

TEST_F(TabSheet, TitlesAreKeptAsPointers)
{
    wchar_t title[] = L"before";
    m_sheet.AddPage(title, &m_pages[0], IDD_TEST_PAGE);
    ::lstrcpyW(title, L"after");
    m_sheet.Show();
    EXPECT_EQ(L"after", Title(0));
}

TEST_F(TabSheet, ANullTitleIsEmptyAndAHugeOneIsShown)
{
    const std::wstring huge(100000, L'x');
    m_sheet.AddPage(NULL, &m_pages[0], IDD_TEST_PAGE);
    m_sheet.AddPage(huge.c_str(), &m_pages[1], IDD_TEST_PAGE);
    m_sheet.Show();
    EXPECT_EQ(L"", Title(0));
    EXPECT_EQ(2, m_sheet.GetItemCount());
    EXPECT_EQ(0, m_sheet.SetCurSel(1));
    EXPECT_EQ(1, Shown());
}

TEST_F(TabSheet, ANullPageHasATabWithNothingBelow)
{
    EXPECT_EQ(1, m_sheet.AddPage(L"first", &m_pages[0], IDD_TEST_PAGE));
    EXPECT_EQ(1, m_sheet.AddPage(L"nothing", NULL, IDD_TEST_PAGE));
    m_sheet.Show();
    EXPECT_EQ(2, m_sheet.GetItemCount());
    EXPECT_EQ(0, m_sheet.SetCurSel(1));
    EXPECT_EQ(-1, Shown());
    m_sheet.SetRect();
    Click(MiddleOfTab(0));
    EXPECT_EQ(0, Shown());
}

TEST_F(TabSheet, APageWithoutItsTemplateHasATabWithNothingBelow)
{
    m_sheet.AddPage(L"missing", &m_pages[0], IDD_TEST_MISSING_PAGE);
    m_sheet.AddPage(L"second", &m_pages[1], IDD_TEST_PAGE);
    m_sheet.Show();
    EXPECT_EQ(2, m_sheet.GetItemCount());
    EXPECT_EQ(NULL, m_pages[0].GetSafeHwnd());
    EXPECT_EQ(-1, Shown());
    EXPECT_EQ(0, m_sheet.SetCurSel(1));
    EXPECT_EQ(1, Shown());
    Click(MiddleOfTab(0));
    EXPECT_EQ(-1, Shown());
}

TEST_F(TabSheet, APageThatIsGoneLeavesItsPlaceEmpty)
{
    ShowPages();
    m_pages[1].DestroyWindow();
    EXPECT_EQ(0, m_sheet.SetCurSel(1));
    EXPECT_EQ(-1, Shown());
    m_sheet.SetRect();
    EXPECT_EQ(0, Shown());
    EXPECT_EQ(1, m_sheet.SetCurSel(2));
}

TEST_F(TabSheet, PagesAddedLaterNeedAnotherShow)
{
    AddPages(2);
    m_sheet.Show();
    m_sheet.Show();
    EXPECT_EQ(2, m_sheet.GetItemCount()) << "nothing is created twice";
    m_sheet.AddPage(L"third", &m_pages[2], IDD_TEST_PAGE);
    m_sheet.Show();
    EXPECT_EQ(3, m_sheet.GetItemCount());
    EXPECT_EQ(L"third", Title(2));
    EXPECT_EQ(0, Shown());
}

TEST_F(TabSheet, ASheetWhoseWindowIsMadeAgainShowsItsPagesAgain)
{
    ShowPages();
    m_sheet.DestroyWindow();
    EXPECT_EQ(NULL, m_pages[0].GetSafeHwnd());
    Create();
    m_sheet.Show();
    EXPECT_EQ(3, m_sheet.GetItemCount());
    EXPECT_EQ(0, Shown());
}

TEST_F(TabSheet, AnOwnerMayEndTheSheetWhenTheTabChanges)
{
    ShowPages();
    m_owner.onNotify = [this](NMHDR& notification) {
        if (notification.code == TCN_SELCHANGE)
            m_sheet.DestroyWindow();
    };
    const CPoint tab = MiddleOfTab(1);
    m_sheet.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(tab.x, tab.y));
    EXPECT_EQ(NULL, m_sheet.GetSafeHwnd());
}

TEST_F(TabSheet, LeavesNoObjectBehind)
{
    AddPages();
    const auto cycle = [this] {
        m_sheet.Show();
        m_sheet.SetCurSel(1);
        m_sheet.DestroyWindow();
        Create();
    };
    cycle();
    const size_t gdiObjects = CountGdiObjects();
    const int userObject = UserObjectMark();
    for (int i = 0; i < 20; ++i)
        cycle();
    EXPECT_EQ(gdiObjects, CountGdiObjects());
    EXPECT_LT(UserObjectMark(), userObject + 20) << "less than one for each cycle";
}
