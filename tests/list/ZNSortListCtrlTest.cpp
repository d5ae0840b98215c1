// Sorting: header clicks, arrows, item data, bad input.
#include "SortListFixture.h"

#include "MessageSpy.h"

#include "list/SortText.h"

#include <algorithm>

namespace
{

class SortList : public SortListFixture
{
protected:
    int Compare(LPARAM first, LPARAM second, int mode)
    {
        CZNSortListCtrl::SortInfo info = {&m_list, 0, mode, NULL};
        return CZNSortListCtrl::MyCompareProc(first, second, reinterpret_cast<LPARAM>(&info));
    }
};

} // namespace

TEST_F(SortList, AListWithOneRowDoesNotSortOnAHeaderClick)
{
    FillColumn({L"a"});
    ClickHeading(0);
    EXPECT_EQ(0, State(0));
    EXPECT_FALSE(HasArrow(0));
}

TEST_F(SortList, AOneColumnListSortsAndStillHasOneColumn)
{
    Fill({{L"b"}, {L"c"}, {L"a"}});
    ClickHeading(0);
    EXPECT_EQ((Texts{L"c", L"b", L"a"}), Column(0));
    EXPECT_EQ(1, m_list.GetHeaderCtrl()->GetItemCount());
}

TEST_F(SortList, AOneColumnListHasASecondOneWhileItIsSorted)
{
    Fill({{L"b"}, {L"c"}, {L"a"}});
    const MessageSpy inserted(m_list.m_hWnd, LVM_INSERTCOLUMNW);
    m_list.SortColumn(0, 0, 1);
    ASSERT_EQ(1u, inserted.Seen().size());
    EXPECT_EQ(1u, inserted.Seen()[0].first);
    FillColumn({L"b", L"a"});
    const size_t before = inserted.Seen().size();
    m_list.SortColumn(0, 0, 1);
    EXPECT_EQ(before, inserted.Seen().size()); // this list has two anyway
}

TEST_F(SortList, AColumnSortsAsNumbersWhenRowZeroHoldsANumber)
{
    FillColumn({L"10", L"9", L"-", L""});
    ClickHeading(0);
    EXPECT_EQ((Texts{L"10", L"9", L"-", L""}), Column(0));
    ClickHeading(0);
    EXPECT_EQ((Texts{L"-", L"", L"9", L"10"}), Column(0));
}

TEST_F(SortList, TheSameColumnSortsAsTextWhenRowZeroHoldsAbc)
{
    FillColumn({L"abc", L"10", L"9", L"-", L""});
    ClickHeading(0);
    EXPECT_EQ((Texts{L"abc", L"9", L"10", L"-", L""}), Column(0));
}

TEST_F(SortList, AnEmptyTextInRowZeroCountsAsNumeric)
{
    FillColumn({L"", L"10", L"9"});
    ClickHeading(0);
    EXPECT_EQ((Texts{L"10", L"9", L""}), Column(0));
}

TEST_F(SortList, BlanksInRowZeroAreText)
{
    FillColumn({L"  ", L"10", L"9"});
    ClickHeading(0);
    EXPECT_EQ((Texts{L"9", L"10", L"  "}), Column(0));
}

TEST_F(SortList, EveryRowKeepsItsItemData)
{
    FillColumn({L"b", L"c", L"a"});
    ClickHeading(0);
    EXPECT_EQ((std::vector<DWORD_PTR>{1001, 1000, 1002}), Data());
}

TEST_F(SortList, ItemDataMayBeEqualOrLarge)
{
    FillColumn({L"b", L"c", L"a"});
    const DWORD_PTR large = static_cast<DWORD_PTR>(-2);
    m_list.SetItemData(0, large);
    m_list.SetItemData(1, 0);
    m_list.SetItemData(2, 0);
    m_list.SortColumn(0, 0, 1);
    EXPECT_EQ((Texts{L"a", L"b", L"c"}), Column(0));
    EXPECT_EQ((std::vector<DWORD_PTR>{0, large, 0}), Data());
}

TEST_F(SortList, TheSameHeadingAlternatesBetweenDownAndUp)
{
    FillColumn({L"b", L"c", L"a"});
    ClickHeading(0);
    EXPECT_EQ(1, State(0)) << "a fresh heading holds 0, which reverses to descending";
    EXPECT_EQ(1, Heading(0).iImage);
    EXPECT_EQ((Texts{L"c", L"b", L"a"}), Column(0));
    ClickHeading(0);
    EXPECT_EQ(0, State(0));
    EXPECT_EQ(0, Heading(0).iImage);
    EXPECT_EQ((Texts{L"a", L"b", L"c"}), Column(0));
    EXPECT_TRUE(HasArrow(0));
}

