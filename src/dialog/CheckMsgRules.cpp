#include "dialog/CheckMsgRules.h"

#include <math.h>

namespace
{

const double kNearPixels = 10.0;
const int kBesidePixels = 2;
const int kBottomMarginPixels = 25; // there is none at the right edge

} // namespace

bool HasCursorLeft(CPoint cursor, CPoint reference)
{
    const double dx = static_cast<double>(cursor.x) - reference.x;
    const double dy = static_cast<double>(cursor.y) - reference.y;
    return sqrt(dx * dx + dy * dy) > kNearPixels;
}

CPoint PlaceBesideCursor(CPoint cursor, const CRect& window, CSize screen)
{
    const bool crossesRight = window.right > screen.cx;
    const bool crossesBottom = window.bottom > screen.cy - kBottomMarginPixels;
    return CPoint(crossesRight ? cursor.x - window.Width() : cursor.x + kBesidePixels,
                  crossesBottom ? cursor.y - window.Height() : cursor.y + kBesidePixels);
}

bool IsSizingBorder(LRESULT hit)
{
    return hit >= HTLEFT && hit <= HTBOTTOMRIGHT;
}
