// Draws the text of a label with its markup. No window is needed.
#pragma once

#include <afxwin.h>

// From the origin of the device context to the right as far as its clipping reaches, over what is there already.
// Answers the width of what was drawn. Font and mode of the device context are put back.
int DrawLabel(CDC& dc, const wchar_t* text, HFONT normal);
