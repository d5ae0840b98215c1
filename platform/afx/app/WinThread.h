// CWinThread: a thread of the program, with a message loop when it is started by its run-time class.
//
//   AfxBeginThread(RUNTIME_CLASS(CWorker));            // user-interface thread: InitInstance, Run, ExitInstance
//   AfxBeginThread(&Work, parameter);                  // worker thread: one function
//
// The object deletes itself at the end of its thread unless m_bAutoDelete is FALSE.
#pragma once

#include "afx/wnd/Wnd.h"

typedef UINT(AFX_CDECL* AFX_THREADPROC)(LPVOID parameter);

// Kinds of ProcessMessageFilter.
#ifndef MSGF_DDEMGR
#define MSGF_DDEMGR 0x8001
#endif

class AFX_API CWinThread : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread();
    CWinThread(AFX_THREADPROC function, LPVOID parameter);
    ~CWinThread() override;

    // Starts the thread. FALSE: it couldn't be started, the object stays the caller's.
    BOOL CreateThread(DWORD createFlags = 0, UINT stackSize = 0, LPSECURITY_ATTRIBUTES security = nullptr);

    operator HANDLE() const;
    int GetThreadPriority() { return ::GetThreadPriority(m_hThread); }
    BOOL SetThreadPriority(int priority) { return ::SetThreadPriority(m_hThread, priority); }
    DWORD SuspendThread() { return ::SuspendThread(m_hThread); }
    DWORD ResumeThread() { return ::ResumeThread(m_hThread); }
    BOOL PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam)
    {
        return ::PostThreadMessage(m_nThreadID, message, wParam, lParam);
    }

    // Overridables. InitInstance: FALSE ends the thread before its loop. ExitInstance gives the exit code.
    virtual BOOL InitInstance();
    virtual int Run();
    virtual BOOL PreTranslateMessage(MSG* message); // TRUE: handled
    virtual BOOL PumpMessage();                     // takes one message; FALSE: it was WM_QUIT
    virtual BOOL OnIdle(LONG count);                // TRUE asks for another call
    virtual BOOL IsIdleMessage(MSG* message);       // FALSE for messages that give no cause for idle work
    virtual int ExitInstance();
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* message); // e stays the caller's
    virtual BOOL ProcessMessageFilter(int code, LPMSG message);
    virtual CWnd* GetMainWnd();
    virtual void Delete(); // deletes the object when m_bAutoDelete asks for it

    // Handlers of messages posted to the thread itself.
    BOOL DispatchThreadMessageEx(MSG* message);
    void DispatchThreadMessage(MSG* message) { DispatchThreadMessageEx(message); }

    CWnd* m_pMainWnd = nullptr;   // the loop ends when it is destroyed; the message filter walk stops there
    CWnd* m_pActiveWnd = nullptr; // main window while active in place, otherwise null
    BOOL m_bAutoDelete = TRUE;
    HANDLE m_hThread = nullptr;
    DWORD m_nThreadID = 0;
    LPVOID m_pThreadParams = nullptr;
    AFX_THREADPROC m_pfnThreadProc = nullptr;

private:
    static unsigned __stdcall ThreadEntry(void* thread);
    DWORD RunThread();
};

// Starts a thread; null when that fails. With CREATE_SUSPENDED the thread waits for ResumeThread().
AFX_API CWinThread* AFXAPI AfxBeginThread(AFX_THREADPROC function, LPVOID parameter,
                                          int priority = THREAD_PRIORITY_NORMAL, UINT stackSize = 0,
                                          DWORD createFlags = 0, LPSECURITY_ATTRIBUTES security = nullptr);
AFX_API CWinThread* AFXAPI AfxBeginThread(CRuntimeClass* threadClass, int priority = THREAD_PRIORITY_NORMAL,
                                          UINT stackSize = 0, DWORD createFlags = 0,
                                          LPSECURITY_ATTRIBUTES security = nullptr);
// Ends the current thread with this exit code.
AFX_API void AFXAPI AfxEndThread(UINT exitCode, BOOL deleteObject = TRUE);

AFX_API CWinThread* AFXAPI AfxGetThread();
AFX_API MSG* AFXAPI AfxGetCurrentMessage();

// The message loop's parts, also used by modal loops.
AFX_API BOOL AFXAPI AfxPumpMessage();
AFX_API BOOL AFXAPI AfxInternalPumpMessage();
AFX_API BOOL AFXAPI AfxPreTranslateMessage(MSG* message);
AFX_API BOOL AFXAPI AfxInternalPreTranslateMessage(MSG* message);
AFX_API BOOL AFXAPI AfxIsIdleMessage(MSG* message);
AFX_API BOOL AFXAPI AfxInternalIsIdleMessage(MSG* message);
AFX_API LRESULT AFXAPI AfxProcessWndProcException(CException* e, const MSG* message);
