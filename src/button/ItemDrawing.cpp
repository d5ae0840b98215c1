#include "button/ItemDrawing.h"

#include "base/ImageSize.h"

namespace
{

void DrawPart(CDC& dc, UINT kind, LPARAM data, WPARAM length, const CPoint& at, const CSize& size, bool disabled)
{
    const UINT flags = kind | (disabled ? DSS_DISABLED : DSS_NORMAL);
    ::DrawState(dc.GetSafeHdc(), NULL, NULL, data, length, at.x, at.y, size.cx, size.cy, flags);
}

} // namespace

ItemImage FindItemImage(HICON icon, HBITMAP bitmap)
{
    ItemImage image = {NULL, NULL, CSize(0, 0)};
    if (GetIconSize(icon, image.size))
        image.icon = icon;
    else if (GetBitmapSize(bitmap, image.size))
        image.bitmap = bitmap;
    return image;
}

bool HasImage(const ItemImage& image)
{
    return image.icon != NULL || image.bitmap != NULL;
}

void DrawItemImage(CDC& dc, const CPoint& at, const ItemImage& image, bool disabled)
{
    if (image.icon != NULL)
        DrawPart(dc, DST_ICON, reinterpret_cast<LPARAM>(image.icon), 0, at, image.size, disabled);
    else if (image.bitmap != NULL)
        DrawPart(dc, DST_BITMAP, reinterpret_cast<LPARAM>(image.bitmap), 0, at, image.size, disabled);
}

CSize MeasureItemText(CDC& dc, const CString& text)
{
    CSize size(0, 0);
    ::GetTextExtentPoint32(dc.GetSafeHdc(), text, text.GetLength(), &size);
    return size;
}

void DrawItemText(CDC& dc, const CPoint& at, const CSize& size, const CString& text, bool disabled)
{
    if (text.IsEmpty()) // a length of zero would have the system look for the end of the text itself
        return;
    dc.SetBkMode(TRANSPARENT);
    DrawPart(dc, DST_TEXT, reinterpret_cast<LPARAM>(text.GetString()), text.GetLength(), at, size, disabled);
}
