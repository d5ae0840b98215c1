// Where the icon and the caption of a button stand. Plain arithmetic.
#pragma once

#include "xtp/Api.h"

namespace xtp
{
struct ButtonLayout
{
    RECT icon;
    RECT text;
};

// Both centred in `rect` as one group: side by side, or `stacked` with the icon on top. A size without area stands for
// a part that isn't there; a text too wide for the room that is left is cut to it.
XTP_API ButtonLayout LayOutButton(const RECT& rect, SIZE icon, SIZE text, bool stacked);

// A point moved towards `to` by `percent`.
XTP_API COLORREF BlendColors(COLORREF from, COLORREF to, int percent);

// Brightness as the eye weighs it, 0 to 255.
XTP_API int Luminance(COLORREF color);
} // namespace xtp
