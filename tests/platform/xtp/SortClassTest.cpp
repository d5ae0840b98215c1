// CXTSortClass on real list views.
#include <XTToolkitPro.h>

#include "ListFixture.h"

#include <gtest/gtest.h>

namespace
{
constexpr int kNumberColumn = 1;
constexpr UINT kFocusedSelected = LVIS_FOCUSED | LVIS_SELECTED;
} // namespace

class SortClass : public ListFixture
{
protected:
    void FillNumbers()
    {
        AddRow(L"ten", L"10", 100);
        AddRow(L"nine", L"9", 200);
        AddRow(L"hundred", L"100", 300);
        AddRow(L"nine again", L"9", 400);
    }
};

TEST_F(SortClass, MovesWholeRowsWithTheirItemData)
{
    FillNumbers();
    CXTSortClass(&m_list, kNumberColumn).Sort(true, xtSortInt);
    EXPECT_EQ("nine|nine again|ten|hundred", Texts(0));
    EXPECT_EQ("9|9|10|100", Texts(kNumberColumn));
    EXPECT_EQ((std::vector<DWORD_PTR>{200, 400, 100, 300}), Data());
}

TEST_F(SortClass, SortsDownwardsKeepingEqualRowsInOrder)
{
    FillNumbers();
    CXTSortClass(&m_list, kNumberColumn).Sort(false, xtSortInt);
    EXPECT_EQ("hundred|ten|nine|nine again", Texts(0));
}

TEST_F(SortClass, KeepsItemDataThatRowsShare)
{
    AddRow(L"c", L"", 7);
    AddRow(L"a", L"", 7);
    AddRow(L"d", L"", 0);
    AddRow(L"b", L"", 7);
    AddRow(L"e", L"", 0);
    CXTSortClass(&m_list, 0).Sort(true, xtSortString);
    EXPECT_EQ("a|b|c|d|e", Texts(0));
    EXPECT_EQ((std::vector<DWORD_PTR>{7, 7, 7, 0, 0}), Data());
}

TEST_F(SortClass, ChangesNoItemDataOnTheWayWhenItIsUnique)
{
    FillNumbers();
    m_parent.ClearCount();
    CXTSortClass(&m_list, kNumberColumn).Sort(true, xtSortInt);
    EXPECT_EQ(0, m_parent.ParamChanges());
}

TEST_F(SortClass, KeepsChecksImagesSelectionAndFocusWithTheirRows)
{
    m_list.SetExtendedStyle(LVS_EX_CHECKBOXES);
    FillNumbers();
    m_list.SetCheck(2, TRUE);
    m_list.SetItem(1, 0, LVIF_IMAGE, nullptr, 5, 0, 0, 0);
    m_list.SetItemState(0, kFocusedSelected, kFocusedSelected);

    CXTSortClass(&m_list, kNumberColumn).Sort(true, xtSortInt);

    EXPECT_TRUE(m_list.GetCheck(3));
    EXPECT_FALSE(m_list.GetCheck(0));
    EXPECT_EQ(5, Image(0));
    EXPECT_EQ(2, m_list.GetNextItem(-1, LVNI_SELECTED));
    EXPECT_EQ(2, m_list.GetNextItem(-1, LVNI_FOCUSED));
    EXPECT_EQ(1u, m_list.GetSelectedCount());
}

TEST_F(SortClass, LeavesTheOrderForAColumnThatIsNotThere)
{
    FillNumbers();
    CXTSortClass(&m_list, 9).Sort(true, xtSortString);
    CXTSortClass(&m_list, -1).Sort(true, xtSortString);
    EXPECT_EQ("ten|nine|hundred|nine again", Texts(0));
}

TEST_F(SortClass, EmptyAndSingleRowListsStayAsTheyAre)
{
    CXTSortClass(&m_list, 0).Sort(true, xtSortString);
    EXPECT_EQ(0, m_list.GetItemCount());
    AddRow(L"one", L"1", 11);
    CXTSortClass(&m_list, 0).Sort(true, xtSortString);
    EXPECT_EQ("one", Texts(0));
    EXPECT_EQ((std::vector<DWORD_PTR>{11}), Data());
}

TEST(SortClassWithoutList, DoesNothing)
{
    CListCtrl list;
    CXTSortClass(nullptr, 0).Sort(true, xtSortString);
    CXTSortClass(&list, 0).Sort(true, xtSortString);
    EXPECT_EQ(nullptr, list.GetSafeHwnd());
}

TEST_F(SortClass, SortsManyRows)
{
    const int rows = 20000;
    m_list.SetRedraw(FALSE);
    for (int row = 0; row < rows; ++row)
    {
        CString text;
        text.Format(L"%d", (row * 7919) % rows);
        AddRow(text, L"", row + 1);
    }
    CXTSortClass(&m_list, 0).Sort(true, xtSortInt);
    m_list.SetRedraw(TRUE);
    for (int row = 0; row < rows; ++row)
    {
        CString expected;
        expected.Format(L"%d", row);
        ASSERT_STREQ(expected, m_list.GetItemText(row, 0));
        ASSERT_EQ(row, int((m_list.GetItemData(row) - 1) * 7919 % rows));
    }
}
