// CControlBar: base of the bars at the edges of a frame window.
//
// A bar is a child of its frame and registers itself there when it is created. On every layout of the frame it gets
// WM_SIZEPARENT and takes its edge (CBRS_ALIGN_ bits of its style) off the rectangle that is left. The state of
// its items is updated when the thread is idle, through OnUpdateCmdUI.
#pragma once

#include "afx/wnd/Wnd.h"

class CFrameWnd;
struct AFX_SIZEPARENTPARAMS;

#define CBRS_ALIGN_LEFT 0x1000L
#define CBRS_ALIGN_TOP 0x2000L
#define CBRS_ALIGN_RIGHT 0x4000L
#define CBRS_ALIGN_BOTTOM 0x8000L
#define CBRS_ALIGN_ANY 0xF000L

#define CBRS_BORDER_LEFT 0x0100L
#define CBRS_BORDER_TOP 0x0200L
#define CBRS_BORDER_RIGHT 0x0400L
#define CBRS_BORDER_BOTTOM 0x0800L
#define CBRS_BORDER_ANY 0x0F00L

#define CBRS_FLOATING 0x0001L
#define CBRS_SIZE_FIXED 0x0002L
#define CBRS_SIZE_DYNAMIC 0x0004L
#define CBRS_HIDE_INPLACE 0x0008L
#define CBRS_TOOLTIPS 0x0010L
#define CBRS_FLYBY 0x0020L
#define CBRS_FLOAT_MULTI 0x0040L
#define CBRS_BORDER_3D 0x0080L
#define CBRS_GRIPPER 0x00400000L

#define CBRS_ORIENT_HORZ (CBRS_ALIGN_TOP | CBRS_ALIGN_BOTTOM)
#define CBRS_ORIENT_VERT (CBRS_ALIGN_LEFT | CBRS_ALIGN_RIGHT)
#define CBRS_ORIENT_ANY (CBRS_ORIENT_HORZ | CBRS_ORIENT_VERT)
#define CBRS_ALL 0x0040FFFFL

#define CBRS_NOALIGN 0x00000000L
#define CBRS_LEFT (CBRS_ALIGN_LEFT | CBRS_BORDER_RIGHT)
#define CBRS_TOP (CBRS_ALIGN_TOP | CBRS_BORDER_BOTTOM)
#define CBRS_RIGHT (CBRS_ALIGN_RIGHT | CBRS_BORDER_LEFT)
#define CBRS_BOTTOM (CBRS_ALIGN_BOTTOM | CBRS_BORDER_TOP)

// Modes of CalcDynamicLayout.
#define LM_STRETCH 0x01
#define LM_HORZ 0x02
#define LM_MRUWIDTH 0x04
#define LM_HORZDOCK 0x08
#define LM_VERTDOCK 0x10
#define LM_LENGTHY 0x20
#define LM_COMMIT 0x40

class AFX_API CControlBar : public CWnd
{
    DECLARE_DYNAMIC(CControlBar)

public:
    CControlBar();
    ~CControlBar() override;

    // Style: CBRS_ bits; the window style keeps its own bits.
    DWORD GetBarStyle() const { return m_dwStyle; }
    void SetBarStyle(DWORD style);
    int GetCount() const { return m_nCount; }
    // Space in pixels between the bar's edges and its contents.
    CRect GetBorders() const { return CRect(m_cxLeftBorder, m_cyTopBorder, m_cxRightBorder, m_cyBottomBorder); }
    void SetBorders(int left = 0, int top = 0, int right = 0, int bottom = 0);
    void SetBorders(LPCRECT rect);
    void EnableDocking(DWORD dockStyle) { m_dwDockStyle = dockStyle; }

    // The frame this bar is registered with: the site of its docking, or NULL.
    CFrameWnd* GetDockingFrame() const;
    virtual BOOL IsFloating() const { return (m_dwStyle & CBRS_FLOATING) != 0; }
    virtual BOOL IsDockBar() const { return FALSE; }
    // TRUE for a bar that is shown or is about to be shown with the next layout.
    virtual BOOL IsVisible() const;

    // Size in pixels that the bar wants at an edge: horizontal at top or bottom; stretched over the whole edge or not.
    virtual CSize CalcFixedLayout(BOOL stretch, BOOL horizontal);
    // mode: LM_ bits; length -1 unless the mode asks for one. The base answers with the fixed layout.
    virtual CSize CalcDynamicLayout(int length, DWORD mode);
    virtual void CalcInsideRect(CRect& rect, BOOL horizontal) const;

    // Shows or hides the bar with the frame's next layout.
    virtual void DelayShow(BOOL show);
    // Does what DelayShow asked for now. Result: the window style after that.
    virtual DWORD RecalcDelayShow();

    // Brings the items up to date by routing CN_UPDATE_COMMAND_UI to target.
    virtual void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) = 0;

    // Called when the bar's style changes.
    virtual void OnBarStyleChange(DWORD oldStyle, DWORD newStyle);

    BOOL m_bAutoDelete = FALSE; // delete this object with its window
    CFrameWnd* m_pDockSite = nullptr;
    DWORD m_dwStyle = 0;
    DWORD m_dwDockStyle = 0;

    int m_cxLeftBorder = 0;
    int m_cxRightBorder = 0;
    int m_cyTopBorder = 0;
    int m_cyBottomBorder = 0;

protected:
    enum StateFlags
    {
        delayHide = 1,
        delayShow = 2
    };

    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    void PostNcDestroy() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    void DrawBorders(CDC* dc, CRect& rect);
    virtual void DoPaint(CDC* dc);

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    virtual afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM disableIfNoHandler, LPARAM);
    afx_msg LRESULT OnInitialUpdate(WPARAM, LPARAM);

    DECLARE_MESSAGE_MAP()

    int m_nCount = 0;
    UINT m_nStateFlags = 0;
};
