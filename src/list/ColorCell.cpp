#include "list/ColorCell.h"

#include <ZnQFCBaseU.h>

namespace
{

const COLORREF kWhite = 0xFFFFFF;
const COLORREF kBlack = 0x000000;
const COLORREF kPaleYellow = 0xC8FFFF;
const COLORREF kFocusedSelection = 0xC56A31;
const int kSwatchMargin = 2; // pixels

} // namespace

COLORREF RowBackground(int row)
{
    return row % 2 != 0 ? kPaleYellow : kWhite;
}

COLORREF ColorCellBackground(const ColorCellState& state)
{
    if (state.rowSelected && state.listFocused)
        return kFocusedSelection;
    return state.rowSelected || !state.listEnabled ? ::GetSysColor(COLOR_BTNFACE) : kWhite;
}

COLORREF SwatchColor(const AcCmColor& color)
{
    if (color.isByLayer() || color.isByBlock())
        return kWhite;
    if (color.isByACI())
        return Tevrin::GetRGBFromACI(color.colorIndex());
    return color.isByColor() ? RGB(color.red(), color.green(), color.blue()) : kWhite;
}

CRect SwatchRect(const CRect& cell)
{
    CRect swatch(cell.left + kSwatchMargin, cell.top + kSwatchMargin, 0, cell.bottom - kSwatchMargin);
    swatch.right = swatch.left + swatch.Height();
    return swatch;
}

CRect ColorTextRect(const CRect& cell)
{
    const int left = SwatchRect(cell).right + kSwatchMargin;
    return CRect(left, cell.top, left > cell.right ? left : cell.right, cell.bottom);
}

void DrawColorCell(CDC& dc, const CRect& cell, COLORREF background, COLORREF swatch)
{
    const CRect square = SwatchRect(cell);
    dc.FillSolidRect(&cell, background);
    dc.FillSolidRect(&square, swatch);
    dc.Draw3dRect(&square, kBlack, kBlack);
}
