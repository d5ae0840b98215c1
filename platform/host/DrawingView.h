// The view of a drawing: paints it, pans and zooms, picks objects and selects by window.
//
// Middle button drags the picture, its double click shows everything; the wheel zooms at the cursor. A left click picks
// the object under the cursor (Shift takes it out of the selection); where there is none it starts a selection window,
// which a second click or the release after a drag ends. Esc gives up the window, then the selection. While a command
// asks for a point, a left click answers it. Keys go to the command line.
#pragma once

#include <afxwin.h>

#include "arx/ed/HostServices.h"
#include "arx/gi/DisplayList.h"
#include "host/SelectionBand.h"
#include "host/ViewTransform.h"

namespace arxhost
{

class DrawingView : public CView
{
    DECLARE_DYNAMIC(DrawingView)

public:
    explicit DrawingView(AcApDocument* document);

    AcApDocument* HostDocument() const { return m_drawing; }
    // The drawing as it is now.
    const arxgi::DisplayList& List();
    ViewTransform Transform() const;

    // Zoom. ZoomExtents does nothing in an empty drawing; the others take drawing units.
    void ZoomExtents();
    void ZoomBox(const WorldBox& box);
    void ZoomBy(double factor);
    void PanBy(double right, double down);

    // The drawing changed / the view, the highlighting or the selection did.
    void ContentsChanged();
    void LookChanged();
    // Esc.
    void CancelSelection();

protected:
    void OnDraw(CDC* dc) override;

    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg BOOL OnSetCursor(CWnd* window, UINT hitTest, UINT message);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMButtonDown(UINT flags, CPoint point);
    afx_msg void OnMButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnMButtonUp(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* window);
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);

    DECLARE_MESSAGE_MAP()

private:
    void Store(const ViewTransform& view);
    void DrawBand(HDC dc) const;
    // The object in the pick aperture; null when there is none.
    AcDbObjectId At(WorldPoint place);
    void TellMonitors(WorldPoint place);
    void PickAt(CPoint point, bool takeOut);
    void SelectByBand(bool takeOut);
    void ChangeSelection(const ObjectIds& ids, bool takeOut);
    ObjectIds Marked() const;
    WorldPoint ToWorld(CPoint point) const;

    AcApDocument* m_drawing;
    arxgi::DisplayList m_list;
    bool m_listIsOld = true;
    bool m_fitsOnce = true;
    SelectionBand m_band;
    bool m_panning = false;
    CPoint m_panFrom;
};

} // namespace arxhost
