// What the tip windows have in common.
#pragma once

#include <afxwin.h>

// Registers a window class of the default procedure with an arrow cursor, once. Throws a resource exception when that
// fails. The background is the system's.
void RegisterTipClass(const wchar_t* name, UINT style, HBRUSH background);

// The font of all tips in that height in pixels, over the one that the object has.
void CreateTipFont(CFont& font, int height);
