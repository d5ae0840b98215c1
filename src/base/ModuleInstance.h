// The module's own instance handle: where its dialogs, icons and bitmaps are found.
#pragma once

#include <afxwin.h>

// Set when the module is attached to the process.
extern HINSTANCE _hdllInstance;
