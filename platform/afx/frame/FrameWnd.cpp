#include <afxpriv.h>

#include "afx/frame/FrameWnd.h"

#include "afx/app/Resource.h"
#include "afx/app/WinApp.h"
#include "afx/frame/ControlBar.h"
#include "afx/frame/Document.h"
#include "afx/frame/View.h"
#include "afx/menu/CmdUI.h"
#include "afx/menu/Menu.h"
#include "afx/wnd/MessageMacros.h"

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_WM_ACTIVATE()
    ON_WM_INITMENUPOPUP()
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CFrameWnd::OnIdleUpdateCmdUI)
END_MESSAGE_MAP()

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT);

namespace
{
const UINT FirstChildId = 0;
const UINT LastChildId = 0xFFFF;
const DWORD ViewStyle = WS_CHILD | WS_VISIBLE | WS_BORDER;

bool ResourceExists(LPCTSTR name, LPCTSTR type)
{
    return ::FindResource(AfxFindResourceHandle(name, type), name, type) != nullptr;
}

// The menu that holds popup, found from the menu bar downwards; NULL for none.
HMENU MenuThatHolds(HMENU menu, HMENU popup)
{
    const int count = menu == nullptr ? 0 : ::GetMenuItemCount(menu);
    for (int index = 0; index < count; ++index)
    {
        const HMENU submenu = ::GetSubMenu(menu, index);
        if (submenu == popup)
            return menu;
        const HMENU deeper = submenu == nullptr ? nullptr : MenuThatHolds(submenu, popup);
        if (deeper != nullptr)
            return deeper;
    }
    return nullptr;
}

// A menu that is tracked as a popup stands for itself.
CMenu* ParentOfMenu(CMenu* menu, HWND frame)
{
    const HMENU tracked = AfxGetThreadState()->m_hTrackingMenu;
    if (tracked == menu->m_hMenu)
        return menu;
    return CMenu::FromHandle(MenuThatHolds(tracked != nullptr ? tracked : ::GetMenu(frame), menu->m_hMenu));
}

LPCTSTR FrameClass(HICON icon)
{
    return AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW), reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1),
                               icon);
}

// An icon belongs to a window class, so a frame with one has a class of its own.
LPCTSTR ClassWithIcon(LPCTSTR name)
{
    if (!ResourceExists(name, RT_GROUP_ICON))
        return nullptr;
    return FrameClass(::LoadIcon(AfxFindResourceHandle(name, RT_GROUP_ICON), name));
}
} // namespace

CFrameWnd::CFrameWnd() = default;

CFrameWnd::~CFrameWnd() = default;

BOOL CFrameWnd::Create(LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect, CWnd* parent,
                       LPCTSTR menuName, DWORD exStyle, CCreateContext* context)
{
    HMENU menu = nullptr;
    if (menuName != nullptr)
    {
        menu = ::LoadMenu(AfxFindResourceHandle(menuName, RT_MENU), menuName);
        if (menu == nullptr)
            return FALSE;
    }
    m_strTitle = windowName;
    const bool anywhere = rect.left == CW_USEDEFAULT;
    const int width = anywhere ? CW_USEDEFAULT : rect.right - rect.left;
    const int height = anywhere ? CW_USEDEFAULT : rect.bottom - rect.top;
    if (CreateEx(exStyle, className, windowName, style, rect.left, rect.top, width, height, parent->GetSafeHwnd(), menu,
                 context))
        return TRUE;
    if (menu != nullptr)
        ::DestroyMenu(menu);
    return FALSE;
}

BOOL CFrameWnd::LoadFrame(UINT resourceId, DWORD style, CWnd* parent, CCreateContext* context)
{
    const LPCTSTR name = MAKEINTRESOURCE(resourceId);
    m_nIDHelp = resourceId;
    CString text;
    CString title;
    if (text.LoadString(resourceId))
        AfxExtractSubString(title, text, 0);
    const LPCTSTR menu = ResourceExists(name, RT_MENU) ? name : nullptr;
    if (!Create(ClassWithIcon(name), title, style, rectDefault, parent, menu, 0, context))
        return FALSE;
    m_hMenuDefault = ::GetMenu(m_hWnd);
    if (ResourceExists(name, RT_ACCELERATOR))
        LoadAccelTable(name);
    return TRUE;
}

