#include "list/EditorPlace.h"

#include <algorithm>

namespace
{

const double kButtonWidthByHeight = 1.5;
const int kDropDownPixels = 150;
const int kLowestPickerPixels = 17;

} // namespace

CRect ButtonPlace(const CRect& cell)
{
    CRect button(cell);
    button.left = button.right - static_cast<int>(cell.Height() * kButtonWidthByHeight);
    return button;
}

CRect EditBesideButton(const CRect& cell)
{
    CRect edit(cell);
    edit.right = std::max(cell.left, ButtonPlace(cell).left);
    return edit;
}

CRect ComboBoxPlace(const CRect& cell)
{
    return CRect(cell.left, cell.top, cell.right, cell.top + kDropDownPixels);
}

CRect DatePickerPlace(const CRect& cell)
{
    CRect picker(cell);
    picker.bottom = std::max(picker.bottom, picker.top + kLowestPickerPixels);
    return picker;
}
