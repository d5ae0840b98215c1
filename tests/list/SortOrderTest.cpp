// The places that rows get in a sort, and the state that a heading gets.
#include "list/SortArrow.h"
#include "list/SortOrder.h"
#include "list/SortText.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

std::vector<int> Sorted(const std::vector<CString>& texts, int mode)
{
    const CSortOrder order(texts, mode);
    std::vector<int> rows(texts.size());
    for (size_t row = 0; row < rows.size(); ++row)
        rows[row] = static_cast<int>(row);
    std::sort(rows.begin(), rows.end(), [&](int first, int second) { return order.Compare(first, second) < 0; });
    return rows;
}

typedef std::vector<int> Rows;

} // namespace

TEST(SortOrder, EqualTextsKeepTheirOrderInBothDirections)
{
    const std::vector<CString> texts = {L"b", L"A", L"B", L"a"};
    EXPECT_EQ((Rows{1, 3, 0, 2}), Sorted(texts, SORT_TEXT_ASCENDING));
    EXPECT_EQ((Rows{0, 2, 1, 3}), Sorted(texts, SORT_TEXT_DESCENDING));
}

TEST(SortOrder, EqualNumbersKeepTheirOrderInBothDirections)
{
    const std::vector<CString> texts = {L"10", L"9", L"-", L"", L"9.0"};
    EXPECT_EQ((Rows{2, 3, 1, 4, 0}), Sorted(texts, SORT_NUMBER_ASCENDING));
    EXPECT_EQ((Rows{0, 1, 4, 2, 3}), Sorted(texts, SORT_NUMBER_DESCENDING));
}

TEST(SortOrder, AnUnknownModeKeepsTheOrder)
{
    EXPECT_EQ((Rows{0, 1, 2}), Sorted({L"b", L"c", L"a"}, 7));
}

TEST(SortOrder, RowsThatItDoesNotKnowComeLastAndAreEqual)
{
    const CSortOrder order({L"b", L"a"}, SORT_TEXT_ASCENDING);
    EXPECT_LT(order.Compare(0, 2), 0);
    EXPECT_GT(order.Compare(-1, 1), 0);
    EXPECT_EQ(0, order.Compare(2, -1));
    EXPECT_EQ(0, order.Compare(1, 1));
}

TEST(SortState, WhatIsAskedForIsTaken)
{
    for (int stored = -1; stored <= 1; ++stored)
    {
        for (int asked = -1; asked <= 1; ++asked)
            EXPECT_EQ(asked, NextSortState(stored, asked));
    }
}

TEST(SortState, AnythingElseReverses)
{
    for (int asked : {-2, 2, 100, -100})
    {
        EXPECT_EQ(0, NextSortState(-1, asked));
        EXPECT_EQ(1, NextSortState(0, asked));
        EXPECT_EQ(0, NextSortState(1, asked));
        EXPECT_EQ(0, NextSortState(77, asked)) << "not a state, but not zero either";
    }
}
