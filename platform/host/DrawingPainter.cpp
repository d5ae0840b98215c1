#include "host/DrawingPainter.h"

#include "arx/ui/GdiGuards.h"
#include "host/LineClip.h"

#include <algorithm>
#include <cmath>
#include <cwchar>

namespace arxhost
{
namespace
{

const COLORREF foreground = RGB(255, 255, 255);
const COLORREF highlightGlow = RGB(0, 66, 140);
const COLORREF highlightInk = RGB(110, 190, 255);
const int glowWidth = 5;
const int inkWidth = 2;
const DWORD dashes[] = {9, 5};

const int pointArm = 3;
// Text smaller than this is a line: its strokes would be a smear.
const double legibleHeight = 3;
// Height of the font's em square beside the height of its capital letters.
const double emPerCapital = 1.35;
const double tenthsPerRadian = 1800 / 3.14159265358979323846;
// Beyond this the graphics coordinates of filled areas are cut; the view is far smaller.
const double farPixel = 1e6;

COLORREF ColourOf(const arxgi::DisplayColor& colour)
{
    if (colour.isForeground)
        return foreground;
    return RGB((colour.rgb >> 16) & 0xFF, (colour.rgb >> 8) & 0xFF, colour.rgb & 0xFF);
}

LONG Rounded(double value)
{
    return static_cast<LONG>(std::lround(std::clamp(value, -farPixel, farPixel)));
}

} // namespace

HFONT CreateTextFont(const arxgi::Point2* corners, const ViewTransform& view)
{
    const double height = std::hypot(corners[3].x - corners[0].x, corners[3].y - corners[0].y) / view.UnitsPerPixel();
    if (height < legibleHeight || height > farPixel)
        return nullptr;
    const double angle = std::atan2(corners[1].y - corners[0].y, corners[1].x - corners[0].x);
    LOGFONTW font{};
    font.lfHeight = -Rounded(height * emPerCapital);
    font.lfEscapement = font.lfOrientation = Rounded(angle * tenthsPerRadian);
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfQuality = ANTIALIASED_QUALITY;
    std::wcsncpy(font.lfFaceName, L"宋体", LF_FACESIZE - 1);
    return CreateFontIndirectW(&font);
}

DrawingPainter::DrawingPainter(HDC dc, const ViewTransform& view) : m_dc(dc), m_view(view)
{
    const WorldBox visible = view.Visible();
    m_visible = arxgi::Box2(visible.min.x, visible.min.y, visible.max.x, visible.max.y);
}

void DrawingPainter::Paint(const arxgi::DisplayList& list, const std::vector<AcDbObjectId>& highlighted)
{
    const arxui::SaveDcGuard saved(m_dc);
    SetBkMode(m_dc, TRANSPARENT);
    SetPolyFillMode(m_dc, ALTERNATE);
    SetTextAlign(m_dc, TA_LEFT | TA_BASELINE);
    SelectObject(m_dc, GetStockObject(DC_PEN));
    SelectObject(m_dc, GetStockObject(DC_BRUSH));
    PaintItems(list);
    if (highlighted.empty())
        return;
    const arxui::GdiObject<HPEN> glow(CreatePen(PS_SOLID, glowWidth, highlightGlow));
    PaintHighlight(list, highlighted, glow.Get());
    const LOGBRUSH ink{BS_SOLID, highlightInk, 0};
    const DWORD style = PS_GEOMETRIC | PS_USERSTYLE | PS_ENDCAP_FLAT;
    const arxui::GdiObject<HPEN> dashed(ExtCreatePen(style, inkWidth, &ink, std::size(dashes), dashes));
    PaintHighlight(list, highlighted, dashed.Get());
}

void DrawingPainter::PaintItems(const arxgi::DisplayList& list)
{
    for (const arxgi::DisplayItem& item : list.items())
    {
        if (!IsVisible(item))
            continue;
        for (size_t i = item.first; i < item.first + item.count; ++i)
        {
            const arxgi::DisplayPrimitive& primitive = list.primitives()[i];
            const COLORREF colour = ColourOf(primitive.color);
            SetDCPenColor(m_dc, colour);
            SetDCBrushColor(m_dc, colour);
            SetTextColor(m_dc, colour);
            PaintPrimitive(list, primitive, false);
        }
    }
}

void DrawingPainter::PaintHighlight(const arxgi::DisplayList& list, const std::vector<AcDbObjectId>& highlighted,
                                    HPEN pen)
{
    const arxui::SelectGuard selectPen(m_dc, pen);
    const arxui::SelectGuard selectBrush(m_dc, GetStockObject(NULL_BRUSH));
    SetTextColor(m_dc, highlightInk);
    for (const arxgi::DisplayItem& item : list.items())
    {
        if (!IsVisible(item) || !std::binary_search(highlighted.begin(), highlighted.end(), item.entity))
            continue;
        for (size_t i = item.first; i < item.first + item.count; ++i)
            PaintPrimitive(list, list.primitives()[i], true);
    }
}

void DrawingPainter::PaintPrimitive(const arxgi::DisplayList& list, const arxgi::DisplayPrimitive& primitive,
                                    bool outline)
{
    const arxgi::Point2* points = list.points().data() + primitive.firstPoint;
    switch (primitive.kind)
    {
    case arxgi::DisplayPrimitive::kPolyline:
        PaintChain(points, primitive.pointCount);
        break;
    case arxgi::DisplayPrimitive::kArea:
        PaintArea(list, primitive, outline);
        break;
    case arxgi::DisplayPrimitive::kText:
        PaintText(list, primitive);
        break;
    case arxgi::DisplayPrimitive::kPoint:
        PaintPoint(*points);
        break;
    }
}

// Consecutive pieces inside the view are drawn as one chain, so that dashes run on around its corners.
void DrawingPainter::PaintChain(const arxgi::Point2* points, size_t count)
{
    const WorldBox box{{m_visible.minX, m_visible.minY}, {m_visible.maxX, m_visible.maxY}};
    const auto flush = [this] {
        if (m_pixels.size() > 1)
            Polyline(m_dc, m_pixels.data(), static_cast<int>(m_pixels.size()));
        m_pixels.clear();
    };
    m_pixels.clear();
    for (size_t i = 1; i < count; ++i)
    {
        WorldPoint from{points[i - 1].x, points[i - 1].y};
        WorldPoint to{points[i].x, points[i].y};
        if (!ClipLine(from, to, box))
        {
            flush();
            continue;
        }
        const POINT start = Pixel({from.x, from.y});
        const POINT end = Pixel({to.x, to.y});
        if (m_pixels.empty() || m_pixels.back().x != start.x || m_pixels.back().y != start.y)
        {
            flush();
            m_pixels.push_back(start);
        }
        m_pixels.push_back(end);
    }
    flush();
}

void DrawingPainter::PaintArea(const arxgi::DisplayList& list, const arxgi::DisplayPrimitive& primitive, bool outline)
{
    std::vector<INT> counts;
    size_t begin = primitive.firstPoint;
    m_pixels.clear();
    for (size_t loop = primitive.firstLoop; loop < primitive.firstLoop + primitive.loopCount; ++loop)
    {
        const size_t end = list.loopEnds()[loop];
        for (size_t i = begin; i < end; ++i)
            m_pixels.push_back(Pixel(list.points()[i]));
        counts.push_back(static_cast<INT>(end - begin));
        begin = end;
    }
    // A filled area has no edge of its own: the pen would make it a pixel wider.
    const arxui::SelectGuard pen(m_dc, outline ? GetCurrentObject(m_dc, OBJ_PEN) : GetStockObject(NULL_PEN));
    if (!counts.empty())
        PolyPolygon(m_dc, m_pixels.data(), counts.data(), static_cast<int>(counts.size()));
}

void DrawingPainter::PaintText(const arxgi::DisplayList& list, const arxgi::DisplayPrimitive& primitive)
{
    const arxgi::Point2* corners = list.points().data() + primitive.firstPoint;
    const arxui::GdiObject<HFONT> font(CreateTextFont(corners, m_view));
    if (!font)
    {
        PaintChain(corners, 2);
        return;
    }
    const arxui::SelectGuard selectFont(m_dc, font.Get());
    const std::wstring& text = list.texts()[primitive.text];
    const POINT base = Pixel(corners[0]);
    TextOutW(m_dc, base.x, base.y, text.c_str(), static_cast<int>(text.size()));
}

void DrawingPainter::PaintPoint(const arxgi::Point2& point)
{
    const POINT at = Pixel(point);
    MoveToEx(m_dc, at.x - pointArm, at.y, nullptr);
    LineTo(m_dc, at.x + pointArm + 1, at.y);
    MoveToEx(m_dc, at.x, at.y - pointArm, nullptr);
    LineTo(m_dc, at.x, at.y + pointArm + 1);
}

bool DrawingPainter::IsVisible(const arxgi::DisplayItem& item) const
{
    return item.box.Overlaps(m_visible);
}

POINT DrawingPainter::Pixel(const arxgi::Point2& point) const
{
    const PixelPoint pixel = m_view.ToPixel({point.x, point.y});
    return POINT{Rounded(pixel.x), Rounded(pixel.y)};
}

} // namespace arxhost
