#include "dialog/CtrlPlace.h"

#include <limits.h>

namespace
{

int Grown(int flag, double start, int growth, double ratio)
{
    return TruncateToInt(flag == RATIO_NONE ? start : growth * ratio + start);
}

} // namespace

int FlagOfRatio(double ratio)
{
    return ratio == 0.0 ? RATIO_NONE : RATIO_SET;
}

int TruncateToInt(double value)
{
    const bool fits = value > INT_MIN - 1.0 && value < INT_MAX + 1.0; // false for what is no number
    return fits ? static_cast<int>(value) : INT_MIN;
}

CRect PlaceOfControl(const CTRLRESIZEINFO& info, int dx, int dy)
{
    // Right and bottom start from the cut left and top, so that a control that only moves keeps its size.
    CRect place;
    place.left = Grown(info.nLeftFlag, info.dLeft, dx, info.dLeftRatio);
    place.right = Grown(info.nWidthFlag, place.left + info.dWidth, dx, info.dWidthRatio);
    place.top = Grown(info.nTopFlag, info.dTop, dy, info.dTopRatio);
    place.bottom = Grown(info.nHeightFlag, place.top + info.dHeight, dy, info.dHeightRatio);
    return place;
}
