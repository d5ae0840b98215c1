// A flat button in an owner window that counts its clicks and hands its drawing down, as every framework window does.
#pragma once

#include <afxwin.h>

#include <gtest/gtest.h>

#include "DibCanvas.h"
#include "msg/MyButton.h"
#include "platform/xtp/TestIcon.h"

// A bitmap of the screen's format with the picture; the caller deletes it.
inline HBITMAP MakeBitmap(const DibCanvas& picture)
{
    const HDC screen = ::GetDC(NULL);
    const HBITMAP bitmap = ::CreateCompatibleBitmap(screen, picture.Width(), picture.Height());
    const HDC dc = ::CreateCompatibleDC(screen);
    const HGDIOBJ former = ::SelectObject(dc, bitmap);
    ::BitBlt(dc, 0, 0, picture.Width(), picture.Height(), picture.Dc(), 0, 0, SRCCOPY);
    ::SelectObject(dc, former);
    ::DeleteDC(dc);
    ::ReleaseDC(NULL, screen);
    return bitmap;
}

class ButtonOwner : public CWnd
{
public:
    static constexpr int kButtonId = 9;

    ButtonOwner()
    {
        const CString wndClass = AfxRegisterWndClass(0, ::LoadCursor(NULL, IDC_ARROW));
        CreateEx(0, wndClass, L"owner", WS_POPUP | WS_VISIBLE, CRect(100, 100, 300, 250), NULL, 0);
    }

    ~ButtonOwner() override { DestroyWindow(); }

    int clicks = 0;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        clicks += wParam == MAKEWPARAM(kButtonId, BN_CLICKED);
        return CWnd::OnCommand(wParam, lParam);
    }
};

class MyButtonFixture : public testing::Test
{
protected:
    static constexpr int kWidth = 40;
    static constexpr int kHeight = 24;

    void Create(DWORD style, const wchar_t* caption = L"")
    {
        m_button.Create(caption, WS_CHILD | style, CRect(20, 20, 20 + kWidth, 20 + kHeight), &m_owner,
                        ButtonOwner::kButtonId);
        m_button.UpdateWindow();
    }

    // Draws the button in a state (ODS_ bits) the way its parent is asked to.
    void Draw(UINT state)
    {
        DRAWITEMSTRUCT item = {};
        item.CtlType = ODT_BUTTON;
        item.CtlID = ButtonOwner::kButtonId;
        item.itemState = state;
        item.hwndItem = m_button.m_hWnd;
        item.hDC = m_canvas.Dc();
        m_button.GetClientRect(&item.rcItem);
        m_owner.SendMessage(WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item));
    }

    // What the window shows on the screen.
    COLORREF OnScreen(int x, int y) const
    {
        const HDC dc = ::GetDC(m_button.m_hWnd);
        const COLORREF color = ::GetPixel(dc, x, y);
        ::ReleaseDC(m_button.m_hWnd, dc);
        return color;
    }

    // The frame on the screen, by its upper left corner and a point of the lower edge.
    bool ShowsFrame(int topLeft, int bottomRight) const
    {
        return OnScreen(5, 0) == ::GetSysColor(topLeft) && OnScreen(5, kHeight - 1) == ::GetSysColor(bottomRight);
    }
    bool ShowsSunken() const { return ShowsFrame(COLOR_3DDKSHADOW, COLOR_3DHILIGHT); }
    bool ShowsRaised() const { return ShowsFrame(COLOR_3DHILIGHT, COLOR_3DSHADOW); }
    bool ShowsFlat() const { return OnScreen(5, 0) == kBackground && OnScreen(5, kHeight - 1) == kBackground; }

    LRESULT MoveTo(int x, int y) { return m_button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(x, y)); }

    static constexpr COLORREF kBackground = RGB(10, 200, 150);

    ButtonOwner m_owner;
    CMyButton m_button;
    DibCanvas m_canvas{kWidth, kHeight, RGB(9, 9, 9)};
};
