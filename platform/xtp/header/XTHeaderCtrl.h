// CXTHeaderCtrl: the header of a list, with an arrow on the column that the list is sorted by.
//
//   m_header.SubclassWindow(m_list.GetHeaderCtrl()->GetSafeHwnd());
//   m_header.SetSortImage(column, ascending);
//
// Clicks are the header's usual HDN_ITEMCLICK notifications to the list, which hands them to its own parent.
#pragma once

#include "xtp/Api.h"
#include "afx/ctrl/HeaderCtrl.h"

class XTP_API CXTHeaderCtrl : public CHeaderCtrl
{
    DECLARE_DYNCREATE(CXTHeaderCtrl)

public:
    CXTHeaderCtrl();

    // Shows the arrow on that column alone: upwards for ascending. -1 takes it away. Returns the column that had it
    // before, -1 for none. A column that isn't there changes nothing.
    int SetSortImage(int column, BOOL ascending);
    // -1 while no column shows the arrow.
    int GetSortedCol() const { return m_sortColumn; }
    BOOL IsSortedAscending() const { return m_ascending; }

protected:
    DECLARE_MESSAGE_MAP()

private:
    int m_sortColumn;
    BOOL m_ascending;
};
