// Hits on drawn lines: the pick box at the cursor, selection windows. No window; any unit.
#pragma once

#include "host/ViewTransform.h"

#include <vector>

namespace arxhost
{

// The distance of a point from a line from `from` to `to` (which may be one point).
double DistanceToLine(WorldPoint point, WorldPoint from, WorldPoint to);

// Whether the line touches the box (inside or crossing).
bool LineTouchesBox(WorldPoint from, WorldPoint to, const WorldBox& box);

// Whether a chain of lines comes within `reach` of the point. A single point counts as a line without length.
bool ChainIsNear(const std::vector<WorldPoint>& chain, WorldPoint point, double reach);
// Whether the whole chain lies in the box; whether any of it does.
bool ChainIsInside(const std::vector<WorldPoint>& chain, const WorldBox& box);
bool ChainTouches(const std::vector<WorldPoint>& chain, const WorldBox& box);

// The box between two corners in any order.
WorldBox BoxOf(WorldPoint corner, WorldPoint opposite);

// A selection dragged to the right takes what lies wholly inside, to the left also what it crosses.
bool IsCrossing(WorldPoint first, WorldPoint second);

} // namespace arxhost
