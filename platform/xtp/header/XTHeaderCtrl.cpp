#include "xtp/header/XTHeaderCtrl.h"

IMPLEMENT_DYNCREATE(CXTHeaderCtrl, CHeaderCtrl)

BEGIN_MESSAGE_MAP(CXTHeaderCtrl, CHeaderCtrl)
END_MESSAGE_MAP()

namespace
{
const int kSortFormats = HDF_SORTUP | HDF_SORTDOWN;

void SetSortFormat(CHeaderCtrl& header, int column, int format)
{
    HDITEM item = {};
    item.mask = HDI_FORMAT;
    if (!header.GetItem(column, &item))
        return;
    const int changed = (item.fmt & ~kSortFormats) | format;
    if (changed == item.fmt)
        return;
    item.fmt = changed;
    header.SetItem(column, &item);
}
} // namespace

CXTHeaderCtrl::CXTHeaderCtrl() : m_sortColumn(-1), m_ascending(TRUE) {}

int CXTHeaderCtrl::SetSortImage(int column, BOOL ascending)
{
    const int previous = m_sortColumn;
    const int columns = GetItemCount();
    if (column < -1 || column >= columns)
        return previous;
    for (int i = 0; i < columns; ++i)
        SetSortFormat(*this, i, i != column ? 0 : (ascending ? HDF_SORTUP : HDF_SORTDOWN));
    m_sortColumn = column;
    m_ascending = ascending != FALSE;
    return previous;
}
