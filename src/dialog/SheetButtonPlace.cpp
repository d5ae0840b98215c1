#include "dialog/SheetButtonPlace.h"

namespace
{
const int kGap = 6;
}

CRect SheetButtonPlace(const CRect& place, bool showApply)
{
    const int freePlaces = showApply ? 1 : 2;
    CRect moved(place);
    moved.OffsetRect(freePlaces * (place.Width() + kGap), 0);
    return moved;
}
