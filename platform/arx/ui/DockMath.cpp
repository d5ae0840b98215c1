#include "arx/ui/DockMath.h"

#include <algorithm>

namespace arxui
{
namespace
{

// AFX_IDW_DOCKBAR_TOP and its neighbours; the framework's header is no matter of arithmetic.
struct SideRow
{
    DockSide side;
    UINT dockBar;
    DWORD alignment;
};

const SideRow sideTable[] = {
    {DockSide::Top, 0xE81B, 0x2000},
    {DockSide::Left, 0xE81C, 0x1000},
    {DockSide::Right, 0xE81D, 0x4000},
    {DockSide::Bottom, 0xE81E, 0x8000},
};
const UINT floatingDockBar = 0xE81F;

// How much of a floating bar stays on the screen, so that it can be pulled back by its caption.
const int reachableWidth = 60;
const int reachableHeight = 20;

int DistanceToSide(const RECT& area, POINT cursor, DockSide side)
{
    switch (side)
    {
    case DockSide::Left:
        return std::abs(cursor.x - area.left);
    case DockSide::Top:
        return std::abs(cursor.y - area.top);
    case DockSide::Right:
        return std::abs(area.right - cursor.x);
    default:
        return std::abs(area.bottom - cursor.y);
    }
}

bool IsBeside(const RECT& area, POINT cursor, DockSide side, int reach)
{
    if (IsUpright(side))
        return cursor.y >= area.top - reach && cursor.y < area.bottom + reach;
    return cursor.x >= area.left - reach && cursor.x < area.right + reach;
}

} // namespace

DockSide SideOfDockBar(UINT dockBar)
{
    for (const SideRow& row : sideTable)
    {
        if (row.dockBar == dockBar)
            return row.side;
    }
    return DockSide::Floating;
}

UINT DockBarOfSide(DockSide side)
{
    for (const SideRow& row : sideTable)
    {
        if (row.side == side)
            return row.dockBar;
    }
    return floatingDockBar;
}

bool IsSideAllowed(DockSide side, DWORD allowed)
{
    for (const SideRow& row : sideTable)
    {
        if (row.side == side)
            return (allowed & row.alignment) != 0;
    }
    return true;
}

bool IsUpright(DockSide side)
{
    return side == DockSide::Left || side == DockSide::Right;
}

DockSide DockSideAt(const RECT& area, POINT cursor, DWORD allowed, int reach)
{
    DockSide nearest = DockSide::Floating;
    int nearestDistance = reach + 1;
    for (const SideRow& row : sideTable)
    {
        if (!IsSideAllowed(row.side, allowed) || !IsBeside(area, cursor, row.side, reach))
            continue;
        const int distance = DistanceToSide(area, cursor, row.side);
        if (distance < nearestDistance)
        {
            nearest = row.side;
            nearestDistance = distance;
        }
    }
    return nearest;
}

RECT TakeEdge(RECT& area, DockSide side, int thickness)
{
    RECT taken = area;
    switch (side)
    {
    case DockSide::Left:
        area.left = taken.right = area.left + thickness;
        break;
    case DockSide::Top:
        area.top = taken.bottom = area.top + thickness;
        break;
    case DockSide::Right:
        area.right = taken.left = area.right - thickness;
        break;
    case DockSide::Bottom:
        area.bottom = taken.top = area.bottom - thickness;
        break;
    case DockSide::Floating:
        taken.right = taken.left;
        break;
    }
    return taken;
}

int LimitThickness(int wanted, int minimum, int available, int leave)
{
    return std::max(minimum, std::min(wanted, available - leave));
}

int DraggedThickness(DockSide side, int before, POINT from, POINT to)
{
    switch (side)
    {
    case DockSide::Left:
        return before + (to.x - from.x);
    case DockSide::Right:
        return before - (to.x - from.x);
    case DockSide::Top:
        return before + (to.y - from.y);
    case DockSide::Bottom:
        return before - (to.y - from.y);
    default:
        return before;
    }
}

RECT SplitterOf(const RECT& bar, DockSide side)
{
    RECT rest = bar;
    switch (side)
    {
    case DockSide::Left:
        return TakeEdge(rest, DockSide::Right, splitterWidth);
    case DockSide::Right:
        return TakeEdge(rest, DockSide::Left, splitterWidth);
    case DockSide::Top:
        return TakeEdge(rest, DockSide::Bottom, splitterWidth);
    case DockSide::Bottom:
        return TakeEdge(rest, DockSide::Top, splitterWidth);
    default:
        return RECT{bar.left, bar.top, bar.left, bar.top};
    }
}

RECT InsideOf(const RECT& bar, DockSide side)
{
    RECT rest = bar;
    const RECT splitter = SplitterOf(bar, side);
    switch (side)
    {
    case DockSide::Left:
        rest.right = splitter.left;
        break;
    case DockSide::Right:
        rest.left = splitter.right;
        break;
    case DockSide::Top:
        rest.bottom = splitter.top;
        break;
    case DockSide::Bottom:
        rest.top = splitter.bottom;
        break;
    case DockSide::Floating:
        break;
    }
    return rest;
}

RECT LimitSize(const RECT& wanted, SIZE minimum, SIZE maximum)
{
    LONG width = std::max(wanted.right - wanted.left, minimum.cx);
    LONG height = std::max(wanted.bottom - wanted.top, minimum.cy);
    if (maximum.cx > 0)
        width = std::min(width, maximum.cx);
    if (maximum.cy > 0)
        height = std::min(height, maximum.cy);
    return RECT{wanted.left, wanted.top, wanted.left + width, wanted.top + height};
}

RECT KeepReachable(const RECT& wanted, const RECT& screen)
{
    const LONG width = wanted.right - wanted.left;
    const LONG height = wanted.bottom - wanted.top;
    const LONG left =
        std::max(screen.left + reachableWidth - width, std::min(wanted.left, screen.right - reachableWidth));
    const LONG top = std::max(screen.top, std::min(wanted.top, screen.bottom - reachableHeight));
    return RECT{left, top, left + width, top + height};
}

RECT DraggedRect(const RECT& before, POINT grab, POINT cursor)
{
    RECT moved = before;
    OffsetRect(&moved, cursor.x - grab.x, cursor.y - grab.y);
    const LONG width = moved.right - moved.left;
    if (cursor.x < moved.left || cursor.x >= moved.right)
        OffsetRect(&moved, cursor.x - width / 2 - moved.left, 0);
    if (cursor.y < moved.top || cursor.y >= moved.bottom)
        OffsetRect(&moved, 0, cursor.y - reachableHeight / 2 - moved.top);
    return moved;
}

} // namespace arxui
