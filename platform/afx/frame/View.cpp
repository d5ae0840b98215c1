#include <afxpriv.h>

#include "afx/frame/View.h"

#include "afx/frame/Document.h"
#include "afx/frame/FrameWnd.h"
#include "afx/gdi/DC.h"
#include "afx/wnd/MessageMacros.h"

IMPLEMENT_DYNAMIC(CView, CWnd)

BEGIN_MESSAGE_MAP(CView, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_MOUSEACTIVATE()
    ON_MESSAGE(WM_INITIALUPDATE, &CView::HandleInitialUpdate)
END_MESSAGE_MAP()

CView::CView() = default;

CView::~CView()
{
    if (m_pDocument != nullptr)
        m_pDocument->RemoveView(this);
}

void CView::OnInitialUpdate()
{
    OnUpdate(nullptr, 0, nullptr);
}

BOOL CView::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    if (CWnd::OnCmdMsg(id, code, extra, handlerInfo))
        return TRUE;
    return m_pDocument != nullptr && m_pDocument->OnCmdMsg(id, code, extra, handlerInfo);
}

void CView::OnUpdate(CView*, LPARAM, CObject*)
{
    Invalidate();
}

void CView::OnPrepareDC(CDC*) {}

void CView::OnActivateView(BOOL activate, CView* activated, CView*)
{
    if (activate && activated == this && IsTopParentActive())
        SetFocus();
}

void CView::OnActivateFrame(UINT, CFrameWnd*) {}

BOOL CView::PreCreateWindow(CREATESTRUCT& create)
{
    if (create.lpszClass == nullptr)
        create.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                               reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    // A sunken edge instead of the line.
    if (create.style & WS_BORDER)
    {
        create.style &= ~WS_BORDER;
        create.dwExStyle |= WS_EX_CLIENTEDGE;
    }
    return CWnd::PreCreateWindow(create);
}

void CView::PostNcDestroy()
{
    delete this;
}

int CView::OnCreate(LPCREATESTRUCT create)
{
    if (CWnd::OnCreate(create) == -1)
        return -1;
    const CCreateContext* const context = static_cast<const CCreateContext*>(create->lpCreateParams);
    if (context != nullptr && context->m_pCurrentDoc != nullptr)
        context->m_pCurrentDoc->AddView(this);
    return 0;
}

void CView::OnDestroy()
{
    CFrameWnd* const frame = GetParentFrame();
    if (frame != nullptr && frame->GetActiveView() == this)
        frame->SetActiveView(nullptr);
    CWnd::OnDestroy();
}

void CView::OnPaint()
{
    CPaintDC dc(this);
    OnPrepareDC(&dc);
    OnDraw(&dc);
}

int CView::OnMouseActivate(CWnd* desktop, UINT hitTest, UINT message)
{
    const int result = CWnd::OnMouseActivate(desktop, hitTest, message);
    CFrameWnd* const frame = GetParentFrame();
    if (result == MA_NOACTIVATE || result == MA_NOACTIVATEANDEAT || frame == nullptr)
        return result;
    if (frame->GetActiveView() == this)
        OnActivateView(TRUE, this, this); // the focus may be elsewhere
    else
        frame->SetActiveView(this);
    return result;
}

LRESULT CView::HandleInitialUpdate(WPARAM, LPARAM)
{
    OnInitialUpdate();
    return 0;
}
