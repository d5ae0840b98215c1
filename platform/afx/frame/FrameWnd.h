// CFrameWnd: a top-level window with a menu, an active view and control bars.
//
// The frame routes commands to its active view, then to itself, then to the application; it updates its menus by the
// same route before they are shown. RecalcLayout gives every control bar its edge and the rest of the client area to
// the window with the id AFX_IDW_PANE_FIRST. A frame object is allocated on the heap: it deletes itself with its
// window.
#pragma once

#include <afxcoll.h>
#include <afxres.h>

#include "afx/frame/CreateContext.h"
#include "afx/wnd/Wnd.h"

class CControlBar;
class CDocument;
class CView;

// Styles that the framework interprets itself.
#define FWS_ADDTOTITLE 0x00008000L  // the document's name belongs into the title
#define FWS_PREFIXTITLE 0x00004000L // and stands in front
#define FWS_SNAPTOBARS 0x00002000L

class AFX_API CFrameWnd : public CWnd
{
    DECLARE_DYNCREATE(CFrameWnd)

public:
    static const CRect rectDefault; // the system places the window

    CFrameWnd();
    ~CFrameWnd() override;

    virtual BOOL Create(LPCTSTR className, LPCTSTR windowName, DWORD style = WS_OVERLAPPEDWINDOW,
                        const RECT& rect = rectDefault, CWnd* parent = nullptr, LPCTSTR menuName = nullptr,
                        DWORD exStyle = 0, CCreateContext* context = nullptr);
    // Takes menu, accelerators, icon and title from the resources of that id, each where it exists.
    virtual BOOL LoadFrame(UINT resourceId, DWORD style = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE, CWnd* parent = nullptr,
                           CCreateContext* context = nullptr);
    BOOL LoadAccelTable(LPCTSTR resourceName);
    CWnd* CreateView(CCreateContext* context, UINT id = AFX_IDW_PANE_FIRST);

    // Active view and document; NULL for none.
    CView* GetActiveView() const { return m_pViewActive; }
    void SetActiveView(CView* view, BOOL notify = TRUE);
    virtual CDocument* GetActiveDocument();
    // The child frame in front of an MDI frame; otherwise this frame.
    virtual CFrameWnd* GetActiveFrame() { return this; }
    virtual void ActivateFrame(int showCommand = -1);
    // Sends WM_INITIALUPDATE to the views and shows the frame.
    void InitialUpdateFrame(CDocument* document, BOOL makeVisible);
    CString GetTitle() const { return m_strTitle; }
    void SetTitle(LPCTSTR title) { m_strTitle = title; }
    virtual void OnUpdateFrameTitle(BOOL addToTitle);

    // Control bars. A bar registers itself when it is created in the frame.
    void AddControlBar(CControlBar* bar);
    void RemoveControlBar(CControlBar* bar);
    CControlBar* GetControlBar(UINT id);
    // delay: with the next idle time instead of at once.
    void ShowControlBar(CControlBar* bar, BOOL show, BOOL delay);
    void EnableDocking(DWORD dockStyle) { m_dwDockStyle = dockStyle; }
    virtual void RecalcLayout(BOOL notify = TRUE);
    void DelayRecalcLayout(BOOL notify = TRUE);

    BOOL m_bAutoMenuEnable = TRUE;  // disable menu items without a handler
    HMENU m_hMenuDefault = nullptr; // the frame's own menu
    HACCEL m_hAccelTable = nullptr;
    CPtrList m_listControlBars; // CControlBar*, borrowed

    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo) override;
    BOOL PreTranslateMessage(MSG* message) override;
    BOOL IsFrameWnd() const override { return TRUE; }

protected:
    enum IdleFlags
    {
        idleLayout = 1,
        idleNotify = 2
    };

    virtual BOOL OnCreateClient(LPCREATESTRUCT create, CCreateContext* context);
    int OnCreateHelper(LPCREATESTRUCT create, CCreateContext* context);
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    void PostNcDestroy() override;
    // The keys that PreTranslateMessage turns into commands.
    virtual HACCEL GetDefaultAccelerator() { return m_hAccelTable; }

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg void OnClose();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* oldWindow);
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized);
    afx_msg void OnInitMenuPopup(CMenu* menu, UINT index, BOOL systemMenu);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM disableIfNoHandler, LPARAM);

    DECLARE_MESSAGE_MAP()

    CView* m_pViewActive = nullptr;
    CString m_strTitle;
    CRect m_rectBorder;
    UINT m_nIDHelp = 0;
    UINT m_nIdleFlags = 0;
    DWORD m_dwDockStyle = 0;
    BOOL m_bInRecalcLayout = FALSE;
};
