// Path: a connected curve of straight segments and elliptical arcs in space. Every affine map of a path is a path
// again, which keeps extents exact through any nesting of blocks.
#pragma once

#include "gemat3d.h"
#include "arx/Api.h"

#include <stddef.h>
#include <vector>

class AcDbExtents;

namespace arxgi
{

// The points center + u * cos(t) + v * sin(t) for t from start to start + sweep; the sweep may be negative.
struct ARX_API Arc
{
    AcGePoint3d At(double t) const;

    AcGePoint3d center;
    AcGeVector3d u;
    AcGeVector3d v;
    double start = 0;
    double sweep = 0;
};

struct ARX_API Path
{
    // The segment that starts at points[from] is this arc instead of a straight line. It ends at the next point, or at
    // the first when `from` is the last point of a closed path.
    struct ArcSegment
    {
        size_t from = 0;
        Arc arc;
    };

    void AddPoint(const AcGePoint3d& point) { points.push_back(point); }
    // Adds the arc's start unless the path already ends there, the arc, and its end.
    void AddArc(const Arc& arc);
    // Replaces the segment after the last point added so far.
    void AddArcAtLast(const Arc& arc) { arcs.push_back({points.size() - 1, arc}); }

    void Transform(const AcGeMatrix3d& matrix);
    // Exact for straight segments and arcs.
    void AddTo(AcDbExtents& box) const;
    // Replaces arcs by chords that deviate at most by `tolerance`; a closed path repeats its first point at the end.
    std::vector<AcGePoint3d> Flatten(double tolerance) const;

    std::vector<AcGePoint3d> points;
    std::vector<ArcSegment> arcs; // ascending by `from`
    bool closed = false;
};

// A whole circle or ellipse as a closed path.
ARX_API Path ClosedArcPath(const Arc& arc);

} // namespace arxgi
