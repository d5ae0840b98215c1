#include "WindowCount.h"

#include <windows.h>

namespace
{

BOOL CALLBACK CountWindow(HWND, LPARAM count)
{
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

BOOL CALLBACK CountWithChildren(HWND window, LPARAM count)
{
    CountWindow(window, count);
    ::EnumChildWindows(window, &CountWindow, count);
    return TRUE;
}

} // namespace

int CountWindows()
{
    int count = 0;
    ::EnumThreadWindows(::GetCurrentThreadId(), &CountWithChildren, reinterpret_cast<LPARAM>(&count));
    return count;
}
