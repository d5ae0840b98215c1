// One drag of a dock bar with the mouse: its place by the caption, or its size by the splitter.
#pragma once

#include <afxwin.h>

#include "arx/ui/DockMath.h"
#include "arx/ui/DockPreview.h"

class CAdUiDockControlBar;

namespace arxui
{

class BarDrag
{
public:
    enum class Kind
    {
        Place,
        Size
    };

    // `grab`: the cursor in screen coordinates where the button went down.
    BarDrag(CAdUiDockControlBar& bar, Kind kind, CPoint grab);

    void Track(CPoint cursor);
    // The button went up: docks when the cursor is at an edge.
    void Finish(CPoint cursor);

private:
    void TrackPlace(CPoint cursor);
    void TrackSize(CPoint cursor);
    DockSide TargetAt(CPoint cursor) const;
    CRect DockArea() const;
    void ShowTarget();

    CAdUiDockControlBar& m_bar;
    Kind m_kind;
    CPoint m_grab;
    CRect m_startRect;
    int m_startThickness = 0;
    bool m_moved = false;
    DockSide m_target = DockSide::Floating;
    DockPreview m_preview;
};

} // namespace arxui
