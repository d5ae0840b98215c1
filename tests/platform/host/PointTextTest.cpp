// Numbers and points as the user types them.
#include "host/PointText.h"

#include <gtest/gtest.h>

using namespace arxhost;

TEST(PointText, PointIsTwoNumbersWithAComma)
{
    WorldPoint point;
    ASSERT_TRUE(ReadPoint(L"12.5,-3e2", point));
    EXPECT_DOUBLE_EQ(12.5, point.x);
    EXPECT_DOUBLE_EQ(-300, point.y);
}

TEST(PointText, AnythingElseIsRefusedAndChangesNothing)
{
    for (const wchar_t* text : {L"", L"12", L"1,", L",1", L"1,2,3", L"1;2", L"a,b", L"inf,1", L"1e999,1", L"1 ,2"})
    {
        WorldPoint point{7, 8};
        EXPECT_FALSE(ReadPoint(text, point)) << std::string(text, text + wcslen(text));
        EXPECT_DOUBLE_EQ(7, point.x);
    }
}

TEST(PointText, PointIsShownWithFourDecimals)
{
    EXPECT_EQ(L"120.0000, -45.5000", PointToText({120, -45.5}));
}
