// CGdiObject and its kinds: owners of GDI handles.
//
//   CFont font;
//   font.CreatePointFont(90, L"Tahoma");      // deleted with the object
//   CBrush* gray = CBrush::FromHandle(static_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH)));   // temporary: valid until
//   the next idle time
//
// An object made by FromHandle() never owns its handle. The destructor of any other deletes the handle; a handle that
// is still selected into a device context is not deleted by Windows, so select it out first.
#pragma once

#include "afx/core/Geometry.h"
#include "afx/core/Object.h"

#include <commctrl.h>

class CBitmap;
class CDC;
class CString;

class AFX_API CGdiObject : public CObject
{
    DECLARE_DYNCREATE(CGdiObject)
public:
    HGDIOBJ m_hObject;

    CGdiObject();
    virtual ~CGdiObject();

    operator HGDIOBJ() const { return m_hObject; }
    // Null-safe: a null pointer has the null handle.
    HGDIOBJ GetSafeHandle() const;

    static CGdiObject* PASCAL FromHandle(HGDIOBJ handle);
    static void PASCAL DeleteTempMap();

    // Takes the handle over; FALSE for a null handle.
    BOOL Attach(HGDIOBJ handle);
    // Gives the handle up without deleting it.
    HGDIOBJ Detach();
    BOOL DeleteObject();

    int GetObject(int size, LPVOID object) const { return ::GetObjectW(m_hObject, size, object); }
    UINT GetObjectType() const { return ::GetObjectType(m_hObject); }
    BOOL CreateStockObject(int index);
    BOOL UnrealizeObject() { return ::UnrealizeObject(m_hObject); }

    BOOL operator==(const CGdiObject& other) const { return m_hObject == other.m_hObject; }
    BOOL operator!=(const CGdiObject& other) const { return m_hObject != other.m_hObject; }
};

class AFX_API CPen : public CGdiObject
{
    DECLARE_DYNAMIC(CPen)
public:
    CPen();
    // Throw a resource exception when Windows can't make the pen.
    CPen(int style, int width, COLORREF color);
    CPen(int style, int width, const LOGBRUSH* brush, int styleCount = 0, const DWORD* styles = NULL);

    operator HPEN() const { return static_cast<HPEN>(m_hObject); }
    static CPen* PASCAL FromHandle(HPEN pen) { return static_cast<CPen*>(CGdiObject::FromHandle(pen)); }

    BOOL CreatePen(int style, int width, COLORREF color) { return Attach(::CreatePen(style, width, color)); }
    BOOL CreatePen(int style, int width, const LOGBRUSH* brush, int styleCount = 0, const DWORD* styles = NULL);
    BOOL CreatePenIndirect(LPLOGPEN pen) { return Attach(::CreatePenIndirect(pen)); }
    int GetLogPen(LOGPEN* pen) { return ::GetObjectW(m_hObject, sizeof(LOGPEN), pen); }
    int GetExtLogPen(EXTLOGPEN* pen) { return ::GetObjectW(m_hObject, sizeof(EXTLOGPEN), pen); }
};

class AFX_API CBrush : public CGdiObject
{
    DECLARE_DYNAMIC(CBrush)
public:
    CBrush();
    // Throw a resource exception when Windows can't make the brush.
    explicit CBrush(COLORREF color);
    CBrush(int hatch, COLORREF color);
    explicit CBrush(CBitmap* bitmap);

    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }
    static CBrush* PASCAL FromHandle(HBRUSH brush) { return static_cast<CBrush*>(CGdiObject::FromHandle(brush)); }

    BOOL CreateSolidBrush(COLORREF color) { return Attach(::CreateSolidBrush(color)); }
    BOOL CreateHatchBrush(int hatch, COLORREF color) { return Attach(::CreateHatchBrush(hatch, color)); }
    BOOL CreateBrushIndirect(const LOGBRUSH* brush) { return Attach(::CreateBrushIndirect(brush)); }
    BOOL CreatePatternBrush(CBitmap* bitmap);
    BOOL CreateSysColorBrush(int index) { return Attach(::GetSysColorBrush(index)); }
    int GetLogBrush(LOGBRUSH* brush) { return ::GetObjectW(m_hObject, sizeof(LOGBRUSH), brush); }
};

class AFX_API CFont : public CGdiObject
{
    DECLARE_DYNAMIC(CFont)
public:
    CFont();

    operator HFONT() const { return static_cast<HFONT>(m_hObject); }
    static CFont* PASCAL FromHandle(HFONT font) { return static_cast<CFont*>(CGdiObject::FromHandle(font)); }

    BOOL CreateFontIndirect(const LOGFONT* font) { return Attach(::CreateFontIndirectW(font)); }
    BOOL CreateFont(int height, int width, int escapement, int orientation, int weight, BYTE italic, BYTE underline,
                    BYTE strikeOut, BYTE charSet, BYTE outPrecision, BYTE clipPrecision, BYTE quality,
                    BYTE pitchAndFamily, LPCTSTR faceName);
    // The height counts tenths of a point; without a device context the screen's resolution holds.
    BOOL CreatePointFont(int tenthsOfPoint, LPCTSTR faceName, CDC* dc = NULL);
    BOOL CreatePointFontIndirect(const LOGFONT* font, CDC* dc = NULL);
    int GetLogFont(LOGFONT* font) { return ::GetObjectW(m_hObject, sizeof(LOGFONT), font); }
};

