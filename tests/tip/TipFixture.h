// A window of an owner, and what tests of tips and display controls need to look at windows.
#pragma once

#include <afxwin.h>

#include <gtest/gtest.h>

#include "DibCanvas.h"
#include "RealMouse.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

class OwnerWindow : public CWnd
{
public:
    explicit OwnerWindow(const CRect& place = CRect(100, 300, 500, 600))
    {
        const CString name = AfxRegisterWndClass(0, ::LoadCursor(NULL, IDC_ARROW), ::GetSysColorBrush(COLOR_BTNFACE));
        CreateEx(WS_EX_TOOLWINDOW, name, L"owner", WS_POPUP | WS_VISIBLE, place, NULL, 0);
    }

    ~OwnerWindow() override { DestroyWindow(); }

    // Called for every notification that a child did not handle.
    std::function<void(NMHDR&)> onNotify;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        const BOOL handled = CWnd::OnNotify(wParam, lParam, result);
        if (onNotify)
            onNotify(*reinterpret_cast<NMHDR*>(lParam));
        return handled;
    }
};

inline CRect ScreenRect(HWND window)
{
    CRect rect(0, 0, 0, 0);
    ::GetWindowRect(window, &rect);
    return rect;
}

// What a window shows, taken off the screen.
inline std::unique_ptr<DibCanvas> Picture(HWND window)
{
    CRect client(0, 0, 0, 0);
    ::GetClientRect(window, &client);
    std::unique_ptr<DibCanvas> canvas(new DibCanvas(client.Width(), client.Height(), RGB(1, 2, 3)));
    ::UpdateWindow(window);
    const HDC dc = ::GetDC(window);
    ::BitBlt(canvas->Dc(), 0, 0, client.Width(), client.Height(), dc, 0, 0, SRCCOPY);
    ::ReleaseDC(window, dc);
    return canvas;
}

// The highest index that is reached in the table of user objects (windows, hooks, menus) when more objects are made
// than the table has gaps: it grows by at least one for each object that is left behind.
inline int UserObjectMark()
{
    const int more = 512;
    std::vector<HMENU> probes;
    int highest = 0;
    for (int i = 0; i < more; ++i)
    {
        probes.push_back(::CreateMenu());
        highest = std::max<int>(highest, LOWORD(reinterpret_cast<UINT_PTR>(probes.back())));
    }
    for (const HMENU probe : probes)
        ::DestroyMenu(probe);
    return highest;
}
