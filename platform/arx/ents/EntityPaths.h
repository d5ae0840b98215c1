// Shapes of entities as paths.
#pragma once

#include "BulgePath.h"
#include "HatchLoop.h"
#include "arx/gi/Path.h"

namespace arxents
{

// The circle around `center` in the plane with this normal, `sweep` radians from `start`.
ARX_API arxgi::Arc CircularArc(const AcGePoint3d& center, const AcGeVector3d& normal, double radius, double start,
                               double sweep);

// The arc from `from` to `to` with this bulge, in the plane z = 0. False when the segment is straight or has no length.
ARX_API bool BulgeArc(const AcGePoint2d& from, const AcGePoint2d& to, double bulge, arxgi::Arc& arc);

// World coordinates.
ARX_API arxgi::Path PathOf(const BulgePath& shape);

// Object coordinates of the hatch, closed. Edges that do not meet are joined by straight lines.
ARX_API arxgi::Path PathOf(const HatchLoop& loop);

} // namespace arxents
