// CImage: a picture as a device-independent bitmap, read from and written to BMP, GIF, JPEG, PNG and TIFF files.
//
//   CImage image;
//   if (SUCCEEDED(image.Load(L"plan.png")))
//       image.Draw(dc, client);
//   image.Destroy();
//
// An object owns its bitmap. Coordinates are pixels from the upper left corner. Colours of a picture with an alpha
// channel are multiplied by it (what AlphaBlend expects).
//
// GDI+ is started by the first Load or Save of the process and shut down with the last CImage object. A global object
// ends too late for that, while its module is unloaded: whoever has one calls ReleaseGDIPlus before.
#pragma once

#include "afx/core/Geometry.h"
#include "afx/core/String.h"

#include <objidl.h>

class AFX_API CImage
{
public:
    static const DWORD createAlphaChannel = 1;

    enum DIBOrientation
    {
        DIBOR_DEFAULT,
        DIBOR_TOPDOWN,
        DIBOR_BOTTOMUP
    };

    CImage();
    virtual ~CImage();

    operator HBITMAP() const { return m_bitmap; }
    bool IsNull() const { return m_bitmap == NULL; }

    // Takes the bitmap over. The pixels of one that is no DIB section can't be reached directly.
    void Attach(HBITMAP bitmap, DIBOrientation orientation = DIBOR_DEFAULT);
    // Gives the bitmap up without deleting it.
    HBITMAP Detach();

    // A new picture of 1, 4, 8, 16, 24 or 32 bits a pixel, black; a negative height makes the top row the first one in
    // memory. createAlphaChannel needs 32 bits.
    BOOL Create(int width, int height, int bitsPerPixel, DWORD flags = 0);
    void Destroy();

    // A result that failed leaves the picture as it was. The file is closed again afterwards.
    HRESULT Load(LPCTSTR fileName);
    HRESULT Load(IStream* stream);
    // A resource of the type BITMAP; the picture is null afterwards when there is none.
    void LoadFromResource(HINSTANCE instance, LPCTSTR resourceName);
    void LoadFromResource(HINSTANCE instance, UINT resourceId)
    {
        LoadFromResource(instance, MAKEINTRESOURCE(resourceId));
    }
    // The type is one of the formats of GDI+ (ImageFormatPNG ...); without it the name's extension decides, and a name
    // without extension means BMP.
    HRESULT Save(LPCTSTR fileName, REFGUID fileType = GUID_NULL) const;
    HRESULT Save(IStream* stream, REFGUID fileType) const;

    int GetWidth() const { return m_width; }
    int GetHeight() const { return m_height; }
    int GetBPP() const { return m_bitsPerPixel; }
    // Bytes from a row to the one below it; negative for a picture that lies bottom row first.
    int GetPitch() const { return m_pitch; }
    // The first pixel of the top row; null for a bitmap that is no DIB section.
    void* GetBits() { return m_bits; }
    const void* GetBits() const { return m_bits; }
    bool IsDIBSection() const { return m_bits != NULL; }
    bool IsIndexed() const { return IsDIBSection() && m_bitsPerPixel <= 8; }

    // A colour that is not drawn, as an index of the colour table; -1 for none. Results: the previous one.
    LONG GetTransparentColor() const { return m_transparentColor; }
    LONG SetTransparentColor(LONG index);
    int GetMaxColorTableEntries() const { return IsIndexed() ? 1 << m_bitsPerPixel : 0; }
    void GetColorTable(UINT first, UINT count, RGBQUAD* colors) const;
    void SetColorTable(UINT first, UINT count, const RGBQUAD* colors);

    COLORREF GetPixel(int x, int y) const;
    void SetPixel(int x, int y, COLORREF color);

    // A device context with the picture selected; each GetDC needs its ReleaseDC.
    HDC GetDC() const;
    void ReleaseDC() const;

