// Spline: the numbers of a B-spline and its evaluation (de Boor).
#pragma once

#include "gepnt3d.h"
#include "arx/Api.h"

#include <vector>

namespace arxents
{

// Highest degree that is accepted; drawings go up to 25.
const int kMaxSplineDegree = 25;

struct ARX_API Spline
{
    Spline() : degree(0) {}

    // One more knot than points and degree together, knots ascending with a span to walk, weights positive and as many
    // as points (or none), degree 1 to kMaxSplineDegree.
    bool IsValid() const;

    // Limits of the curve's parameter. Valid splines only, as below.
    double First() const { return knots[degree]; }
    double Last() const { return knots[points.size()]; }
    // The parameter is clamped to the limits.
    AcGePoint3d At(double parameter) const;

    // Points along the whole curve, both ends included: every span that has a length is cut into equal steps.
    std::vector<AcGePoint3d> Tessellate() const;

    int degree;
    std::vector<double> knots;
    std::vector<AcGePoint3d> points;
    std::vector<double> weights;
};

// A cubic through the points with smooth joints, its parameter by chord lengths; two points give a straight line.
// Repeated points count once; fewer than two different points give an invalid spline.
ARX_API Spline SplineThroughPoints(const std::vector<AcGePoint3d>& points);

} // namespace arxents
