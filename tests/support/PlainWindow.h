// A visible top-level window of the calling thread without anything in it, for tests that need one to stand over, own
// or cover something.
#pragma once

#include <windows.h>

class PlainWindow
{
public:
    explicit PlainWindow(const RECT& rect, HWND owner = NULL)
        : m_window(::CreateWindowExW(0, L"STATIC", L"plain", WS_POPUP | WS_VISIBLE, rect.left, rect.top,
                                     rect.right - rect.left, rect.bottom - rect.top, owner, NULL, NULL, NULL))
    {
    }
    ~PlainWindow() { Destroy(); }
    PlainWindow(const PlainWindow&) = delete;
    PlainWindow& operator=(const PlainWindow&) = delete;

    HWND Handle() const { return m_window; }

    void Destroy()
    {
        if (m_window != NULL)
            ::DestroyWindow(m_window);
        m_window = NULL;
    }

private:
    HWND m_window;
};
