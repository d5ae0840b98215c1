// Where the tip of a button stands on a screen of 1000 by 800.
#include "tip/ButtonTipPlace.h"
#include "tip/ToolTipXTButton.h"

#include <gtest/gtest.h>

namespace
{

const CSize kScreen(1000, 800);
const CSize kTip(120, 74);

struct Row
{
    const char* name;
    int side;
    CRect button;
    CPoint place;
};

void Check(const Row& row, CSize tip = kTip)
{
    EXPECT_EQ(row.place, PlaceButtonTip(row.side, row.button, tip, kScreen)) << row.name;
}

} // namespace

TEST(ButtonTipPlace, EachSideOfAButtonInTheMiddle)
{
    const CRect button(400, 300, 501, 325);
    const Row rows[] = {
        {"left", BUTTON_TIP_LEFT, button, {270, 275}},         {"right", BUTTON_TIP_RIGHT, button, {511, 275}},
        {"above", BUTTON_TIP_ABOVE, button, {390, 216}},       {"below", BUTTON_TIP_BELOW, button, {390, 335}},
        {"a side that does not exist", 4, button, {390, 216}}, {"a side below 0", -1, button, {390, 216}},
    };
    for (const Row& row : rows)
        Check(row);
}

TEST(ButtonTipPlace, HalvesOfTheCentreAndOfTheSizeAreCutOffApart)
{
    EXPECT_EQ(CPoint(450 - 60, 300 - 73 - 10),
              PlaceButtonTip(BUTTON_TIP_ABOVE, CRect(400, 300, 501, 325), CSize(121, 73), kScreen));
    EXPECT_EQ(CPoint(511, 312 - 36),
              PlaceButtonTip(BUTTON_TIP_RIGHT, CRect(400, 300, 501, 325), CSize(121, 73), kScreen));
}

TEST(ButtonTipPlace, LeftGoesToTheRightWhereItHasNoRoom)
{
    const Row rows[] = {
        {"just fits", BUTTON_TIP_LEFT, {130, 300, 200, 324}, {0, 275}},
        {"one pixel short", BUTTON_TIP_LEFT, {129, 300, 200, 324}, {210, 275}},
        {"partly off the screen", BUTTON_TIP_LEFT, {-20, 300, 50, 324}, {60, 275}},
    };
    for (const Row& row : rows)
        Check(row);
}

TEST(ButtonTipPlace, RightStaysUntilItsLeftEdgeLeavesTheScreen)
{
    const Row rows[] = {
        {"partly off the screen", BUTTON_TIP_RIGHT, {900, 300, 960, 324}, {970, 275}},
        {"the left edge at the screen's width", BUTTON_TIP_RIGHT, {900, 300, 990, 324}, {1000, 275}},
        {"one pixel more", BUTTON_TIP_RIGHT, {900, 300, 991, 324}, {770, 275}},
    };
    for (const Row& row : rows)
        Check(row);
}

TEST(ButtonTipPlace, AboveGoesBelowAtTheTopOfTheScreen)
{
    const Row rows[] = {
        {"just fits", BUTTON_TIP_ABOVE, {400, 84, 500, 108}, {390, 0}},
        {"one pixel short", BUTTON_TIP_ABOVE, {400, 83, 500, 107}, {390, 117}},
        {"at the very top", BUTTON_TIP_ABOVE, {400, 0, 500, 24}, {390, 34}},
    };
    for (const Row& row : rows)
        Check(row);
}

TEST(ButtonTipPlace, BelowGoesAboveAtTheBottomOfTheScreen)
{
    const Row rows[] = {
        {"just fits", BUTTON_TIP_BELOW, {400, 692, 500, 716}, {390, 726}},
        {"one pixel short", BUTTON_TIP_BELOW, {400, 693, 500, 717}, {390, 609}},
        {"at the very bottom", BUTTON_TIP_BELOW, {400, 776, 500, 800}, {390, 692}},
    };
    for (const Row& row : rows)
        Check(row);
}

TEST(ButtonTipPlace, AboveAndBelowAreKeptBetweenTheSidesOfTheScreen)
{
    const Row rows[] = {
        {"above, left edge", BUTTON_TIP_ABOVE, {0, 300, 50, 324}, {0, 216}},
        {"above, right edge", BUTTON_TIP_ABOVE, {950, 300, 1000, 324}, {880, 216}},
        {"below, left edge", BUTTON_TIP_BELOW, {0, 300, 50, 324}, {0, 334}},
        {"below, right edge", BUTTON_TIP_BELOW, {950, 300, 1000, 324}, {880, 334}},
        {"left upper corner", BUTTON_TIP_ABOVE, {0, 0, 50, 24}, {0, 34}},
        {"right lower corner", BUTTON_TIP_BELOW, {950, 776, 1000, 800}, {880, 692}},
    };
    for (const Row& row : rows)
        Check(row);
}

TEST(ButtonTipPlace, LeftAndRightAreKeptBetweenTopAndBottomOfTheScreen)
{
    const Row rows[] = {
        {"left, top", BUTTON_TIP_LEFT, {400, 0, 500, 24}, {270, 0}},
        {"left, bottom", BUTTON_TIP_LEFT, {400, 776, 500, 800}, {270, 726}},
        {"right, top", BUTTON_TIP_RIGHT, {400, 0, 500, 24}, {510, 0}},
        {"right, bottom", BUTTON_TIP_RIGHT, {400, 776, 500, 800}, {510, 726}},
        {"left upper corner", BUTTON_TIP_LEFT, {0, 0, 50, 24}, {60, 0}},
        {"right lower corner", BUTTON_TIP_RIGHT, {950, 776, 1000, 800}, {820, 726}},
    };
    for (const Row& row : rows)
        Check(row);
}

TEST(ButtonTipPlace, ATipLargerThanTheScreenBeginsAtItsEdge)
{
    EXPECT_EQ(0, PlaceButtonTip(BUTTON_TIP_ABOVE, CRect(400, 300, 500, 324), CSize(2000, 74), kScreen).x);
    EXPECT_EQ(0, PlaceButtonTip(BUTTON_TIP_RIGHT, CRect(400, 300, 500, 324), CSize(120, 2000), kScreen).y);
}

TEST(ButtonTipPlace, ATipWithoutSizeStandsAtTheGap)
{
    EXPECT_EQ(CPoint(450, 290), PlaceButtonTip(BUTTON_TIP_ABOVE, CRect(400, 300, 500, 324), CSize(0, 0), kScreen));
}

TEST(ButtonTipPlace, TheButtonNamesTheSameSides)
{
    EXPECT_EQ(0, CToolTipXTButton::SIDE_LEFT);
    EXPECT_EQ(1, CToolTipXTButton::SIDE_RIGHT);
    EXPECT_EQ(2, CToolTipXTButton::SIDE_ABOVE);
    EXPECT_EQ(3, CToolTipXTButton::SIDE_BELOW);
    EXPECT_EQ(static_cast<int>(BUTTON_TIP_LEFT), CToolTipXTButton::SIDE_LEFT);
    EXPECT_EQ(static_cast<int>(BUTTON_TIP_RIGHT), CToolTipXTButton::SIDE_RIGHT);
    EXPECT_EQ(static_cast<int>(BUTTON_TIP_ABOVE), CToolTipXTButton::SIDE_ABOVE);
    EXPECT_EQ(static_cast<int>(BUTTON_TIP_BELOW), CToolTipXTButton::SIDE_BELOW);
}
