// CMDIFrameWnd: a frame that holds child frames in an MDI client window.
//
// Commands go to the active child frame first. The child frames are of the class CMDIChildWnd.
#pragma once

#include "afx/frame/FrameWnd.h"

class CMDIChildWnd;

class AFX_API CMDIFrameWnd : public CFrameWnd
{
    DECLARE_DYNCREATE(CMDIFrameWnd)

public:
    CMDIFrameWnd();

    HWND m_hWndMDIClient = nullptr;

    // windowMenu: the popup that lists the child frames, NULL for none.
    virtual BOOL CreateClient(LPCREATESTRUCT create, CMenu* windowMenu);
    virtual HMENU GetWindowMenuPopup(HMENU menuBar);

    void MDIActivate(CWnd* child) { ::SendMessage(m_hWndMDIClient, WM_MDIACTIVATE, WPARAM(child->m_hWnd), 0); }
    // NULL for none. A child that is being destroyed counts until it is gone.
    CMDIChildWnd* MDIGetActive(BOOL* maximized = nullptr) const;
    void MDIMaximize(CWnd* child) { ::SendMessage(m_hWndMDIClient, WM_MDIMAXIMIZE, WPARAM(child->m_hWnd), 0); }
    void MDIRestore(CWnd* child) { ::SendMessage(m_hWndMDIClient, WM_MDIRESTORE, WPARAM(child->m_hWnd), 0); }
    void MDINext() { ::SendMessage(m_hWndMDIClient, WM_MDINEXT, 0, 0); }
    void MDIPrev() { ::SendMessage(m_hWndMDIClient, WM_MDINEXT, 0, 1); }
    void MDITile(int type) { ::SendMessage(m_hWndMDIClient, WM_MDITILE, type, 0); }
    void MDITile() { ::SendMessage(m_hWndMDIClient, WM_MDITILE, MDITILE_HORIZONTAL, 0); }
    void MDICascade(int type) { ::SendMessage(m_hWndMDIClient, WM_MDICASCADE, type, 0); }
    void MDICascade() { ::SendMessage(m_hWndMDIClient, WM_MDICASCADE, 0, 0); }
    void MDIIconArrange() { ::SendMessage(m_hWndMDIClient, WM_MDIICONARRANGE, 0, 0); }
    CMenu* MDISetMenu(CMenu* frameMenu, CMenu* windowMenu);

    CFrameWnd* GetActiveFrame() override;
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo) override;
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    BOOL OnCreateClient(LPCREATESTRUCT create, CCreateContext* context) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnSize(UINT type, int cx, int cy);

    DECLARE_MESSAGE_MAP()
};
