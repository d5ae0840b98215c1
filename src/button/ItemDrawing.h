// The image and the text of an item, as the button's face and the menu's entries show them: normal or disabled.
#pragma once

#include <afxwin.h>

struct ItemImage
{
    HICON icon;
    HBITMAP bitmap; // shown where there is no icon
    CSize size;     // pixels; 0 by 0 where there is neither
};

// Takes the icon, or else the bitmap; what is no icon and no bitmap counts as null.
ItemImage FindItemImage(HICON icon, HBITMAP bitmap);

bool HasImage(const ItemImage& image);

void DrawItemImage(CDC& dc, const CPoint& at, const ItemImage& image, bool disabled);

// In the context's font and text colour, without a background. An "&" is drawn like any other character, because it is
// measured like one.
CSize MeasureItemText(CDC& dc, const CString& text);
void DrawItemText(CDC& dc, const CPoint& at, const CSize& size, const CString& text, bool disabled);
