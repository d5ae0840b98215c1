// Image lists from the module's bitmap strips.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>

// Fills `images` with the square pictures of the strip: 24-bit colours with a mask, white is transparent.
void LoadImageStrip(CImageList& images, UINT bitmapId, int pixels);
