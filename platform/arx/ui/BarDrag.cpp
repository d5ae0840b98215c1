#include "arx/ui/BarDrag.h"

#include "arx/ui/DockBarParts.h"

#include <cstdlib>

namespace arxui
{
namespace
{

// How near the cursor comes to an edge of the frame before the bar docks there, pixels.
const int dockReach = 24;

} // namespace

BarDrag::BarDrag(CAdUiDockControlBar& bar, Kind kind, CPoint grab) : m_bar(bar), m_kind(kind), m_grab(grab)
{
    bar.GetFloatingRect(m_startRect);
    const DockSide side = bar.m_parts->layout.side;
    m_target = side;
    if (side == DockSide::Floating)
        return;
    CRect rect;
    bar.GetWindowRect(&rect);
    m_startThickness = IsUpright(side) ? rect.Width() : rect.Height();
    // A docked bar that is pulled out floats with its caption where the docked one was.
    m_startRect.MoveToXY(rect.left, rect.top);
}

void BarDrag::Track(CPoint cursor)
{
    if (!m_moved)
    {
        m_moved = std::abs(cursor.x - m_grab.x) >= GetSystemMetrics(SM_CXDRAG) ||
                  std::abs(cursor.y - m_grab.y) >= GetSystemMetrics(SM_CYDRAG);
    }
    if (!m_moved)
        return;
    if (m_kind == Kind::Size)
        TrackSize(cursor);
    else
        TrackPlace(cursor);
}

void BarDrag::Finish(CPoint cursor)
{
    Track(cursor);
    m_preview.Hide();
    if (m_moved && m_kind == Kind::Place && m_target != DockSide::Floating)
        m_bar.DockControlBar(DockBarOfSide(m_target));
    if (m_moved)
        m_bar.SaveLayout();
}

void BarDrag::TrackPlace(CPoint cursor)
{
    m_target = TargetAt(cursor);
    m_bar.FloatControlBar(DraggedRect(m_startRect, m_grab, cursor));
    ShowTarget();
}

void BarDrag::TrackSize(CPoint cursor)
{
    m_bar.SetDockedSize(DraggedThickness(m_bar.m_parts->layout.side, m_startThickness, m_grab, cursor));
}

DockSide BarDrag::TargetAt(CPoint cursor) const
{
    if (GetKeyState(VK_CONTROL) < 0)
        return DockSide::Floating;
    return DockSideAt(DockArea(), cursor, m_bar.m_parts->allowedSides, dockReach);
}

CRect BarDrag::DockArea() const
{
    CRect area;
    m_bar.m_parts->frame->GetClientRect(&area);
    m_bar.m_parts->frame->ClientToScreen(&area);
    return area;
}

void BarDrag::ShowTarget()
{
    if (m_target == DockSide::Floating)
    {
        m_preview.Hide();
        return;
    }
    RECT area = DockArea();
    const int thickness = m_bar.m_parts->layout.ThicknessAt(m_target);
    m_preview.Show(m_bar.m_parts->frame->m_hWnd, TakeEdge(area, m_target, thickness));
}

} // namespace arxui