TEST_F(SortList, SortingAnotherColumnRemovesTheFirstArrow)
{
    Fill({{L"a", L"2"}, {L"b", L"1"}});
    ClickHeading(0);
    ClickHeading(1);
    EXPECT_EQ(-1, State(0));
    EXPECT_FALSE(HasArrow(0));
    EXPECT_TRUE(HasArrow(1));
    EXPECT_EQ((Texts{L"1", L"2"}), Column(1)) << "the arrow of column 1 had been cleared, so it starts ascending";
    EXPECT_EQ(0, State(1));
}

TEST_F(SortList, AnUnknownOrderOnlyClearsTheOtherArrows)
{
    Fill({{L"b", L"2"}, {L"a", L"1"}});
    ClickHeading(0);
    const Texts before = Column(0);
    for (int order : {2, -2, 100})
    {
        m_list.SortColumn(1, 0, order);
        EXPECT_EQ(-1, State(0));
        EXPECT_EQ(-2, m_list.ModiHeardCtrl(m_list.GetHeaderCtrl(), 99, 0));
        EXPECT_EQ(before, Column(0));
        EXPECT_FALSE(HasArrow(1));
    }
}

TEST_F(SortList, SortColumnWithOrderTwoKeepsItsOwnArrow)
{
    Fill({{L"b", L"2"}, {L"a", L"1"}});
    ClickHeading(0);
    m_list.SortColumn(0, 0, 2);
    EXPECT_EQ(1, State(0));
    EXPECT_TRUE(HasArrow(0));
    EXPECT_EQ(-1, State(1));
}

TEST_F(SortList, SortColumnTakesADirection)
{
    FillColumn({L"b", L"c", L"a"});
    m_list.SortColumn(0, 0, 1);
    EXPECT_EQ((Texts{L"a", L"b", L"c"}), Column(0));
    EXPECT_EQ(0, State(0));
    m_list.SortColumn(0, 0, 0);
    EXPECT_EQ((Texts{L"c", L"b", L"a"}), Column(0));
    EXPECT_EQ(1, State(0));
}

TEST_F(SortList, SortColumnSortsAsNumbersOnlyForOne)
{
    FillColumn({L"10", L"9"});
    m_list.SortColumn(0, 2, 1);
    EXPECT_EQ((Texts{L"10", L"9"}), Column(0));
    m_list.SortColumn(0, 1, 1);
    EXPECT_EQ((Texts{L"9", L"10"}), Column(0));
}

TEST_F(SortList, DisabledSortLeavesTheClickToTheParent)
{
    FillColumn({L"a", L"b"});
    m_list.EnableSort(0);
    ClickHeading(0);
    EXPECT_EQ((Texts{L"a", L"b"}), Column(0));
    EXPECT_EQ(1, m_owner.Count(LVN_COLUMNCLICK));
    m_list.EnableSort(1);
    ClickHeading(0);
    EXPECT_EQ((Texts{L"b", L"a"}), Column(0));
    EXPECT_EQ(2, m_owner.Count(LVN_COLUMNCLICK));
}

TEST_F(SortList, OnlyTheColumnsGivenSortByAClick)
{
    Fill({{L"a", L"1"}, {L"b", L"2"}});
    m_list.SetSortSubitems(1);
    ClickHeading(0);
    EXPECT_EQ((Texts{L"a", L"b"}), Column(0));
    ClickHeading(1);
    EXPECT_EQ((Texts{L"2", L"1"}), Column(1));
}

TEST_F(SortList, TheArrayOfColumnsIsCopied)
{
    Fill({{L"a", L"1"}, {L"b", L"2"}});
    CArray<int, int> columns;
    columns.Add(0);
    m_list.SetSortSubitems(columns);
    columns[0] = 1;
    ClickHeading(0);
    EXPECT_EQ((Texts{L"b", L"a"}), Column(0));
    columns.RemoveAll();
    m_list.SetSortSubitems(columns);
    ClickHeading(1);
    EXPECT_EQ((Texts{L"1", L"2"}), Column(1)) << "none means all";
}

TEST_F(SortList, AColumnThatIsNamedTwiceIsSortedTwice)
{
    FillColumn({L"a", L"b"});
    CArray<int, int> columns;
    columns.Add(0);
    columns.Add(0);
    m_list.SetSortSubitems(columns);
    ClickHeading(0);
    EXPECT_EQ((Texts{L"a", L"b"}), Column(0));
    EXPECT_EQ(0, State(0));
}

