// Waits for a condition while the thread's messages are dispatched: instead of a fixed sleep.
//
//   ASSERT_TRUE(WaitFor([&] { return list.GetItemCount() == 3; }));
#pragma once

#include <windows.h>

// False when the time-out (milliseconds) passed first.
template<class CONDITION>
bool WaitFor(CONDITION condition, DWORD timeout = 5000)
{
    const DWORD start = ::GetTickCount();
    while (!condition())
    {
        const DWORD elapsed = ::GetTickCount() - start;
        if (elapsed > timeout)
            return false;
        // A short slice, because a condition may become true without a message.
        constexpr DWORD slice = 10;
        ::MsgWaitForMultipleObjects(0, NULL, FALSE, slice, QS_ALLINPUT);
        MSG message;
        while (::PeekMessageW(&message, NULL, 0, 0, PM_REMOVE))
        {
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
    }
    return true;
}
