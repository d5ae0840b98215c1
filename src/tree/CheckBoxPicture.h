// How the check box of each check value looks. No window is needed.
#pragma once

#include <afxwin.h>

const int kCheckBoxPixels = 16;
const COLORREF kCheckBoxMask = 0xFFFFFF; // transparent in the tree

// Draws the box of a check value in the square of kCheckBoxPixels at (0, 0): the empty box, the checked, the grey
// checked and the disabled one for STATE_UNCHECKED to STATE_DISABLED, a black square for any other value.
void DrawCheckBox(CDC& dc, int value);
