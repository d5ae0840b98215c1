#include "SlidePainter.h"

#include <algorithm>
#include <cmath>

namespace Tevrin
{
namespace
{
const int kForeground = 7;
const int kBrightBackground = 128;

// Graphics coordinates stay far inside of what GDI takes; a line that reaches farther was never on a screen.
const double kFarPixel = 1e6;

// Lines that go to GDI in one call.
const size_t kLinesOfCall = 4096;

class SavedDC
{
public:
    explicit SavedDC(HDC dc) : m_dc(dc), m_state(SaveDC(dc)) {}
    ~SavedDC() { RestoreDC(m_dc, m_state); }
    SavedDC(const SavedDC&) = delete;
    SavedDC& operator=(const SavedDC&) = delete;

private:
    HDC m_dc;
    int m_state;
};

int Luminance(COLORREF color)
{
    return (GetRValue(color) * 299 + GetGValue(color) * 587 + GetBValue(color) * 114) / 1000;
}

LONG Rounded(double value)
{
    return static_cast<LONG>(std::lround(std::clamp(value, -kFarPixel, kFarPixel)));
}

// From dots to pixels: the outermost dots fall on the outermost pixels.
class DotScale
{
public:
    DotScale(const RECT& place, const Slide& slide)
        : m_left(place.left), m_bottom(place.bottom - 1), m_x(Factor(place.right - place.left, slide.Width())),
          m_y(Factor(place.bottom - place.top, slide.Height()))
    {
    }

    POINT operator()(const SlidePoint& dot) const
    {
        return POINT{m_left + Rounded(dot.x * m_x), m_bottom - Rounded(dot.y * m_y)};
    }

private:
    static double Factor(LONG pixels, int dots) { return dots > 1 ? (pixels - 1.0) / (dots - 1) : 0; }

    LONG m_left;
    LONG m_bottom;
    double m_x;
    double m_y;
};

// Collects lines to chains. GDI leaves the last pixel of a chain out: one more step beyond it brings it in.
class LineBatch
{
public:
    explicit LineBatch(HDC dc) : m_dc(dc), m_lines(0) {}

    void Add(const POINT& from, const POINT& to)
    {
        if (m_counts.empty() || m_points.back().x != from.x || m_points.back().y != from.y)
        {
            EndChain();
            if (m_lines >= kLinesOfCall)
                Draw();
            m_points.push_back(from);
            m_counts.push_back(1);
        }
        m_points.push_back(to);
        ++m_counts.back();
        ++m_lines;
    }

    void Flush()
    {
        EndChain();
        Draw();
    }

private:
    void EndChain()
    {
        if (m_counts.empty())
            return;
        const POINT beyond = {m_points.back().x + 1, m_points.back().y};
        m_points.push_back(beyond);
        ++m_counts.back();
    }

    void Draw()
    {
        if (!m_counts.empty())
            PolyPolyline(m_dc, m_points.data(), m_counts.data(), static_cast<DWORD>(m_counts.size()));
        m_points.clear();
        m_counts.clear();
        m_lines = 0;
    }

    HDC m_dc;
    size_t m_lines;
    std::vector<POINT> m_points;
    std::vector<DWORD> m_counts;
};

void DrawLines(HDC dc, const SlidePoint* points, size_t count, const DotScale& scale)
{
    LineBatch batch(dc);
    for (size_t i = 0; i + 1 < count; i += 2)
        batch.Add(scale(points[i]), scale(points[i + 1]));
    batch.Flush();
}

// The pen belongs to the area: a polygon without it would lack its right and lower edge.
void DrawArea(HDC dc, const SlidePoint* points, size_t count, const DotScale& scale)
{
    std::vector<POINT> corners(count);
    std::transform(points, points + count, corners.begin(), scale);
    Polygon(dc, corners.data(), static_cast<int>(count));
}

void Fill(HDC dc, const RECT& area, COLORREF color)
{
    SetBkColor(dc, color);
    ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &area, nullptr, 0, nullptr);
}
} // namespace

RECT SlidePlace(const RECT& area, const Slide& slide)
{
    const LONG width = area.right - area.left;
    const LONG height = area.bottom - area.top;
    if (width <= 0 || height <= 0 || slide.Width() == 0)
        return RECT{area.left, area.top, area.left, area.top};
    const double wanted = height * slide.Aspect();
    const LONG placeWidth = wanted < width ? std::max(1L, std::lround(wanted)) : width;
    const LONG placeHeight = wanted < width ? height : std::clamp(std::lround(width / slide.Aspect()), 1L, height);
    const LONG left = area.left + (width - placeWidth) / 2;
    const LONG top = area.top + (height - placeHeight) / 2;
    return RECT{left, top, left + placeWidth, top + placeHeight};
}

COLORREF SlideColor(int index, COLORREF background)
{
    if (index == 0)
        return background;
    if (index == kForeground && Luminance(background) >= kBrightBackground)
        return RGB(0, 0, 0);
    return GetRGBFromACI(index);
}

void PaintSlide(HDC dc, const RECT& area, const Slide& slide, COLORREF background)
{
    const SavedDC saved(dc);
    Fill(dc, area, background);
    const RECT place = SlidePlace(area, slide);
    if (place.left == place.right)
        return;
    IntersectClipRect(dc, place.left, place.top, place.right, place.bottom);
    SelectObject(dc, GetStockObject(DC_PEN));
    SelectObject(dc, GetStockObject(DC_BRUSH));
    SetROP2(dc, R2_COPYPEN);
    SetPolyFillMode(dc, ALTERNATE);
    const DotScale scale(place, slide);
    for (const SlideRun& run : slide.Runs())
    {
        const COLORREF color = SlideColor(run.color, background);
        SetDCPenColor(dc, color);
        SetDCBrushColor(dc, color);
        const SlidePoint* const points = slide.Points().data() + run.first;
        (run.kind == SlideRun::kLines ? DrawLines : DrawArea)(dc, points, run.count, scale);
    }
}
} // namespace Tevrin
