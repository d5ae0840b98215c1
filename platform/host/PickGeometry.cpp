#include "host/PickGeometry.h"

#include <algorithm>
#include <cmath>

namespace arxhost
{
namespace
{

bool IsInBox(WorldPoint point, const WorldBox& box)
{
    return point.x >= box.min.x && point.x <= box.max.x && point.y >= box.min.y && point.y <= box.max.y;
}

// Narrows the part [first, last] of a line (0 start, 1 end) to where  start + t * step  lies between low and high.
bool ClipAxis(double start, double step, double low, double high, double& first, double& last)
{
    if (step == 0)
        return start >= low && start <= high;
    double enter = (low - start) / step;
    double leave = (high - start) / step;
    if (enter > leave)
        std::swap(enter, leave);
    first = std::max(first, enter);
    last = std::min(last, leave);
    return first <= last;
}

} // namespace

double DistanceToLine(WorldPoint point, WorldPoint from, WorldPoint to)
{
    const double stepX = to.x - from.x;
    const double stepY = to.y - from.y;
    const double square = stepX * stepX + stepY * stepY;
    double along = 0;
    if (square > 0)
        along = std::clamp(((point.x - from.x) * stepX + (point.y - from.y) * stepY) / square, 0.0, 1.0);
    return std::hypot(from.x + along * stepX - point.x, from.y + along * stepY - point.y);
}

bool LineTouchesBox(WorldPoint from, WorldPoint to, const WorldBox& box)
{
    double first = 0;
    double last = 1;
    return ClipAxis(from.x, to.x - from.x, box.min.x, box.max.x, first, last) &&
           ClipAxis(from.y, to.y - from.y, box.min.y, box.max.y, first, last);
}

bool ChainIsNear(const std::vector<WorldPoint>& chain, WorldPoint point, double reach)
{
    if (chain.size() == 1)
        return DistanceToLine(point, chain[0], chain[0]) <= reach;
    for (std::size_t i = 1; i < chain.size(); ++i)
    {
        if (DistanceToLine(point, chain[i - 1], chain[i]) <= reach)
            return true;
    }
    return false;
}

bool ChainIsInside(const std::vector<WorldPoint>& chain, const WorldBox& box)
{
    return !chain.empty() &&
           std::all_of(chain.begin(), chain.end(), [&](const WorldPoint& point) { return IsInBox(point, box); });
}

bool ChainTouches(const std::vector<WorldPoint>& chain, const WorldBox& box)
{
    if (chain.size() == 1)
        return IsInBox(chain[0], box);
    for (std::size_t i = 1; i < chain.size(); ++i)
    {
        if (LineTouchesBox(chain[i - 1], chain[i], box))
            return true;
    }
    return false;
}

WorldBox BoxOf(WorldPoint corner, WorldPoint opposite)
{
    return {{std::min(corner.x, opposite.x), std::min(corner.y, opposite.y)},
            {std::max(corner.x, opposite.x), std::max(corner.y, opposite.y)}};
}

bool IsCrossing(WorldPoint first, WorldPoint second)
{
    return second.x < first.x;
}

} // namespace arxhost
