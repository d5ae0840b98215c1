// The bitmap of a CImage: making, taking over, pixels and device context.
#include "afx/gdi/Image.h"

#include "afx/core/Debug.h"
#include "afx/gdi/GdiPlus.h"

#include <limits.h>
#include <stdlib.h>

#include <utility>

namespace
{

const int kAlphaBits = 32;
const LONGLONG kRowAlignment = 4; // bytes
const int kBitsPerByte = 8;
const LONGLONG kBytesLimit = INT_MAX;

bool IsPixelSize(int bits)
{
    return bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
}

LONGLONG RowBytes(LONGLONG width, int bits)
{
    const LONGLONG unit = kRowAlignment * kBitsPerByte;
    return (width * bits + unit - 1) / unit * kRowAlignment;
}

// What a bitmap needs as its description, with room for the colours of an indexed one.
struct DibInfo
{
    BITMAPINFOHEADER header;
    RGBQUAD colors[256];
};

} // namespace

CImage::CImage()
    : m_bitmap(NULL), m_bits(NULL), m_width(0), m_height(0), m_pitch(0), m_bitsPerPixel(0), m_hasAlpha(false),
      m_transparentColor(-1), m_dc(NULL), m_dcUsers(0), m_formerBitmap(NULL)
{
    CGdiPlusSession::Join();
}

CImage::~CImage()
{
    Destroy();
    CGdiPlusSession::Leave();
}

void CImage::Attach(HBITMAP bitmap, DIBOrientation orientation)
{
    if (bitmap != m_bitmap)
        Destroy();
    DIBSECTION section = {};
    const int bytes = ::GetObjectW(bitmap, sizeof(section), &section);
    if (bytes < static_cast<int>(sizeof(BITMAP)))
        return;
    m_bitmap = bitmap;
    m_width = section.dsBm.bmWidth;
    m_height = abs(section.dsBm.bmHeight);
    m_bitsPerPixel = section.dsBm.bmBitsPixel;
    if (bytes != static_cast<int>(sizeof(DIBSECTION)) || section.dsBm.bmBits == NULL)
        return;
    const bool topDown = orientation == DIBOR_TOPDOWN || (orientation == DIBOR_DEFAULT && section.dsBmih.biHeight < 0);
    const int rowBytes = static_cast<int>(RowBytes(m_width, m_bitsPerPixel));
    BYTE* const memory = static_cast<BYTE*>(section.dsBm.bmBits);
    m_pitch = topDown ? rowBytes : -rowBytes;
    m_bits = topDown ? memory : memory + static_cast<ptrdiff_t>(rowBytes) * (m_height - 1);
}

HBITMAP CImage::Detach()
{
    ASSERT(m_dcUsers == 0);
    const HBITMAP bitmap = m_bitmap;
    m_bitmap = NULL;
    m_bits = NULL;
    m_width = m_height = m_pitch = m_bitsPerPixel = 0;
    m_hasAlpha = false;
    m_transparentColor = -1;
    return bitmap;
}

BOOL CImage::Create(int width, int height, int bitsPerPixel, DWORD flags)
{
    const bool alpha = (flags & createAlphaChannel) != 0;
    if (width <= 0 || height == 0 || height == INT_MIN || !IsPixelSize(bitsPerPixel) ||
        (alpha && bitsPerPixel != kAlphaBits) || RowBytes(width, bitsPerPixel) * abs(height) > kBytesLimit)
        return FALSE;
    DibInfo info = {};
    info.header.biSize = sizeof(info.header);
    info.header.biWidth = width;
    info.header.biHeight = height;
    info.header.biPlanes = 1;
    info.header.biBitCount = static_cast<WORD>(bitsPerPixel);
    void* bits = NULL;
    const HBITMAP bitmap =
        ::CreateDIBSection(NULL, reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS, &bits, NULL, 0);
    if (bitmap == NULL)
        return FALSE;
    Attach(bitmap, height < 0 ? DIBOR_TOPDOWN : DIBOR_BOTTOMUP);
    m_hasAlpha = alpha;
    return TRUE;
}

void CImage::Destroy()
{
    if (m_dc != NULL)
    {
        ::SelectObject(m_dc, m_formerBitmap);
        ::DeleteDC(m_dc);
        m_dc = NULL;
        m_dcUsers = 0;
    }
    if (m_bitmap != NULL)
        ::DeleteObject(Detach());
}

void CImage::LoadFromResource(HINSTANCE instance, LPCTSTR resourceName)
{
    Destroy();
    const HANDLE bitmap = ::LoadImageW(instance, resourceName, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION);
    Attach(static_cast<HBITMAP>(bitmap));
}

LONG CImage::SetTransparentColor(LONG index)
{
    return std::exchange(m_transparentColor, index);
}

void CImage::GetColorTable(UINT first, UINT count, RGBQUAD* colors) const
{
    ::GetDIBColorTable(GetDC(), first, count, colors);
    ReleaseDC();
}

void CImage::SetColorTable(UINT first, UINT count, const RGBQUAD* colors)
{
    ::SetDIBColorTable(GetDC(), first, count, colors);
    ReleaseDC();
}

COLORREF CImage::GetPixel(int x, int y) const
{
    const COLORREF color = ::GetPixel(GetDC(), x, y);
    ReleaseDC();
    return color;
}

void CImage::SetPixel(int x, int y, COLORREF color)
{
    ::SetPixelV(GetDC(), x, y, color);
    ReleaseDC();
}

HDC CImage::GetDC() const
{
    if (m_dcUsers++ == 0)
    {
        m_dc = ::CreateCompatibleDC(NULL);
        m_formerBitmap = ::SelectObject(m_dc, m_bitmap);
    }
    return m_dc;
}

void CImage::ReleaseDC() const
{
    ASSERT(m_dcUsers > 0);
    if (m_dcUsers == 0 || --m_dcUsers > 0)
        return;
    ::SelectObject(m_dc, m_formerBitmap);
    ::DeleteDC(m_dc);
    m_dc = NULL;
}

void CImage::ReleaseGDIPlus()
{
    CGdiPlusSession::Stop();
}

void CImage::Take(CImage& other)
{
    const bool topDown = other.m_pitch > 0;
    const bool alpha = other.m_hasAlpha;
    const LONG transparent = other.m_transparentColor;
    Attach(other.Detach(), topDown ? DIBOR_TOPDOWN : DIBOR_BOTTOMUP);
    m_hasAlpha = alpha;
    m_transparentColor = transparent;
}

COLORREF CImage::TransparentRgb() const
{
    if (m_transparentColor < 0 || !IsIndexed())
        return CLR_INVALID;
    RGBQUAD color = {};
    GetColorTable(static_cast<UINT>(m_transparentColor), 1, &color);
    return RGB(color.rgbRed, color.rgbGreen, color.rgbBlue);
}
