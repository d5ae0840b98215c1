// Paints a display list into a device context.
#pragma once

#include <afxwin.h>

#include "dbid.h"
#include "arx/gi/DisplayList.h"
#include "host/ViewTransform.h"

#include <vector>

namespace arxhost
{

// The font that a text of the display list is shown in, given the corners of its parallelogram; the caller deletes it.
// Null for a text too small (or far too large) to be legible: its base line stands for it.
HFONT CreateTextFont(const arxgi::Point2* corners, const ViewTransform& view);

class DrawingPainter
{
public:
    // The context shows the view described by `view`; its coordinates are the view's pixels.
    DrawingPainter(HDC dc, const ViewTransform& view);

    // Everything in its own colour, then the highlighted entities (sorted) once more: broad and dashed in bright blue.
    void Paint(const arxgi::DisplayList& list, const std::vector<AcDbObjectId>& highlighted);

private:
    void PaintItems(const arxgi::DisplayList& list);
    void PaintHighlight(const arxgi::DisplayList& list, const std::vector<AcDbObjectId>& highlighted, HPEN pen);
    void PaintPrimitive(const arxgi::DisplayList& list, const arxgi::DisplayPrimitive& primitive, bool outline);
    void PaintChain(const arxgi::Point2* points, size_t count);
    void PaintArea(const arxgi::DisplayList& list, const arxgi::DisplayPrimitive& primitive, bool outline);
    void PaintText(const arxgi::DisplayList& list, const arxgi::DisplayPrimitive& primitive);
    void PaintPoint(const arxgi::Point2& point);
    bool IsVisible(const arxgi::DisplayItem& item) const;
    POINT Pixel(const arxgi::Point2& point) const;

    HDC m_dc;
    ViewTransform m_view;
    arxgi::Box2 m_visible;
    std::vector<POINT> m_pixels; // kept between calls, to spare allocations
};

} // namespace arxhost
