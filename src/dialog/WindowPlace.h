// The stored place of a window: which stored values are used. Free of windows and files.
#pragma once

#include <afxwin.h>

// Whether a window may be put at a stored position: a screen of this size (pixels) must show enough of it to be caught
// with the mouse. What was never stored reads as -1 and is no place.
bool IsPlaceOnScreen(CPoint place, CSize screen);

// The size that a stored size gives: never larger than the screen.
CSize SizeOnScreen(CSize stored, CSize screen);
