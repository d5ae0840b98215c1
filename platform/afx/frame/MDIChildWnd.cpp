#include <afxpriv.h>

#include "afx/frame/MDIChildWnd.h"

#include "afx/app/Resource.h"
#include "afx/app/WinApp.h"
#include "afx/frame/View.h"
#include "afx/wnd/MessageMacros.h"

IMPLEMENT_DYNCREATE(CMDIChildWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CMDIChildWnd, CFrameWnd)
    ON_WM_CREATE()
    ON_WM_MOUSEACTIVATE()
    ON_WM_MDIACTIVATE()
END_MESSAGE_MAP()

namespace
{
MDICREATESTRUCT MdiForm(const CREATESTRUCT& create)
{
    MDICREATESTRUCT form = {};
    form.szClass = create.lpszClass;
    form.szTitle = create.lpszName;
    form.hOwner = create.hInstance;
    form.x = create.x;
    form.y = create.y;
    form.cx = create.cx;
    form.cy = create.cy;
    form.style = static_cast<DWORD>(create.style);
    form.lParam = LPARAM(create.lpCreateParams);
    return form;
}
} // namespace

CMDIChildWnd::CMDIChildWnd() = default;

BOOL CMDIChildWnd::Create(LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect, CMDIFrameWnd* parent,
                          CCreateContext* context)
{
    m_strTitle = windowName;
    CMDIFrameWnd* const frame = parent != nullptr ? parent : DYNAMIC_DOWNCAST(CMDIFrameWnd, AfxGetMainWnd());
    if (frame == nullptr)
        return FALSE;

    const bool anywhere = rect.left == CW_USEDEFAULT;
    CREATESTRUCT create = {};
    create.lpszClass = className;
    create.lpszName = windowName;
    create.style = static_cast<LONG>(style);
    create.x = rect.left;
    create.y = rect.top;
    create.cx = anywhere ? CW_USEDEFAULT : rect.right - rect.left;
    create.cy = anywhere ? CW_USEDEFAULT : rect.bottom - rect.top;
    create.hwndParent = frame->m_hWnd;
    create.hInstance = AfxGetInstanceHandle();
    create.lpCreateParams = context;
    if (!PreCreateWindow(create))
    {
        PostNcDestroy();
        return FALSE;
    }

    const MDICREATESTRUCT form = MdiForm(create);
    AfxHookWindowCreate(this);
    const LRESULT window = ::SendMessage(frame->m_hWndMDIClient, WM_MDICREATE, 0, LPARAM(&form));
    if (!AfxUnhookWindowCreate())
        PostNcDestroy();
    return window != 0;
}

CMDIFrameWnd* CMDIChildWnd::GetMDIFrame() const
{
    const HWND client = ::GetParent(m_hWnd);
    return static_cast<CMDIFrameWnd*>(CWnd::FromHandle(::GetParent(client)));
}

void CMDIChildWnd::ActivateFrame(int showCommand)
{
    CFrameWnd::ActivateFrame(showCommand);
    MDIActivate();
}

BOOL CMDIChildWnd::DestroyWindow()
{
    if (m_hWnd == nullptr)
        return FALSE;
    MDIDestroy();
    return TRUE;
}

BOOL CMDIChildWnd::PreTranslateMessage(MSG* message)
{
    if (CWnd::PreTranslateMessage(message))
        return TRUE;
    // The commands of its keys belong to the frame that has the menu.
    const bool isKey = message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST;
    const HACCEL accelerators = isKey ? GetDefaultAccelerator() : nullptr;
    return accelerators != nullptr && ::TranslateAccelerator(GetMDIFrame()->GetSafeHwnd(), accelerators, message);
}

BOOL CMDIChildWnd::PreCreateWindow(CREATESTRUCT& create)
{
    if (!CFrameWnd::PreCreateWindow(create))
        return FALSE;
    create.dwExStyle |= WS_EX_MDICHILD;
    return TRUE;
}

LRESULT CMDIChildWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::DefMDIChildProc(m_hWnd, message, wParam, lParam);
}

int CMDIChildWnd::OnCreate(LPCREATESTRUCT create)
{
    const MDICREATESTRUCT* const form = static_cast<const MDICREATESTRUCT*>(create->lpCreateParams);
    return OnCreateHelper(create, reinterpret_cast<CCreateContext*>(form->lParam));
}

int CMDIChildWnd::OnMouseActivate(CWnd* desktop, UINT hitTest, UINT message)
{
    const int result = CFrameWnd::OnMouseActivate(desktop, hitTest, message);
    CMDIFrameWnd* const frame = GetMDIFrame();
    if (result != MA_NOACTIVATE && result != MA_NOACTIVATEANDEAT && frame->MDIGetActive() != this)
        MDIActivate();
    return result;
}

void CMDIChildWnd::OnMDIActivate(BOOL activate, CWnd* activated, CWnd* deactivated)
{
    CFrameWnd::OnMDIActivate(activate, activated, deactivated);
    CView* const view = GetActiveView();
    if (view == nullptr)
        return;
    view->OnActivateFrame(activate ? WA_ACTIVE : WA_INACTIVE, this);
    view->OnActivateView(activate, activate ? view : nullptr, view);
}
