#include "Spline.h"

#include <algorithm>
#include <cmath>

namespace arxents
{

namespace
{

constexpr double kMinWeight = 1e-12;

// Steps of a span: many for the few spans of a usual curve, few when a file brings thousands.
constexpr int kStepsPerSpan = 24;
constexpr int kFewStepsPerSpan = 4;
constexpr size_t kManySpans = 2000;

// A control point times its weight, and the weight.
struct Weighted
{
    AcGeVector3d point;
    double weight;
};

size_t FindSpan(const Spline& spline, double parameter)
{
    const auto first = spline.knots.begin() + spline.degree;
    const auto last = spline.knots.begin() + static_cast<std::ptrdiff_t>(spline.points.size());
    auto after = std::upper_bound(first, last, parameter);
    // At the end of the curve the last span that has a length counts.
    while (after != first + 1 && *(after - 1) == *after)
    {
        --after;
    }
    return static_cast<size_t>(after - spline.knots.begin()) - 1;
}

bool KnotsAscend(const std::vector<double>& knots)
{
    return std::is_sorted(knots.begin(), knots.end());
}

bool WeightsArePositive(const std::vector<double>& weights)
{
    return std::all_of(weights.begin(), weights.end(), [](double w) { return w > kMinWeight; });
}

// Tangent of a curve through points at point i: the parabola through it and its neighbours, by chord lengths.
AcGeVector3d TangentAt(const std::vector<AcGePoint3d>& points, const std::vector<double>& at, size_t i)
{
    const size_t last = points.size() - 1;
    const size_t middle = std::min(std::max<size_t>(i, 1), last - 1);
    const double before = at[middle] - at[middle - 1];
    const double after = at[middle + 1] - at[middle];
    const AcGeVector3d slopeBefore = (points[middle] - points[middle - 1]) / before;
    const AcGeVector3d slopeAfter = (points[middle + 1] - points[middle]) / after;
    const AcGeVector3d tangent = (slopeBefore * after + slopeAfter * before) / (before + after);
    if (i == 0)
    {
        return slopeBefore * 2 - tangent;
    }
    return i == last ? slopeAfter * 2 - tangent : tangent;
}

std::vector<AcGePoint3d> WithoutRepeats(const std::vector<AcGePoint3d>& points)
{
    std::vector<AcGePoint3d> different;
    for (const AcGePoint3d& point : points)
    {
        if (different.empty() || !point.isEqualTo(different.back()))
        {
            different.push_back(point);
        }
    }
    return different;
}

Spline StraightSpline(const std::vector<AcGePoint3d>& points)
{
    Spline spline;
    spline.degree = 1;
    spline.points = points;
    spline.knots = {0, 0, 1, 1};
    return spline;
}

} // namespace

bool Spline::IsValid() const
{
    return degree >= 1 && degree <= kMaxSplineDegree && points.size() > static_cast<size_t>(degree) &&
           knots.size() == points.size() + degree + 1 && KnotsAscend(knots) && First() < Last() &&
           (weights.empty() || (weights.size() == points.size() && WeightsArePositive(weights)));
}

AcGePoint3d Spline::At(double parameter) const
{
    const double t = std::max(First(), std::min(Last(), parameter));
    const size_t span = FindSpan(*this, t);
    Weighted d[kMaxSplineDegree + 1];
    for (int j = 0; j <= degree; ++j)
    {
        const size_t i = span - degree + j;
        const double w = weights.empty() ? 1 : weights[i];
        d[j] = {points[i].asVector() * w, w};
    }
    for (int r = 1; r <= degree; ++r)
    {
        for (int j = degree; j >= r; --j)
        {
            const double low = knots[span - degree + j];
            const double high = knots[span + 1 + j - r];
            const double a = high > low ? (t - low) / (high - low) : 0;
            d[j] = {d[j - 1].point * (1 - a) + d[j].point * a, d[j - 1].weight * (1 - a) + d[j].weight * a};
        }
    }
    return AcGePoint3d::kOrigin + d[degree].point / d[degree].weight;
}

std::vector<AcGePoint3d> Spline::Tessellate() const
{
    std::vector<AcGePoint3d> curve;
    if (!IsValid())
    {
        return curve;
    }
    const int steps = degree == 1 ? 1 : points.size() > kManySpans ? kFewStepsPerSpan : kStepsPerSpan;
    curve.push_back(At(First()));
    for (size_t span = degree; span < points.size(); ++span)
    {
        const double low = knots[span];
        const double high = knots[span + 1];
        for (int k = 1; k <= steps && high > low; ++k)
        {
            curve.push_back(At(low + (high - low) * k / steps));
        }
    }
    return curve;
}

Spline SplineThroughPoints(const std::vector<AcGePoint3d>& fitPoints)
{
    const std::vector<AcGePoint3d> points = WithoutRepeats(fitPoints);
    if (points.size() < 2)
    {
        return Spline();
    }
    if (points.size() == 2)
    {
        return StraightSpline(points);
    }
    std::vector<double> at(1, 0.0);
    for (size_t i = 1; i < points.size(); ++i)
    {
        at.push_back(at.back() + points[i].distanceTo(points[i - 1]));
    }
    // Hermite pieces as a cubic with double inner knots: two control points beside every inner point.
    Spline spline;
    spline.degree = 3;
    spline.points.push_back(points.front());
    spline.knots.assign(4, 0.0);
    for (size_t i = 0; i + 1 < points.size(); ++i)
    {
        const double third = (at[i + 1] - at[i]) / 3;
        spline.points.push_back(points[i] + TangentAt(points, at, i) * third);
        spline.points.push_back(points[i + 1] - TangentAt(points, at, i + 1) * third);
        spline.knots.insert(spline.knots.end(), 2, at[i + 1]);
    }
    spline.points.push_back(points.back());
    spline.knots.insert(spline.knots.end(), 2, at.back());
    return spline;
}

} // namespace arxents
