#include "host/LineClip.h"

#include <algorithm>

namespace arxhost
{
namespace
{

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

WorldPoint At(const WorldPoint& from, const WorldPoint& step, double part)
{
    return {from.x + part * step.x, from.y + part * step.y};
}

} // namespace

bool ClipLine(WorldPoint& from, WorldPoint& to, const WorldBox& box)
{
    const WorldPoint start = from;
    const WorldPoint step{to.x - from.x, to.y - from.y};
    double first = 0;
    double last = 1;
    if (!ClipAxis(start.x, step.x, box.min.x, box.max.x, first, last) ||
        !ClipAxis(start.y, step.y, box.min.y, box.max.y, first, last))
        return false;
    from = At(start, step, first);
    to = At(start, step, last);
    return true;
}

} // namespace arxhost
