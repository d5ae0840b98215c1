#include "afx/gdi/GdiObject.h"

#include "afx/core/Resources.h"
#include "afx/core/Exceptions.h"
#include "afx/gdi/DC.h"
#include "afx/gdi/GdiMaps.h"
#include "afx/gdi/ScreenDC.h"

IMPLEMENT_DYNCREATE(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CPalette, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

namespace
{
constexpr int g_tenthsOfPointPerInch = 720;

void ThrowUnless(BOOL made)
{
    if (!made)
        AfxThrowResourceException();
}
} // namespace

CGdiObject::CGdiObject() : m_hObject(NULL) {}

CGdiObject::~CGdiObject()
{
    DeleteObject();
}

HGDIOBJ CGdiObject::GetSafeHandle() const
{
    return this == NULL ? NULL : m_hObject;
}

CGdiObject* PASCAL CGdiObject::FromHandle(HGDIOBJ handle)
{
    return AfxGdiObjectMap().FromHandle(handle);
}

void PASCAL CGdiObject::DeleteTempMap()
{
    AfxDeleteTempGdiMaps();
}

BOOL CGdiObject::Attach(HGDIOBJ handle)
{
    if (handle == NULL)
        return FALSE;
    m_hObject = handle;
    AfxGdiObjectMap().SetPermanent(handle, this);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach()
{
    const HGDIOBJ handle = m_hObject;
    if (handle != NULL)
        AfxGdiObjectMap().RemoveHandle(handle);
    m_hObject = NULL;
    return handle;
}

BOOL CGdiObject::DeleteObject()
{
    return m_hObject != NULL && ::DeleteObject(Detach());
}

BOOL CGdiObject::CreateStockObject(int index)
{
    m_hObject = ::GetStockObject(index);
    return m_hObject != NULL;
}

CPen::CPen() {}

CPen::CPen(int style, int width, COLORREF color)
{
    ThrowUnless(CreatePen(style, width, color));
}

CPen::CPen(int style, int width, const LOGBRUSH* brush, int styleCount, const DWORD* styles)
{
    ThrowUnless(CreatePen(style, width, brush, styleCount, styles));
}

BOOL CPen::CreatePen(int style, int width, const LOGBRUSH* brush, int styleCount, const DWORD* styles)
{
    return Attach(::ExtCreatePen(style, width, brush, styleCount, styles));
}

CBrush::CBrush() {}

CBrush::CBrush(COLORREF color)
{
    ThrowUnless(CreateSolidBrush(color));
}

CBrush::CBrush(int hatch, COLORREF color)
{
    ThrowUnless(CreateHatchBrush(hatch, color));
}

CBrush::CBrush(CBitmap* bitmap)
{
    ThrowUnless(CreatePatternBrush(bitmap));
}

BOOL CBrush::CreatePatternBrush(CBitmap* bitmap)
{
    return Attach(::CreatePatternBrush(*bitmap));
}

CFont::CFont() {}

BOOL CFont::CreateFont(int height, int width, int escapement, int orientation, int weight, BYTE italic, BYTE underline,
                       BYTE strikeOut, BYTE charSet, BYTE outPrecision, BYTE clipPrecision, BYTE quality,
                       BYTE pitchAndFamily, LPCTSTR faceName)
{
    return Attach(::CreateFontW(height, width, escapement, orientation, weight, italic, underline, strikeOut, charSet,
                                outPrecision, clipPrecision, quality, pitchAndFamily, faceName));
}

BOOL CFont::CreatePointFont(int tenthsOfPoint, LPCTSTR faceName, CDC* dc)
{
    LOGFONT font = {};
    font.lfHeight = tenthsOfPoint;
    font.lfCharSet = DEFAULT_CHARSET;
    ::lstrcpynW(font.lfFaceName, faceName, LF_FACESIZE);
    return CreatePointFontIndirect(&font, dc);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* font, CDC* dc)
{
    const CScreenDC screen;
    const HDC attributes = dc != NULL ? dc->m_hAttribDC : screen.Get();
    LOGFONT scaled = *font;
    POINT size = {0, ::MulDiv(::GetDeviceCaps(attributes, LOGPIXELSY), scaled.lfHeight, g_tenthsOfPointPerInch)};
    POINT origin = {0, 0};
    ::DPtoLP(attributes, &size, 1);
    ::DPtoLP(attributes, &origin, 1);
    scaled.lfHeight = -abs(size.y - origin.y);
    return CreateFontIndirect(&scaled);
}

CBitmap::CBitmap() {}

BOOL CBitmap::LoadBitmap(LPCTSTR resourceName)
{
    return Attach(::LoadBitmapW(AfxFindResourceHandle(resourceName, RT_BITMAP), resourceName));
}

BOOL CBitmap::LoadMappedBitmap(UINT resourceId, UINT flags, LPCOLORMAP map, int mapSize)
{
    const HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCE(resourceId), RT_BITMAP);
    return Attach(::CreateMappedBitmap(module, resourceId, flags, map, mapSize));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* dc, int width, int height)
{
    return Attach(::CreateCompatibleBitmap(dc->m_hDC, width, height));
}

CSize CBitmap::GetBitmapDimension() const
{
    SIZE size = {};
    ::GetBitmapDimensionEx(*this, &size);
    return size;
}

CSize CBitmap::SetBitmapDimension(int width, int height)
{
    SIZE previous = {};
    ::SetBitmapDimensionEx(*this, width, height, &previous);
    return previous;
}

CPalette::CPalette() {}

int CPalette::GetEntryCount()
{
    WORD count = 0;
    ::GetObjectW(m_hObject, sizeof(count), &count);
    return count;
}

CRgn::CRgn() {}
