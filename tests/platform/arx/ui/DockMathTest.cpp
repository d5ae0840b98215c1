// Which edge a dragged bar docks to, and the rectangles that follow.
#include "arx/ui/DockMath.h"

#include <gtest/gtest.h>

using namespace arxui;

namespace
{

const RECT frame{100, 100, 1100, 800};
const int reach = 24;
const DWORD anySide = 0xF000;
const DWORD leftOnly = 0x1000;

void ExpectRect(const RECT& expected, const RECT& actual)
{
    EXPECT_EQ(expected.left, actual.left);
    EXPECT_EQ(expected.top, actual.top);
    EXPECT_EQ(expected.right, actual.right);
    EXPECT_EQ(expected.bottom, actual.bottom);
}

} // namespace

TEST(DockMath, DockBarsAndSidesMapOntoEachOther)
{
    for (const DockSide side : {DockSide::Left, DockSide::Top, DockSide::Right, DockSide::Bottom, DockSide::Floating})
        EXPECT_EQ(side, SideOfDockBar(DockBarOfSide(side)));
    EXPECT_EQ(DockSide::Left, SideOfDockBar(0xE81C));
    EXPECT_EQ(DockSide::Floating, SideOfDockBar(12345));
}

TEST(DockMath, CursorNearAnEdgeDocksThere)
{
    EXPECT_EQ(DockSide::Left, DockSideAt(frame, {110, 400}, anySide, reach));
    EXPECT_EQ(DockSide::Right, DockSideAt(frame, {1095, 400}, anySide, reach));
    EXPECT_EQ(DockSide::Top, DockSideAt(frame, {600, 95}, anySide, reach));
    EXPECT_EQ(DockSide::Bottom, DockSideAt(frame, {600, 801}, anySide, reach));
}

TEST(DockMath, CursorAwayFromEdgesFloats)
{
    EXPECT_EQ(DockSide::Floating, DockSideAt(frame, {600, 400}, anySide, reach));
    EXPECT_EQ(DockSide::Floating, DockSideAt(frame, {100 + reach + 1, 400}, anySide, reach));
    EXPECT_EQ(DockSide::Floating, DockSideAt(frame, {110, 900}, anySide, reach)) << "beside the edge's end";
}

TEST(DockMath, InACornerTheNearerEdgeWins)
{
    EXPECT_EQ(DockSide::Left, DockSideAt(frame, {102, 110}, anySide, reach));
    EXPECT_EQ(DockSide::Top, DockSideAt(frame, {110, 102}, anySide, reach));
}

TEST(DockMath, SideThatIsNotAllowedIsNoTarget)
{
    EXPECT_EQ(DockSide::Floating, DockSideAt(frame, {1095, 400}, leftOnly, reach));
    EXPECT_EQ(DockSide::Left, DockSideAt(frame, {102, 110}, leftOnly, reach));
    EXPECT_TRUE(IsSideAllowed(DockSide::Floating, 0));
    EXPECT_FALSE(IsSideAllowed(DockSide::Top, leftOnly));
}

TEST(DockMath, TakenEdgeAndRestFillTheArea)
{
    RECT rest = frame;
    ExpectRect({100, 100, 350, 800}, TakeEdge(rest, DockSide::Left, 250));
    ExpectRect({350, 100, 1100, 800}, rest);
    ExpectRect({350, 600, 1100, 800}, TakeEdge(rest, DockSide::Bottom, 200));
    ExpectRect({350, 100, 1100, 600}, rest);
    const RECT before = rest;
    ExpectRect({350, 100, 350, 600}, TakeEdge(rest, DockSide::Floating, 200));
    ExpectRect(before, rest);
}

TEST(DockMath, ThicknessLeavesRoomForTheDrawingButNeverLessThanTheMinimum)
{
    EXPECT_EQ(300, LimitThickness(300, 100, 1000, 120));
    EXPECT_EQ(880, LimitThickness(5000, 100, 1000, 120));
    EXPECT_EQ(100, LimitThickness(20, 100, 1000, 120));
    EXPECT_EQ(300, LimitThickness(200, 300, 350, 120));
}

TEST(DockMath, SplitterPulledTowardsTheDrawingMakesTheBarThicker)
{
    EXPECT_EQ(330, DraggedThickness(DockSide::Left, 300, {400, 10}, {430, 90}));
    EXPECT_EQ(330, DraggedThickness(DockSide::Right, 300, {400, 10}, {370, 90}));
    EXPECT_EQ(220, DraggedThickness(DockSide::Top, 200, {9, 300}, {400, 320}));
    EXPECT_EQ(220, DraggedThickness(DockSide::Bottom, 200, {9, 300}, {400, 280}));
    EXPECT_EQ(200, DraggedThickness(DockSide::Floating, 200, {9, 300}, {400, 280}));
}

TEST(DockMath, SplitterLiesAtTheEdgeThatFacesTheDrawing)
{
    const RECT bar{0, 0, 300, 700};
    ExpectRect({300 - splitterWidth, 0, 300, 700}, SplitterOf(bar, DockSide::Left));
    ExpectRect({0, 0, splitterWidth, 700}, SplitterOf(bar, DockSide::Right));
    ExpectRect({splitterWidth, 0, 300, 700}, InsideOf(bar, DockSide::Right));
    ExpectRect({0, 0, 300, 700 - splitterWidth}, InsideOf(bar, DockSide::Top));
    ExpectRect(bar, InsideOf(bar, DockSide::Floating));
    const RECT none = SplitterOf(bar, DockSide::Floating);
    EXPECT_TRUE(IsRectEmpty(&none));
}

TEST(DockMath, SizeIsHeldBetweenMinimumAndMaximum)
{
    ExpectRect({10, 20, 310, 140}, LimitSize({10, 20, 50, 60}, {300, 120}, {0, 0}));
    ExpectRect({10, 20, 410, 320}, LimitSize({10, 20, 5000, 5000}, {300, 120}, {400, 300}));
}

TEST(DockMath, CaptionStaysReachableOnTheScreen)
{
    const RECT screen{0, 0, 1280, 960};
    const RECT inside{200, 200, 840, 390};
    ExpectRect(inside, KeepReachable(inside, screen));
    const RECT moved = KeepReachable({3000, -500, 3640, -310}, screen);
    EXPECT_LT(moved.left, screen.right);
    EXPECT_EQ(screen.top, moved.top);
    EXPECT_EQ(640, moved.right - moved.left);
    const RECT pulledBack = KeepReachable({-5000, 5000, -4360, 5190}, screen);
    EXPECT_GT(pulledBack.right, screen.left);
    EXPECT_LT(pulledBack.top, screen.bottom);
}

TEST(DockMath, DraggedRectangleFollowsTheCursor)
{
    ExpectRect({250, 180, 550, 380}, DraggedRect({200, 200, 500, 400}, {210, 205}, {260, 185}));
}

TEST(DockMath, NarrowRectangleIsBroughtUnderTheCursor)
{
    const RECT moved = DraggedRect({0, 0, 200, 150}, {900, 10}, {950, 20});
    EXPECT_LE(moved.left, 950);
    EXPECT_GT(moved.right, 950);
}