class AFX_API CBitmap : public CGdiObject
{
    DECLARE_DYNAMIC(CBitmap)
public:
    CBitmap();

    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }
    static CBitmap* PASCAL FromHandle(HBITMAP bitmap) { return static_cast<CBitmap*>(CGdiObject::FromHandle(bitmap)); }

    // Look the resource up in the chain of resource handles.
    BOOL LoadBitmap(LPCTSTR resourceName);
    BOOL LoadBitmap(UINT resourceId) { return LoadBitmap(MAKEINTRESOURCE(resourceId)); }
    BOOL LoadOEMBitmap(UINT bitmapId) { return Attach(::LoadBitmapW(NULL, MAKEINTRESOURCE(bitmapId))); }
    BOOL LoadMappedBitmap(UINT resourceId, UINT flags = 0, LPCOLORMAP map = NULL, int mapSize = 0);
    BOOL CreateBitmap(int width, int height, UINT planes, UINT bitCount, const void* bits)
    {
        return Attach(::CreateBitmap(width, height, planes, bitCount, bits));
    }
    BOOL CreateCompatibleBitmap(CDC* dc, int width, int height);
    BOOL CreateBitmapIndirect(LPBITMAP bitmap) { return Attach(::CreateBitmapIndirect(bitmap)); }
    int GetBitmap(BITMAP* bitmap) { return ::GetObjectW(m_hObject, sizeof(BITMAP), bitmap); }
    DWORD GetBitmapBits(DWORD size, LPVOID bits) const { return ::GetBitmapBits(*this, size, bits); }
    DWORD SetBitmapBits(DWORD size, const void* bits) { return ::SetBitmapBits(*this, size, bits); }
    CSize GetBitmapDimension() const;
    CSize SetBitmapDimension(int width, int height);
};

class AFX_API CPalette : public CGdiObject
{
    DECLARE_DYNAMIC(CPalette)
public:
    CPalette();

    operator HPALETTE() const { return static_cast<HPALETTE>(m_hObject); }
    static CPalette* PASCAL FromHandle(HPALETTE palette)
    {
        return static_cast<CPalette*>(CGdiObject::FromHandle(palette));
    }

    BOOL CreatePalette(LPLOGPALETTE palette) { return Attach(::CreatePalette(palette)); }
    int GetEntryCount();
    UINT GetPaletteEntries(UINT start, UINT count, LPPALETTEENTRY entries) const
    {
        return ::GetPaletteEntries(*this, start, count, entries);
    }
};

class AFX_API CRgn : public CGdiObject
{
    DECLARE_DYNAMIC(CRgn)
public:
    CRgn();

    operator HRGN() const { return static_cast<HRGN>(m_hObject); }
    static CRgn* PASCAL FromHandle(HRGN region) { return static_cast<CRgn*>(CGdiObject::FromHandle(region)); }

    BOOL CreateRectRgn(int left, int top, int right, int bottom)
    {
        return Attach(::CreateRectRgn(left, top, right, bottom));
    }
    BOOL CreateRectRgnIndirect(LPCRECT rect) { return Attach(::CreateRectRgnIndirect(rect)); }
    BOOL CreateEllipticRgn(int left, int top, int right, int bottom)
    {
        return Attach(::CreateEllipticRgn(left, top, right, bottom));
    }
    BOOL CreatePolygonRgn(const POINT* points, int count, int mode)
    {
        return Attach(::CreatePolygonRgn(points, count, mode));
    }
    BOOL CreateRoundRectRgn(int left, int top, int right, int bottom, int width, int height)
    {
        return Attach(::CreateRoundRectRgn(left, top, right, bottom, width, height));
    }

    void SetRectRgn(LPCRECT rect) { ::SetRectRgn(*this, rect->left, rect->top, rect->right, rect->bottom); }
    int CombineRgn(const CRgn* first, const CRgn* second, int mode)
    {
        return ::CombineRgn(*this, *first, *second, mode);
    }
    int CopyRgn(const CRgn* source) { return ::CombineRgn(*this, *source, NULL, RGN_COPY); }
    BOOL EqualRgn(const CRgn* other) const { return ::EqualRgn(*this, *other); }
    int OffsetRgn(int x, int y) { return ::OffsetRgn(*this, x, y); }
    int GetRgnBox(LPRECT rect) const { return ::GetRgnBox(*this, rect); }
    BOOL PtInRegion(int x, int y) const { return ::PtInRegion(*this, x, y); }
    BOOL PtInRegion(POINT point) const { return ::PtInRegion(*this, point.x, point.y); }
    BOOL RectInRegion(LPCRECT rect) const { return ::RectInRegion(*this, rect); }
};
