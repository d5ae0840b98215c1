#include "afx/gdi/DC.h"

#include "afx/core/Exceptions.h"
#include "afx/gdi/GdiMaps.h"
#include "afx/wnd/Wnd.h"

IMPLEMENT_DYNCREATE(CDC, CObject)

CDC::CDC() : m_hDC(NULL), m_hAttribDC(NULL) {}

CDC::~CDC()
{
    if (m_hDC != NULL)
        ::DeleteDC(Detach());
}

HDC CDC::GetSafeHdc() const
{
    return this == NULL ? NULL : m_hDC;
}

CDC* PASCAL CDC::FromHandle(HDC handle)
{
    return AfxDCMap().FromHandle(handle);
}

void PASCAL CDC::DeleteTempMap()
{
    AfxDeleteTempGdiMaps();
}

BOOL CDC::Attach(HDC handle)
{
    if (handle == NULL)
        return FALSE;
    m_hDC = handle;
    AfxDCMap().SetPermanent(handle, this);
    SetAttribDC(handle);
    return TRUE;
}

HDC CDC::Detach()
{
    const HDC handle = m_hDC;
    if (handle != NULL)
        AfxDCMap().RemoveHandle(handle);
    ReleaseAttribDC();
    m_hDC = NULL;
    return handle;
}

void CDC::SetOutputDC(HDC handle)
{
    if (m_hDC != NULL)
        AfxDCMap().RemoveHandle(m_hDC);
    m_hDC = handle;
    if (handle != NULL)
        AfxDCMap().SetPermanent(handle, this);
}

void CDC::ReleaseOutputDC()
{
    SetOutputDC(NULL);
}

