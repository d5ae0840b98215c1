// The arithmetic of docking, without a window: which edge a dragged bar docks to, the rectangle it takes there, limits.
//
// Rectangles and points are pixels in one common coordinate system (the caller's choice). A docked bar has a
// "thickness": its width at the left or right edge, its height at the top or bottom edge.
#pragma once

#include "arx/Api.h"

#include <windows.h>

namespace arxui
{

enum class DockSide
{
    Left,
    Top,
    Right,
    Bottom,
    Floating
};

// Width of the strip between a docked bar and the rest of the frame, by which the bar is resized.
const int splitterWidth = 4;

// The host's dock bar identifiers (AFX_IDW_DOCKBAR_*). An unknown identifier is Floating.
ARX_API DockSide SideOfDockBar(UINT dockBar);
ARX_API UINT DockBarOfSide(DockSide side);

// Whether a bar enabled for the CBRS_ALIGN_ bits `allowed` may dock at `side`. Floating is always allowed.
ARX_API bool IsSideAllowed(DockSide side, DWORD allowed);

// True for the sides whose thickness is a width.
ARX_API bool IsUpright(DockSide side);

// The side that a bar dragged with the cursor at `cursor` docks to: the allowed edge of `area` that is nearest among
// those within `reach`; Floating when none is.
ARX_API DockSide DockSideAt(const RECT& area, POINT cursor, DWORD allowed, int reach);

// Cuts a strip of `thickness` off the given side of `area` and returns it. `area` becomes the rest.
ARX_API RECT TakeEdge(RECT& area, DockSide side, int thickness);

// The thickness that is possible: at least `minimum`, and leaving `leave` of the `available` pixels to others; where
// both can't be, the minimum wins.
ARX_API int LimitThickness(int wanted, int minimum, int available, int leave);

// The thickness after the splitter went from `from` to `to`.
ARX_API int DraggedThickness(DockSide side, int before, POINT from, POINT to);

// The splitter strip of a docked bar, at the edge that faces the drawing, and the rest of the bar.
ARX_API RECT SplitterOf(const RECT& bar, DockSide side);
ARX_API RECT InsideOf(const RECT& bar, DockSide side);

// The rectangle with the same top left corner, its size between `minimum` and `maximum` (a maximum of 0 is no limit).
ARX_API RECT LimitSize(const RECT& wanted, SIZE minimum, SIZE maximum);

// The rectangle moved so that its caption can be reached inside `screen`.
ARX_API RECT KeepReachable(const RECT& wanted, const RECT& screen);

// A dragged floating rectangle: it moves with the cursor; when the grab point lies outside (a bar that was docked wide
// and floats narrow), it is moved under the cursor.
ARX_API RECT DraggedRect(const RECT& before, POINT grab, POINT cursor);

} // namespace arxui
