// A window that takes no input while a modal dialog runs above it.
#pragma once

#include <windows.h>

class DisabledWindow
{
public:
    explicit DisabledWindow(HWND window) : m_window(IsDisablable(window) ? window : nullptr)
    {
        if (m_window != nullptr)
            ::EnableWindow(m_window, FALSE);
    }
    ~DisabledWindow() { Restore(); }
    DisabledWindow(const DisabledWindow&) = delete;
    DisabledWindow& operator=(const DisabledWindow&) = delete;

    void Restore()
    {
        if (m_window != nullptr)
            ::EnableWindow(m_window, TRUE);
        m_window = nullptr;
    }

private:
    static bool IsDisablable(HWND window)
    {
        return window != nullptr && window != ::GetDesktopWindow() && ::IsWindowEnabled(window);
    }

    HWND m_window;
};
