// Tips of windows that answer OnToolHitTest. One tip control serves a thread; it knows one tool at a time, the one the
// mouse is over.
#include <afxcmn.h>
#include <afxwin.h>

namespace
{
bool EndsTip(const MSG& message)
{
    switch (message.message)
    {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDOWN:
    case WM_MBUTTONDBLCLK:
    case WM_NCLBUTTONDOWN:
    case WM_NCRBUTTONDOWN:
    case WM_NCMBUTTONDOWN:
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
        return true;
    default:
        return false;
    }
}

bool IsMouseMove(UINT message)
{
    return message == WM_MOUSEMOVE || message == WM_NCMOUSEMOVE;
}

// The thread's tip, made when it is needed first and again when its owner took it along.
CToolTipCtrl* ThreadTip(CWnd* owner)
{
    _AFX_THREAD_STATE* const state = AfxGetThreadState();
    CToolTipCtrl* tip = state->m_pToolTip;
    if (tip != nullptr && tip->GetSafeHwnd() != nullptr && ::GetWindow(tip->m_hWnd, GW_OWNER) == owner->m_hWnd)
        return tip;
    delete tip;
    state->m_pToolTip = nullptr;
    tip = new CToolTipCtrl;
    if (!tip->Create(owner, TTS_ALWAYSTIP))
    {
        delete tip;
        return nullptr;
    }
    tip->SendMessage(TTM_ACTIVATE, FALSE);
    state->m_pToolTip = tip;
    return tip;
}

void ReleaseText(TOOLINFO& tool)
{
    if (tool.lpszText != nullptr && tool.lpszText != LPSTR_TEXTCALLBACK)
        free(tool.lpszText);
    tool.lpszText = nullptr;
}

void ForgetTool()
{
    _AFX_THREAD_STATE* const state = AfxGetThreadState();
    state->m_pLastHit = nullptr;
    state->m_nLastHit = -1;
    ReleaseText(state->m_lastInfo);
}

// Passes a copy of the mouse message whose window is the tool's.
void Relay(CToolTipCtrl& tip, const TOOLINFO& tool, const MSG& message)
{
    MSG relayed = message;
    if ((tool.uFlags & TTF_IDISHWND) != 0)
        relayed.hwnd = reinterpret_cast<HWND>(tool.uId);
    else
        relayed.hwnd = tool.hwnd;
    tip.SendMessage(TTM_RELAYEVENT, 0, LPARAM(&relayed));
}

// Makes the tool under the mouse the tip's only one.
void ChangeTool(CToolTipCtrl& tip, CWnd* window, INT_PTR hit, const TOOLINFO& tool, const MSG& message)
{
    _AFX_THREAD_STATE* const state = AfxGetThreadState();
    if (state->m_nLastHit != -1)
        tip.SendMessage(TTM_DELTOOL, 0, LPARAM(&state->m_lastInfo));
    ForgetTool();
    if (hit != -1)
    {
        tip.SendMessage(TTM_ADDTOOL, 0, LPARAM(&tool));
        tip.SendMessage(TTM_ACTIVATE, TRUE);
        Relay(tip, tool, message);
        state->m_lastInfo = tool;
    }
    state->m_pLastHit = window;
    state->m_nLastHit = hit;
}
} // namespace

BOOL CWnd::EnableToolTips(BOOL enable)
{
    if (enable)
    {
        m_nFlags |= WF_TOOLTIPS;
        return TRUE;
    }
    m_nFlags &= ~WF_TOOLTIPS;
    _AFX_THREAD_STATE* const state = AfxGetThreadState();
    if (state->m_pToolTip == nullptr)
        return TRUE;
    if (state->m_pLastHit == this)
        CancelToolTips(TRUE);
    // The system destroys owned windows first: the tip of a window that ends has no handle any more.
    const HWND tip = state->m_pToolTip->GetSafeHwnd();
    if (tip == nullptr || ::GetWindow(tip, GW_OWNER) == m_hWnd)
    {
        delete state->m_pToolTip;
        state->m_pToolTip = nullptr;
    }
    return TRUE;
}

BOOL CWnd::EnableTrackingToolTips(BOOL enable)
{
    m_nFlags = enable ? m_nFlags | WF_TRACKINGTOOLTIPS : m_nFlags & ~WF_TRACKINGTOOLTIPS;
    return EnableToolTips(enable);
}

void PASCAL CWnd::CancelToolTips(BOOL)
{
    _AFX_THREAD_STATE* const state = AfxGetThreadState();
    if (state->m_pToolTip->GetSafeHwnd() != nullptr)
    {
        if (state->m_nLastHit != -1)
            state->m_pToolTip->SendMessage(TTM_DELTOOL, 0, LPARAM(&state->m_lastInfo));
        state->m_pToolTip->SendMessage(TTM_ACTIVATE, FALSE);
    }
    ForgetTool();
}

void CWnd::FilterToolTipMessage(MSG* message)
{
    if (!(m_nFlags & WF_TOOLTIPS))
        return;
    if (EndsTip(*message))
    {
        CancelToolTips();
        return;
    }
    if (!IsMouseMove(message->message))
        return;

    CPoint point(message->pt);
    if (message->message == WM_MOUSEMOVE)
    {
        point = CPoint(message->lParam);
        ::ClientToScreen(message->hwnd, &point);
    }
    ScreenToClient(&point);

    TOOLINFO tool = {};
    tool.cbSize = sizeof(tool);
    const INT_PTR hit = OnToolHitTest(point, &tool);
    CToolTipCtrl* const tip = ThreadTip(this);
    const _AFX_THREAD_STATE* const state = AfxGetThreadState();
    if (tip == nullptr)
        ReleaseText(tool);
    else if (state->m_pLastHit != this || state->m_nLastHit != hit)
        ChangeTool(*tip, this, hit, tool, *message);
    else
    {
        if (hit != -1)
            Relay(*tip, state->m_lastInfo, *message);
        ReleaseText(tool);
    }
}

// Tools are the child windows; the text is asked for with TTN_NEEDTEXT.
INT_PTR CWnd::OnToolHitTest(CPoint point, TOOLINFO* info) const
{
    const HWND child = ::ChildWindowFromPointEx(m_hWnd, point, CWP_SKIPINVISIBLE);
    if (child == nullptr || child == m_hWnd)
        return -1;
    if (info != nullptr)
    {
        info->hwnd = m_hWnd;
        info->uId = reinterpret_cast<UINT_PTR>(child);
        info->uFlags = TTF_IDISHWND;
        info->lpszText = LPSTR_TEXTCALLBACK;
    }
    return ::GetDlgCtrlID(child);
}