TEST_F(SortList, EqualRowsKeepTheirOrder)
{
    Fill({{L"x", L"1"}, {L"X", L"2"}, {L"a", L"3"}, {L"x", L"4"}});
    m_list.SortColumn(0, 0, 1);
    EXPECT_EQ((Texts{L"3", L"1", L"2", L"4"}), Column(1));
    m_list.SortColumn(0, 0, 0);
    EXPECT_EQ((Texts{L"1", L"2", L"4", L"3"}), Column(1));
}

TEST_F(SortList, SelectionGoesWithTheRow)
{
    FillColumn({L"b", L"c", L"a"});
    m_list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    m_list.SortColumn(0, 0, 1);
    EXPECT_EQ(1, m_list.GetNextItem(-1, LVNI_SELECTED));
    EXPECT_EQ(1u, m_list.GetSelectedCount());
}

TEST_F(SortList, TheOwnerDoesNotSeeTheItemDataOfTheSort)
{
    FillColumn({L"b", L"c", L"a"});
    const int before = m_owner.Count(LVN_ITEMCHANGED);
    m_list.SortColumn(0, 0, 1);
    EXPECT_EQ(before, m_owner.Count(LVN_ITEMCHANGED));
    m_list.SetItemData(0, 5);
    EXPECT_EQ(before + 1, m_owner.Count(LVN_ITEMCHANGED));
}

TEST_F(SortList, AHundredThousandRowsSortRightly)
{
    const int rows = 100000;
    m_list.InsertColumn(0, L"number", LVCFMT_LEFT, kColumnWidth);
    m_list.InsertColumn(1, L"text", LVCFMT_LEFT, kColumnWidth);
    m_list.SetRedraw(FALSE);
    std::vector<std::pair<std::wstring, DWORD_PTR>> expected;
    for (int row = 0; row < rows; ++row)
    {
        const std::wstring text = L"n" + std::to_wstring(row * 7919LL % 5003);
        m_list.InsertItem(LVIF_TEXT | LVIF_PARAM, row, text.c_str(), 0, 0, 0, row);
        expected.push_back({text, static_cast<DWORD_PTR>(row)});
    }
    m_list.SortColumn(0, 0, 1);
    std::stable_sort(expected.begin(), expected.end(),
                     [](const auto& first, const auto& second) { return first.first < second.first; });
    int wrong = 0;
    for (int row = 0; row < rows; ++row)
    {
        wrong += m_list.GetItemData(row) != expected[row].second ||
                 m_list.GetItemText(row, 0) != expected[row].first.c_str();
    }
    EXPECT_EQ(0, wrong);
}

TEST_F(SortList, ModiHeardCtrlSetsAndReverses)
{
    FillColumn({L"a"});
    CHeaderCtrl* const header = m_list.GetHeaderCtrl();
    EXPECT_EQ(1, m_list.ModiHeardCtrl(header, 0, 1));
    EXPECT_TRUE(HasArrow(0));
    EXPECT_EQ(0, m_list.ModiHeardCtrl(header, 0, -2));
    EXPECT_EQ(1, m_list.ModiHeardCtrl(header, 0, 2));
    EXPECT_EQ(-1, m_list.ModiHeardCtrl(header, 0, -1));
    EXPECT_FALSE(HasArrow(0));
    EXPECT_EQ(-1, State(0));
    EXPECT_EQ(1, Heading(0).iImage) << "the image stays, it is only not shown";
    EXPECT_EQ(0, m_list.ModiHeardCtrl(header, 0, -2));
}

TEST_F(SortList, ModiHeardCtrlKeepsTheRestOfTheHeading)
{
    const std::wstring heading(300, L'h');
    m_list.InsertColumn(0, L"the first is always left-aligned", LVCFMT_LEFT, kColumnWidth);
    m_list.InsertColumn(1, heading.c_str(), LVCFMT_RIGHT, kColumnWidth);
    m_list.ModiHeardCtrl(m_list.GetHeaderCtrl(), 1, 1);
    m_list.ModiHeardCtrl(m_list.GetHeaderCtrl(), 1, -1);
    EXPECT_EQ(HDF_RIGHT, Heading(1).fmt & HDF_JUSTIFYMASK);
    EXPECT_NE(0, Heading(1).fmt & HDF_STRING);
    wchar_t text[400] = L"";
    HDITEM item = {};
    item.mask = HDI_TEXT;
    item.pszText = text;
    item.cchTextMax = 400;
    m_list.GetHeaderCtrl()->GetItem(1, &item);
    EXPECT_EQ(heading, text);
}

