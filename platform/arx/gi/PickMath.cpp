#include "PickMath.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace arxgi
{

namespace
{

double DistanceToSegment(const Point2& a, const Point2& b, const Point2& from)
{
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double square = dx * dx + dy * dy;
    double t = square > 0 ? ((from.x - a.x) * dx + (from.y - a.y) * dy) / square : 0;
    t = std::max(0.0, std::min(1.0, t));
    return std::hypot(a.x + t * dx - from.x, a.y + t * dy - from.y);
}

// Cuts the range [low, high] of a line's parameter by one side of a window: start + t * step <= limit.
bool Clip(double start, double step, double limit, double& low, double& high)
{
    if (step == 0)
    {
        return start <= limit;
    }
    const double t = (limit - start) / step;
    if (step > 0)
    {
        high = std::min(high, t);
    }
    else
    {
        low = std::max(low, t);
    }
    return low <= high;
}

bool SegmentTouches(const Point2& a, const Point2& b, const Box2& window)
{
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    double low = 0;
    double high = 1;
    return Clip(a.x, dx, window.maxX, low, high) && Clip(-a.x, -dx, -window.minX, low, high) &&
           Clip(a.y, dy, window.maxY, low, high) && Clip(-a.y, -dy, -window.minY, low, high);
}

// Calls visit(points, count) for each loop until it answers true.
template<class Visit>
bool AnyLoop(const std::vector<Point2>& points, const DisplayPrimitive& area, const std::vector<size_t>& loopEnds,
             Visit visit)
{
    size_t start = area.firstPoint;
    for (size_t i = area.firstLoop; i < area.firstLoop + area.loopCount; ++i)
    {
        if (visit(points.data() + start, loopEnds[i] - start))
        {
            return true;
        }
        start = loopEnds[i];
    }
    return false;
}

bool IsInsideArea(const std::vector<Point2>& points, const DisplayPrimitive& area, const std::vector<size_t>& loopEnds,
                  const Point2& point)
{
    bool inside = false;
    AnyLoop(points, area, loopEnds, [&](const Point2* loop, size_t count) {
        inside = inside != IsInsidePolygon(loop, count, point);
        return false;
    });
    return inside;
}

} // namespace

double DistanceToChain(const Point2* points, size_t count, const Point2& from)
{
    double best = count == 1 ? DistanceToSegment(points[0], points[0], from) : std::numeric_limits<double>::infinity();
    for (size_t i = 1; i < count; ++i)
    {
        best = std::min(best, DistanceToSegment(points[i - 1], points[i], from));
    }
    return best;
}

bool ChainTouches(const Point2* points, size_t count, const Box2& window)
{
    bool touches = count == 1 && SegmentTouches(points[0], points[0], window);
    for (size_t i = 1; i < count && !touches; ++i)
    {
        touches = SegmentTouches(points[i - 1], points[i], window);
    }
    return touches;
}

bool IsInsidePolygon(const Point2* points, size_t count, const Point2& point)
{
    bool inside = false;
    for (size_t i = 0, before = count - 1; i < count; before = i++)
    {
        const Point2& a = points[i];
        const Point2& b = points[before];
        if ((a.y > point.y) != (b.y > point.y) && point.x < (b.x - a.x) * (point.y - a.y) / (b.y - a.y) + a.x)
        {
            inside = !inside;
        }
    }
    return inside;
}

double DistanceToArea(const std::vector<Point2>& points, const DisplayPrimitive& area,
                      const std::vector<size_t>& loopEnds, const Point2& from)
{
    if (IsInsideArea(points, area, loopEnds, from))
    {
        return 0;
    }
    double best = std::numeric_limits<double>::infinity();
    AnyLoop(points, area, loopEnds, [&](const Point2* loop, size_t count) {
        best = std::min(best, DistanceToChain(loop, count, from));
        return false;
    });
    return best;
}

bool AreaTouches(const std::vector<Point2>& points, const DisplayPrimitive& area, const std::vector<size_t>& loopEnds,
                 const Box2& window)
{
    return AnyLoop(points, area, loopEnds,
                   [&](const Point2* loop, size_t count) { return ChainTouches(loop, count, window); }) ||
           IsInsideArea(points, area, loopEnds, {window.minX, window.minY});
}

} // namespace arxgi
