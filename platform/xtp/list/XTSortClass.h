// CXTSortClass: sorts the rows of a list by the texts of one column.
//
//   CXTSortClass sorter(&m_list, column);
//   sorter.Sort(true, xtSortString);
//
// Rows move whole: item data, check marks, images, selection and focus stay with them. Rows with equal keys keep their
// order, ascending and descending. Each text is read once. Rows whose item data another row has too carry a different
// one while they are sorted, and the list reports these changes; with an item data of its own for each row it reports
// nothing and is much faster.
//
// String compares the characters by their codes, capitals before small letters. The other types read the text from its
// beginning; a text that can't be read counts as 0 and, for dates, as earlier than every date. Dates are year-month-day
// with - / or . between, with an optional time, or a time alone, or what the user's locale writes.
#pragma once

#include "xtp/Api.h"

enum XTSortType
{
    xtSortInt,
    xtSortString,
    xtSortFloat,
    xtSortDateTime
};

class CListCtrl;

class XTP_API CXTSortClass
{
public:
    // The list must outlive the call of Sort.
    CXTSortClass(CListCtrl* list, int column);
    virtual ~CXTSortClass();

    // Does nothing for a list without a window, an owner-data list, or a column below 0.
    void Sort(bool ascending, XTSortType type);

private:
    CXTSortClass(const CXTSortClass&);
    void operator=(const CXTSortClass&);

    CListCtrl* m_list;
    int m_column;
};
