#include "host/SlideRecorder.h"

#include "dbcolor.h"
#include "arx/ui/GdiGuards.h"
#include "host/DrawingPainter.h"
#include "host/LineClip.h"

#include <algorithm>
#include <climits>
#include <cmath>

namespace arxhost
{
namespace
{

const int foregroundIndex = 7;
const int lastIndex = 255;
const int pointArm = 3; // dots

class MemoryDc
{
public:
    MemoryDc() : m_dc(CreateCompatibleDC(nullptr)) {}
    ~MemoryDc() { DeleteDC(m_dc); }
    MemoryDc(const MemoryDc&) = delete;
    MemoryDc& operator=(const MemoryDc&) = delete;

    HDC Get() const { return m_dc; }

private:
    HDC m_dc;
};

// The outlines of a text as polygons, in the pixels of the view.
std::vector<std::vector<POINT>> OutlinesOf(const std::wstring& text, POINT base, HFONT font)
{
    const MemoryDc dc;
    const arxui::SelectGuard selected(dc.Get(), font);
    SetTextAlign(dc.Get(), TA_LEFT | TA_BASELINE);
    SetBkMode(dc.Get(), TRANSPARENT);
    BeginPath(dc.Get());
    TextOutW(dc.Get(), base.x, base.y, text.c_str(), static_cast<int>(text.size()));
    EndPath(dc.Get());
    FlattenPath(dc.Get());
    const int count = GetPath(dc.Get(), nullptr, nullptr, 0);
    std::vector<std::vector<POINT>> outlines;
    if (count <= 0)
        return outlines;
    std::vector<POINT> points(static_cast<size_t>(count));
    std::vector<BYTE> types(points.size());
    GetPath(dc.Get(), points.data(), types.data(), count);
    for (size_t i = 0; i < points.size(); ++i)
    {
        if (types[i] == PT_MOVETO || outlines.empty())
            outlines.emplace_back();
        outlines.back().push_back(points[i]);
    }
    return outlines;
}

int SquareDistance(unsigned one, unsigned other)
{
    int sum = 0;
    for (const int shift : {0, 8, 16})
    {
        const int difference = static_cast<int>(one >> shift & 0xff) - static_cast<int>(other >> shift & 0xff);
        sum += difference * difference;
    }
    return sum;
}

// The foreground is left out: it changes its colour with the background.
int NearestIndex(unsigned rgb)
{
    int nearest = 1;
    int least = INT_MAX;
    for (int index = 1; index <= lastIndex; ++index)
    {
        const int distance = SquareDistance(rgb, AcCmEntityColor::lookUpRGB(static_cast<Adesk::UInt8>(index)));
        if (index == foregroundIndex || distance >= least)
            continue;
        least = distance;
        nearest = index;
    }
    return nearest;
}

} // namespace

SlideRecorder::SlideRecorder(const ViewTransform& view, int width, int height)
    : m_view(view), m_width(std::clamp(width, 1, SHRT_MAX)), m_height(std::clamp(height, 1, SHRT_MAX)),
      m_slide(m_width, m_height)
{
}

std::string SlideRecorder::Record(const arxgi::DisplayList& list)
{
    const WorldBox visible = m_view.Visible();
    const arxgi::Box2 box(visible.min.x, visible.min.y, visible.max.x, visible.max.y);
    for (const arxgi::DisplayItem& item : list.items())
    {
        if (!item.box.Overlaps(box))
            continue;
        for (size_t i = item.first; i < item.first + item.count; ++i)
            RecordPrimitive(list, list.primitives()[i]);
    }
    return m_slide.Finish();
}

void SlideRecorder::RecordPrimitive(const arxgi::DisplayList& list, const arxgi::DisplayPrimitive& primitive)
{
    m_slide.SetColor(IndexOf(primitive.color));
    const arxgi::Point2* points = list.points().data() + primitive.firstPoint;
    switch (primitive.kind)
    {
    case arxgi::DisplayPrimitive::kPolyline:
        RecordChain(points, primitive.pointCount);
        break;
    case arxgi::DisplayPrimitive::kArea:
        RecordArea(list, primitive);
        break;
    case arxgi::DisplayPrimitive::kText:
        RecordText(list, primitive);
        break;
    case arxgi::DisplayPrimitive::kPoint:
        RecordPoint(*points);
        break;
    }
}

void SlideRecorder::RecordChain(const arxgi::Point2* points, size_t count)
{
    for (size_t i = 1; i < count; ++i)
        RecordLine({points[i - 1].x, points[i - 1].y}, {points[i].x, points[i].y});
}

void SlideRecorder::RecordLine(WorldPoint from, WorldPoint to)
{
    if (ClipLine(from, to, m_view.Visible()))
        m_slide.AddLine(Rounded(ToDot({from.x, from.y})), Rounded(ToDot({to.x, to.y})));
}

void SlideRecorder::RecordArea(const arxgi::DisplayList& list, const arxgi::DisplayPrimitive& primitive)
{
    std::vector<Loop> loops;
    size_t begin = primitive.firstPoint;
    for (size_t i = primitive.firstLoop; i < primitive.firstLoop + primitive.loopCount; ++i)
    {
        const size_t end = list.loopEnds()[i];
        Loop loop;
        for (size_t point = begin; point < end; ++point)
            loop.push_back(ToDot(list.points()[point]));
        // A closed loop repeats its first point, which is no corner of its own.
        while (loop.size() > 1 && loop.front().x == loop.back().x && loop.front().y == loop.back().y)
            loop.pop_back();
        loops.push_back(loop);
        begin = end;
    }
    if (!RecordSmallArea(loops))
        RecordSpans(loops);
}

void SlideRecorder::RecordText(const arxgi::DisplayList& list, const arxgi::DisplayPrimitive& primitive)
{
    const arxgi::Point2* corners = list.points().data() + primitive.firstPoint;
    const arxui::GdiObject<HFONT> font(CreateTextFont(corners, m_view));
    if (!font)
    {
        RecordChain(corners, 2);
        return;
    }
    const PixelPoint pixel = m_view.ToPixel({corners[0].x, corners[0].y});
    const POINT base = {static_cast<LONG>(std::lround(pixel.x)), static_cast<LONG>(std::lround(pixel.y))};
    std::vector<Loop> loops;
    for (const std::vector<POINT>& outline : OutlinesOf(list.texts()[primitive.text], base, font.Get()))
    {
        Loop loop;
        for (const POINT& point : outline)
            loop.push_back({static_cast<double>(point.x), static_cast<double>(m_height - 1 - point.y)});
        loops.push_back(loop);
    }
    RecordSpans(loops);
}

void SlideRecorder::RecordPoint(const arxgi::Point2& point)
{
    const double arm = pointArm * m_view.UnitsPerPixel();
    RecordLine({point.x - arm, point.y}, {point.x + arm, point.y});
    RecordLine({point.x, point.y - arm}, {point.x, point.y + arm});
}

// An area of one loop that lies wholly in the view and has few enough corners.
bool SlideRecorder::RecordSmallArea(const std::vector<Loop>& loops)
{
    if (loops.size() != 1 || loops[0].size() < SlideWriter::kFewestCorners ||
        loops[0].size() > SlideWriter::kMostCorners)
        return false;
    std::vector<SlideDot> corners;
    for (const arxgi::Point2& dot : loops[0])
    {
        if (!(dot.x >= 0 && dot.x <= m_width - 1 && dot.y >= 0 && dot.y <= m_height - 1))
            return false;
        corners.push_back(Rounded(dot));
    }
    m_slide.AddArea(corners);
    return true;
}

void SlideRecorder::RecordSpans(const std::vector<Loop>& loops)
{
    double lowest = m_height;
    double highest = -1;
    for (const Loop& loop : loops)
    {
        for (const arxgi::Point2& dot : loop)
        {
            lowest = std::min(lowest, dot.y);
            highest = std::max(highest, dot.y);
        }
    }
    const int last = static_cast<int>(std::min(std::floor(highest), m_height - 1.0));
    for (int y = static_cast<int>(std::max(std::ceil(lowest), 0.0)); y <= last; ++y)
        RecordSpansOfRow(loops, y);
}

// The parts of a row inside of the loops, by the even-odd rule.
void SlideRecorder::RecordSpansOfRow(const std::vector<Loop>& loops, int y)
{
    std::vector<double> crossings;
    for (const Loop& loop : loops)
    {
        for (size_t i = 0; i < loop.size(); ++i)
        {
            const arxgi::Point2& a = loop[i];
            const arxgi::Point2& b = loop[(i + 1) % loop.size()];
            if ((a.y <= y) != (b.y <= y))
                crossings.push_back(a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y));
        }
    }
    std::sort(crossings.begin(), crossings.end());
    for (size_t i = 0; i + 1 < crossings.size(); i += 2)
    {
        const double from = std::max(std::ceil(crossings[i]), 0.0);
        const double to = std::min(std::floor(crossings[i + 1]), m_width - 1.0);
        if (from <= to)
            m_slide.AddLine({static_cast<int>(from), y}, {static_cast<int>(to), y});
    }
}

int SlideRecorder::IndexOf(const arxgi::DisplayColor& color)
{
    if (color.isForeground)
        return foregroundIndex;
    const auto known = m_indices.find(color.rgb);
    if (known != m_indices.end())
        return known->second;
    return m_indices[color.rgb] = NearestIndex(color.rgb);
}

arxgi::Point2 SlideRecorder::ToDot(const arxgi::Point2& point) const
{
    const PixelPoint pixel = m_view.ToPixel({point.x, point.y});
    return {pixel.x, m_height - 1 - pixel.y};
}

SlideDot SlideRecorder::Rounded(const arxgi::Point2& dot) const
{
    return {static_cast<int>(std::lround(std::clamp(dot.x, 0.0, m_width - 1.0))),
            static_cast<int>(std::lround(std::clamp(dot.y, 0.0, m_height - 1.0)))};
}

} // namespace arxhost
