// CScrollBar: a scroll bar control. The scrolling functions of CWnd serve windows with own scroll bars.
#pragma once

#include "afx/wnd/Wnd.h"

class AFX_API CScrollBar : public CWnd
{
    DECLARE_DYNAMIC(CScrollBar)

public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
    int SetScrollPos(int position, BOOL redraw = TRUE) { return ::SetScrollPos(m_hWnd, SB_CTL, position, redraw); }
    void GetScrollRange(LPINT least, LPINT most) const { ::GetScrollRange(m_hWnd, SB_CTL, least, most); }
    void SetScrollRange(int least, int most, BOOL redraw = TRUE)
    {
        ::SetScrollRange(m_hWnd, SB_CTL, least, most, redraw);
    }
    void ShowScrollBar(BOOL show = TRUE) { ::ShowScrollBar(m_hWnd, SB_CTL, show); }
    BOOL EnableScrollBar(UINT arrows = ESB_ENABLE_BOTH) { return ::EnableScrollBar(m_hWnd, SB_CTL, arrows); }
    BOOL SetScrollInfo(LPSCROLLINFO info, BOOL redraw = TRUE);
    BOOL GetScrollInfo(LPSCROLLINFO info, UINT mask = SIF_ALL);
    int GetScrollLimit();
};
