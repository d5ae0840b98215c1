#include "tip/ButtonTipPlace.h"

#include <algorithm>

namespace
{

const int kGap = 10;

int Centred(int begin, int end, int size)
{
    return (begin + end) / 2 - size / 2;
}

// The near edge wins where there is not enough room.
int Inside(int position, int size, int room)
{
    return std::max(0, std::min(position, room - size));
}

CPoint PlaceBeside(bool left, const CRect& button, CSize tip, CSize screen)
{
    const int leftPlace = button.left - tip.cx - kGap;
    const int rightPlace = button.right + kGap;
    int x = left ? leftPlace : rightPlace;
    if (left && x < 0)
        x = rightPlace;
    // The left edge and not the right one, deliberately.
    if (!left && x > screen.cx)
        x = leftPlace;
    return CPoint(x, Inside(Centred(button.top, button.bottom, tip.cy), tip.cy, screen.cy));
}

CPoint PlaceAboveOrBelow(bool below, const CRect& button, CSize tip, CSize screen)
{
    const int abovePlace = button.top - tip.cy - kGap;
    const int belowPlace = button.bottom + kGap;
    int y = below ? belowPlace : abovePlace;
    if (!below && y < 0)
        y = belowPlace;
    if (below && y + tip.cy > screen.cy)
        y = abovePlace;
    return CPoint(Inside(Centred(button.left, button.right, tip.cx), tip.cx, screen.cx), y);
}

} // namespace

CPoint PlaceButtonTip(int side, const CRect& button, CSize tip, CSize screen)
{
    if (side == BUTTON_TIP_LEFT || side == BUTTON_TIP_RIGHT)
        return PlaceBeside(side == BUTTON_TIP_LEFT, button, tip, screen);
    return PlaceAboveOrBelow(side == BUTTON_TIP_BELOW, button, tip, screen);
}
