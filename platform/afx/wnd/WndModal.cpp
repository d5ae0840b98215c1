#include <afxwin.h>
#include <afxpriv.h>

#include "afx/wnd/ModalPump.h"

ModalPump::ModalPump(CWnd& window, DWORD flags)
    : m_window(window), m_flags(flags), m_parent(::GetParent(window.m_hWnd)),
      m_showPending((flags & MLF_SHOWONIDLE) != 0 && (window.GetStyle() & WS_VISIBLE) == 0)
{
}

void ModalPump::Show()
{
    if (!m_showPending)
        return;
    m_window.ShowWindow(SW_SHOWNORMAL);
    m_window.UpdateWindow();
    m_showPending = false;
}

bool ModalPump::IsShowMessage(const MSG& message)
{
    // A queue that is never empty mustn't keep the window hidden from the user who types for it.
    return message.message == WM_SYSKEYDOWN || message.message == WM_KEYDOWN;
}

// While the queue is empty: shows the window, tells its owner once, and does idle work until nobody has any.
void ModalPump::Idle()
{
    bool more = true;
    MSG message = {};
    while (more && !::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE))
    {
        Show();
        if (!(m_flags & MLF_NOIDLEMSG) && m_parent != nullptr && m_idleCount == 0)
            ::SendMessage(m_parent, WM_ENTERIDLE, MSGF_DIALOGBOX, LPARAM(m_window.m_hWnd));
        more = !(m_flags & MLF_NOKICKIDLE) &&
               ::SendMessage(m_window.m_hWnd, WM_KICKIDLE, MSGF_DIALOGBOX, m_idleCount++) != 0;
    }
}

// Takes the messages that wait, at least one. False: WM_QUIT came, which is left for the outer loop.
bool ModalPump::Pump()
{
    MSG message = {};
    do
    {
        if (!AfxPumpMessage())
        {
            AfxPostQuitMessage(0);
            return false;
        }
        MSG* const current = AfxGetCurrentMessage();
        if (IsShowMessage(*current))
            Show();
        if (!m_window.ContinueModal())
            return true;
        if (AfxIsIdleMessage(current))
            m_idleCount = 0;
    } while (::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE));
    return true;
}

int CWnd::RunModalLoop(DWORD flags)
{
    ASSERT(::IsWindow(m_hWnd) && !(m_nFlags & WF_MODALLOOP));
    ModalPump pump(*this, flags);
    m_nFlags |= WF_MODALLOOP | WF_CONTINUEMODAL;
    while (ContinueModal())
    {
        pump.Idle();
        if (!pump.Pump())
        {
            m_nFlags &= ~(WF_MODALLOOP | WF_CONTINUEMODAL);
            return -1;
        }
    }
    m_nFlags &= ~(WF_MODALLOOP | WF_CONTINUEMODAL);
    return m_nModalResult;
}

BOOL CWnd::ContinueModal()
{
    return (m_nFlags & WF_CONTINUEMODAL) != 0;
}

void CWnd::EndModalLoop(int result)
{
    m_nModalResult = result;
    if (m_nFlags & WF_CONTINUEMODAL)
    {
        m_nFlags &= ~WF_CONTINUEMODAL;
        PostMessage(WM_NULL); // wakes a loop that waits for a message
    }
}
