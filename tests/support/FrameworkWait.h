// Waits for a condition while messages are dispatched as a program of the framework does: windows see them in
// PreTranslateMessage first.
//
//   EXPECT_TRUE(WaitThroughFramework([&] { return tip.IsWindowVisible() != FALSE; }));
#pragma once

#include <afxwin.h>

#include "Wait.h"

// False when the time-out (milliseconds) passed first.
template<class CONDITION>
bool WaitThroughFramework(CONDITION condition, DWORD timeout = 5000)
{
    return WaitFor(
        [&condition] {
            MSG message;
            while (::PeekMessageW(&message, NULL, 0, 0, PM_NOREMOVE))
                AfxGetThread()->PumpMessage();
            return condition();
        },
        timeout);
}
