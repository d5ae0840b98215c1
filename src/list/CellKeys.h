// Which cell a key leads to in a list that is edited in place. No window is needed.
//
// A key that an input method consumes arrives as VK_PROCESSKEY, whatever key it is: it is in none of these tables, so
// that an Enter that only takes over a composition ends no edit, and arrows in its list of candidates move nothing.
#pragma once

#include <afxwin.h>
#include <afxtempl.h>

struct CellPlace
{
    int row;
    int column;
};

struct CellKey
{
    UINT key; // VK_...
    bool shift;
    bool ctrl;
};

struct CellGrid
{
    int rows;
    int columns;                          // 0 in a list without a header
    const CArray<int, int>* fixedColumns; // those that are never edited
};

// Whether a column may be edited: it is not among the fixed ones. Columns that do not exist may.
bool IsEditableColumn(const CArray<int, int>& fixedColumns, int column);

// Whether the key opens an editor when there is none.
bool IsStartKey(UINT key);

// Where a key leads from the cell that is being edited; false when the key is the editor's. A combo box keeps its keys
// while Shift or Ctrl is held, but for Left, Right and Enter.
bool FindKeyTarget(const CellKey& key, bool isComboBox, const CellGrid& grid, const CellPlace& from, CellPlace& target);
