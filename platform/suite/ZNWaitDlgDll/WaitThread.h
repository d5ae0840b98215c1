// The thread that the wait dialog's window lives on.
#pragma once

#include "suite/ZNWaitDlgDll/WaitState.h"

class WaitThread
{
public:
    // Starts the thread. Should the system refuse it there is no window, and nobody cancels.
    WaitThread();
    // Closes the window and waits for the thread.
    ~WaitThread();
    WaitThread(const WaitThread&) = delete;
    WaitThread& operator=(const WaitThread&) = delete;

    wait::State& State() { return m_state; }
    const wait::State& State() const { return m_state; }

private:
    static DWORD WINAPI Start(void* self);
    void Run();
    void Pump();

    wait::State m_state;
    const HANDLE m_closing; // event, set when the window has to go
    const HANDLE m_thread;
};