TEST_F(SortList, ModiHeardCtrlAnswersMinusTwoForWhatIsNotThere)
{
    FillColumn({L"a"});
    CHeaderCtrl none;
    EXPECT_EQ(-2, m_list.ModiHeardCtrl(NULL, 0, 0));
    EXPECT_EQ(-2, m_list.ModiHeardCtrl(&none, 0, 0));
    EXPECT_EQ(-2, m_list.ModiHeardCtrl(m_list.GetHeaderCtrl(), -1, 0));
    EXPECT_EQ(-2, m_list.ModiHeardCtrl(m_list.GetHeaderCtrl(), 2, 0));
}

TEST_F(SortList, MyCompareProcComparesTheTextsOfRows)
{
    FillColumn({L"10", L"9"});
    EXPECT_LT(Compare(0, 1, SORT_TEXT_ASCENDING), 0);
    EXPECT_GT(Compare(0, 1, SORT_TEXT_DESCENDING), 0);
    EXPECT_EQ(1, Compare(0, 1, SORT_NUMBER_ASCENDING));
    EXPECT_EQ(0, Compare(1, 0, SORT_NUMBER_ASCENDING));
    EXPECT_EQ(1, Compare(1, 0, SORT_NUMBER_DESCENDING));
    EXPECT_EQ(0, Compare(0, 1, SORT_NUMBER_DESCENDING));
}

TEST_F(SortList, MyCompareProcTakesBadInput)
{
    FillColumn({L"10", L"9"});
    EXPECT_EQ(0, CZNSortListCtrl::MyCompareProc(0, 1, 0));
    CZNSortListCtrl::SortInfo nowhere = {NULL, 0, 0, NULL};
    EXPECT_EQ(0, CZNSortListCtrl::MyCompareProc(0, 1, reinterpret_cast<LPARAM>(&nowhere)));
    EXPECT_EQ(0, Compare(-5, 99, SORT_TEXT_ASCENDING)) << "rows that are not there have no text";
}

TEST_F(SortList, TheHeaderHasTwoArrowsFromTheFirstSortOn)
{
    FillColumn({L"a", L"b"});
    m_list.SortColumn(0, 0, 2);
    CImageList* const images = m_list.GetHeaderCtrl()->GetImageList();
    ASSERT_TRUE(images != NULL);
    EXPECT_EQ(2, images->GetImageCount());
    IMAGEINFO info = {};
    ASSERT_TRUE(images->GetImageInfo(0, &info));
    EXPECT_EQ(16, info.rcImage.right - info.rcImage.left);
    EXPECT_EQ(16, info.rcImage.bottom - info.rcImage.top);
}

TEST_F(SortList, TheArrowsComeBackWhenTheOwnerReplacedTheHeadersImages)
{
    FillColumn({L"a", L"b"});
    m_list.SortColumn(0, 0, 1);
    CImageList* const arrows = m_list.GetHeaderCtrl()->GetImageList();
    const HIMAGELIST handle = arrows->GetSafeHandle();
    CImageList small;
    small.Create(16, 16, ILC_COLOR24, 1, 1);
    m_list.GetHeaderCtrl()->SetImageList(&small);
    m_list.SortColumn(0, 0, 0);
    EXPECT_EQ(handle, m_list.GetHeaderCtrl()->GetImageList()->GetSafeHandle());
}

TEST_F(SortList, RowsAndColumnsOutOfRangeDoNothing)
{
    FillColumn({L"b", L"a"});
    for (int column : {-1, 2, 1000000})
    {
        for (int order = -1; order <= 1; ++order)
            m_list.SortColumn(column, 0, order);
        ClickHeading(column);
        m_list.SetIsColorColumn(column, 1);
    }
    m_list.SetCellHighlight(true, 99, 99);
    m_list.SetCellHighlight(true, -5, -5);
    m_list.UpdateWindow();
    EXPECT_EQ((Texts{L"b", L"a"}), Column(0));
    EXPECT_EQ((std::vector<DWORD_PTR>{1000, 1001}), Data());
}

TEST_F(SortList, TextsOfAHundredThousandCharactersSort)
{
    const std::wstring longest(100000, L'y');
    FillColumn({longest + L"b", longest + L"a"});
    m_list.SetIsColorColumn(0, 1);
    m_list.SortColumn(0, 0, 1);
    EXPECT_EQ((Texts{longest + L"a", longest + L"b"}), Column(0));
    m_list.RedrawWindow();
}

TEST_F(SortList, AListWithoutWindowHeaderOrRowsDoesNothing)
{
    CZNSortListCtrl none;
    none.SortColumn(0, 0, 1);
    none.SetCellHighlight(true, 0, 0);
    m_list.SortColumn(0, 0, 1);
    Create(LVS_ICON);
    m_list.InsertItem(0, L"b");
    m_list.InsertItem(1, L"a");
    m_list.SortColumn(0, 0, -1);
    EXPECT_EQ((Texts{L"b", L"a"}), Column(0));
}

