#include "host/ViewTransform.h"

#include <algorithm>
#include <cmath>

namespace arxhost
{
namespace
{

// Beyond these the arithmetic of doubles no longer tells neighbouring pixels apart.
const double smallestHeight = 1e-9;
const double largestHeight = 1e15;

// A fitted box fills this part of the window.
const double fitShare = 0.94;

} // namespace

ViewTransform::ViewTransform(WorldPoint centre, double height, int pixelWidth, int pixelHeight)
    : m_centre(centre), m_pixelWidth(std::max(1, pixelWidth)), m_pixelHeight(std::max(1, pixelHeight))
{
    SetHeight(height);
}

double ViewTransform::UnitsPerPixel() const
{
    return m_height / m_pixelHeight;
}

PixelPoint ViewTransform::ToPixel(WorldPoint point) const
{
    const double unit = UnitsPerPixel();
    return {m_pixelWidth / 2.0 + (point.x - m_centre.x) / unit, m_pixelHeight / 2.0 - (point.y - m_centre.y) / unit};
}

WorldPoint ViewTransform::ToWorld(PixelPoint point) const
{
    const double unit = UnitsPerPixel();
    return {m_centre.x + (point.x - m_pixelWidth / 2.0) * unit, m_centre.y - (point.y - m_pixelHeight / 2.0) * unit};
}

WorldBox ViewTransform::Visible() const
{
    const WorldPoint lowLeft = ToWorld({0, static_cast<double>(m_pixelHeight)});
    const WorldPoint highRight = ToWorld({static_cast<double>(m_pixelWidth), 0});
    return {lowLeft, highRight};
}

void ViewTransform::ZoomAt(PixelPoint fixed, double factor)
{
    if (!(factor > 0))
        return;
    const WorldPoint before = ToWorld(fixed);
    SetHeight(m_height / factor);
    const WorldPoint after = ToWorld(fixed);
    m_centre.x += before.x - after.x;
    m_centre.y += before.y - after.y;
}

void ViewTransform::Pan(double right, double down)
{
    m_centre.x -= right * UnitsPerPixel();
    m_centre.y += down * UnitsPerPixel();
}

void ViewTransform::Fit(const WorldBox& box)
{
    const double width = box.max.x - box.min.x;
    const double height = box.max.y - box.min.y;
    m_centre = {(box.min.x + box.max.x) / 2, (box.min.y + box.max.y) / 2};
    const double neededByWidth = width * m_pixelHeight / m_pixelWidth;
    const double needed = std::max(height, neededByWidth);
    if (needed > 0)
        SetHeight(needed / fitShare);
}

void ViewTransform::SetHeight(double height)
{
    if (std::isfinite(height) && height > 0)
        m_height = std::min(largestHeight, std::max(smallestHeight, height));
}

} // namespace arxhost
