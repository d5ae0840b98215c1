// Where the tip of a button stands. Plain arithmetic on pixels of the screen.
#pragma once

#include <afxwin.h>

enum ButtonTipSide
{
    BUTTON_TIP_LEFT = 0,
    BUTTON_TIP_RIGHT = 1,
    BUTTON_TIP_ABOVE = 2,
    BUTTON_TIP_BELOW = 3
};

// The left upper corner of a tip of that size on that side of the button; any other side is above. Where the side has
// no room the tip goes to the opposite one. A tip at the right stays there until its left edge leaves the screen.
CPoint PlaceButtonTip(int side, const CRect& button, CSize tip, CSize screen);
