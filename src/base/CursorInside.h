// Where the mouse is, seen from a window.
#pragma once

#include <afxwin.h>

// Whether the cursor is inside the window's rectangle on the screen (caption and borders included).
// A window that does not exist contains nothing.
bool IsCursorInside(const CWnd& wnd);
