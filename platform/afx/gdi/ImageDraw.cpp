// How a CImage is drawn.
#include "afx/gdi/Image.h"

namespace
{

class ImageDC
{
public:
    explicit ImageDC(const CImage& image) : m_image(image), m_dc(image.GetDC()) {}
    ~ImageDC() { m_image.ReleaseDC(); }
    ImageDC(const ImageDC&) = delete;
    ImageDC& operator=(const ImageDC&) = delete;

    operator HDC() const { return m_dc; }

private:
    const CImage& m_image;
    HDC m_dc;
};

CSize SizeOf(const RECT& rect)
{
    return CSize(rect.right - rect.left, rect.bottom - rect.top);
}

} // namespace

BOOL CImage::Draw(HDC dc, const RECT& rect, const RECT& source) const
{
    const CSize size = SizeOf(rect);
    const CSize sourceSize = SizeOf(source);
    return Draw(dc, rect.left, rect.top, size.cx, size.cy, source.left, source.top, sourceSize.cx, sourceSize.cy);
}

BOOL CImage::Draw(HDC dc, int x, int y, int width, int height, int xSource, int ySource, int sourceWidth,
                  int sourceHeight) const
{
    if (m_transparentColor >= 0 && IsIndexed())
        return TransparentBlt(dc, x, y, width, height, xSource, ySource, sourceWidth, sourceHeight);
    if (m_hasAlpha)
        return AlphaBlend(dc, x, y, width, height, xSource, ySource, sourceWidth, sourceHeight);
    return StretchBlt(dc, x, y, width, height, xSource, ySource, sourceWidth, sourceHeight);
}

BOOL CImage::BitBlt(HDC dc, int x, int y, int width, int height, int xSource, int ySource, DWORD rop) const
{
    return !IsNull() && ::BitBlt(dc, x, y, width, height, ImageDC(*this), xSource, ySource, rop);
}

BOOL CImage::StretchBlt(HDC dc, const RECT& rect, const RECT& source, DWORD rop) const
{
    const CSize size = SizeOf(rect);
    const CSize sourceSize = SizeOf(source);
    return StretchBlt(dc, rect.left, rect.top, size.cx, size.cy, source.left, source.top, sourceSize.cx, sourceSize.cy,
                      rop);
}

BOOL CImage::StretchBlt(HDC dc, int x, int y, int width, int height, int xSource, int ySource, int sourceWidth,
                        int sourceHeight, DWORD rop) const
{
    return !IsNull() &&
           ::StretchBlt(dc, x, y, width, height, ImageDC(*this), xSource, ySource, sourceWidth, sourceHeight, rop);
}

BOOL CImage::AlphaBlend(HDC dc, const RECT& rect, const RECT& source, BYTE alpha, BYTE operation) const
{
    const CSize size = SizeOf(rect);
    const CSize sourceSize = SizeOf(source);
    return AlphaBlend(dc, rect.left, rect.top, size.cx, size.cy, source.left, source.top, sourceSize.cx, sourceSize.cy,
                      alpha, operation);
}

BOOL CImage::AlphaBlend(HDC dc, int x, int y, int width, int height, int xSource, int ySource, int sourceWidth,
                        int sourceHeight, BYTE alpha, BYTE operation) const
{
    const BLENDFUNCTION blend = {operation, 0, alpha, static_cast<BYTE>(m_hasAlpha ? AC_SRC_ALPHA : 0)};
    return !IsNull() &&
           ::GdiAlphaBlend(dc, x, y, width, height, ImageDC(*this), xSource, ySource, sourceWidth, sourceHeight, blend);
}

BOOL CImage::TransparentBlt(HDC dc, const RECT& rect, const RECT& source, UINT transparent) const
{
    const CSize size = SizeOf(rect);
    const CSize sourceSize = SizeOf(source);
    return TransparentBlt(dc, rect.left, rect.top, size.cx, size.cy, source.left, source.top, sourceSize.cx,
                          sourceSize.cy, transparent);
}

BOOL CImage::TransparentBlt(HDC dc, int x, int y, int width, int height, int xSource, int ySource, int sourceWidth,
                            int sourceHeight, UINT transparent) const
{
    const UINT color = transparent == CLR_INVALID ? TransparentRgb() : transparent;
    return !IsNull() && ::GdiTransparentBlt(dc, x, y, width, height, ImageDC(*this), xSource, ySource, sourceWidth,
                                            sourceHeight, color);
}
