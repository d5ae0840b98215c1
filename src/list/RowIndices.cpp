#include "list/RowIndices.h"

CRowIndices::CRowIndices(CListCtrl& list) : m_list(list), m_rows(list.GetItemCount())
{
    m_data.reserve(m_rows);
    for (int row = 0; row < m_rows; ++row)
    {
        const DWORD_PTR data = m_list.GetItemData(row);
        if (!m_list.SetItemData(row, row))
            return;
        m_data.push_back(data);
    }
}

CRowIndices::~CRowIndices()
{
    if (!::IsWindow(m_list.m_hWnd))
        return;
    // A refused index leaves the later rows as they were, and nothing was sorted then.
    const int rows = AreSet() ? m_list.GetItemCount() : static_cast<int>(m_data.size());
    for (int row = 0; row < rows; ++row)
    {
        const DWORD_PTR index = m_list.GetItemData(row);
        if (index < m_data.size() && m_data[index] != index)
            m_list.SetItemData(row, m_data[index]);
    }
}
