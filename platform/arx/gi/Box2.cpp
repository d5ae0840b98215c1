#include "DisplayList.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace arxgi
{

Box2::Box2()
    : minX(std::numeric_limits<double>::infinity()), minY(minX), maxX(-std::numeric_limits<double>::infinity()),
      maxY(maxX)
{
}

Box2::Box2(double x1, double y1, double x2, double y2)
    : minX(std::min(x1, x2)), minY(std::min(y1, y2)), maxX(std::max(x1, x2)), maxY(std::max(y1, y2))
{
}

void Box2::Add(const Point2& point)
{
    minX = std::min(minX, point.x);
    minY = std::min(minY, point.y);
    maxX = std::max(maxX, point.x);
    maxY = std::max(maxY, point.y);
}

void Box2::Add(const Box2& box)
{
    minX = std::min(minX, box.minX);
    minY = std::min(minY, box.minY);
    maxX = std::max(maxX, box.maxX);
    maxY = std::max(maxY, box.maxY);
}

bool Box2::Contains(const Box2& other) const
{
    return !other.IsEmpty() && minX <= other.minX && minY <= other.minY && maxX >= other.maxX && maxY >= other.maxY;
}

bool Box2::Overlaps(const Box2& other) const
{
    return minX <= other.maxX && other.minX <= maxX && minY <= other.maxY && other.minY <= maxY;
}

double Box2::DistanceTo(const Point2& point) const
{
    const double dx = std::max({minX - point.x, 0.0, point.x - maxX});
    const double dy = std::max({minY - point.y, 0.0, point.y - maxY});
    return std::hypot(dx, dy);
}

} // namespace arxgi
