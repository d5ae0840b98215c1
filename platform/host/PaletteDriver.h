// What a script does in a palette: finds a control and works it with the messages a user's click would cause.
#pragma once

#include <aduiPaletteSet.h>

#include <string>

namespace arxhost
{

// The palette set to work on: the visible one that was created last, else the one created last; null when there is
// none.
CAdUiPaletteSet* CurrentPaletteSet();

// The first visible descendant with the identifier; null when there is none.
HWND FindControl(HWND root, int id);
// The first visible descendant of the window class (any letter case).
HWND FindControlOfClass(HWND root, const wchar_t* className);

// Presses a button. Returns a message for the user, empty on success: disabled controls are not pressed.
std::wstring PressControl(HWND root, int id);

// Selects the row of the first list view, alone or in addition to the others. Rows count from 1.
std::wstring SelectListRow(HWND root, int row, bool add);
// Double-clicks the row with the left button.
std::wstring DoubleClickListRow(HWND root, int row);
// Selects the first tree item whose text contains `text`.
std::wstring SelectTreeItem(HWND root, const std::wstring& text);

} // namespace arxhost
