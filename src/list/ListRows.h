// Steps that operations on the rows of a list are made of. The owner hears of every change and may delete rows or
// destroy the list meanwhile: whoever changes something answers whether the list still exists.
#pragma once

#include <vector>

#include <afxwin.h>
#include <afxcmn.h>

const UINT kSelectedAndFocused = LVIS_SELECTED | LVIS_FOCUSED;

// How many columns the header has; 0 without one.
int CountColumns(const CListCtrl& list);

// Rows that are selected, lowest index first.
std::vector<int> SelectedRows(const CListCtrl& list);

// Clears the selection and the focus of all other rows, the last one first. Other state bits stay.
bool ClearOtherRows(CListCtrl& list, int row);

// Makes a row the only selected one, with the focus and in full view. The rows change from the last one to the first.
bool SelectOnlyRow(CListCtrl& list, int row);

// Two rows exchange their texts in one column; their item data.
bool ExchangeTexts(CListCtrl& list, int first, int second, int column);
bool ExchangeData(CListCtrl& list, int first, int second);

// The texts of all columns; a new row that has them, and nothing else.
bool FetchRow(const CListCtrl& list, int row, std::vector<CString>& texts);
bool InsertRow(CListCtrl& list, int row, const std::vector<CString>& texts);

// Gives the list the focus, shows the row and sets its selection and focus. partial: a part of the row in view will do.
bool FocusAndSelect(CListCtrl& list, int row, BOOL partial, UINT state);

// The row to select when one was deleted and `rows` are left: the one that took its place, or the last. -1 for none.
int RowAfterDelete(int deleted, int rows);
