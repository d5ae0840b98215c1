// The checks of a drawing as plain geometry: no host, no window, so that they can be read and tested alone.
//
// Every check takes the drawing as small records and answers with the indices of the records that it objects to.
// Lengths are drawing units.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace drawing_check
{

struct Point
{
    double x = 0;
    double y = 0;
};

struct Box
{
    Point min;
    Point max;
};

// An open curve: a line, an arc or an open polyline. `object` is the caller's own index of the entity.
struct OpenCurve
{
    std::size_t object = 0;
    Point start;
    Point end;
};

// Two free ends that nearly meet.
struct Gap
{
    std::size_t first = 0;
    std::size_t second = 0;
    Point firstEnd;
    Point secondEnd;
    double width = 0;
};

// Ends closer than this are one point: it absorbs what text files round away.
constexpr double kSamePoint = 1e-9;

// More gaps than this tell nothing more: the tolerance does not fit the drawing.
constexpr std::size_t kMostGaps = 10000;

double Distance(Point a, Point b);

// Asked now and then by the checks that take long on a large drawing: true ends the check with what it has found so
// far. An empty one never does.
using Stop = std::function<bool()>;

// Indices of the curves whose two ends coincide.
std::vector<std::size_t> FindZeroLength(const std::vector<OpenCurve>& lines);

// Groups of equal descriptions, two or more indices in each, in the order of their first member.
std::vector<std::vector<std::size_t>> FindDuplicates(const std::vector<std::string>& descriptions,
                                                     const Stop& stop = Stop());

// Pairs of free ends that are apart, but not farther than `tolerance`. An end that coincides with another end is
// joined and no longer free; the two ends of one curve are never paired. At most kMostGaps pairs.
std::vector<Gap> FindGaps(const std::vector<OpenCurve>& curves, double tolerance, const Stop& stop = Stop());

// Indices of the open curves whose own ends are apart, but not farther than `tolerance`.
std::vector<std::size_t> FindNearlyClosed(const std::vector<OpenCurve>& polylines, double tolerance);

// Indices of the boxes that lie wholly or partly outside `sheet`.
std::vector<std::size_t> FindOutside(const std::vector<Box>& boxes, const Box& sheet);

} // namespace drawing_check
