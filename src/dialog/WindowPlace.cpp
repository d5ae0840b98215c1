#include "dialog/WindowPlace.h"

#include <algorithm>

namespace
{

// Less of a window than this at the right or at the bottom cannot be caught with the mouse.
const int kShownWidth = 10;
const int kShownHeight = 20;

} // namespace

bool IsPlaceOnScreen(CPoint place, CSize screen)
{
    return place.x >= 0 && place.y >= 0 && place.x <= screen.cx - kShownWidth && place.y <= screen.cy - kShownHeight;
}

CSize SizeOnScreen(CSize stored, CSize screen)
{
    return CSize(std::min(stored.cx, screen.cx), std::min(stored.cy, screen.cy));
}
