// A thread's message loop: wait and work in idle time, filter, translate, dispatch.
#include <afxwin.h>
#include <afxpriv.h>

namespace
{
const UINT CaretTimer = 0x0118; // the system's own timer message, sent while a caret blinks

// Messages of the thread itself, which belong to no window.
BOOL CallThreadHandler(CWinThread& thread, const AFX_MSGMAP_ENTRY& entry, const MSG& message)
{
    const auto handler = AfxRestoreHandler<void (CWinThread::*)(WPARAM, LPARAM)>(entry.pfn);
    (thread.*handler)(message.wParam, message.lParam);
    return TRUE;
}
} // namespace

int CWinThread::Run()
{
    bool idle = true;
    LONG idleCount = 0;
    MSG* const current = &AfxGetThreadState()->m_msgCur;
    for (;;)
    {
        MSG waiting = {};
        while (idle && !::PeekMessage(&waiting, nullptr, 0, 0, PM_NOREMOVE))
            idle = OnIdle(idleCount++) != FALSE;
        do
        {
            if (!PumpMessage())
                return ExitInstance();
            if (IsIdleMessage(current))
            {
                idle = true;
                idleCount = 0;
            }
        } while (::PeekMessage(&waiting, nullptr, 0, 0, PM_NOREMOVE));
    }
}

BOOL CWinThread::PumpMessage()
{
    return AfxInternalPumpMessage();
}

BOOL AFXAPI AfxInternalPumpMessage()
{
    MSG* const current = &AfxGetThreadState()->m_msgCur;
    if (::GetMessage(current, nullptr, 0, 0) <= 0)
        return FALSE;
    if (!AfxPreTranslateMessage(current))
    {
        ::TranslateMessage(current);
        ::DispatchMessage(current);
    }
    return TRUE;
}

BOOL AFXAPI AfxPumpMessage()
{
    CWinThread* const thread = AfxGetThread();
    return thread != nullptr ? thread->PumpMessage() : AfxInternalPumpMessage();
}

BOOL AFXAPI AfxPreTranslateMessage(MSG* message)
{
    CWinThread* const thread = AfxGetThread();
    return thread != nullptr ? thread->PreTranslateMessage(message) : AfxInternalPreTranslateMessage(message);
}

BOOL CWinThread::PreTranslateMessage(MSG* message)
{
    return AfxInternalPreTranslateMessage(message);
}

BOOL AFXAPI AfxInternalPreTranslateMessage(MSG* message)
{
    CWinThread* const thread = AfxGetThread();
    if (message->hwnd == nullptr && thread != nullptr && thread->DispatchThreadMessageEx(message))
        return TRUE;

    CWnd* const mainWindow = AfxGetMainWnd();
    if (CWnd::WalkPreTranslateTree(mainWindow->GetSafeHwnd(), message))
        return TRUE;
    // A modeless window beside the main one gives its messages to the main window's filter (accelerators) as well.
    if (mainWindow == nullptr || message->hwnd == nullptr)
        return FALSE;
    const CWnd* const top = CWnd::FromHandle(message->hwnd)->GetTopLevelParent();
    return top != mainWindow && mainWindow->PreTranslateMessage(message);
}

BOOL CWinThread::DispatchThreadMessageEx(MSG* message)
{
    const AFX_MSGMAP* const map = GetMessageMap();
    const AFX_MSGMAP_ENTRY* const entry = message->message >= AFX_REGISTERED_MESSAGE
                                              ? AfxFindRegisteredEntry(map, message->message)
                                              : AfxFindMessageEntry(map, message->message, 0, 0);
    return entry != nullptr && CallThreadHandler(*this, *entry, *message);
}

BOOL CWinThread::IsIdleMessage(MSG* message)
{
    return AfxInternalIsIdleMessage(message);
}

BOOL AFXAPI AfxIsIdleMessage(MSG* message)
{
    CWinThread* const thread = AfxGetThread();
    return thread != nullptr ? thread->IsIdleMessage(message) : AfxInternalIsIdleMessage(message);
}

// A mouse move that doesn't move, painting and the caret's timer change nothing that idle work looks at.
BOOL AFXAPI AfxInternalIsIdleMessage(MSG* message)
{
    if (message->message == WM_MOUSEMOVE || message->message == WM_NCMOUSEMOVE)
    {
        _AFX_THREAD_STATE* const state = AfxGetThreadState();
        if (state->m_ptCursorLast == message->pt && message->message == state->m_nMsgLast)
            return FALSE;
        state->m_ptCursorLast = message->pt;
        state->m_nMsgLast = message->message;
        return TRUE;
    }
    return message->message != WM_PAINT && message->message != CaretTimer;
}

// First call: the frames bring their bars up to date. Second call: temporary objects end.
BOOL CWinThread::OnIdle(LONG count)
{
    if (count <= 0)
    {
        CWnd* const mainWindow = m_pMainWnd;
        if (mainWindow->GetSafeHwnd() != nullptr && mainWindow->IsWindowVisible())
        {
            AfxCallWndProc(mainWindow, mainWindow->m_hWnd, WM_IDLEUPDATECMDUI, TRUE, 0);
            mainWindow->SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
        }
    }
    else if (AfxGetThreadState()->m_nTempMapLock == 0)
    {
        AfxLockTempMaps();
        AfxUnlockTempMaps(TRUE);
    }
    return count <= 0;
}

MSG* AFXAPI AfxGetCurrentMessage()
{
    return &AfxGetThreadState()->m_msgCur;
}

BOOL CWinThread::ProcessMessageFilter(int, LPMSG)
{
    return FALSE;
}

LRESULT AFXAPI AfxProcessWndProcException(CException* e, const MSG* message)
{
    CWinThread* const thread = AfxGetThread();
    if (thread != nullptr)
        return thread->ProcessWndProcException(e, message);
    e->ReportError(MB_ICONEXCLAMATION | MB_SYSTEMMODAL);
    return 0;
}

// A window whose creation fails says so by its result; a command counts as done, so that it isn't tried elsewhere; a
// window that couldn't be painted counts as painted, else it would be asked again forever.
LRESULT CWinThread::ProcessWndProcException(CException* e, const MSG* message)
{
    if (message->message == WM_CREATE)
        return -1;
    if (message->message == WM_PAINT)
    {
        ::ValidateRect(message->hwnd, nullptr);
        return 0;
    }
    const bool command = message->message == WM_COMMAND && message->lParam == 0;
    if (!e->IsKindOf(RUNTIME_CLASS(CUserException)))
        e->ReportError(MB_ICONSTOP);
    return command ? TRUE : 0;
}
