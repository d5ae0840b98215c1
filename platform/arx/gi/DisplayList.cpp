#include "DisplayList.h"

#include "DisplayBuilder.h"
#include "PickMath.h"

#include <algorithm>
#include <limits>
#include <new>

namespace arxgi
{

namespace
{

// A deviation of a quarter pixel does not show.
constexpr double kTolerancePixels = 0.25;

// Near a drawing of many circles their chords would fill the memory: then the whole drawing less smooth is better than
// a part of it. The number of chords goes with the root of the tolerance.
constexpr int kAttempts = 3;
constexpr double kCoarser = 64;

} // namespace

void DisplayList::Build(AcDbDatabase& database, double unitsPerPixel, size_t maxPoints)
{
    const double asked = unitsPerPixel * kTolerancePixels;
    double tolerance = asked;
    for (int attempt = 0; attempt < kAttempts; ++attempt, tolerance *= kCoarser)
    {
        BuildAt(database, tolerance, maxPoints);
        if (!m_truncated)
        {
            break;
        }
    }
    m_tolerance = asked;
}

void DisplayList::BuildAt(AcDbDatabase& database, double tolerance, size_t maxPoints)
{
    Clear();
    try
    {
        DisplayBuilder(*this, database, tolerance, maxPoints).Build();
    }
    catch (const std::bad_alloc&)
    {
        Clear();
        m_truncated = true;
    }
}

void DisplayList::Clear()
{
    *this = DisplayList();
}

AcDbObjectId DisplayList::Pick(const Point2& point, double distance) const
{
    AcDbObjectId nearest;
    double best = distance;
    for (const DisplayItem& item : m_items)
    {
        if (item.box.DistanceTo(point) > best)
        {
            continue;
        }
        const double away = DistanceTo(item, point);
        if (away <= best)
        {
            best = away;
            nearest = item.entity;
        }
    }
    return nearest;
}

std::vector<AcDbObjectId> DisplayList::Inside(const Box2& window) const
{
    std::vector<AcDbObjectId> ids;
    for (const DisplayItem& item : m_items)
    {
        if (window.Contains(item.box))
        {
            ids.push_back(item.entity);
        }
    }
    return ids;
}

std::vector<AcDbObjectId> DisplayList::Crossing(const Box2& window) const
{
    std::vector<AcDbObjectId> ids;
    for (const DisplayItem& item : m_items)
    {
        if (window.Contains(item.box) || (window.Overlaps(item.box) && Touches(item, window)))
        {
            ids.push_back(item.entity);
        }
    }
    return ids;
}

double DisplayList::DistanceTo(const DisplayItem& item, const Point2& point) const
{
    double best = std::numeric_limits<double>::infinity();
    for (size_t i = item.first; i < item.first + item.count; ++i)
    {
        const DisplayPrimitive& primitive = m_primitives[i];
        const Point2* points = m_points.data() + primitive.firstPoint;
        double away = DistanceToChain(points, primitive.pointCount, point);
        if (primitive.kind == DisplayPrimitive::kText && IsInsidePolygon(points, primitive.pointCount, point))
        {
            away = 0;
        }
        if (primitive.kind == DisplayPrimitive::kArea)
        {
            away = DistanceToArea(m_points, primitive, m_loopEnds, point);
        }
        best = std::min(best, away);
    }
    return best;
}

bool DisplayList::Touches(const DisplayItem& item, const Box2& window) const
{
    const Point2 corner = {window.minX, window.minY};
    for (size_t i = item.first; i < item.first + item.count; ++i)
    {
        const DisplayPrimitive& primitive = m_primitives[i];
        const Point2* points = m_points.data() + primitive.firstPoint;
        bool touches = primitive.kind == DisplayPrimitive::kArea ? AreaTouches(m_points, primitive, m_loopEnds, window)
                                                                 : ChainTouches(points, primitive.pointCount, window);
        if (primitive.kind == DisplayPrimitive::kText)
        {
            touches = touches || IsInsidePolygon(points, primitive.pointCount, corner);
        }
        if (touches)
        {
            return true;
        }
    }
    return false;
}

} // namespace arxgi
