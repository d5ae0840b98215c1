#include "GalleryLayout.h"

CRect AnchoredRect(const CRect& initial, int anchor, CSize growth)
{
    CRect rect = initial;
    if (anchor & GALLERY_MOVE_DOWN)
        rect.OffsetRect(0, growth.cy);
    if (anchor & GALLERY_GROW_WIDTH)
        rect.right += growth.cx;
    if (anchor & GALLERY_GROW_HEIGHT)
        rect.bottom += growth.cy;
    return rect;
}
