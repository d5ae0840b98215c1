// The font of the host's own surfaces.
#pragma once

#include "arx/Api.h"

#include <windows.h>

namespace arxui
{

// A font with Chinese glyphs, 9 points; it lives as long as the process.
ARX_API HFONT UiFont();
// The same size, every character equally wide: the command line.
ARX_API HFONT FixedFont();

} // namespace arxui
