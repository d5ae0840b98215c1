// Where the pages of a tab sheet stand. Plain arithmetic.
#pragma once

#include <afxwin.h>

// Below the first tab, in coordinates of the sheet's client area; empty where there is no room.
CRect TabPageRect(const CRect& client, const CRect& firstTab);