BOOL CFrameWnd::LoadAccelTable(LPCTSTR resourceName)
{
    m_hAccelTable = ::LoadAccelerators(AfxFindResourceHandle(resourceName, RT_ACCELERATOR), resourceName);
    return m_hAccelTable != nullptr;
}

CWnd* CFrameWnd::CreateView(CCreateContext* context, UINT id)
{
    CWnd* const view = static_cast<CWnd*>(context->m_pNewViewClass->CreateObject());
    if (view == nullptr || !view->Create(nullptr, nullptr, ViewStyle, CRect(0, 0, 0, 0), this, id, context))
        return nullptr; // a view that couldn't be created has deleted itself
    return view;
}

void CFrameWnd::SetActiveView(CView* view, BOOL notify)
{
    CView* const old = m_pViewActive;
    if (view == old)
        return;
    m_pViewActive = nullptr; // no commands for a view that is leaving
    if (old != nullptr)
        old->OnActivateView(FALSE, view, old);
    m_pViewActive = view;
    if (view != nullptr && notify)
        view->OnActivateView(TRUE, view, old);
}

CDocument* CFrameWnd::GetActiveDocument()
{
    return m_pViewActive == nullptr ? nullptr : m_pViewActive->GetDocument();
}

void CFrameWnd::ActivateFrame(int showCommand)
{
    if (showCommand == -1 && !IsWindowVisible())
        showCommand = SW_SHOWNORMAL;
    else if (showCommand == -1 && IsIconic())
        showCommand = SW_RESTORE;
    if (showCommand != -1)
        ShowWindow(showCommand);
    BringWindowToTop();
}

void CFrameWnd::InitialUpdateFrame(CDocument*, BOOL makeVisible)
{
    if (m_pViewActive == nullptr)
        SetActiveView(DYNAMIC_DOWNCAST(CView, GetDescendantWindow(AFX_IDW_PANE_FIRST, TRUE)), FALSE);
    if (makeVisible)
    {
        SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
        ActivateFrame();
        if (m_pViewActive != nullptr)
            m_pViewActive->OnActivateView(TRUE, m_pViewActive, m_pViewActive);
    }
    OnUpdateFrameTitle(TRUE);
}

void CFrameWnd::OnUpdateFrameTitle(BOOL addToTitle)
{
    CDocument* const document = GetActiveDocument();
    if (!(GetStyle() & FWS_ADDTOTITLE))
        return;
    if (!addToTitle || document == nullptr || document->GetTitle().IsEmpty())
        SetWindowText(m_strTitle);
    else if (GetStyle() & FWS_PREFIXTITLE)
        SetWindowText(document->GetTitle() + _T(" - ") + m_strTitle);
    else
        SetWindowText(m_strTitle + _T(" - ") + document->GetTitle());
}

void CFrameWnd::AddControlBar(CControlBar* bar)
{
    m_listControlBars.AddTail(bar);
}

void CFrameWnd::RemoveControlBar(CControlBar* bar)
{
    const POSITION position = m_listControlBars.Find(bar);
    if (position != nullptr)
        m_listControlBars.RemoveAt(position);
}

CControlBar* CFrameWnd::GetControlBar(UINT id)
{
    for (POSITION position = m_listControlBars.GetHeadPosition(); position != nullptr;)
    {
        CControlBar* const bar = static_cast<CControlBar*>(m_listControlBars.GetNext(position));
        if (static_cast<UINT>(bar->GetDlgCtrlID()) == id)
            return bar;
    }
    return nullptr;
}

void CFrameWnd::ShowControlBar(CControlBar* bar, BOOL show, BOOL delay)
{
    CFrameWnd* const frame = bar->GetDockingFrame();
    bar->DelayShow(show);
    if (!delay)
        bar->RecalcDelayShow();
    if (frame == nullptr)
        return;
    if (delay)
        frame->DelayRecalcLayout();
    else
        frame->RecalcLayout();
}

