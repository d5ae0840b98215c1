// BulgePath: vertices in a plane, joined by straight segments and arcs; the shape behind both kinds of plane polylines
// and behind the loops of hatches.
#pragma once

#include "gemat3d.h"
#include "gepnt2d.h"

#include <stddef.h>
#include <vector>

namespace arxents
{

// The bulge belongs to the segment that starts at the vertex: the tangent of a quarter of the arc's angle, positive
// counter-clockwise, 0 for a straight segment.
struct BulgeVertex
{
    BulgeVertex() : bulge(0) {}
    BulgeVertex(const AcGePoint2d& p, double b) : point(p), bulge(b) {}

    AcGePoint2d point;
    double bulge;
};

struct BulgePath
{
    BulgePath() : normal(AcGeVector3d::kZAxis), elevation(0), closed(false) {}

    // The vertex in world coordinates.
    AcGePoint3d WorldPoint(size_t index) const;

    std::vector<BulgeVertex> vertices;
    AcGeVector3d normal;
    double elevation;
    bool closed;
};

} // namespace arxents
