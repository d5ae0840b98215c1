// The popup frame that holds a floating dock bar. The bar fills it and draws the caption; the frame has the sizing
// border.
#pragma once

#include <afxwin.h>

class CAdUiDockControlBar;

namespace arxui
{

class FloatingFrame : public CWnd
{
public:
    explicit FloatingFrame(CAdUiDockControlBar& bar);
    ~FloatingFrame() override;

    bool Create(CWnd* owner, const CRect& rect, const CString& title);
    // Takes the bar in and lets it fill the frame.
    void TakeBar();
    // Moves the frame without telling the bar: a roll-up is no new place.
    void MoveQuietly(const CRect& rect);
    // The sizes of the frame around a bar of the given size.
    CSize FrameSizeOf(CSize barSize) const;

protected:
    afx_msg void OnClose();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI);
    afx_msg void OnWindowPosChanged(WINDOWPOS* lpwndpos);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);

    DECLARE_MESSAGE_MAP()

private:
    CAdUiDockControlBar& m_bar;
    bool m_quiet = false;
};

} // namespace arxui
