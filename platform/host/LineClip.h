// Cutting a line to a box, so that a drawing zoomed in far never leaves the range of the graphics coordinates. No
// window.
#pragma once

#include "host/ViewTransform.h"

namespace arxhost
{

// Cuts the line to its part inside the box; false when no part is inside.
bool ClipLine(WorldPoint& from, WorldPoint& to, const WorldBox& box);

} // namespace arxhost
