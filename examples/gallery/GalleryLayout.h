// Where the controls of the gallery's window lie when it is resized. No window.
#pragma once

#include <atltypes.h>

// What a control does when the window grows; combined with |.
enum GalleryAnchor
{
    GALLERY_STAY = 0,
    GALLERY_GROW_WIDTH = 1,
    GALLERY_GROW_HEIGHT = 2,
    GALLERY_MOVE_DOWN = 4
};

// The place of a control that had the place `initial` before the window grew.
CRect AnchoredRect(const CRect& initial, int anchor, CSize growth);
