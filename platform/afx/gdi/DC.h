// CDC: a device context and its functions; CClientDC, CWindowDC, CPaintDC: contexts of a window for the time of a
// block.
//
//   CPaintDC dc(this);                              // BeginPaint ... EndPaint
//   CFont* previous = dc.SelectObject(&m_font);     // objects selected in must be selected out before they end
//   dc.DrawText(text, &rect, DT_SINGLELINE | DT_VCENTER);
//   dc.SelectObject(previous);
//
// Output goes to m_hDC, questions about attributes to m_hAttribDC; both are the same handle unless a print preview
// splits them. Coordinates are logical units of the context. The destructor deletes a context that the object owns
// (CreateDC, CreateCompatibleDC, Attach).
#pragma once

#include "afx/core/String.h"
#include "afx/gdi/GdiObject.h"

class CWnd;

class AFX_API CDC : public CObject
{
    DECLARE_DYNCREATE(CDC)
public:
    HDC m_hDC;
    HDC m_hAttribDC;

    CDC();
    virtual ~CDC();

    operator HDC() const { return m_hDC; }
    // Null-safe: a null pointer has the null handle.
    HDC GetSafeHdc() const;
    static CDC* PASCAL FromHandle(HDC handle);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HDC handle);
    HDC Detach();
    virtual void SetAttribDC(HDC handle) { m_hAttribDC = handle; }
    virtual void SetOutputDC(HDC handle);
    virtual void ReleaseAttribDC() { m_hAttribDC = NULL; }
    virtual void ReleaseOutputDC();
    CWnd* GetWindow() const;

    BOOL CreateDC(LPCTSTR driver, LPCTSTR device, LPCTSTR output, const void* initData);
    BOOL CreateIC(LPCTSTR driver, LPCTSTR device, LPCTSTR output, const void* initData);
    BOOL CreateCompatibleDC(CDC* dc);
    BOOL DeleteDC();

    virtual int SaveDC() { return ::SaveDC(m_hDC); }
    virtual BOOL RestoreDC(int saved) { return ::RestoreDC(m_hDC, saved); }
    int GetDeviceCaps(int index) const { return ::GetDeviceCaps(m_hAttribDC, index); }
    BOOL IsPrinting() const { return FALSE; }

    // Each returns the object that was selected before, temporary unless its owner is known.
    virtual CGdiObject* SelectStockObject(int index);
    CPen* SelectObject(CPen* pen) { return static_cast<CPen*>(Select(pen)); }
    CBrush* SelectObject(CBrush* brush) { return static_cast<CBrush*>(Select(brush)); }
    virtual CFont* SelectObject(CFont* font) { return static_cast<CFont*>(Select(font)); }
    CBitmap* SelectObject(CBitmap* bitmap) { return static_cast<CBitmap*>(Select(bitmap)); }
    // The result is the region's complexity (COMPLEXREGION ...), not a previous object.
    int SelectObject(CRgn* region) { return ::SelectClipRgn(m_hDC, static_cast<HRGN>(region->GetSafeHandle())); }
    CGdiObject* SelectObject(CGdiObject* object) { return Select(object); }
    CPalette* SelectPalette(CPalette* palette, BOOL forceBackground);
    UINT RealizePalette() { return ::RealizePalette(m_hDC); }
    CPen* GetCurrentPen() const { return CPen::FromHandle(static_cast<HPEN>(::GetCurrentObject(m_hDC, OBJ_PEN))); }
    CBrush* GetCurrentBrush() const
    {
        return CBrush::FromHandle(static_cast<HBRUSH>(::GetCurrentObject(m_hDC, OBJ_BRUSH)));
    }
    CFont* GetCurrentFont() const { return CFont::FromHandle(static_cast<HFONT>(::GetCurrentObject(m_hDC, OBJ_FONT))); }
    CBitmap* GetCurrentBitmap() const
    {
        return CBitmap::FromHandle(static_cast<HBITMAP>(::GetCurrentObject(m_hDC, OBJ_BITMAP)));
    }

    COLORREF GetTextColor() const { return ::GetTextColor(m_hAttribDC); }
    virtual COLORREF SetTextColor(COLORREF color) { return ::SetTextColor(m_hDC, color); }
    COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
    virtual COLORREF SetBkColor(COLORREF color) { return ::SetBkColor(m_hDC, color); }
    int GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
    int SetBkMode(int mode) { return ::SetBkMode(m_hDC, mode); }
    int GetROP2() const { return ::GetROP2(m_hAttribDC); }
    int SetROP2(int mode) { return ::SetROP2(m_hDC, mode); }
    int GetPolyFillMode() const { return ::GetPolyFillMode(m_hAttribDC); }
    int SetPolyFillMode(int mode) { return ::SetPolyFillMode(m_hDC, mode); }
    int GetStretchBltMode() const { return ::GetStretchBltMode(m_hAttribDC); }
    int SetStretchBltMode(int mode) { return ::SetStretchBltMode(m_hDC, mode); }
    UINT GetTextAlign() const { return ::GetTextAlign(m_hAttribDC); }
    UINT SetTextAlign(UINT flags) { return ::SetTextAlign(m_hDC, flags); }
    COLORREF GetNearestColor(COLORREF color) const { return ::GetNearestColor(m_hAttribDC, color); }
    CPoint GetBrushOrg() const;
    CPoint SetBrushOrg(int x, int y);
    CPoint SetBrushOrg(POINT point) { return SetBrushOrg(point.x, point.y); }

    int GetMapMode() const { return ::GetMapMode(m_hAttribDC); }
    virtual int SetMapMode(int mode) { return ::SetMapMode(m_hDC, mode); }
    CPoint GetViewportOrg() const;
    virtual CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
    virtual CPoint OffsetViewportOrg(int x, int y);
    CSize GetViewportExt() const;
    virtual CSize SetViewportExt(int cx, int cy);
    CPoint GetWindowOrg() const;
    CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point) { return SetWindowOrg(point.x, point.y); }
    CSize GetWindowExt() const;
    virtual CSize SetWindowExt(int cx, int cy);
    void DPtoLP(LPPOINT points, int count = 1) const { ::DPtoLP(m_hAttribDC, points, count); }
    void DPtoLP(LPRECT rect) const { ::DPtoLP(m_hAttribDC, reinterpret_cast<LPPOINT>(rect), 2); }
    void LPtoDP(LPPOINT points, int count = 1) const { ::LPtoDP(m_hAttribDC, points, count); }
    void LPtoDP(LPRECT rect) const { ::LPtoDP(m_hAttribDC, reinterpret_cast<LPPOINT>(rect), 2); }

    virtual int GetClipBox(LPRECT rect) const { return ::GetClipBox(m_hAttribDC, rect); }
    virtual BOOL PtVisible(int x, int y) const { return ::PtVisible(m_hDC, x, y); }
    virtual BOOL RectVisible(LPCRECT rect) const { return ::RectVisible(m_hDC, rect); }
    int SelectClipRgn(CRgn* region) { return ::SelectClipRgn(m_hDC, static_cast<HRGN>(region->GetSafeHandle())); }
    int SelectClipRgn(CRgn* region, int mode)
    {
        return ::ExtSelectClipRgn(m_hDC, static_cast<HRGN>(region->GetSafeHandle()), mode);
    }
    int ExcludeClipRect(LPCRECT rect)
    {
        return ::ExcludeClipRect(m_hDC, rect->left, rect->top, rect->right, rect->bottom);
    }
    int ExcludeClipRect(int left, int top, int right, int bottom)
    {
        return ::ExcludeClipRect(m_hDC, left, top, right, bottom);
    }
    int IntersectClipRect(LPCRECT rect)
    {
        return ::IntersectClipRect(m_hDC, rect->left, rect->top, rect->right, rect->bottom);
    }
    int IntersectClipRect(int left, int top, int right, int bottom)
    {
        return ::IntersectClipRect(m_hDC, left, top, right, bottom);
    }

    CPoint GetCurrentPosition() const;
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y) { return ::LineTo(m_hDC, x, y); }
    BOOL LineTo(POINT point) { return ::LineTo(m_hDC, point.x, point.y); }
    BOOL Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
    {
        return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL Polyline(const POINT* points, int count) { return ::Polyline(m_hDC, points, count); }
    BOOL PolyBezier(const POINT* points, int count) { return ::PolyBezier(m_hDC, points, count); }

    void FillRect(LPCRECT rect, CBrush* brush) { ::FillRect(m_hDC, rect, static_cast<HBRUSH>(brush->GetSafeHandle())); }
    void FrameRect(LPCRECT rect, CBrush* brush)
    {
        ::FrameRect(m_hDC, rect, static_cast<HBRUSH>(brush->GetSafeHandle()));
    }
    void InvertRect(LPCRECT rect) { ::InvertRect(m_hDC, rect); }
    // Fills with the color, also on a context that dithers brushes; the background color is changed on the way.
    void FillSolidRect(LPCRECT rect, COLORREF color);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF color);
    void Draw3dRect(LPCRECT rect, COLORREF topLeft, COLORREF bottomRight);
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF topLeft, COLORREF bottomRight);
    void DrawFocusRect(LPCRECT rect) { ::DrawFocusRect(m_hDC, rect); }
    BOOL DrawEdge(LPRECT rect, UINT edge, UINT flags) { return ::DrawEdge(m_hDC, rect, edge, flags); }
    BOOL DrawFrameControl(LPRECT rect, UINT type, UINT state) { return ::DrawFrameControl(m_hDC, rect, type, state); }
    BOOL DrawState(CPoint point, CSize size, HICON icon, UINT flags, HBRUSH brush = NULL);
    BOOL DrawState(CPoint point, CSize size, HBITMAP bitmap, UINT flags, HBRUSH brush = NULL);
    BOOL DrawState(CPoint point, CSize size, LPCTSTR text, UINT flags, BOOL prefixText = TRUE, int textLength = 0,
                   HBRUSH brush = NULL);
    BOOL DrawIcon(int x, int y, HICON icon) { return ::DrawIcon(m_hDC, x, y, icon); }
    BOOL DrawIcon(POINT point, HICON icon) { return ::DrawIcon(m_hDC, point.x, point.y, icon); }

    BOOL Rectangle(int x1, int y1, int x2, int y2) { return ::Rectangle(m_hDC, x1, y1, x2, y2); }
    BOOL Rectangle(LPCRECT rect) { return ::Rectangle(m_hDC, rect->left, rect->top, rect->right, rect->bottom); }
    BOOL RoundRect(LPCRECT rect, POINT ellipse)
    {
        return ::RoundRect(m_hDC, rect->left, rect->top, rect->right, rect->bottom, ellipse.x, ellipse.y);
    }
    BOOL Ellipse(int x1, int y1, int x2, int y2) { return ::Ellipse(m_hDC, x1, y1, x2, y2); }
    BOOL Ellipse(LPCRECT rect) { return ::Ellipse(m_hDC, rect->left, rect->top, rect->right, rect->bottom); }
    BOOL Polygon(const POINT* points, int count) { return ::Polygon(m_hDC, points, count); }
    BOOL PolyPolygon(const POINT* points, const INT* counts, int count)
    {
        return ::PolyPolygon(m_hDC, points, counts, count);
    }
    BOOL FillRgn(CRgn* region, CBrush* brush) { return ::FillRgn(m_hDC, *region, *brush); }

    BOOL PatBlt(int x, int y, int width, int height, DWORD rop) { return ::PatBlt(m_hDC, x, y, width, height, rop); }
    BOOL BitBlt(int x, int y, int width, int height, CDC* source, int xSource, int ySource, DWORD rop)
    {
        return ::BitBlt(m_hDC, x, y, width, height, source->GetSafeHdc(), xSource, ySource, rop);
    }
    BOOL StretchBlt(int x, int y, int width, int height, CDC* source, int xSource, int ySource, int sourceWidth,
                    int sourceHeight, DWORD rop)
    {
        return ::StretchBlt(m_hDC, x, y, width, height, source->GetSafeHdc(), xSource, ySource, sourceWidth,
                            sourceHeight, rop);
    }
    BOOL TransparentBlt(int x, int y, int width, int height, CDC* source, int xSource, int ySource, int sourceWidth,
                        int sourceHeight, UINT transparent)
    {
        return ::TransparentBlt(m_hDC, x, y, width, height, source->GetSafeHdc(), xSource, ySource, sourceWidth,
                                sourceHeight, transparent);
    }
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    COLORREF GetPixel(POINT point) const { return ::GetPixel(m_hDC, point.x, point.y); }
    COLORREF SetPixel(int x, int y, COLORREF color) { return ::SetPixel(m_hDC, x, y, color); }
    COLORREF SetPixel(POINT point, COLORREF color) { return ::SetPixel(m_hDC, point.x, point.y, color); }
    BOOL SetPixelV(int x, int y, COLORREF color) { return ::SetPixelV(m_hDC, x, y, color); }

    virtual BOOL TextOut(int x, int y, LPCTSTR text, int count) { return ::TextOutW(m_hDC, x, y, text, count); }
    BOOL TextOut(int x, int y, const CString& text) { return TextOut(x, y, text, text.GetLength()); }
    virtual BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rect, LPCTSTR text, UINT count, LPINT widths)
    {
        return ::ExtTextOutW(m_hDC, x, y, options, rect, text, count, widths);
    }
    BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rect, const CString& text, LPINT widths)
    {
        return ExtTextOut(x, y, options, rect, text, static_cast<UINT>(text.GetLength()), widths);
    }
    virtual int DrawText(LPCTSTR text, int count, LPRECT rect, UINT format)
    {
        return ::DrawTextW(m_hDC, text, count, rect, format);
    }
    // DT_MODIFYSTRING works on a copy: the string stays as it is.
    int DrawText(const CString& text, LPRECT rect, UINT format);
    virtual int DrawTextEx(LPTSTR text, int count, LPRECT rect, UINT format, LPDRAWTEXTPARAMS parameters)
    {
        return ::DrawTextExW(m_hDC, text, count, rect, format, parameters);
    }
    CSize GetTextExtent(LPCTSTR text, int count) const;
    CSize GetTextExtent(const CString& text) const { return GetTextExtent(text, text.GetLength()); }
    CSize GetOutputTextExtent(LPCTSTR text, int count) const { return GetTextExtent(text, count); }
    CSize GetTabbedTextExtent(LPCTSTR text, int count, int tabCount, const INT* tabs) const;
    BOOL GetTextExtentExPoint(LPCTSTR text, int count, int maxExtent, LPINT fitting, LPINT extents, LPSIZE size) const
    {
        return ::GetTextExtentExPointW(m_hAttribDC, text, count, maxExtent, fitting, extents, size);
    }
    BOOL GetTextMetrics(LPTEXTMETRIC metrics) const { return ::GetTextMetricsW(m_hAttribDC, metrics); }
    int GetTextFace(CString& face) const;
    BOOL GetCharWidth(UINT first, UINT last, LPINT widths) const
    {
        return ::GetCharWidth32W(m_hAttribDC, first, last, widths);
    }

private:
    CGdiObject* Select(CGdiObject* object);
};

// The client area of a window, or the screen for a null window. Throws a resource exception without a context.
class AFX_API CClientDC : public CDC
{
    DECLARE_DYNAMIC(CClientDC)
public:
    explicit CClientDC(CWnd* window);
    virtual ~CClientDC();

protected:
    HWND m_hWnd;
};

// The whole window with its frame, in coordinates from the window's own corner.
class AFX_API CWindowDC : public CDC
{
    DECLARE_DYNAMIC(CWindowDC)
public:
    explicit CWindowDC(CWnd* window);
    virtual ~CWindowDC();

protected:
    HWND m_hWnd;
};

// WM_PAINT: BeginPaint in the constructor, EndPaint in the destructor.
class AFX_API CPaintDC : public CDC
{
    DECLARE_DYNAMIC(CPaintDC)
public:
    PAINTSTRUCT m_ps;

    explicit CPaintDC(CWnd* window);
    virtual ~CPaintDC();

protected:
    HWND m_hWnd;
};