CWnd* CDC::GetWindow() const
{
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

BOOL CDC::CreateDC(LPCTSTR driver, LPCTSTR device, LPCTSTR output, const void* initData)
{
    return Attach(::CreateDCW(driver, device, output, static_cast<const DEVMODE*>(initData)));
}

BOOL CDC::CreateIC(LPCTSTR driver, LPCTSTR device, LPCTSTR output, const void* initData)
{
    return Attach(::CreateICW(driver, device, output, static_cast<const DEVMODE*>(initData)));
}

BOOL CDC::CreateCompatibleDC(CDC* dc)
{
    return Attach(::CreateCompatibleDC(dc->GetSafeHdc()));
}

BOOL CDC::DeleteDC()
{
    return m_hDC != NULL && ::DeleteDC(Detach());
}

CGdiObject* CDC::SelectStockObject(int index)
{
    return CGdiObject::FromHandle(::SelectObject(m_hDC, ::GetStockObject(index)));
}

CGdiObject* CDC::Select(CGdiObject* object)
{
    return CGdiObject::FromHandle(::SelectObject(m_hDC, object->GetSafeHandle()));
}

CPalette* CDC::SelectPalette(CPalette* palette, BOOL forceBackground)
{
    return CPalette::FromHandle(
        ::SelectPalette(m_hDC, static_cast<HPALETTE>(palette->GetSafeHandle()), forceBackground));
}

CPoint CDC::GetBrushOrg() const
{
    POINT point = {};
    ::GetBrushOrgEx(m_hDC, &point);
    return point;
}

CPoint CDC::SetBrushOrg(int x, int y)
{
    POINT previous = {};
    ::SetBrushOrgEx(m_hDC, x, y, &previous);
    return previous;
}

CPoint CDC::GetViewportOrg() const
{
    POINT point = {};
    ::GetViewportOrgEx(m_hAttribDC, &point);
    return point;
}

CPoint CDC::SetViewportOrg(int x, int y)
{
    POINT previous = {};
    ::SetViewportOrgEx(m_hDC, x, y, &previous);
    return previous;
}

CPoint CDC::OffsetViewportOrg(int x, int y)
{
    POINT previous = {};
    ::OffsetViewportOrgEx(m_hDC, x, y, &previous);
    return previous;
}

CSize CDC::GetViewportExt() const
{
    SIZE size = {};
    ::GetViewportExtEx(m_hAttribDC, &size);
    return size;
}

CSize CDC::SetViewportExt(int cx, int cy)
{
    SIZE previous = {};
    ::SetViewportExtEx(m_hDC, cx, cy, &previous);
    return previous;
}

CPoint CDC::GetWindowOrg() const
{
    POINT point = {};
    ::GetWindowOrgEx(m_hAttribDC, &point);
    return point;
}

CPoint CDC::SetWindowOrg(int x, int y)
{
    POINT previous = {};
    ::SetWindowOrgEx(m_hDC, x, y, &previous);
    return previous;
}

CSize CDC::GetWindowExt() const
{
    SIZE size = {};
    ::GetWindowExtEx(m_hAttribDC, &size);
    return size;
}

CSize CDC::SetWindowExt(int cx, int cy)
{
    SIZE previous = {};
    ::SetWindowExtEx(m_hDC, cx, cy, &previous);
    return previous;
}

CPoint CDC::GetCurrentPosition() const
{
    POINT point = {};
    ::GetCurrentPositionEx(m_hAttribDC, &point);
    return point;
}

CPoint CDC::MoveTo(int x, int y)
{
    POINT previous = {};
    ::MoveToEx(m_hDC, x, y, &previous);
    return previous;
}

void CDC::FillSolidRect(LPCRECT rect, COLORREF color)
{
    ::SetBkColor(m_hDC, color);
    // An opaque text output of no text fills without making a brush.
    ::ExtTextOutW(m_hDC, 0, 0, ETO_OPAQUE, rect, NULL, 0, NULL);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF color)
{
    const RECT rect = {x, y, x + cx, y + cy};
    FillSolidRect(&rect, color);
}

void CDC::Draw3dRect(LPCRECT rect, COLORREF topLeft, COLORREF bottomRight)
{
    Draw3dRect(rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, topLeft, bottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF topLeft, COLORREF bottomRight)
{
    FillSolidRect(x, y, cx - 1, 1, topLeft);
    FillSolidRect(x, y, 1, cy - 1, topLeft);
    FillSolidRect(x + cx, y, -1, cy, bottomRight);
    FillSolidRect(x, y + cy, cx, -1, bottomRight);
}

BOOL CDC::DrawState(CPoint point, CSize size, HICON icon, UINT flags, HBRUSH brush)
{
    return ::DrawStateW(m_hDC, brush, NULL, reinterpret_cast<LPARAM>(icon), 0, point.x, point.y, size.cx, size.cy,
                        flags | DST_ICON);
}

BOOL CDC::DrawState(CPoint point, CSize size, HBITMAP bitmap, UINT flags, HBRUSH brush)
{
    return ::DrawStateW(m_hDC, brush, NULL, reinterpret_cast<LPARAM>(bitmap), 0, point.x, point.y, size.cx, size.cy,
                        flags | DST_BITMAP);
}

BOOL CDC::DrawState(CPoint point, CSize size, LPCTSTR text, UINT flags, BOOL prefixText, int textLength, HBRUSH brush)
{
    const UINT kind = prefixText ? DST_PREFIXTEXT : DST_TEXT;
    return ::DrawStateW(m_hDC, brush, NULL, reinterpret_cast<LPARAM>(text), static_cast<WPARAM>(textLength), point.x,
                        point.y, size.cx, size.cy, flags | kind);
}

int CDC::DrawText(const CString& text, LPRECT rect, UINT format)
{
    if ((format & DT_MODIFYSTRING) == 0)
        return DrawText(text, text.GetLength(), rect, format);
    CString copy(text);
    // Windows may add up to four characters: the ellipsis and the terminating zero.
    constexpr int ellipsisRoom = 4;
    const int height =
        ::DrawTextW(m_hDC, copy.GetBuffer(text.GetLength() + ellipsisRoom), text.GetLength(), rect, format);
    copy.ReleaseBuffer();
    return height;
}

CSize CDC::GetTextExtent(LPCTSTR text, int count) const
{
    SIZE size = {};
    ::GetTextExtentPoint32W(m_hAttribDC, text, count, &size);
    return size;
}

CSize CDC::GetTabbedTextExtent(LPCTSTR text, int count, int tabCount, const INT* tabs) const
{
    return CSize(::GetTabbedTextExtentW(m_hAttribDC, text, count, tabCount, tabs));
}

int CDC::GetTextFace(CString& face) const
{
    const int length = ::GetTextFaceW(m_hAttribDC, LF_FACESIZE, face.GetBuffer(LF_FACESIZE));
    face.ReleaseBuffer();
    return length;
}
