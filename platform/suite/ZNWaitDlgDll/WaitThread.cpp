#include "suite/ZNWaitDlgDll/WaitThread.h"

#include "suite/ZNWaitDlgDll/WaitWindow.h"

namespace
{
// An operation that is over by then does not flash a window.
const DWORD kShowDelay = 30; // milliseconds

// Waits for the handle while the messages that other threads send to this one's windows are answered: the dialog's
// thread may stand in one.
void WaitAnswering(HANDLE handle)
{
    while (MsgWaitForMultipleObjects(1, &handle, FALSE, INFINITE, QS_SENDMESSAGE) == WAIT_OBJECT_0 + 1)
    {
        MSG message;
        PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
    }
}
} // namespace

WaitThread::WaitThread()
    : m_closing(CreateEventW(nullptr, TRUE, FALSE, nullptr)),
      m_thread(CreateThread(nullptr, 0, &Start, this, 0, nullptr))
{
}

WaitThread::~WaitThread()
{
    SetEvent(m_closing);
    if (m_thread != nullptr)
    {
        WaitAnswering(m_thread);
        CloseHandle(m_thread);
    }
    CloseHandle(m_closing);
}

DWORD WINAPI WaitThread::Start(void* self)
{
    static_cast<WaitThread*>(self)->Run();
    return 0;
}

void WaitThread::Run()
{
    const ULONGLONG start = GetTickCount64();
    if (WaitForSingleObject(m_closing, kShowDelay) == WAIT_OBJECT_0)
        return;
    WaitWindow window(m_state, start);
    if (window.Create())
        Pump();
}

void WaitThread::Pump()
{
    while (MsgWaitForMultipleObjects(1, &m_closing, FALSE, INFINITE, QS_ALLINPUT) != WAIT_OBJECT_0)
    {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
}
