// Where and when the check window shows itself. Points and rectangles are screen coordinates in pixels.
#pragma once

#include <afxwin.h>

// Whether the cursor left the surroundings of a point: more than ten pixels away from it, in a straight line.
bool HasCursorLeft(CPoint cursor, CPoint reference);

// The upper left corner of a window that stands with it at the cursor now: a little right of and below the cursor; left
// of it where the window would cross the right edge of the screen; above it where it would come near the lower edge.
CPoint PlaceBesideCursor(CPoint cursor, const CRect& window, CSize screen);

// Whether a hit test names one of the borders that size a window.
bool IsSizingBorder(LRESULT hit);
