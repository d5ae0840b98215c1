// Who has the focus: the command line, or a modeless window that wants to keep it.
#pragma once

#include <windows.h>

namespace arxhost
{

// Whether the window with the focus lets the host take it: no dialog above it answers WM_ACAD_KEEPFOCUS with TRUE, and
// no palette or dock bar refuses. True also when no window of this thread has the focus.
bool CanTakeFocusFrom(HWND focus);

} // namespace arxhost
