// Where the buttons of a property sheet without Help stand. Free of windows.
#pragma once

#include <afxwin.h>

// The new place of OK, Cancel or Apply, given its place in a row that ends with Apply and Help: moved to the right over
// the place of Help, and over that of Apply as well when Apply is not shown. A place is as wide as the button itself
// and a gap of 6 pixels. Top and size stay.
CRect SheetButtonPlace(const CRect& place, bool showApply);
