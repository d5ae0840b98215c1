#include "suite/ZNWaitDlgDll/WaitPlace.h"

namespace wait
{
namespace
{
// The foremost of the watched window and the popups that it owns.
HWND ForemostOf(HWND watched, HWND dialog)
{
    for (HWND window = GetTopWindow(nullptr); window != nullptr; window = GetWindow(window, GW_HWNDNEXT))
    {
        if (window == watched)
            break;
        const bool topmost = (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
        if (window != dialog && !topmost && IsWindowVisible(window) && GetWindow(window, GW_OWNER) == watched)
            return window;
    }
    return watched;
}
} // namespace

RECT RectToCover(HWND watched)
{
    RECT rect = {};
    if (!IsWindow(watched) || IsIconic(watched) || !GetWindowRect(watched, &rect))
        SystemParametersInfoW(SPI_GETWORKAREA, 0, &rect, 0);
    return rect;
}

RECT WorkAreaOf(const RECT& rect)
{
    MONITORINFO info = {};
    info.cbSize = sizeof(info);
    GetMonitorInfoW(MonitorFromRect(&rect, MONITOR_DEFAULTTONEAREST), &info);
    return info.rcWork;
}

void RaiseOver(HWND dialog, HWND watched)
{
    if (!IsWindow(watched))
        return;
    const HWND behind = IsWindowEnabled(watched) ? ForemostOf(watched, dialog) : watched;
    const HWND before = GetWindow(behind, GW_HWNDPREV);
    if (before != dialog)
        SetWindowPos(dialog, before == nullptr ? HWND_TOP : before, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}
} // namespace wait
