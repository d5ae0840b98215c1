// A push button that never takes the focus: the system's own does so at every press, and the focus brings activation,
// of which the busy thread would have to be told.
#pragma once

#include <windows.h>

namespace wait
{
// Makes a window of the class BUTTON quiet. Its parent gets WM_COMMAND with BN_CLICKED as ever.
void MakeQuiet(HWND button);
} // namespace wait
