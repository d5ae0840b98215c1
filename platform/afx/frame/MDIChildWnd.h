// CMDIChildWnd: a frame inside the MDI client window of a CMDIFrameWnd; deletes itself with its window.
#pragma once

#include "afx/frame/MDIFrameWnd.h"

class AFX_API CMDIChildWnd : public CFrameWnd
{
    DECLARE_DYNCREATE(CMDIChildWnd)

public:
    CMDIChildWnd();

    using CFrameWnd::Create;
    // rect in client coordinates of the MDI client; a parent is required.
    virtual BOOL Create(LPCTSTR className, LPCTSTR windowName,
                        DWORD style = WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW, const RECT& rect = rectDefault,
                        CMDIFrameWnd* parent = nullptr, CCreateContext* context = nullptr);

    CMDIFrameWnd* GetMDIFrame() const;
    void MDIDestroy() { ::SendMessage(::GetParent(m_hWnd), WM_MDIDESTROY, WPARAM(m_hWnd), 0); }
    void MDIActivate() { ::SendMessage(::GetParent(m_hWnd), WM_MDIACTIVATE, WPARAM(m_hWnd), 0); }
    void MDIMaximize() { ::SendMessage(::GetParent(m_hWnd), WM_MDIMAXIMIZE, WPARAM(m_hWnd), 0); }
    void MDIRestore() { ::SendMessage(::GetParent(m_hWnd), WM_MDIRESTORE, WPARAM(m_hWnd), 0); }

    void ActivateFrame(int showCommand = -1) override;
    BOOL DestroyWindow() override;
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg int OnMouseActivate(CWnd* desktop, UINT hitTest, UINT message);
    afx_msg void OnMDIActivate(BOOL activate, CWnd* activated, CWnd* deactivated);

    DECLARE_MESSAGE_MAP()
};
