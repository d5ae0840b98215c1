// Where the wait dialog belongs in relation to the watched window. Looks at windows of other threads without sending
// them anything, since those threads may be busy.
#pragma once

#include <windows.h>

namespace wait
{
// The watched window's rectangle on the screen; the work area when there is no such window or it is minimized.
RECT RectToCover(HWND watched);

// The screen that the rectangle is on, without its task bar.
RECT WorkAreaOf(const RECT& rect);

// Puts the dialog in front of the watched window and its popups; while the watched window is disabled, behind its
// popups, one of which is then waiting for an answer.
void RaiseOver(HWND dialog, HWND watched);
} // namespace wait
