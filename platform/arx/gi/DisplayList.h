// DisplayList: a drawing's model space as plain primitives, ready to paint and to pick from.
//
// Blocks are expanded, curves cut into chords, colours and layers resolved ("by layer" and "by block" are gone,
// entities on layers that are off or frozen and invisible ones are left out). Everything is seen from above: z is
// dropped. Coordinates are drawing units, y upwards.
//
//     arxgi::DisplayList list;
//     list.Build(*database, unitsPerPixel);
//     for (const arxgi::DisplayItem& item : list.items())
//         for (size_t i = item.first; i < item.first + item.count; ++i)
//             Paint(list, list.primitives()[i]);
//
// A list is a copy: it stays as it is when the drawing changes. Build it again after a change of the drawing, and after
// zooming in so far that chords show (chordTolerance() is what they deviate).
#pragma once

#include "dbid.h"
#include "arx/Api.h"

#include <stddef.h>
#include <string>
#include <vector>

class AcDbDatabase;

namespace arxgi
{

struct Point2
{
    double x = 0;
    double y = 0;
};

// A box; empty while min is greater than max.
struct ARX_API Box2
{
    Box2();
    Box2(double x1, double y1, double x2, double y2); // any two opposite corners

    bool IsEmpty() const { return minX > maxX; }
    void Add(const Point2& point);
    void Add(const Box2& box);
    bool Contains(const Box2& other) const;
    bool Overlaps(const Box2& other) const;
    // 0 inside; infinity for an empty box.
    double DistanceTo(const Point2& point) const;

    double minX;
    double minY;
    double maxX;
    double maxY;
};

struct DisplayColor
{
    unsigned int rgb = 0xFFFFFF; // 0x00RRGGBB
    // The foreground colour (index 7): white on a dark ground, black on a light one. `rgb` is white then.
    bool isForeground = true;
};

struct DisplayPrimitive
{
    enum Kind
    {
        kPolyline, // chain of points; a closed one repeats its first point
        kArea,     // filled polygons with holes by the even-odd rule; see loops
        kText,     // texts()[text] on a parallelogram: left base, right base, right top, left top, left base
        kPoint     // one point
    };

    Kind kind = kPolyline;
    DisplayColor color;
    size_t firstPoint = 0;
    size_t pointCount = 0;
    size_t firstLoop = 0; // kArea: loopEnds()[firstLoop ... firstLoop + loopCount - 1]
    size_t loopCount = 0;
    size_t text = 0;
};

// All primitives of one entity of model space, in drawing order.
struct DisplayItem
{
    AcDbObjectId entity;
    Box2 box;
    size_t first = 0;
    size_t count = 0;
};

class ARX_API DisplayList
{
public:
    // Enough for drawings of a million entities.
    static constexpr size_t kMaxPoints = 10000000;

    // Replaces the contents by the drawing's. Chords deviate by at most a quarter of `unitsPerPixel` (greater than 0)
    // from their curve, or by more where the list would get larger than `maxPoints`. Entities that someone has open for
    // writing are left out.
    void Build(AcDbDatabase& database, double unitsPerPixel, size_t maxPoints = kMaxPoints);
    void Clear();

    const std::vector<DisplayItem>& items() const { return m_items; }
    const std::vector<DisplayPrimitive>& primitives() const { return m_primitives; }
    const std::vector<Point2>& points() const { return m_points; }
    // One past the last point of each loop, as indices into points(). The first loop of an area starts at firstPoint.
    const std::vector<size_t>& loopEnds() const { return m_loopEnds; }
    const std::vector<std::wstring>& texts() const { return m_texts; }
    // Box around all items; empty for an empty drawing.
    const Box2& box() const { return m_box; }
    // How far chords were asked to deviate at most.
    double chordTolerance() const { return m_tolerance; }
    // True when the drawing has more than the list could take: the list shows a part of it only.
    bool isTruncated() const { return m_truncated; }

    // The entity nearest to the point, if it is not farther than `distance`; null otherwise. Among equally near ones
    // the one drawn last wins. The inside of filled areas and of texts counts as distance 0.
    AcDbObjectId Pick(const Point2& point, double distance) const;
    // Entities wholly inside the window, in drawing order.
    std::vector<AcDbObjectId> Inside(const Box2& window) const;
    // Entities inside the window or touching it.
    std::vector<AcDbObjectId> Crossing(const Box2& window) const;

private:
    friend class DisplayBuilder;

    void BuildAt(AcDbDatabase& database, double tolerance, size_t maxPoints);
    double DistanceTo(const DisplayItem& item, const Point2& point) const;
    bool Touches(const DisplayItem& item, const Box2& window) const;

    std::vector<DisplayItem> m_items;
    std::vector<DisplayPrimitive> m_primitives;
    std::vector<Point2> m_points;
    std::vector<size_t> m_loopEnds;
    std::vector<std::wstring> m_texts;
    Box2 m_box;
    double m_tolerance = 0;
    bool m_truncated = false;
};

} // namespace arxgi
