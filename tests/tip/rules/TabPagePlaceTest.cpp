// Where the pages of a tab sheet stand.
#include "tip/TabPagePlace.h"

#include <gtest/gtest.h>

TEST(TabPagePlace, BelowTheFirstTabUpToTwoPixelsFromTheEdges)
{
    const CRect page = TabPageRect(CRect(0, 0, 300, 200), CRect(2, 2, 60, 22));
    EXPECT_EQ(CPoint(2, 23), page.TopLeft());
    EXPECT_EQ(300 - 2 - 2, page.Width());
    EXPECT_EQ(200 - 23 - 2, page.Height());
}

TEST(TabPagePlace, NoRoomIsAnEmptyPage)
{
    const CRect narrow = TabPageRect(CRect(0, 0, 3, 200), CRect(2, 2, 60, 22));
    EXPECT_EQ(CSize(0, 175), narrow.Size());
    const CRect low = TabPageRect(CRect(0, 0, 300, 10), CRect(2, 2, 60, 22));
    EXPECT_EQ(CSize(296, 0), low.Size());
    EXPECT_EQ(CPoint(2, 23), low.TopLeft());
}
