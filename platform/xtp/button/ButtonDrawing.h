// The strokes that button themes are made of. Colours and places come from the caller; what is selected into the device
// context stays as it was.
#pragma once

#include "afx/core/Api.h"

namespace xtp
{
void Fill(HDC dc, const RECT& rect, COLORREF color);
// One pixel, inside the rectangle.
void Frame(HDC dc, const RECT& rect, COLORREF topLeft, COLORREF bottomRight);
// From top to bottom.
void FillGradient(HDC dc, const RECT& rect, COLORREF top, COLORREF bottom);

void DrawIcon(HDC dc, const RECT& rect, HICON icon);
// The icon in greys, half faded into what is already there.
void DrawDisabledIcon(HDC dc, const RECT& rect, HICON icon);
} // namespace xtp
