// Tells whether a window was destroyed since the watch began, for code that goes on after others were told something.
// The object of the window may be gone with it, so the watch does not touch it. No window at all is never gone.
#pragma once

#include <afxwin.h>

class CWindowWatch
{
public:
    explicit CWindowWatch(const CWnd& wnd) : m_window(wnd.GetSafeHwnd()) {}

    bool IsGone() const { return m_window != NULL && !::IsWindow(m_window); }

private:
    HWND m_window;
};
