#include "list/CellKeys.h"

namespace
{

// The next editable column in a direction; where the header ends, the column behind it.
int NextColumn(const CellGrid& grid, int column, int step)
{
    do
        column += step;
    while (column >= 0 && column < grid.columns && !IsEditableColumn(*grid.fixedColumns, column));
    return column;
}

bool IsInside(const CellGrid& grid, int row, int column)
{
    return row >= 0 && row < grid.rows && column >= 0 && column < grid.columns;
}

bool StayInRow(const CellGrid& grid, const CellPlace& from, int step, CellPlace& target)
{
    target.row = from.row;
    target.column = NextColumn(grid, from.column, step);
    return IsInside(grid, target.row, target.column);
}

bool StayInColumn(const CellGrid& grid, const CellPlace& from, int step, CellPlace& target)
{
    target.row = from.row + step;
    target.column = from.column;
    return target.row >= 0 && target.row < grid.rows;
}

// The next row begins with column 0 even where that is never edited: the owner opens no editor there.
bool GoOn(const CellGrid& grid, const CellPlace& from, CellPlace& target)
{
    if (StayInRow(grid, from, 1, target))
        return true;
    target.row = from.row + 1;
    target.column = 0;
    return IsInside(grid, target.row, target.column);
}

} // namespace

bool IsEditableColumn(const CArray<int, int>& fixedColumns, int column)
{
    for (INT_PTR i = 0; i < fixedColumns.GetSize(); ++i)
    {
        if (fixedColumns[i] == column)
            return false;
    }
    return true;
}

bool IsStartKey(UINT key)
{
    return key == VK_SPACE || key == VK_RETURN;
}

bool FindKeyTarget(const CellKey& key, bool isComboBox, const CellGrid& grid, const CellPlace& from, CellPlace& target)
{
    const bool isCombosOwn = isComboBox && (key.shift || key.ctrl);
    switch (key.key)
    {
    case VK_UP:
        return !isCombosOwn && StayInColumn(grid, from, -1, target);
    case VK_DOWN:
        return !isCombosOwn && StayInColumn(grid, from, 1, target);
    case VK_LEFT:
        return key.ctrl && StayInRow(grid, from, -1, target);
    case VK_RIGHT:
        return key.ctrl && StayInRow(grid, from, 1, target);
    case VK_RETURN:
        return GoOn(grid, from, target);
    default:
        return false;
    }
}
