// The order of windows of one parent, from the top to the bottom.
#pragma once

#include <windows.h>

inline bool IsAbove(HWND upper, HWND lower)
{
    HWND at = upper;
    while (at != NULL && at != lower)
        at = ::GetWindow(at, GW_HWNDNEXT);
    return at == lower && upper != lower;
}
