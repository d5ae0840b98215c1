// CButton: push button, check box, radio button or group box.
#pragma once

#include "afx/wnd/Wnd.h"

class AFX_API CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)

public:
    virtual BOOL Create(LPCTSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    UINT GetState() const { return static_cast<UINT>(::SendMessage(m_hWnd, BM_GETSTATE, 0, 0)); }
    void SetState(BOOL highlight) { ::SendMessage(m_hWnd, BM_SETSTATE, highlight, 0); }
    int GetCheck() const { return static_cast<int>(::SendMessage(m_hWnd, BM_GETCHECK, 0, 0)); }
    void SetCheck(int check) { ::SendMessage(m_hWnd, BM_SETCHECK, check, 0); }
    UINT GetButtonStyle() const { return static_cast<UINT>(GetStyle() & 0xffff); }
    void SetButtonStyle(UINT style, BOOL redraw = TRUE) { ::SendMessage(m_hWnd, BM_SETSTYLE, style, redraw); }

    // Each setter returns the previous handle and takes no ownership.
    HICON SetIcon(HICON icon) { return static_cast<HICON>(SetImage(IMAGE_ICON, icon)); }
    HICON GetIcon() const { return static_cast<HICON>(GetImage(IMAGE_ICON)); }
    HBITMAP SetBitmap(HBITMAP bitmap) { return static_cast<HBITMAP>(SetImage(IMAGE_BITMAP, bitmap)); }
    HBITMAP GetBitmap() const { return static_cast<HBITMAP>(GetImage(IMAGE_BITMAP)); }
    HCURSOR SetCursor(HCURSOR cursor) { return static_cast<HCURSOR>(SetImage(IMAGE_CURSOR, cursor)); }
    HCURSOR GetCursor() { return static_cast<HCURSOR>(GetImage(IMAGE_CURSOR)); }

    // For BS_OWNERDRAW. The message reaches it through the parent, which must be a window of this framework.
    virtual void DrawItem(LPDRAWITEMSTRUCT drawItem);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

private:
    HANDLE SetImage(int kind, HANDLE image)
    {
        return reinterpret_cast<HANDLE>(::SendMessage(m_hWnd, BM_SETIMAGE, kind, LPARAM(image)));
    }
    HANDLE GetImage(int kind) const { return reinterpret_cast<HANDLE>(::SendMessage(m_hWnd, BM_GETIMAGE, kind, 0)); }
};
