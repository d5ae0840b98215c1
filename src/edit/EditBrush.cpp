#include "edit/EditBrush.h"

namespace
{

const COLORREF kErrorColour = RGB(255, 0, 0);
const COLORREF kWarningColour = RGB(255, 255, 128);
const COLORREF kCustom1Colour = RGB(255, 196, 196);
const COLORREF kCustom2Colour = RGB(190, 190, 255);

} // namespace

EditBrush BrushOfKind(VVEbrush kind)
{
    switch (kind)
    {
    case VVB_EMPTY_INVALID:
    case VVB_EMPTY:
        return BRUSH_EMPTY;
    case VVB_VALID:
        return BRUSH_VALID;
    case VVB_INVALID:
    case VVB_BELOW_MIN:
    case VVB_ABOVE_MAX:
        return BRUSH_ERROR;
    case VVB_INCOMPLETE:
    case VVB_TOO_SHORT:
    case VVB_TOO_LONG:
    case VVB_TYPE_RANGE:
        return BRUSH_WARNING;
    case VVB_CUSTOM1:
        return BRUSH_CUSTOM1;
    case VVB_CUSTOM2:
        return BRUSH_CUSTOM2;
    default:
        return BRUSH_COUNT;
    }
}

COLORREF DefaultColour(EditBrush brush)
{
    switch (brush)
    {
    case BRUSH_ERROR:
        return kErrorColour;
    case BRUSH_WARNING:
        return kWarningColour;
    case BRUSH_CUSTOM1:
        return kCustom1Colour;
    case BRUSH_CUSTOM2:
        return kCustom2Colour;
    default:
        return ::GetSysColor(COLOR_WINDOW);
    }
}
