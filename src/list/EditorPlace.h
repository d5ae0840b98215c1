// Where the editors of a cell lie: all from the rectangle of the cell. No window is needed.
#pragma once

#include <afxwin.h>

// The button at the right end of the cell, one and a half times as wide as it is high, and what it leaves for the edit.
CRect ButtonPlace(const CRect& cell);
CRect EditBesideButton(const CRect& cell);

// A combo box is as high as the list that drops down from it.
CRect ComboBoxPlace(const CRect& cell);

// Lower than this, a date picker cannot show its text.
CRect DatePickerPlace(const CRect& cell);
