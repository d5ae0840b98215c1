// A picture of the frame with everything that floats over it.
#pragma once

#include <afxwin.h>

#include <string>

namespace arxhost
{

// Saves the screen area of the frame and of the popups it owns as PNG. Returns a message for the user, empty on
// success.
std::wstring SaveFrameShot(CWnd& frame, const std::wstring& path);

// The same of one dialog alone, see FindDialog().
std::wstring SaveDialogShot(CWnd& frame, const std::wstring& title, const std::wstring& path);

// Saves that part of the screen as it stands; nothing is asked to paint. May be called from any thread.
std::wstring SaveScreenShot(const CRect& area, const std::wstring& path);

// The smallest rectangle of the screen that holds the window and the visible popups it owns.
CRect AreaWithPopups(HWND window);

} // namespace arxhost
