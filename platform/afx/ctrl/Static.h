// CStatic: a label, frame or picture.
#pragma once

#include "afx/wnd/Wnd.h"

class AFX_API CStatic : public CWnd
{
    DECLARE_DYNAMIC(CStatic)

public:
    virtual BOOL Create(LPCTSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id = 0xffff);

    // Each setter returns the previous handle and takes no ownership.
    HICON SetIcon(HICON icon) { return reinterpret_cast<HICON>(::SendMessage(m_hWnd, STM_SETICON, WPARAM(icon), 0)); }
    HICON GetIcon() const { return reinterpret_cast<HICON>(::SendMessage(m_hWnd, STM_GETICON, 0, 0)); }
    HBITMAP SetBitmap(HBITMAP bitmap) { return static_cast<HBITMAP>(SetImage(IMAGE_BITMAP, bitmap)); }
    HBITMAP GetBitmap() const { return static_cast<HBITMAP>(GetImage(IMAGE_BITMAP)); }
    HCURSOR SetCursor(HCURSOR cursor) { return static_cast<HCURSOR>(SetImage(IMAGE_CURSOR, cursor)); }
    HCURSOR GetCursor() { return static_cast<HCURSOR>(GetImage(IMAGE_CURSOR)); }
    HENHMETAFILE SetEnhMetaFile(HENHMETAFILE file)
    {
        return static_cast<HENHMETAFILE>(SetImage(IMAGE_ENHMETAFILE, file));
    }
    HENHMETAFILE GetEnhMetaFile() const { return static_cast<HENHMETAFILE>(GetImage(IMAGE_ENHMETAFILE)); }

    // For SS_OWNERDRAW.
    virtual void DrawItem(LPDRAWITEMSTRUCT drawItem);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

private:
    HANDLE SetImage(int kind, HANDLE image)
    {
        return reinterpret_cast<HANDLE>(::SendMessage(m_hWnd, STM_SETIMAGE, kind, LPARAM(image)));
    }
    HANDLE GetImage(int kind) const { return reinterpret_cast<HANDLE>(::SendMessage(m_hWnd, STM_GETIMAGE, kind, 0)); }
};
