// CAdUiDockControlBar: a control bar that docks at an edge of the host's frame or floats in a small frame of its own.
//
// Use: Create, SetToolID, EnableDocking, RestoreControlBar, then CFrameWnd::ShowControlBar(bar, TRUE, FALSE). The user
// drags the bar by its caption, docks it by dropping it at an edge (Ctrl prevents that), sizes it at the splitter or at
// the border of the floating frame, and hides it by the close button. Closing hides, it never destroys; the owner calls
// DestroyWindow and deletes the object. With a tool identifier the place survives the end of the program.
//
// Coordinates are pixels; rectangles of floating frames are screen coordinates.
#pragma once

#include <afxwin.h>

#include <afxext.h>

#include "arx/Api.h"

#include <memory>

namespace arxui
{
class BarDrag;
class FloatingFrame;
struct DockBarParts;
struct PaletteLayout;
} // namespace arxui

// Commands of the caption's menu.
#define ID_ADUI_ALLOWDOCK 0x1001
#define ID_ADUI_HIDEBAR 0x1002

class ARX_API CAdUiDockControlBar : public CControlBar
{
    DECLARE_DYNAMIC(CAdUiDockControlBar)

public:
    explicit CAdUiDockControlBar(int nStyle = 0);
    virtual ~CAdUiDockControlBar();

    // Creates the bar, hidden and floating in `rect` (screen coordinates), for the frame pParent. FALSE on failure.
    virtual BOOL Create(LPCTSTR lpszTitle, DWORD dwStyle, const RECT& rect, CWnd* pParent, UINT nID = 0);

    // Identity. The tool identifier names the saved layout; set it before RestoreControlBar. GetToolID is NULL before.
    void SetToolID(const void* pToolId);
    void* GetToolID();
    CString GetName() const;
    BOOL SetName(LPCTSTR lpszName);

    // Place. EnableDocking takes CBRS_ALIGN_ bits. RestoreControlBar takes the saved layout of the tool identifier;
    // without one the bar docks at nPreferredDockBar (an AFX_IDW_DOCKBAR_ identifier; AFX_IDW_DOCKBAR_FLOAT floats it
    // at *pRect). DockControlBar: 0 stands for the side it was last docked at. All keep the bar shown or hidden as it
    // is, but for a saved layout, which was either.
    void EnableDocking(DWORD dwDockStyle);
    void RestoreControlBar(int nPreferredDockBar = AFX_IDW_DOCKBAR_LEFT, const CRect* pRect = NULL);
    BOOL DockControlBar(UINT nDockBarID, LPCRECT lpRect = NULL);
    void FloatControlBar(const CRect& rect);
    BOOL IsFloating() const;
    // The dock bar identifier of the present side; AFX_IDW_DOCKBAR_FLOAT while floating.
    UINT GetDockBarID() const;
    // The frame that holds the floating bar, NULL while docked.
    CWnd* GetFloatingFrame() const;
    // The rectangle of the floating frame, present or remembered.
    void GetFloatingRect(CRect& rect) const;
    // Width at the left or right edge, height at the top or bottom edge.
    void SetDockedSize(int thickness);
    // Writes the layout into the application's profile; nothing without a tool identifier.
    void SaveLayout();

    // Overridables. GetMinimumSize and GetMaximumSize answer for the whole bar (0: no limit). CanFrameworkTakeFocus is
    // asked before the host takes the focus back to its command line. OnClosing may refuse (FALSE). SizeChanged tells a
    // new size of the bar; InitFloatingPosition may change the rectangle of the first floating.
    virtual void GetMinimumSize(CSize& size);
    virtual void GetMaximumSize(CSize& size);
    virtual bool CanFrameworkTakeFocus();
    virtual BOOL OnClosing();
    virtual void SizeChanged(CRect* lpRect, BOOL bFloating, int flags);
    virtual void InitFloatingPosition(CRect* pRect);

    // Framework.
    virtual CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz);
    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler);
    virtual BOOL DestroyWindow();

protected:
    // For the palette set: buttons of the caption, the free area below caption and beside the splitter, what fills it.
    virtual bool HasCloseButton() const;
    virtual bool HasRollUpButton() const;
    virtual bool HasMenu() const;
    virtual void LayOutContents(const CRect& area);
    virtual void DrawContents(CDC& dc, const CRect& area);
    virtual bool ContentsClicked(CPoint point);
    virtual void LayoutRestored(const arxui::PaletteLayout& layout);
    virtual void LayoutSaving(arxui::PaletteLayout& layout);
    virtual CSize SmallestSize();

    void LayOut();
    CRect ContentsArea() const;
    void CloseByUser();
    void SetRolledUpState(bool rolledUp);
    void SetAutomaticRollUp(bool automatic);
    bool IsRolledUpState() const;
    bool IsAutomaticRollUp() const;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnClose();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnWindowPosChanging(WINDOWPOS* lpwndpos);
    afx_msg void OnWindowPosChanged(WINDOWPOS* lpwndpos);
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnPaint();
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnTimer(UINT_PTR nIDEvent);

    DECLARE_MESSAGE_MAP()

private:
    friend class arxui::BarDrag;
    friend class arxui::FloatingFrame;

    void ApplyLayout();
    void ApplyFloating();
    void ApplyDocked();
    void MoveToParent(CWnd* parent);
    void SyncFrame(bool shown);
    void RecalcFrame();
    void FrameMoved(const CRect& rect);
    void MoveFrameInstead(WINDOWPOS& position);
    CRect FrameRect() const;
    int DockedThickness() const;
    bool IsActiveBar() const;
    void StartDrag(bool place, CPoint screenPoint);
    void PressButton(CPoint point);
    void ShowMenu(CPoint screenPoint);
    void RunMenuCommand(UINT command);
    void UpdateHot(CPoint point);

    std::unique_ptr<arxui::DockBarParts> m_parts;
};
