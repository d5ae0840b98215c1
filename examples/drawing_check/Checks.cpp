#include "Checks.h"

#include "StopPoll.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace drawing_check
{

namespace
{

struct End
{
    std::size_t curve;
    Point point;
};

// A grid of square cells. Ends that are closer than one cell's side lie in the same cell or in neighbouring ones.
class EndGrid
{
public:
    EndGrid(const std::vector<End>& ends, double side, StopPoll& stop) : m_ends(ends), m_side(side)
    {
        for (std::size_t i = 0; i < ends.size() && !stop(); ++i)
        {
            m_cells[CellOf(ends[i].point)].push_back(i);
        }
    }

    // Calls visit(index) for every end that may be closer to `point` than the cell's side, until visit answers false.
    template<typename Visitor>
    void VisitNear(Point point, Visitor visit) const
    {
        const Cell centre = CellOf(point);
        for (std::int64_t row = -1; row <= 1; ++row)
        {
            for (std::int64_t column = -1; column <= 1; ++column)
            {
                if (!VisitCell({centre.column + column, centre.row + row}, visit))
                {
                    return;
                }
            }
        }
    }

private:
    struct Cell
    {
        std::int64_t column;
        std::int64_t row;
        bool operator==(const Cell& other) const { return column == other.column && row == other.row; }
    };

    struct CellHash
    {
        std::size_t operator()(const Cell& cell) const
        {
            constexpr std::uint64_t kSpread = 0x9E3779B97F4A7C15ULL;
            return static_cast<std::uint64_t>(cell.column) * kSpread ^ static_cast<std::uint64_t>(cell.row);
        }
    };

    std::int64_t Index(double value) const
    {
        // Coordinates beyond this are garbage of a damaged file; the cast of a larger value would be undefined.
        constexpr double kFarthestCell = 1e15;
        return std::isnan(value)
                   ? 0
                   : static_cast<std::int64_t>(std::clamp(std::floor(value / m_side), -kFarthestCell, kFarthestCell));
    }

    Cell CellOf(Point point) const { return {Index(point.x), Index(point.y)}; }

    template<typename Visitor>
    bool VisitCell(const Cell& cell, Visitor visit) const
    {
        const auto found = m_cells.find(cell);
        return found == m_cells.end() || std::all_of(found->second.begin(), found->second.end(), visit);
    }

    const std::vector<End>& m_ends;
    double m_side;
    std::unordered_map<Cell, std::vector<std::size_t>, CellHash> m_cells;
};

std::vector<End> EndsOf(const std::vector<OpenCurve>& curves)
{
    std::vector<End> ends;
    ends.reserve(curves.size() * 2);
    for (std::size_t i = 0; i < curves.size(); ++i)
    {
        ends.push_back({i, curves[i].start});
        ends.push_back({i, curves[i].end});
    }
    return ends;
}

// The ends at which no other end lies.
std::vector<End> FreeEnds(const std::vector<End>& ends, double side, StopPoll& stop)
{
    const EndGrid grid(ends, side, stop);
    std::vector<End> free;
    for (std::size_t i = 0; i < ends.size() && !stop(); ++i)
    {
        bool joined = false;
        grid.VisitNear(ends[i].point, [&](std::size_t other) {
            joined = other != i && Distance(ends[i].point, ends[other].point) <= kSamePoint;
            return !joined;
        });
        if (!joined)
        {
            free.push_back(ends[i]);
        }
    }
    return free;
}

bool IsGap(double width, double tolerance)
{
    return width > kSamePoint && width <= tolerance;
}

bool IsInside(const Box& box, const Box& sheet)
{
    return box.min.x >= sheet.min.x - kSamePoint && box.min.y >= sheet.min.y - kSamePoint &&
           box.max.x <= sheet.max.x + kSamePoint && box.max.y <= sheet.max.y + kSamePoint;
}

} // namespace

double Distance(Point a, Point b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

std::vector<std::size_t> FindZeroLength(const std::vector<OpenCurve>& lines)
{
    std::vector<std::size_t> found;
    for (const OpenCurve& line : lines)
    {
        if (Distance(line.start, line.end) <= kSamePoint)
        {
            found.push_back(line.object);
        }
    }
    return found;
}

std::vector<std::vector<std::size_t>> FindDuplicates(const std::vector<std::string>& descriptions, const Stop& stop)
{
    std::unordered_map<std::string, std::size_t> groupOf;
    std::vector<std::vector<std::size_t>> groups;
    StopPoll poll(stop);
    for (std::size_t i = 0; i < descriptions.size() && !poll(); ++i)
    {
        const auto [position, isNew] = groupOf.emplace(descriptions[i], groups.size());
        if (isNew)
        {
            groups.emplace_back();
        }
        groups[position->second].push_back(i);
    }
    groups.erase(std::remove_if(groups.begin(), groups.end(), [](const auto& group) { return group.size() < 2; }),
                 groups.end());
    return groups;
}

std::vector<Gap> FindGaps(const std::vector<OpenCurve>& curves, double tolerance, const Stop& stop)
{
    const double side = std::max(tolerance, kSamePoint);
    StopPoll poll(stop);
    const std::vector<End> free = FreeEnds(EndsOf(curves), side, poll);
    const EndGrid grid(free, side, poll);
    std::vector<Gap> gaps;
    for (std::size_t i = 0; i < free.size() && !poll(); ++i)
    {
        grid.VisitNear(free[i].point, [&](std::size_t other) {
            const double width = Distance(free[i].point, free[other].point);
            if (other > i && free[i].curve != free[other].curve && IsGap(width, tolerance))
            {
                gaps.push_back({curves[free[i].curve].object, curves[free[other].curve].object, free[i].point,
                                free[other].point, width});
            }
            return gaps.size() < kMostGaps;
        });
    }
    return gaps;
}

std::vector<std::size_t> FindNearlyClosed(const std::vector<OpenCurve>& polylines, double tolerance)
{
    std::vector<std::size_t> found;
    for (const OpenCurve& polyline : polylines)
    {
        if (IsGap(Distance(polyline.start, polyline.end), tolerance))
        {
            found.push_back(polyline.object);
        }
    }
    return found;
}

std::vector<std::size_t> FindOutside(const std::vector<Box>& boxes, const Box& sheet)
{
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < boxes.size(); ++i)
    {
        if (!IsInside(boxes[i], sheet))
        {
            found.push_back(i);
        }
    }
    return found;
}

} // namespace drawing_check
