#include "drawing_check/Checks.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace drawing_check;

namespace
{

OpenCurve Curve(std::size_t object, double x1, double y1, double x2, double y2)
{
    return {object, {x1, y1}, {x2, y2}};
}

constexpr double kTolerance = 0.5;

} // namespace

TEST(DrawingChecks, LineOfZeroLengthIsFoundByItsObject)
{
    const std::vector<std::size_t> found = FindZeroLength({Curve(7, 0, 0, 1, 0), Curve(9, 3, 4, 3, 4)});
    EXPECT_EQ(found, std::vector<std::size_t>{9});
}

TEST(DrawingChecks, LineJustLongerThanRoundingIsNoZeroLength)
{
    EXPECT_TRUE(FindZeroLength({Curve(1, 0, 0, 1e-8, 0)}).empty());
    EXPECT_EQ(FindZeroLength({Curve(1, 0, 0, 1e-10, 0)}).size(), 1u);
}

TEST(DrawingChecks, EqualDescriptionsFormGroupsInOrderOfFirstMember)
{
    const auto groups = FindDuplicates({"b", "a", "b", "c", "a", "b"});
    ASSERT_EQ(groups.size(), 2u);
    EXPECT_EQ(groups[0], (std::vector<std::size_t>{0, 2, 5}));
    EXPECT_EQ(groups[1], (std::vector<std::size_t>{1, 4}));
}

TEST(DrawingChecks, DifferentDescriptionsAreNoDuplicates)
{
    EXPECT_TRUE(FindDuplicates({"a", "b", "c"}).empty());
    EXPECT_TRUE(FindDuplicates({}).empty());
}

TEST(DrawingChecks, EndsThatNearlyMeetAreAGap)
{
    const std::vector<Gap> gaps = FindGaps({Curve(3, 0, 0, 10, 0), Curve(5, 10.3, 0.3, 20, 0)}, kTolerance);
    ASSERT_EQ(gaps.size(), 1u);
    EXPECT_EQ(gaps[0].first, 3u);
    EXPECT_EQ(gaps[0].second, 5u);
    EXPECT_NEAR(gaps[0].width, std::sqrt(0.18), 1e-9);
    EXPECT_DOUBLE_EQ(gaps[0].firstEnd.x, 10);
    EXPECT_DOUBLE_EQ(gaps[0].secondEnd.x, 10.3);
}

TEST(DrawingChecks, EndsFartherThanTheToleranceAreNoGap)
{
    EXPECT_TRUE(FindGaps({Curve(0, 0, 0, 10, 0), Curve(1, 10.6, 0, 20, 0)}, kTolerance).empty());
}

TEST(DrawingChecks, JoinedEndIsNotFreeForAnotherGap)
{
    // The ends at (10,0) are joined; a third curve that ends nearby meets no free end.
    const std::vector<OpenCurve> curves = {Curve(0, 0, 0, 10, 0), Curve(1, 10, 0, 20, 0), Curve(2, 10.2, 0, 10.2, 9)};
    EXPECT_TRUE(FindGaps(curves, kTolerance).empty());
}

TEST(DrawingChecks, OwnEndsOfOneCurveAreNoGap)
{
    EXPECT_TRUE(FindGaps({Curve(0, 0, 0, 0.2, 0)}, kTolerance).empty());
}

TEST(DrawingChecks, GapsAreFoundAcrossCellBordersAndNegativeCoordinates)
{
    for (double offset : {-1000.0, -0.25, 0.0, 0.25, 1e6})
    {
        const std::vector<OpenCurve> curves = {Curve(0, offset - 9, offset, offset - 0.1, offset),
                                               Curve(1, offset + 0.1, offset, offset + 9, offset)};
        EXPECT_EQ(FindGaps(curves, kTolerance).size(), 1u) << "offset " << offset;
    }
}

TEST(DrawingChecks, GapsStopAtTheirLimitWhenEverythingIsClose)
{
    std::vector<OpenCurve> curves;
    for (std::size_t i = 0; i < 400; ++i)
    {
        curves.push_back(Curve(i, 1e-4 * double(i), 0, 1000.0 + 10.0 * double(i), 50));
    }
    EXPECT_EQ(FindGaps(curves, kTolerance).size(), kMostGaps);
}

TEST(DrawingChecks, CoordinatesThatAreNoNumbersAreHarmless)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(
        FindGaps({Curve(0, nan, 0, 1, nan), Curve(1, inf, 0, -inf, 0), Curve(2, 1e300, 0, 5, 5)}, kTolerance).empty());
}

TEST(DrawingChecks, OpenPolylineThatNearlyClosesIsFound)
{
    const std::vector<OpenCurve> polylines = {Curve(4, 0, 0, 0, 0.1), Curve(5, 0, 0, 0, 0.6), Curve(6, 1, 1, 1, 1)};
    EXPECT_EQ(FindNearlyClosed(polylines, kTolerance), std::vector<std::size_t>{4});
}

TEST(DrawingChecks, BoxesOutsideTheSheetAreFoundAndTouchingOnesAreNot)
{
    const Box sheet = {{0, 0}, {420, 297}};
    const std::vector<Box> boxes = {
        {{0, 0}, {420, 297}}, {{400, 10}, {430, 20}}, {{-1, 5}, {2, 6}}, {{5, 5}, {6, 298}}};
    EXPECT_EQ(FindOutside(boxes, sheet), (std::vector<std::size_t>{1, 2, 3}));
}

TEST(DrawingChecks, StoppingEndsACheckWithWhatItHasFound)
{
    std::vector<std::string> descriptions;
    for (int i = 0; i < 10000; ++i)
        descriptions.push_back(std::to_string(i / 2));
    int asked = 0;
    const auto groups = FindDuplicates(descriptions, [&asked] { return ++asked > 2; });
    EXPECT_GT(groups.size(), 0u);
    EXPECT_LT(groups.size(), 1000u);
    EXPECT_EQ(3, asked) << "once told to stop it does not ask again";
}

TEST(DrawingChecks, StoppingAtOnceFindsNothing)
{
    const Stop atOnce = [] { return true; };
    EXPECT_TRUE(FindDuplicates({"a", "a"}, atOnce).empty());
    EXPECT_TRUE(FindGaps({Curve(0, 0, 0, 10, 0), Curve(1, 10.3, 0, 20, 0)}, kTolerance, atOnce).empty());
}

TEST(DrawingChecks, AskingWithoutStoppingChangesNothing)
{
    const Stop never = [] { return false; };
    EXPECT_EQ(1u, FindDuplicates({"a", "a"}, never).size());
    EXPECT_EQ(1u, FindGaps({Curve(0, 0, 0, 10, 0), Curve(1, 10.3, 0, 20, 0)}, kTolerance, never).size());
}
