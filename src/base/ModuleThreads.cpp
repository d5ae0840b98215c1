#include "base/ModuleThreads.h"

#include <afxwin.h>
#include <afxtempl.h>

namespace
{

const DWORD kPatience = 100; // ms until the end is posted again to a thread whose queue was full

// The threads, some of which may have ended.
class CThreadList
{
public:
    CThreadList() { ::InitializeCriticalSection(&m_lock); }
    ~CThreadList() { ::DeleteCriticalSection(&m_lock); }

    void AddCurrent();

    // The handle becomes the caller's; null when there is none left.
    HANDLE TakeLast();

private:
    CThreadList(const CThreadList&);
    CThreadList& operator=(const CThreadList&);

    void RemoveEnded();

    CRITICAL_SECTION m_lock;
    CArray<HANDLE, HANDLE> m_threads;
};

CThreadList g_threads;

bool HasEnded(HANDLE thread)
{
    return ::WaitForSingleObject(thread, 0) == WAIT_OBJECT_0;
}

void CThreadList::AddCurrent()
{
    HANDLE thread = NULL;
    const HANDLE process = ::GetCurrentProcess();
    if (!::DuplicateHandle(process, ::GetCurrentThread(), process, &thread, 0, FALSE, DUPLICATE_SAME_ACCESS))
        return;
    ::EnterCriticalSection(&m_lock);
    RemoveEnded();
    m_threads.Add(thread);
    ::LeaveCriticalSection(&m_lock);
}

HANDLE CThreadList::TakeLast()
{
    ::EnterCriticalSection(&m_lock);
    const INT_PTR last = m_threads.GetUpperBound();
    const HANDLE thread = last >= 0 ? m_threads[last] : NULL;
    if (last >= 0)
        m_threads.RemoveAt(last);
    ::LeaveCriticalSection(&m_lock);
    return thread;
}

void CThreadList::RemoveEnded()
{
    for (INT_PTR i = m_threads.GetUpperBound(); i >= 0; --i)
    {
        if (!HasEnded(m_threads[i]))
            continue;
        ::CloseHandle(m_threads[i]);
        m_threads.RemoveAt(i);
    }
}

} // namespace

void AddModuleThread()
{
    g_threads.AddCurrent();
}

void EndModuleThreads()
{
    for (HANDLE thread = g_threads.TakeLast(); thread != NULL; thread = g_threads.TakeLast())
    {
        while (!HasEnded(thread))
        {
            ::PostThreadMessage(::GetThreadId(thread), WM_QUIT, 0, 0);
            ::MsgWaitForMultipleObjects(1, &thread, FALSE, kPatience, QS_SENDMESSAGE);
            MSG message;
            ::PeekMessage(&message, NULL, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
        }
        ::CloseHandle(thread);
    }
}
