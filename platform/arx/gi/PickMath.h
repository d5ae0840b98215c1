// Distances and hits of plane figures: the arithmetic of picking.
#pragma once

#include "DisplayList.h"

namespace arxgi
{

// Distance from a chain of segments; a single point counts as a chain. Infinity without points.
ARX_API double DistanceToChain(const Point2* points, size_t count, const Point2& from);

// Whether a chain has a point in the closed window.
ARX_API bool ChainTouches(const Point2* points, size_t count, const Box2& window);

// By the even-odd rule; the last point is joined to the first.
ARX_API bool IsInsidePolygon(const Point2* points, size_t count, const Point2& point);

// The same for an area of several loops. Inside counts as 0.
double DistanceToArea(const std::vector<Point2>& points, const DisplayPrimitive& area,
                      const std::vector<size_t>& loopEnds, const Point2& from);
bool AreaTouches(const std::vector<Point2>& points, const DisplayPrimitive& area, const std::vector<size_t>& loopEnds,
                 const Box2& window);

} // namespace arxgi
