#include "arx/ents/Spline.h"

#include <gtest/gtest.h>

#include <cmath>

using arxents::Spline;

namespace
{

Spline Parabola()
{
    Spline spline;
    spline.degree = 2;
    spline.knots = {0, 0, 0, 1, 1, 1};
    spline.points = {AcGePoint3d(0, 0, 0), AcGePoint3d(2, 4, 0), AcGePoint3d(4, 0, 0)};
    return spline;
}

// The exact quarter of the unit circle.
Spline QuarterCircle()
{
    Spline spline = Parabola();
    spline.points = {AcGePoint3d(1, 0, 0), AcGePoint3d(1, 1, 0), AcGePoint3d(0, 1, 0)};
    spline.weights = {1, std::sqrt(0.5), 1};
    return spline;
}

} // namespace

TEST(Spline, ParabolaByItsControlPoints)
{
    const Spline spline = Parabola();
    ASSERT_TRUE(spline.IsValid());
    EXPECT_EQ(spline.At(0), AcGePoint3d(0, 0, 0));
    EXPECT_EQ(spline.At(0.5), AcGePoint3d(2, 2, 0));
    EXPECT_EQ(spline.At(1), AcGePoint3d(4, 0, 0));
}

TEST(Spline, ParameterIsKeptInsideTheCurve)
{
    EXPECT_EQ(Parabola().At(-5), AcGePoint3d(0, 0, 0));
    EXPECT_EQ(Parabola().At(5), AcGePoint3d(4, 0, 0));
}

TEST(Spline, WeightsMakeAnExactCircle)
{
    for (const AcGePoint3d& point : QuarterCircle().Tessellate())
    {
        EXPECT_NEAR(std::hypot(point.x, point.y), 1, 1e-12);
    }
}

TEST(Spline, DegreeOneIsThePolyline)
{
    Spline spline;
    spline.degree = 1;
    spline.knots = {0, 0, 1, 2, 2};
    spline.points = {AcGePoint3d(0, 0, 0), AcGePoint3d(1, 5, 0), AcGePoint3d(2, 0, 0)};
    const std::vector<AcGePoint3d> points = spline.Tessellate();
    ASSERT_EQ(points.size(), 3u);
    EXPECT_EQ(points[1], AcGePoint3d(1, 5, 0));
}

TEST(Spline, RepeatedInnerKnotsAreWalkedOnce)
{
    Spline spline;
    spline.degree = 2;
    spline.knots = {0, 0, 0, 1, 1, 2, 2, 2};
    spline.points = {AcGePoint3d(0, 0, 0), AcGePoint3d(1, 1, 0), AcGePoint3d(2, 0, 0), AcGePoint3d(3, -1, 0),
                     AcGePoint3d(4, 0, 0)};
    EXPECT_EQ(spline.At(1), AcGePoint3d(2, 0, 0));
    for (const AcGePoint3d& point : spline.Tessellate())
    {
        EXPECT_TRUE(std::isfinite(point.x) && std::isfinite(point.y));
    }
}

TEST(Spline, NumbersThatDoNotFitAreNotValid)
{
    Spline few = Parabola();
    few.points.pop_back();
    Spline knots = Parabola();
    knots.knots.push_back(2);
    Spline descending = Parabola();
    descending.knots[3] = -1;
    Spline flat = Parabola();
    flat.knots.assign(6, 0.0);
    Spline weights = QuarterCircle();
    weights.weights.pop_back();
    Spline zeroWeight = QuarterCircle();
    zeroWeight.weights[1] = 0;
    Spline degree = Parabola();
    degree.degree = 0;
    for (const Spline& spline : {few, knots, descending, flat, weights, zeroWeight, degree, Spline()})
    {
        EXPECT_FALSE(spline.IsValid());
        EXPECT_TRUE(spline.Tessellate().empty());
    }
}

TEST(Spline, CurveThroughPointsMeetsThemAll)
{
    const std::vector<AcGePoint3d> points = {AcGePoint3d(0, 0, 0), AcGePoint3d(1, 2, 0), AcGePoint3d(3, 1, 0),
                                             AcGePoint3d(6, 4, 1)};
    const Spline spline = arxents::SplineThroughPoints(points);
    ASSERT_TRUE(spline.IsValid());
    double at = 0;
    for (size_t i = 0; i < points.size(); ++i)
    {
        at += i == 0 ? 0 : points[i].distanceTo(points[i - 1]);
        EXPECT_TRUE(spline.At(at).isEqualTo(points[i])) << i;
    }
}

TEST(Spline, TwoPointsGiveALineAndOneGivesNothing)
{
    const std::vector<AcGePoint3d> two = {AcGePoint3d(0, 0, 0), AcGePoint3d(0, 0, 0), AcGePoint3d(4, 2, 0)};
    EXPECT_EQ(arxents::SplineThroughPoints(two).At(0.5), AcGePoint3d(2, 1, 0));
    EXPECT_FALSE(arxents::SplineThroughPoints({AcGePoint3d(1, 1, 0)}).IsValid());
}
