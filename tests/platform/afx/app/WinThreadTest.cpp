// Threads of the framework: one function, or an object with a message loop.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <atomic>

namespace
{
const DWORD TimeOut = 20000; // milliseconds
const UINT WM_ADD = WM_APP + 30;
const UINT WM_HANDLED = WM_APP + 31;

std::atomic<int> g_sum{0};
std::atomic<int> g_filtered{0};
std::atomic<int> g_exits{0};
std::atomic<int> g_deleted{0};
std::atomic<DWORD> g_id{0};

class Worker : public CWinThread
{
    DECLARE_DYNCREATE(Worker)
public:
    ~Worker() override { ++g_deleted; }

    BOOL InitInstance() override
    {
        // Makes the queue, so that messages can be posted from now on.
        MSG message;
        ::PeekMessage(&message, nullptr, WM_USER, WM_USER, PM_NOREMOVE);
        g_id = ::GetCurrentThreadId();
        return m_accept;
    }
    int ExitInstance() override
    {
        ++g_exits;
        return CWinThread::ExitInstance();
    }
    BOOL PreTranslateMessage(MSG* message) override
    {
        if (message->message == WM_ADD)
        {
            g_filtered += static_cast<int>(message->wParam);
            return TRUE;
        }
        return CWinThread::PreTranslateMessage(message);
    }

    BOOL m_accept = TRUE;

protected:
    afx_msg void OnHandled(WPARAM wParam, LPARAM lParam) { g_sum += static_cast<int>(wParam + lParam); }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(Worker, CWinThread)

BEGIN_MESSAGE_MAP(Worker, CWinThread)
    ON_THREAD_MESSAGE(WM_HANDLED, &Worker::OnHandled)
END_MESSAGE_MAP()

class Refusing : public Worker
{
    DECLARE_DYNCREATE(Refusing)
public:
    Refusing() { m_accept = FALSE; }
};

IMPLEMENT_DYNCREATE(Refusing, Worker)

UINT AFX_CDECL Square(LPVOID number)
{
    int* const value = static_cast<int*>(number);
    *value *= *value;
    return static_cast<UINT>(*value);
}

UINT AFX_CDECL EndEarly(LPVOID)
{
    AfxEndThread(31);
    return 0;
}

// Runs the thread to its end and keeps its exit code; the object stays, because the handle is needed.
class Running
{
public:
    explicit Running(CWinThread* thread) : m_thread(thread)
    {
        m_thread->m_bAutoDelete = FALSE;
        m_thread->ResumeThread();
    }
    ~Running() { delete m_thread; }

    DWORD Join()
    {
        EXPECT_EQ(DWORD(WAIT_OBJECT_0), ::WaitForSingleObject(m_thread->m_hThread, TimeOut));
        DWORD code = 0;
        ::GetExitCodeThread(m_thread->m_hThread, &code);
        return code;
    }

private:
    CWinThread* m_thread;
};

bool WaitUntil(const std::atomic<DWORD>& value)
{
    const DWORD start = ::GetTickCount();
    while (value == 0 && ::GetTickCount() - start < TimeOut)
        ::SwitchToThread();
    return value != 0;
}
} // namespace

TEST(WinThread, AWorkerRunsItsFunction)
{
    int value = 12;
    Running thread(AfxBeginThread(&Square, &value, THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED));
    EXPECT_EQ(144u, thread.Join());
    EXPECT_EQ(144, value);
}

TEST(WinThread, ASuspendedThreadWaits)
{
    int value = 3;
    CWinThread* const thread = AfxBeginThread(&Square, &value, THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    ASSERT_NE(nullptr, thread);
    EXPECT_EQ(DWORD(WAIT_TIMEOUT), ::WaitForSingleObject(thread->m_hThread, 50));
    EXPECT_EQ(3, value);
    Running running(thread);
    EXPECT_EQ(9u, running.Join());
}

TEST(WinThread, AThreadMayEndItself)
{
    CWinThread* const thread = AfxBeginThread(&EndEarly, nullptr, THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    Running running(thread);
    EXPECT_EQ(31u, running.Join());
}

TEST(WinThread, PostedMessagesPassTheFilterThenTheMap)
{
    g_id = 0;
    g_sum = 0;
    g_filtered = 0;
    CWinThread* const thread = AfxBeginThread(RUNTIME_CLASS(Worker), THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    Running running(thread);
    ASSERT_TRUE(WaitUntil(g_id));
    EXPECT_TRUE(thread->PostThreadMessage(WM_ADD, 5, 0));
    EXPECT_TRUE(thread->PostThreadMessage(WM_HANDLED, 20, 3));
    EXPECT_TRUE(thread->PostThreadMessage(WM_QUIT, 17, 0));
    EXPECT_EQ(17u, running.Join());
    EXPECT_EQ(5, g_filtered);
    EXPECT_EQ(23, g_sum);
}

TEST(WinThread, ARefusedStartStillEndsProperly)
{
    g_exits = 0;
    Running running(AfxBeginThread(RUNTIME_CLASS(Refusing), THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED));
    running.Join();
    EXPECT_EQ(1, g_exits);
}

TEST(WinThread, AnObjectDeletesItselfAtTheEnd)
{
    g_id = 0;
    g_deleted = 0;
    CWinThread* const thread = AfxBeginThread(RUNTIME_CLASS(Worker), THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    HANDLE handle = nullptr;
    ::DuplicateHandle(::GetCurrentProcess(), thread->m_hThread, ::GetCurrentProcess(), &handle, 0, FALSE,
                      DUPLICATE_SAME_ACCESS);
    thread->ResumeThread();
    ASSERT_TRUE(WaitUntil(g_id));
    ::PostThreadMessage(g_id, WM_QUIT, 0, 0);
    EXPECT_EQ(DWORD(WAIT_OBJECT_0), ::WaitForSingleObject(handle, TimeOut));
    ::CloseHandle(handle);
    EXPECT_EQ(1, g_deleted);
}

TEST(WinThread, TheProgramsOwnThreadIsTheProgram)
{
    EXPECT_EQ(static_cast<CWinThread*>(AfxGetApp()), AfxGetThread());
}
