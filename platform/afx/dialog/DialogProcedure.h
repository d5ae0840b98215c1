// The procedure behind the class of every dialog and property page: it only brings WM_INITDIALOG to the object, which
// handles all the rest.
#pragma once

#include <windows.h>

INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
