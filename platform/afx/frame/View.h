// CView: a child window of a frame that shows a document.
//
// It is told about the document's changes by OnUpdate and draws in OnDraw. Commands go to the view, then to its
// document. A view object is allocated on the heap: it deletes itself with its window.
#pragma once

#include "afx/frame/CreateContext.h"
#include "afx/wnd/Wnd.h"

class AFX_API CView : public CWnd
{
    DECLARE_DYNAMIC(CView)

public:
    CView();
    ~CView() override;

    CDocument* GetDocument() const { return m_pDocument; }

    // Called once after everything is created; the base calls OnUpdate.
    virtual void OnInitialUpdate();
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo) override;

protected:
    friend class CDocument;
    friend class CFrameWnd;
    friend class CMDIChildWnd;

    virtual void OnDraw(CDC* dc) = 0;
    // sender changed the document, NULL for others. The base redraws everything.
    virtual void OnUpdate(CView* sender, LPARAM hint, CObject* hintObject);
    virtual void OnPrepareDC(CDC* dc);
    // The base sets the focus to a view that becomes active.
    virtual void OnActivateView(BOOL activate, CView* activated, CView* deactivated);
    virtual void OnActivateFrame(UINT state, CFrameWnd* frame);

    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    void PostNcDestroy() override;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg int OnMouseActivate(CWnd* desktop, UINT hitTest, UINT message);
    afx_msg LRESULT HandleInitialUpdate(WPARAM, LPARAM);

    DECLARE_MESSAGE_MAP()

    CDocument* m_pDocument = nullptr;
};