void CFrameWnd::RecalcLayout(BOOL)
{
    if (m_bInRecalcLayout)
        return;
    m_bInRecalcLayout = TRUE;
    m_nIdleFlags &= ~(idleLayout | idleNotify);
    RepositionBars(FirstChildId, LastChildId, AFX_IDW_PANE_FIRST, reposExtra, &m_rectBorder);
    m_bInRecalcLayout = FALSE;
}

void CFrameWnd::DelayRecalcLayout(BOOL notify)
{
    m_nIdleFlags |= idleLayout | (notify ? idleNotify : 0);
}

BOOL CFrameWnd::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    CView* const view = GetActiveView();
    if (view != nullptr && view->OnCmdMsg(id, code, extra, handlerInfo))
        return TRUE;
    if (CWnd::OnCmdMsg(id, code, extra, handlerInfo))
        return TRUE;
    CWinApp* const app = AfxGetApp();
    return app != nullptr && app->OnCmdMsg(id, code, extra, handlerInfo);
}

BOOL CFrameWnd::PreTranslateMessage(MSG* message)
{
    if (CWnd::PreTranslateMessage(message))
        return TRUE;
    const bool isKey = message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST;
    const HACCEL accelerators = isKey ? GetDefaultAccelerator() : nullptr;
    return accelerators != nullptr && ::TranslateAccelerator(m_hWnd, accelerators, message);
}

BOOL CFrameWnd::OnCreateClient(LPCREATESTRUCT, CCreateContext* context)
{
    if (context == nullptr || context->m_pNewViewClass == nullptr)
        return TRUE;
    return CreateView(context, AFX_IDW_PANE_FIRST) != nullptr;
}

int CFrameWnd::OnCreateHelper(LPCREATESTRUCT create, CCreateContext* context)
{
    if (CWnd::OnCreate(create) == -1 || !OnCreateClient(create, context))
        return -1;
    RecalcLayout();
    return 0;
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& create)
{
    if (create.lpszClass == nullptr)
        create.lpszClass = FrameClass(nullptr);
    return CWnd::PreCreateWindow(create);
}

void CFrameWnd::PostNcDestroy()
{
    delete this;
}

int CFrameWnd::OnCreate(LPCREATESTRUCT create)
{
    return OnCreateHelper(create, static_cast<CCreateContext*>(create->lpCreateParams));
}

void CFrameWnd::OnDestroy()
{
    // The system destroys the menu that the window shows; with another one in place the default would be lost.
    const HMENU shown = ::GetMenu(m_hWnd);
    if (m_hMenuDefault != nullptr && shown != m_hMenuDefault)
        ::SetMenu(m_hWnd, m_hMenuDefault);
    CWnd::OnDestroy();
}

void CFrameWnd::OnClose()
{
    DestroyWindow();
}

void CFrameWnd::OnSize(UINT type, int cx, int cy)
{
    CWnd::OnSize(type, cx, cy);
    if (type != SIZE_MINIMIZED)
        RecalcLayout();
}

void CFrameWnd::OnSetFocus(CWnd* oldWindow)
{
    if (m_pViewActive != nullptr)
        m_pViewActive->SetFocus();
    else
        CWnd::OnSetFocus(oldWindow);
}

void CFrameWnd::OnActivate(UINT state, CWnd* other, BOOL minimized)
{
    CWnd::OnActivate(state, other, minimized);
    CView* const view = GetActiveFrame()->GetActiveView();
    if (view == nullptr)
        return;
    view->OnActivateFrame(state, this);
    if (state != WA_INACTIVE && !minimized)
        view->OnActivateView(TRUE, view, view);
}

void CFrameWnd::OnInitMenuPopup(CMenu* menu, UINT index, BOOL systemMenu)
{
    CWnd::OnInitMenuPopup(menu, index, systemMenu);
    if (systemMenu)
        return;
    AfxUpdateMenuItems(menu, ParentOfMenu(menu, m_hWnd), this, m_bAutoMenuEnable);
}

LRESULT CFrameWnd::OnIdleUpdateCmdUI(WPARAM, LPARAM)
{
    if (m_nIdleFlags & idleLayout)
        RecalcLayout((m_nIdleFlags & idleNotify) != 0);
    return 0;
}