TEST_F(SortList, AListThatKeepsNoRowsOnlyShowsTheArrow)
{
    Create(LVS_REPORT | LVS_OWNERDATA);
    m_list.InsertColumn(0, L"a", LVCFMT_LEFT, kColumnWidth);
    m_list.SetItemCount(3);
    m_list.SortColumn(0, 0, 0);
    EXPECT_TRUE(HasArrow(0));
    EXPECT_EQ(3, m_list.GetItemCount());
}

TEST_F(SortList, TheOwnerMayDeleteRowsWhileTextsAreFetched)
{
    FillColumn({L"b", L"c", L"a"});
    m_list.SetItemText(1, 0, LPSTR_TEXTCALLBACK);
    bool deleted = false;
    m_owner.onNotify = [&](NMHDR& notification) {
        if (notification.code == LVN_GETDISPINFO && !deleted)
        {
            deleted = true;
            m_list.DeleteItem(2);
        }
    };
    m_list.SortColumn(0, 0, 1);
    EXPECT_TRUE(deleted);
    EXPECT_EQ((std::vector<DWORD_PTR>{1000, 1001}), Data());
}

TEST_F(SortList, TheOwnerMaySortAgainWhileTextsAreFetched)
{
    FillColumn({L"b", L"c", L"a"});
    m_list.SetItemText(1, 0, LPSTR_TEXTCALLBACK);
    m_owner.onNotify = [&](NMHDR& notification) {
        if (notification.code == LVN_GETDISPINFO)
            m_list.SortColumn(0, 0, 0);
    };
    m_list.SortColumn(0, 0, 1);
    EXPECT_EQ((std::vector<DWORD_PTR>{1001, 1002, 1000}), Data());
}

TEST_F(SortList, TheOwnerMayDestroyTheListInAnyNotification)
{
    for (const UINT code : {LVN_GETDISPINFO, LVN_COLUMNCLICK})
    {
        Create();
        FillColumn({L"b", L"c", L"a"});
        m_list.SetItemText(1, 0, LPSTR_TEXTCALLBACK);
        bool destroyed = false;
        m_owner.onNotify = [&](NMHDR& notification) {
            if (notification.code != code || destroyed)
                return;
            destroyed = true;
            m_list.DestroyWindow();
        };
        ClickHeading(0);
        EXPECT_TRUE(destroyed);
        EXPECT_FALSE(::IsWindow(m_list.m_hWnd));
        m_owner.onNotify = nullptr;
    }
}

TEST_F(SortList, TheOwnerMayDeleteRowsWhenAHeadingIsClicked)
{
    FillColumn({L"b", L"c", L"a"});
    m_owner.onNotify = [&](NMHDR& notification) {
        if (notification.code == LVN_COLUMNCLICK)
            m_list.DeleteAllItems();
    };
    ClickHeading(0);
    EXPECT_EQ(0, m_list.GetItemCount());
}

TEST_F(SortList, StrangeTextsSort)
{
    FillColumn({L"b", L"\xD83D", L"a\nb", L"NaN", L"1e999", L"\x4E2D"});
    for (int numeric = 0; numeric <= 1; ++numeric)
    {
        for (int order = 0; order <= 1; ++order)
            m_list.SortColumn(0, numeric, order);
    }
    EXPECT_EQ(L"1e999", Column(0).back()) << "the only one with a value";
    std::vector<DWORD_PTR> data = Data();
    std::sort(data.begin(), data.end());
    EXPECT_EQ((std::vector<DWORD_PTR>{1000, 1001, 1002, 1003, 1004, 1005}), data);
}

TEST_F(SortList, AnOwnerThatRefusesTheIndicesKeepsRowsAndItemData)
{
    FillColumn({L"b", L"c", L"a"});
    for (int refused = 0; refused < 3; ++refused)
    {
        bool wasRefused = false;
        m_owner.refuse = [&](NMLISTVIEW& change) {
            const bool isIt = !wasRefused && change.iItem == refused && change.uChanged == LVIF_PARAM;
            wasRefused = wasRefused || isIt;
            return isIt;
        };
        m_list.SortColumn(0, 0, 1);
        EXPECT_TRUE(wasRefused);
        EXPECT_EQ((Texts{L"b", L"c", L"a"}), Column(0));
        EXPECT_EQ((std::vector<DWORD_PTR>{1000, 1001, 1002}), Data());
    }
}
