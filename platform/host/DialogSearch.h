// Finds what lies over the frame.
#pragma once

#include <afxwin.h>

#include <string>

namespace arxhost
{

// Whether the window is a popup that the frame owns, directly or by way of other popups.
bool IsPopupOf(HWND window, HWND frame);

// The visible dialog with this title among the frame's popups and inside of its dialogs; null when there is none.
HWND FindDialog(HWND frame, const std::wstring& title);

// The popup of the frame that is modal now; null when there is none.
HWND FindModalDialog(HWND frame);

} // namespace arxhost
