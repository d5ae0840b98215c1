#include "base/Gradient.h"

namespace
{

// A corner's channels have 16 bits, of which a colour gives the upper eight.
COLOR16 Channel(BYTE value)
{
    return static_cast<COLOR16>(value << 8);
}

TRIVERTEX Corner(int x, int y, COLORREF color)
{
    TRIVERTEX corner;
    corner.x = x;
    corner.y = y;
    corner.Red = Channel(GetRValue(color));
    corner.Green = Channel(GetGValue(color));
    corner.Blue = Channel(GetBValue(color));
    corner.Alpha = 0;
    return corner;
}

} // namespace

void FillGradient(CDC& dc, const CRect& rect, COLORREF from, COLORREF to, GradientDirection direction)
{
    if (rect.left >= rect.right || rect.top >= rect.bottom)
        return;
    TRIVERTEX corners[] = {Corner(rect.left, rect.top, from), Corner(rect.right, rect.bottom, to)};
    GRADIENT_RECT area = {0, 1};
    const ULONG mode = direction == GRADIENT_RIGHT ? GRADIENT_FILL_RECT_H : GRADIENT_FILL_RECT_V;
    ::GradientFill(dc.GetSafeHdc(), corners, 2, &area, 1, mode);
}
