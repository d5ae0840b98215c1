// The mapping between drawing units and pixels of a drawing view, and what zoom and pan do to it. No window.
//
// A view shows the drawing around a centre point; its height in drawing units fills the window's height. The drawing's
// y axis points up, the window's down.
#pragma once

namespace arxhost
{

struct WorldPoint
{
    double x = 0;
    double y = 0;
};

struct WorldBox
{
    WorldPoint min;
    WorldPoint max;
};

struct PixelPoint
{
    double x = 0;
    double y = 0;
};

class ViewTransform
{
public:
    ViewTransform() = default;
    ViewTransform(WorldPoint centre, double height, int pixelWidth, int pixelHeight);

    WorldPoint Centre() const { return m_centre; }
    double Height() const { return m_height; }

    // Drawing units per pixel.
    double UnitsPerPixel() const;
    PixelPoint ToPixel(WorldPoint point) const;
    WorldPoint ToWorld(PixelPoint point) const;
    // The part of the drawing that the window shows.
    WorldBox Visible() const;

    // Shows `factor` times as large; the drawing point under `fixed` stays where it is.
    void ZoomAt(PixelPoint fixed, double factor);
    // Moves the picture by pixels.
    void Pan(double right, double down);
    // Shows the whole box, with a margin around it. A box without area (one point) keeps the present scale.
    void Fit(const WorldBox& box);

private:
    void SetHeight(double height);

    WorldPoint m_centre;
    double m_height = 1;
    int m_pixelWidth = 1;
    int m_pixelHeight = 1;
};

} // namespace arxhost
