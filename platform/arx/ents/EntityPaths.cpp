#include "EntityPaths.h"

#include "Angles.h"

#include <algorithm>
#include <cmath>

using arxgi::Arc;
using arxgi::Path;

namespace arxents
{

namespace
{

// Beyond this an arc is a full circle as far as numbers can tell, and its centre would get lost in rounding.
constexpr double kMaxBulge = 1e6;
constexpr double kMinBulge = 1e-9;

Path LocalPathOf(const std::vector<BulgeVertex>& vertices, bool closed)
{
    Path path;
    path.closed = closed;
    path.points.reserve(vertices.size());
    const size_t segments = closed ? vertices.size() : vertices.size() - 1;
    for (size_t i = 0; i < vertices.size(); ++i)
    {
        const BulgeVertex& vertex = vertices[i];
        path.AddPoint(AcGePoint3d(vertex.point.x, vertex.point.y, 0));
        Arc arc;
        if (i < segments && BulgeArc(vertex.point, vertices[(i + 1) % vertices.size()].point, vertex.bulge, arc))
        {
            path.AddArcAtLast(arc);
        }
    }
    return path;
}

Arc ArcOf(const HatchEdge& edge)
{
    Arc arc;
    const double ratio = edge.kind == HatchEdge::kArc ? 1 : edge.ratio;
    arc.center = AcGePoint3d(edge.center.x, edge.center.y, 0);
    arc.u = AcGeVector3d(edge.majorAxis.x, edge.majorAxis.y, 0);
    arc.v = AcGeVector3d(-edge.majorAxis.y, edge.majorAxis.x, 0) * ratio;
    const double sign = edge.counterClockwise ? 1 : -1;
    arc.start = sign * edge.startAngle;
    arc.sweep = sign * SweepBetween(edge.startAngle, edge.endAngle);
    return arc;
}

void AddEdge(const HatchEdge& edge, Path& path)
{
    switch (edge.kind)
    {
    case HatchEdge::kLine:
        path.AddPoint(AcGePoint3d(edge.start.x, edge.start.y, 0));
        path.AddPoint(AcGePoint3d(edge.end.x, edge.end.y, 0));
        break;
    case HatchEdge::kArc:
    case HatchEdge::kEllipse:
        path.AddArc(ArcOf(edge));
        break;
    case HatchEdge::kSpline:
        for (const AcGePoint3d& point : edge.spline.Tessellate())
        {
            path.AddPoint(point);
        }
        break;
    }
}

} // namespace

AcGePoint3d BulgePath::WorldPoint(size_t index) const
{
    const AcGePoint2d& point = vertices[index].point;
    return AcGeMatrix3d::planeToWorld(normal) * AcGePoint3d(point.x, point.y, elevation);
}

Arc CircularArc(const AcGePoint3d& center, const AcGeVector3d& normal, double radius, double start, double sweep)
{
    const AcGeMatrix3d plane = AcGeMatrix3d::planeToWorld(normal);
    Arc arc;
    arc.center = center;
    arc.u = plane * AcGeVector3d(radius, 0, 0);
    arc.v = plane * AcGeVector3d(0, radius, 0);
    arc.start = start;
    arc.sweep = sweep;
    return arc;
}

bool BulgeArc(const AcGePoint2d& from, const AcGePoint2d& to, double bulge, Arc& arc)
{
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    if (std::fabs(bulge) < kMinBulge || (dx == 0 && dy == 0))
    {
        return false;
    }
    const double b = std::max(-kMaxBulge, std::min(kMaxBulge, bulge));
    // Distance of the centre from the chord's middle, to the left, as a multiple of the chord.
    const double offset = (1 / b - b) / 4;
    const double x = (from.x + to.x) / 2 - dy * offset;
    const double y = (from.y + to.y) / 2 + dx * offset;
    const double radius = std::hypot(from.x - x, from.y - y);
    arc.center = AcGePoint3d(x, y, 0);
    arc.u = AcGeVector3d(radius, 0, 0);
    arc.v = AcGeVector3d(0, radius, 0);
    arc.start = std::atan2(from.y - y, from.x - x);
    arc.sweep = 4 * std::atan(b);
    return true;
}

Path PathOf(const BulgePath& shape)
{
    if (shape.vertices.empty())
    {
        return Path();
    }
    Path path = LocalPathOf(shape.vertices, shape.closed);
    path.Transform(AcGeMatrix3d::planeToWorld(shape.normal) *
                   AcGeMatrix3d::translation(AcGeVector3d(0, 0, shape.elevation)));
    return path;
}

Path PathOf(const HatchLoop& loop)
{
    Path path;
    if (loop.isPolyline)
    {
        if (!loop.polyline.vertices.empty())
        {
            path = LocalPathOf(loop.polyline.vertices, true);
        }
    }
    else
    {
        for (const HatchEdge& edge : loop.edges)
        {
            AddEdge(edge, path);
        }
    }
    path.closed = true;
    return path;
}

} // namespace arxents
