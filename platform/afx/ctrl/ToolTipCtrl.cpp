#include "afx/ctrl/ToolTipCtrl.h"

#include "afx/app/Resource.h"

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

namespace
{
// What a resource id looks like where a text is expected.
LPTSTR TextOfResource(UINT textId)
{
    return MAKEINTRESOURCE(textId);
}
} // namespace

CToolTipCtrl::CToolTipCtrl() = default;

CToolTipCtrl::~CToolTipCtrl()
{
    // The window is a popup that no parent destroys together with this object.
    DestroyWindow();
}

BOOL CToolTipCtrl::Create(CWnd* parent, DWORD style)
{
    return CreateEx(parent, style);
}

BOOL CToolTipCtrl::CreateEx(CWnd* parent, DWORD style, DWORD exStyle)
{
    const CRect anywhere(CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT);
    return CWnd::CreateEx(exStyle, TOOLTIPS_CLASS, nullptr, WS_POPUP | style, anywhere, parent, 0);
}

BOOL CToolTipCtrl::AddTool(CWnd* window, UINT textId, LPCRECT rect, UINT_PTR id)
{
    return AddTool(window, TextOfResource(textId), rect, id);
}

BOOL CToolTipCtrl::AddTool(CWnd* window, LPCTSTR text, LPCRECT rect, UINT_PTR id)
{
    ASSERT((rect == nullptr) == (id == 0));

    TOOLINFO info;
    FillInToolInfo(info, window, id);
    info.hinst = AfxGetResourceHandle();
    info.lpszText = const_cast<LPTSTR>(text);
    if (rect != nullptr)
        info.rect = *rect;
    return static_cast<BOOL>(::SendMessage(m_hWnd, TTM_ADDTOOL, 0, LPARAM(&info)));
}

void CToolTipCtrl::DelTool(CWnd* window, UINT_PTR id)
{
    TOOLINFO info;
    FillInToolInfo(info, window, id);
    ::SendMessage(m_hWnd, TTM_DELTOOL, 0, LPARAM(&info));
}

BOOL CToolTipCtrl::GetToolInfo(CToolInfo& info, CWnd* window, UINT_PTR id) const
{
    FillInToolInfo(info, window, id);
    info.szText[0] = 0;
    info.lpszText = info.szText;
    return static_cast<BOOL>(::SendMessage(m_hWnd, TTM_GETTOOLINFO, 0, LPARAM(static_cast<TOOLINFO*>(&info))));
}

void CToolTipCtrl::SetToolRect(CWnd* window, UINT_PTR id, LPCRECT rect)
{
    TOOLINFO info;
    FillInToolInfo(info, window, id);
    info.rect = *rect;
    ::SendMessage(m_hWnd, TTM_NEWTOOLRECT, 0, LPARAM(&info));
}

BOOL CToolTipCtrl::HitTest(CWnd* window, CPoint point, LPTOOLINFO info) const
{
    TTHITTESTINFO hit = {};
    hit.hwnd = window->GetSafeHwnd();
    hit.pt = point;
    hit.ti.cbSize = TTTOOLINFOW_V2_SIZE;
    if (!::SendMessage(m_hWnd, TTM_HITTEST, 0, LPARAM(&hit)))
        return FALSE;
    *info = hit.ti;
    return TRUE;
}

void CToolTipCtrl::GetText(CString& text, CWnd* window, UINT_PTR id) const
{
    TOOLINFO info;
    FillInToolInfo(info, window, id);
    info.lpszText = text.GetBufferSetLength(CToolInfo::MaxTextLength);
    info.lpszText[0] = 0;
    // wParam is the room in the buffer.
    ::SendMessage(m_hWnd, TTM_GETTEXT, CToolInfo::MaxTextLength, LPARAM(&info));
    text.ReleaseBuffer();
}

void CToolTipCtrl::UpdateTipText(LPCTSTR text, CWnd* window, UINT_PTR id)
{
    TOOLINFO info;
    FillInToolInfo(info, window, id);
    info.hinst = AfxGetResourceHandle();
    info.lpszText = const_cast<LPTSTR>(text);
    ::SendMessage(m_hWnd, TTM_UPDATETIPTEXT, 0, LPARAM(&info));
}

void CToolTipCtrl::UpdateTipText(UINT textId, CWnd* window, UINT_PTR id)
{
    UpdateTipText(TextOfResource(textId), window, id);
}

CSize CToolTipCtrl::GetBubbleSize(LPTOOLINFO info) const
{
    const LRESULT size = ::SendMessage(m_hWnd, TTM_GETBUBBLESIZE, 0, LPARAM(info));
    return CSize(LOWORD(size), HIWORD(size));
}

void CToolTipCtrl::FillInToolInfo(TOOLINFO& info, CWnd* window, UINT_PTR id)
{
    ZeroMemory(&info, sizeof(info));
    info.cbSize = TTTOOLINFOW_V2_SIZE;
    info.hwnd = window->GetSafeHwnd();
    if (id != 0)
    {
        info.uId = id;
        return;
    }
    // A whole window is a tool of its parent; the control subclasses it to see its mouse messages only on request.
    info.uFlags = TTF_IDISHWND;
    info.hwnd = ::GetParent(info.hwnd);
    info.uId = reinterpret_cast<UINT_PTR>(window->GetSafeHwnd());
}
