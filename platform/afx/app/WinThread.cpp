#include <afxdisp.h>
#include <afxpriv.h>

#include <process.h>

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

namespace
{
// The program's main window as an object of this thread, which lives by another handle map.
class BorrowedMainWindow
{
public:
    explicit BorrowedMainWindow(CWinThread& thread) : m_thread(thread)
    {
        const CWinApp* const app = AfxGetApp();
        if (app == nullptr || thread.m_pMainWnd != nullptr || app->m_pMainWnd->GetSafeHwnd() == nullptr)
            return;
        m_window.Attach(app->m_pMainWnd->m_hWnd);
        thread.m_pMainWnd = &m_window;
    }
    ~BorrowedMainWindow()
    {
        if (m_thread.m_pMainWnd == &m_window)
            m_thread.m_pMainWnd = nullptr;
        m_window.Detach();
    }
    BorrowedMainWindow(const BorrowedMainWindow&) = delete;
    BorrowedMainWindow& operator=(const BorrowedMainWindow&) = delete;

private:
    CWinThread& m_thread;
    CWnd m_window;
};

CWinThread* StartThread(CWinThread* thread, int priority, UINT stackSize, DWORD createFlags,
                        LPSECURITY_ATTRIBUTES security)
{
    if (!thread->CreateThread(createFlags | CREATE_SUSPENDED, stackSize, security))
    {
        thread->Delete();
        return nullptr;
    }
    thread->SetThreadPriority(priority);
    if (!(createFlags & CREATE_SUSPENDED))
        thread->ResumeThread();
    return thread;
}

void LeaveThread(BOOL deleteObject)
{
    _AFX_THREAD_STATE* const state = AfxGetThreadState();
    CWinThread* const thread = state->m_pCurrentWinThread;
    state->m_pCurrentWinThread = nullptr;
    if (thread != nullptr && deleteObject)
        thread->Delete();
}
} // namespace

CWinThread::CWinThread() {}

CWinThread::CWinThread(AFX_THREADPROC function, LPVOID parameter)
    : m_pThreadParams(parameter), m_pfnThreadProc(function)
{
}

CWinThread::~CWinThread()
{
    if (m_hThread != nullptr)
        ::CloseHandle(m_hThread);
    _AFX_THREAD_STATE* const state = AfxGetThreadState();
    if (state->m_pCurrentWinThread == this)
        state->m_pCurrentWinThread = nullptr;
}

CWinThread::operator HANDLE() const
{
    return this == nullptr ? nullptr : m_hThread;
}

BOOL CWinThread::CreateThread(DWORD createFlags, UINT stackSize, LPSECURITY_ATTRIBUTES security)
{
    ASSERT(m_hThread == nullptr);
    // The thread starts suspended, so that its handle and number stand in the object before it runs.
    unsigned id = 0;
    m_hThread = reinterpret_cast<HANDLE>(
        _beginthreadex(security, stackSize, &CWinThread::ThreadEntry, this, createFlags | CREATE_SUSPENDED, &id));
    if (m_hThread == nullptr)
        return FALSE;
    m_nThreadID = id;
    if (!(createFlags & CREATE_SUSPENDED))
        ::ResumeThread(m_hThread); // this object may delete itself from here on
    return TRUE;
}

unsigned __stdcall CWinThread::ThreadEntry(void* thread)
{
    CWinThread* const object = static_cast<CWinThread*>(thread);
    AfxGetThreadState()->m_pCurrentWinThread = object;
    const DWORD result = object->RunThread();
    AfxOleTerm();
    LeaveThread(TRUE);
    return result;
}

DWORD CWinThread::RunThread()
{
    const BorrowedMainWindow mainWindow(*this);
    if (m_pfnThreadProc != nullptr)
        return m_pfnThreadProc(m_pThreadParams);
    return static_cast<DWORD>(InitInstance() ? Run() : ExitInstance());
}

CWinThread* AFXAPI AfxBeginThread(AFX_THREADPROC function, LPVOID parameter, int priority, UINT stackSize,
                                  DWORD createFlags, LPSECURITY_ATTRIBUTES security)
{
    return StartThread(new CWinThread(function, parameter), priority, stackSize, createFlags, security);
}

CWinThread* AFXAPI AfxBeginThread(CRuntimeClass* threadClass, int priority, UINT stackSize, DWORD createFlags,
                                  LPSECURITY_ATTRIBUTES security)
{
    ASSERT(threadClass->IsDerivedFrom(RUNTIME_CLASS(CWinThread)));
    CWinThread* const thread = static_cast<CWinThread*>(threadClass->CreateObject());
    if (thread == nullptr)
        AfxThrowMemoryException();
    return StartThread(thread, priority, stackSize, createFlags, security);
}

void AFXAPI AfxEndThread(UINT exitCode, BOOL deleteObject)
{
    LeaveThread(deleteObject);
    _endthreadex(exitCode);
}

void CWinThread::Delete()
{
    if (m_bAutoDelete)
        delete this;
}

BOOL CWinThread::InitInstance()
{
    return FALSE;
}

int CWinThread::ExitInstance()
{
    return static_cast<int>(AfxGetThreadState()->m_msgCur.wParam);
}

CWnd* CWinThread::GetMainWnd()
{
    return m_pActiveWnd != nullptr ? m_pActiveWnd : m_pMainWnd;
}

CWinThread* AFXAPI AfxGetThread()
{
    CWinThread* const thread = AfxGetThreadState()->m_pCurrentWinThread;
    if (thread != nullptr)
        return thread;
    // The program's own thread is the one that began without a thread object.
    CWinApp* const app = AfxGetApp();
    return app != nullptr && app->m_nThreadID == ::GetCurrentThreadId() ? app : nullptr;
}
