// The colours of the list's rows, and a cell that shows the colour it names: a swatch with the text beside it.
// No window is needed.
#pragma once

#include <afxwin.h>
#include <dbcolor.h>

struct ColorCellState
{
    bool listEnabled;
    bool rowSelected;
    bool listFocused;
};

// What lies behind the texts of a row: rows take turns.
COLORREF RowBackground(int row);

// What a colour cell is filled with.
COLORREF ColorCellBackground(const ColorCellState& state);

// White for colours that are no colour by themselves, such as by layer.
COLORREF SwatchColor(const AcCmColor& color);

// A square at the left of the cell.
CRect SwatchRect(const CRect& cell);

// What the swatch leaves for the text; empty in a cell that is too narrow.
CRect ColorTextRect(const CRect& cell);

// Fills the cell and draws the framed swatch.
void DrawColorCell(CDC& dc, const CRect& cell, COLORREF background, COLORREF swatch);