    // Draws like StretchBlt, but leaves the transparent colour out and blends by the alpha channel.
    BOOL Draw(HDC dc, int x, int y) const { return Draw(dc, x, y, m_width, m_height); }
    BOOL Draw(HDC dc, const POINT& point) const { return Draw(dc, point.x, point.y); }
    BOOL Draw(HDC dc, const RECT& rect) const
    {
        return Draw(dc, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top);
    }
    BOOL Draw(HDC dc, int x, int y, int width, int height) const
    {
        return Draw(dc, x, y, width, height, 0, 0, m_width, m_height);
    }
    BOOL Draw(HDC dc, const RECT& rect, const RECT& source) const;
    BOOL Draw(HDC dc, int x, int y, int width, int height, int xSource, int ySource, int sourceWidth,
              int sourceHeight) const;

    BOOL BitBlt(HDC dc, int x, int y, DWORD rop = SRCCOPY) const
    {
        return BitBlt(dc, x, y, m_width, m_height, 0, 0, rop);
    }
    BOOL BitBlt(HDC dc, const POINT& point, DWORD rop = SRCCOPY) const { return BitBlt(dc, point.x, point.y, rop); }
    BOOL BitBlt(HDC dc, const RECT& rect, const POINT& source, DWORD rop = SRCCOPY) const
    {
        return BitBlt(dc, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, source.x, source.y, rop);
    }
    BOOL BitBlt(HDC dc, int x, int y, int width, int height, int xSource, int ySource, DWORD rop = SRCCOPY) const;

    // In the stretch mode of the device context.
    BOOL StretchBlt(HDC dc, int x, int y, int width, int height, DWORD rop = SRCCOPY) const
    {
        return StretchBlt(dc, x, y, width, height, 0, 0, m_width, m_height, rop);
    }
    BOOL StretchBlt(HDC dc, const RECT& rect, DWORD rop = SRCCOPY) const
    {
        return StretchBlt(dc, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, rop);
    }
    BOOL StretchBlt(HDC dc, const RECT& rect, const RECT& source, DWORD rop = SRCCOPY) const;
    BOOL StretchBlt(HDC dc, int x, int y, int width, int height, int xSource, int ySource, int sourceWidth,
                    int sourceHeight, DWORD rop = SRCCOPY) const;

    BOOL AlphaBlend(HDC dc, int x, int y, BYTE alpha = 0xff, BYTE operation = AC_SRC_OVER) const
    {
        return AlphaBlend(dc, x, y, m_width, m_height, 0, 0, m_width, m_height, alpha, operation);
    }
    BOOL AlphaBlend(HDC dc, const POINT& point, BYTE alpha = 0xff, BYTE operation = AC_SRC_OVER) const
    {
        return AlphaBlend(dc, point.x, point.y, alpha, operation);
    }
    BOOL AlphaBlend(HDC dc, const RECT& rect, const RECT& source, BYTE alpha = 0xff,
                    BYTE operation = AC_SRC_OVER) const;
    BOOL AlphaBlend(HDC dc, int x, int y, int width, int height, int xSource, int ySource, int sourceWidth,
                    int sourceHeight, BYTE alpha = 0xff, BYTE operation = AC_SRC_OVER) const;

    // Without a colour the picture's transparent colour is left out.
    BOOL TransparentBlt(HDC dc, int x, int y, int width, int height, UINT transparent = CLR_INVALID) const
    {
        return TransparentBlt(dc, x, y, width, height, 0, 0, m_width, m_height, transparent);
    }
    BOOL TransparentBlt(HDC dc, const RECT& rect, UINT transparent = CLR_INVALID) const
    {
        return TransparentBlt(dc, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, transparent);
    }
    BOOL TransparentBlt(HDC dc, const RECT& rect, const RECT& source, UINT transparent = CLR_INVALID) const;
    BOOL TransparentBlt(HDC dc, int x, int y, int width, int height, int xSource, int ySource, int sourceWidth,
                        int sourceHeight, UINT transparent = CLR_INVALID) const;

    // Shuts GDI+ down; a later Load or Save starts it anew.
    static void ReleaseGDIPlus();

private:
    CImage(const CImage&);
    CImage& operator=(const CImage&);

    void Take(CImage& other);
    COLORREF TransparentRgb() const;

    HBITMAP m_bitmap;
    void* m_bits; // of the top row
    int m_width;
    int m_height;
    int m_pitch;
    int m_bitsPerPixel;
    bool m_hasAlpha;
    LONG m_transparentColor;
    mutable HDC m_dc;
    mutable int m_dcUsers;
    mutable HGDIOBJ m_formerBitmap;
};
