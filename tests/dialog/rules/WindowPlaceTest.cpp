// Which stored places of windows are used.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>

#include "dialog/WindowPlace.h"

namespace
{

const CSize kScreen(1280, 960);

struct PlaceRow
{
    const char* name;
    CPoint place;
    bool used;
};

class IsPlaceOnScreenTable : public testing::TestWithParam<PlaceRow>
{
};

TEST_P(IsPlaceOnScreenTable, Decides)
{
    EXPECT_EQ(GetParam().used, IsPlaceOnScreen(GetParam().place, kScreen));
}

const PlaceRow kPlaces[] = {
    {"TopLeftCorner", {0, 0}, true},
    {"NeverStored", {-1, -1}, false},
    {"LeftOfTheScreen", {-1, 100}, false},
    {"AboveTheScreen", {100, -1}, false},
    {"TenPixelsShownAtTheRight", {1270, 100}, true},
    {"NinePixelsShownAtTheRight", {1271, 100}, false},
    {"TwentyPixelsShownAtTheBottom", {100, 940}, true},
    {"NineteenPixelsShownAtTheBottom", {100, 941}, false},
    {"FarBeyondEveryScreen", {0x7FFFFFFF, 0x7FFFFFFF}, false},
    {"FarBeforeEveryScreen", {static_cast<int>(0x80000000), 0}, false},
};

INSTANTIATE_TEST_SUITE_P(StoredPlace, IsPlaceOnScreenTable, testing::ValuesIn(kPlaces),
                         [](const testing::TestParamInfo<PlaceRow>& row) { return std::string(row.param.name); });

} // namespace

TEST(SizeOnScreen, IsNeverLargerThanTheScreen)
{
    EXPECT_EQ(CSize(400, 300), SizeOnScreen(CSize(400, 300), kScreen));
    EXPECT_EQ(CSize(1280, 300), SizeOnScreen(CSize(1281, 300), kScreen));
    EXPECT_EQ(CSize(400, 960), SizeOnScreen(CSize(400, 961), kScreen));
}

TEST(SizeOnScreen, PassesOnASizeThatWasNeverStored)
{
    EXPECT_EQ(CSize(-1, -1), SizeOnScreen(CSize(-1, -1), kScreen));
}
