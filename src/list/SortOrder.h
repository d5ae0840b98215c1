// Where each row goes when a list is sorted, found before any row moves.
//
// A list view may move its rows while it compares them, and some versions call for a strict order. So the order is
// found here, from texts fetched once, as a stable sort by the stated comparison; the list then only compares places.
// No window is needed.
#pragma once

#include <vector>

#include <afxwin.h>

class CSortOrder
{
public:
    // The texts of the column, first row first, and an ESortMode.
    CSortOrder(const std::vector<CString>& texts, int mode);

    // Compares the new places of two rows: below 0, 0, above 0. Rows that it does not know come last.
    int Compare(LPARAM firstRow, LPARAM secondRow) const;

private:
    size_t GetPlace(LPARAM row) const;

    std::vector<size_t> m_places;
};
