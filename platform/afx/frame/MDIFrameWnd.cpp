#include <afxpriv.h>

#include "afx/frame/MDIFrameWnd.h"

#include "afx/app/Resource.h"
#include "afx/frame/MDIChildWnd.h"
#include "afx/frame/View.h"
#include "afx/menu/Menu.h"
#include "afx/wnd/MessageMacros.h"

IMPLEMENT_DYNCREATE(CMDIFrameWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CMDIFrameWnd, CFrameWnd)
    ON_WM_SIZE()
END_MESSAGE_MAP()

namespace
{
const UINT FirstWindowCommand = ID_WINDOW_NEW;
const UINT LastWindowCommand = 0xE13F;
const UINT FirstSystemCommand = 0xF000;

bool HoldsWindowCommands(HMENU menu)
{
    const int count = ::GetMenuItemCount(menu);
    for (int index = 0; index < count; ++index)
    {
        const UINT id = ::GetMenuItemID(menu, index);
        if (id >= FirstWindowCommand && id <= LastWindowCommand)
            return true;
    }
    return false;
}
} // namespace

CMDIFrameWnd::CMDIFrameWnd() = default;

BOOL CMDIFrameWnd::CreateClient(LPCREATESTRUCT, CMenu* windowMenu)
{
    CLIENTCREATESTRUCT client = {};
    client.hWindowMenu = windowMenu->GetSafeHmenu();
    client.idFirstChild = AFX_IDM_FIRST_MDICHILD;
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | MDIS_ALLCHILDSTYLES;
    m_hWndMDIClient = ::CreateWindowEx(WS_EX_CLIENTEDGE, _T("MDICLIENT"), nullptr, style, 0, 0, 0, 0, m_hWnd,
                                       reinterpret_cast<HMENU>(static_cast<UINT_PTR>(AFX_IDW_PANE_FIRST)),
                                       AfxGetInstanceHandle(), &client);
    return m_hWndMDIClient != nullptr;
}

HMENU CMDIFrameWnd::GetWindowMenuPopup(HMENU menuBar)
{
    const int count = menuBar == nullptr ? 0 : ::GetMenuItemCount(menuBar);
    for (int index = 0; index < count; ++index)
    {
        const HMENU popup = ::GetSubMenu(menuBar, index);
        if (popup != nullptr && HoldsWindowCommands(popup))
            return popup;
    }
    return nullptr;
}

CMDIChildWnd* CMDIFrameWnd::MDIGetActive(BOOL* maximized) const
{
    if (m_hWndMDIClient == nullptr)
        return nullptr;
    BOOL isMaximized = FALSE;
    const LRESULT child = ::SendMessage(m_hWndMDIClient, WM_MDIGETACTIVE, 0, LPARAM(&isMaximized));
    if (maximized != nullptr)
        *maximized = isMaximized;
    return DYNAMIC_DOWNCAST(CMDIChildWnd, CWnd::FromHandlePermanent(reinterpret_cast<HWND>(child)));
}

CMenu* CMDIFrameWnd::MDISetMenu(CMenu* frameMenu, CMenu* windowMenu)
{
    const LRESULT old = ::SendMessage(m_hWndMDIClient, WM_MDISETMENU, WPARAM(frameMenu->GetSafeHmenu()),
                                      LPARAM(windowMenu->GetSafeHmenu()));
    return CMenu::FromHandle(reinterpret_cast<HMENU>(old));
}

CFrameWnd* CMDIFrameWnd::GetActiveFrame()
{
    CMDIChildWnd* const child = MDIGetActive();
    return child != nullptr ? static_cast<CFrameWnd*>(child) : this;
}

BOOL CMDIFrameWnd::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    CMDIChildWnd* const child = MDIGetActive();
    if (child != nullptr && child->OnCmdMsg(id, code, extra, handlerInfo))
        return TRUE;
    return CFrameWnd::OnCmdMsg(id, code, extra, handlerInfo);
}

BOOL CMDIFrameWnd::PreTranslateMessage(MSG* message)
{
    if (CFrameWnd::PreTranslateMessage(message))
        return TRUE;
    const bool isKey = message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST;
    return isKey && m_hWndMDIClient != nullptr && ::TranslateMDISysAccel(m_hWndMDIClient, message);
}

BOOL CMDIFrameWnd::OnCreateClient(LPCREATESTRUCT create, CCreateContext*)
{
    return CreateClient(create, CMenu::FromHandle(GetWindowMenuPopup(::GetMenu(m_hWnd))));
}

LRESULT CMDIFrameWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::DefFrameProc(m_hWnd, m_hWndMDIClient, message, wParam, lParam);
}

BOOL CMDIFrameWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    // The system's own commands: choosing a child frame by its menu item, the buttons of a maximised child frame.
    if (lParam == 0 && LOWORD(wParam) >= FirstSystemCommand)
    {
        DefWindowProc(WM_COMMAND, wParam, lParam);
        return TRUE;
    }
    return CFrameWnd::OnCommand(wParam, lParam);
}

void CMDIFrameWnd::OnSize(UINT type, int, int)
{
    // No default processing: it would give the MDI client the whole client area.
    if (type != SIZE_MINIMIZED)
        RecalcLayout();
}
