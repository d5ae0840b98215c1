#include "Path.h"

#include "dbmain.h"

#include <algorithm>
#include <cmath>

namespace arxgi
{

namespace
{

constexpr double kPi = 3.14159265358979323846;
constexpr double kTwoPi = 2 * kPi;

// Chords of an arc: at least so many for a full turn, that small circles still look round, and never more than the
// second number, however near the viewer comes.
constexpr double kMinChordsPerTurn = 8;
constexpr double kMaxChords = 4000;

int ChordCount(const Arc& arc, double tolerance)
{
    const double radius = std::max(arc.u.length(), arc.v.length());
    const double sweep = std::fabs(arc.sweep);
    double chords = sweep / kTwoPi * kMinChordsPerTurn;
    if (tolerance > 0 && tolerance < radius)
    {
        // The deviation of a chord over the angle a is r * (1 - cos(a / 2)).
        chords = std::max(chords, sweep / (2 * std::acos(1 - tolerance / radius)));
    }
    return static_cast<int>(std::ceil(std::min(std::max(chords, 1.0), kMaxChords)));
}

// Adds the extremes along one axis: they lie where the derivative -u sin(t) + v cos(t) vanishes.
void AddExtremes(const Arc& arc, double u, double v, AcDbExtents& box)
{
    if (u == 0 && v == 0)
    {
        return;
    }
    const double low = std::min(arc.start, arc.start + arc.sweep);
    const double high = std::max(arc.start, arc.start + arc.sweep);
    double t = std::atan2(v, u);
    t += kPi * std::ceil((low - t) / kPi);
    for (int i = 0; i < 2 && t <= high; ++i, t += kPi)
    {
        box.addPoint(arc.At(t));
    }
}

} // namespace

AcGePoint3d Arc::At(double t) const
{
    return center + u * std::cos(t) + v * std::sin(t);
}

void Path::AddArc(const Arc& arc)
{
    const AcGePoint3d first = arc.At(arc.start);
    if (points.empty() || !points.back().isEqualTo(first))
    {
        points.push_back(first);
    }
    AddArcAtLast(arc);
    points.push_back(arc.At(arc.start + arc.sweep));
}

void Path::Transform(const AcGeMatrix3d& matrix)
{
    for (AcGePoint3d& point : points)
    {
        point = matrix * point;
    }
    for (ArcSegment& segment : arcs)
    {
        segment.arc.center = matrix * segment.arc.center;
        segment.arc.u = matrix * segment.arc.u;
        segment.arc.v = matrix * segment.arc.v;
    }
}

void Path::AddTo(AcDbExtents& box) const
{
    for (const AcGePoint3d& point : points)
    {
        box.addPoint(point);
    }
    for (const ArcSegment& segment : arcs)
    {
        AddExtremes(segment.arc, segment.arc.u.x, segment.arc.v.x, box);
        AddExtremes(segment.arc, segment.arc.u.y, segment.arc.v.y, box);
        AddExtremes(segment.arc, segment.arc.u.z, segment.arc.v.z, box);
    }
}

std::vector<AcGePoint3d> Path::Flatten(double tolerance) const
{
    std::vector<AcGePoint3d> flat;
    flat.reserve(points.size() + 1);
    auto arc = arcs.begin();
    for (size_t i = 0; i < points.size(); ++i)
    {
        flat.push_back(points[i]);
        if (arc == arcs.end() || arc->from != i)
        {
            continue;
        }
        const int chords = ChordCount(arc->arc, tolerance);
        for (int k = 1; k < chords; ++k)
        {
            flat.push_back(arc->arc.At(arc->arc.start + arc->arc.sweep * k / chords));
        }
        ++arc;
    }
    if (closed && !points.empty())
    {
        flat.push_back(points.front());
    }
    return flat;
}

Path ClosedArcPath(const Arc& arc)
{
    Path path;
    path.AddPoint(arc.At(arc.start));
    path.AddArcAtLast(arc);
    path.closed = true;
    return path;
}

} // namespace arxgi
