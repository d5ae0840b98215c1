#include <afxhtml.h>

#include "afx/html/HtmlViewBrowser.h"
#include "afx/wnd/MessageMacros.h"

IMPLEMENT_DYNCREATE(CHtmlView, CFormView)

BEGIN_MESSAGE_MAP(CHtmlView, CFormView)
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_SIZE()
END_MESSAGE_MAP()

CHtmlView::CHtmlView() : CFormView(LPCTSTR(nullptr)) {}

CHtmlView::~CHtmlView()
{
    CloseBrowser();
}

BOOL CHtmlView::Create(LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect, CWnd* parent, UINT id,
                       CCreateContext* context)
{
    if (!CView::Create(className, windowName, style, rect, parent, id, context))
        return FALSE;
    if (CreateBrowser())
        return TRUE;
    DestroyWindow(); // the object may be gone after this
    return FALSE;
}

void CHtmlView::OnDraw(CDC*) {}

void CHtmlView::OnInitialUpdate() {}

// Keys that mean something to a page (Tab between links, Ctrl+C) reach it before the dialog around it.
BOOL CHtmlView::PreTranslateMessage(MSG* message)
{
    const bool keyboard = message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST;
    if (keyboard && m_browser != nullptr && m_browser->Host().TranslateKey(message))
        return TRUE;
    return CWnd::PreTranslateMessage(message);
}

// Whatever a derived class does on WM_DESTROY, with or without this class, the control closes after it and before its
// window goes.
LRESULT CHtmlView::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = CFormView::WindowProc(message, wParam, lParam);
    if (message == WM_DESTROY)
        CloseBrowser();
    return result;
}

void CHtmlView::OnDestroy()
{
    m_pBrowserApp.Release();
    CFormView::OnDestroy();
}

void CHtmlView::OnPaint()
{
    Default();
}

void CHtmlView::OnSize(UINT type, int cx, int cy)
{
    CWnd::OnSize(type, cx, cy);
    if (m_browser != nullptr)
        m_browser->Host().Resize(CRect(0, 0, cx, cy));
}

BOOL CHtmlView::CreateBrowser()
{
    m_browser = new HtmlViewBrowser(*this);
    if (!m_browser->Open(m_hWnd))
        return FALSE;
    m_pBrowserApp = m_browser->Host().Browser();
    return m_wndBrowser.SubclassWindow(m_browser->Host().Window());
}

void CHtmlView::CloseBrowser()
{
    m_pBrowserApp.Release();
    HtmlViewBrowser* const browser = m_browser;
    m_browser = nullptr;
    delete browser;
}
