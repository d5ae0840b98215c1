// Paints a slide.
#pragma once

#include "Slide.h"

namespace Tevrin
{
// The largest rectangle of the slide's aspect ratio in the middle of `area`; empty for an empty area or slide.
ZNQFC_API RECT SlidePlace(const RECT& area, const Slide& slide);

// The colour of an index of the palette on a background: 0 is the background itself, and 7, the foreground, is black on
// a light one.
ZNQFC_API COLORREF SlideColor(int index, COLORREF background);

// Fills the area with the background and draws the slide in its place there, lines one pixel wide. The first and the
// last dots of the slide are the outermost pixels of the place; what lies outside of them is cut off. What is selected
// in the device context stays as it was.
ZNQFC_API void PaintSlide(HDC dc, const RECT& area, const Slide& slide, COLORREF background);
} // namespace Tevrin
