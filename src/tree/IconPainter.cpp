#include "tree/IconPainter.h"

namespace
{

const COLORREF kGround = 0xFFFFFF;

// 0 by 0 where the handle is no icon.
CSize SizeOf(HICON icon)
{
    ICONINFO info = {};
    if (icon == NULL || !::GetIconInfo(icon, &info))
        return CSize(0, 0);
    BITMAP bitmap = {};
    // A black and white icon has both of its halves in the mask, one above the other.
    const bool colored = info.hbmColor != NULL;
    ::GetObject(colored ? info.hbmColor : info.hbmMask, sizeof(bitmap), &bitmap);
    if (colored)
        ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
    return CSize(bitmap.bmWidth, colored ? bitmap.bmHeight : bitmap.bmHeight / 2);
}

} // namespace

int PaintIcon(CDC& dc, HICON icon, CPoint place)
{
    const CSize size = SizeOf(icon);
    if (size.cx <= 0 || size.cy <= 0)
        return 0;
    CBrush ground(kGround);
    const CRect area(place, size);
    dc.FillRect(&area, &ground);
    dc.DrawState(place, size, icon, DST_ICON, static_cast<HBRUSH>(NULL));
    return size.cx;
}

int PaintImage(CDC& dc, const CImageList* images, int index, CPoint place)
{
    const HIMAGELIST list = images == NULL ? NULL : images->GetSafeHandle();
    if (list == NULL || index < 0 || index >= ::ImageList_GetImageCount(list))
        return 0;
    const HICON icon = ::ImageList_GetIcon(list, index, ILD_NORMAL);
    const int width = PaintIcon(dc, icon, place);
    if (icon != NULL)
        ::DestroyIcon(icon);
    return width;
}
