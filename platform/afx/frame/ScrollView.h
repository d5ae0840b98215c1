// CScrollView: a view that may be larger than its window. Sizes and positions are pixels (MM_TEXT).
//
// Tell its size by SetScrollSizes; scroll bars come when the window is smaller. OnPrepareDC moves the origin, so that
// OnDraw draws as if there was no scrolling.
#pragma once

#include "afx/frame/View.h"

class AFX_API CScrollView : public CView
{
    DECLARE_DYNAMIC(CScrollView)

public:
    // page and line: what a click beside the thumb and on an arrow scrolls; 0: a tenth of the size, a tenth of the
    // page.
    void SetScrollSizes(int mapMode, SIZE total, const SIZE& page = sizeDefault, const SIZE& line = sizeDefault);
    CSize GetTotalSize() const { return m_total; }
    CPoint GetScrollPosition() const { return m_position; }
    // Positions beyond the end scroll to the end.
    void ScrollToPosition(POINT position);

    static const SIZE sizeDefault;

protected:
    CScrollView();

    void OnDraw(CDC* dc) override;
    void OnPrepareDC(CDC* dc) override;

    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* scrollBar);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* scrollBar);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint screenPoint);

    DECLARE_MESSAGE_MAP()

private:
    CSize Range() const; // the greatest position
    void UpdateBars();
    int Scrolled(int bar, UINT code, int position, int page, int line);

    CSize m_total;
    CSize m_page;
    CSize m_line;
    CPoint m_position;
};
