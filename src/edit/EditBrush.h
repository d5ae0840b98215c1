// The six brushes of a validating edit; several verdicts share one.
#pragma once

#include "edit/SuperEditTypes.h"

enum EditBrush
{
    BRUSH_EMPTY,
    BRUSH_VALID,
    BRUSH_ERROR,
    BRUSH_WARNING,
    BRUSH_CUSTOM1,
    BRUSH_CUSTOM2,
    BRUSH_COUNT
};

// The brush that a kind sets and shows; BRUSH_COUNT for what is no kind.
EditBrush BrushOfKind(VVEbrush kind);

// The colour of a brush before the owner chooses another.
COLORREF DefaultColour(EditBrush brush);
