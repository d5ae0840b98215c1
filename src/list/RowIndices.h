// Guard: the item data of every row of a list is the index that the row had when the guard began. At the end every row
// has its own item data again, wherever it stands then.
#pragma once

#include <vector>

#include <afxwin.h>
#include <afxcmn.h>

class CRowIndices
{
public:
    explicit CRowIndices(CListCtrl& list);
    ~CRowIndices();

    // False when the list refused an index: its rows can't be told apart then.
    bool AreSet() const { return static_cast<int>(m_data.size()) == m_rows; }

private:
    CRowIndices(const CRowIndices&);
    CRowIndices& operator=(const CRowIndices&);

    CListCtrl& m_list;
    int m_rows;
    std::vector<DWORD_PTR> m_data; // of the rows that have their index now, by that index
};
