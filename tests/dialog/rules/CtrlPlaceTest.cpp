// The rules of the resizer: where a control belongs when its dialog has grown or shrunk.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <climits>
#include <limits>
#include <string>

#include "dialog/CtrlPlace.h"

namespace
{

struct Ratios
{
    double left, top, width, height;
};

// A control of 100 by 50 pixels at (10, 20).
CTRLRESIZEINFO InfoOf(const Ratios& ratios)
{
    return {1,
            FlagOfRatio(ratios.left),
            FlagOfRatio(ratios.top),
            FlagOfRatio(ratios.width),
            FlagOfRatio(ratios.height),
            ratios.left,
            ratios.top,
            ratios.width,
            ratios.height,
            10,
            20,
            100,
            50};
}

struct PlaceRow
{
    const char* name;
    Ratios ratios;
    int dx, dy;
    CRect place;
};

class PlaceOfControlTable : public testing::TestWithParam<PlaceRow>
{
};

TEST_P(PlaceOfControlTable, GivesTheStatedPlace)
{
    const CRect place = PlaceOfControl(InfoOf(GetParam().ratios), GetParam().dx, GetParam().dy);
    EXPECT_EQ(GetParam().place.left, place.left);
    EXPECT_EQ(GetParam().place.top, place.top);
    EXPECT_EQ(GetParam().place.right, place.right);
    EXPECT_EQ(GetParam().place.bottom, place.bottom);
}

constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

const PlaceRow kPlaces[] = {
    {"NoGrowthChangesNothing", {0.3, 0.7, 0.5, 0.9}, 0, 0, {10, 20, 110, 70}},
    {"ZeroRatiosStayAtTheTopLeft", {0, 0, 0, 0}, 40, 60, {10, 20, 110, 70}},
    {"NegativeZeroIsZero", {-0.0, -0.0, -0.0, -0.0}, 40, 60, {10, 20, 110, 70}},
    {"LeftRatioMovesBothSides", {1, 0, 0, 0}, 40, 60, {50, 20, 150, 70}},
    {"TopRatioMovesTopAndBottom", {0, 1, 0, 0}, 40, 60, {10, 80, 110, 130}},
    {"WidthRatioMovesTheRightOnly", {0, 0, 1, 0}, 40, 60, {10, 20, 150, 70}},
    {"HeightRatioMovesTheBottomOnly", {0, 0, 0, 1}, 40, 60, {10, 20, 110, 130}},
    {"BottomStripStretchesAcross", {0, 1, 1, 0}, 40, 60, {10, 80, 150, 130}},
    {"HalfALeftRatioCentresTheMovement", {0.5, 0, 0, 0}, 40, 60, {30, 20, 130, 70}},
    {"FractionsAreCut", {0.5, 0.5, 0, 0}, 5, 5, {12, 22, 112, 72}},
    {"RightStartsFromTheCutLeft", {0.5, 0, 0.5, 0}, 5, 0, {12, 20, 114, 70}},
    {"BottomStartsFromTheCutTop", {0, 0.5, 0, 0.5}, 0, 5, {10, 22, 110, 74}},
    {"ShrinkingMovesLeftAndUp", {1, 1, 0, 0}, -5, -7, {5, 13, 105, 63}},
    {"ShrinkingCutsTowardZero", {1, 0, 0, 0}, -12, 0, {-2, 20, 98, 70}},
    {"NegativeHalvesAreCutTowardZero", {0.5, 0, 0, 0}, -25, 0, {-2, 20, 98, 70}},
    {"AControlMayShrinkBelowNothing", {0, 0, 1, 0}, -150, 0, {10, 20, -40, 70}},
    {"ARatioAboveOneRunsAhead", {2, 0, 0, 0}, 40, 0, {90, 20, 190, 70}},
    {"NoNumberGivesTheLowestEdge", {0, 0, kNotANumber, 0}, 40, 0, {10, 20, INT_MIN, 70}},
    {"AHugeRatioGivesTheLowestEdge", {0, 0, 1e300, 0}, 40, 0, {10, 20, INT_MIN, 70}},
};

INSTANTIATE_TEST_SUITE_P(Resizer, PlaceOfControlTable, testing::ValuesIn(kPlaces),
                         [](const testing::TestParamInfo<PlaceRow>& row) { return std::string(row.param.name); });

} // namespace

TEST(CtrlPlace, OnlyARatioOfExactlyZeroIsNone)
{
    EXPECT_EQ(1, FlagOfRatio(0.0));
    EXPECT_EQ(1, FlagOfRatio(-0.0));
    EXPECT_EQ(2, FlagOfRatio(std::numeric_limits<double>::denorm_min()));
    EXPECT_EQ(2, FlagOfRatio(-1.0));
    EXPECT_EQ(2, FlagOfRatio(kNotANumber));
}

TEST(CtrlPlace, TruncationGoesTowardZero)
{
    EXPECT_EQ(2, TruncateToInt(2.9));
    EXPECT_EQ(-2, TruncateToInt(-2.5));
    EXPECT_EQ(0, TruncateToInt(-0.9));
}

TEST(CtrlPlace, TruncationHoldsAtTheEndsOfInt)
{
    EXPECT_EQ(INT_MAX, TruncateToInt(2147483647.9));
    EXPECT_EQ(INT_MIN, TruncateToInt(-2147483648.9));
    EXPECT_EQ(INT_MIN, TruncateToInt(2147483648.0));
    EXPECT_EQ(INT_MIN, TruncateToInt(std::numeric_limits<double>::infinity()));
    EXPECT_EQ(INT_MIN, TruncateToInt(kNotANumber));
}
