#include "msg/MsgImages.h"

#include "base/ModuleInstance.h"

namespace
{

const COLORREF kTransparent = RGB(255, 255, 255);

} // namespace

void LoadImageStrip(CImageList& images, UINT bitmapId, int pixels)
{
    CBitmap strip;
    strip.Attach(static_cast<HBITMAP>(
        ::LoadImage(_hdllInstance, MAKEINTRESOURCE(bitmapId), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
    images.Create(pixels, pixels, ILC_COLOR24 | ILC_MASK, 0, 1);
    images.Add(&strip, kTransparent);
}
