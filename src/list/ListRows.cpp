#include "list/ListRows.h"

#include <algorithm>
#include <functional>

namespace
{

void Collect(const CListCtrl& list, int flag, std::vector<int>& rows)
{
    for (int row = list.GetNextItem(-1, flag); row >= 0; row = list.GetNextItem(row, flag))
        rows.push_back(row);
}

// The rows that are selected or have the focus, and one more, each once and the last one first. All others have
// nothing to change, and a long list would take long to be told so.
std::vector<int> RowsToChange(const CListCtrl& list, int row)
{
    std::vector<int> rows;
    Collect(list, LVNI_SELECTED, rows);
    Collect(list, LVNI_FOCUSED, rows);
    rows.push_back(row);
    std::sort(rows.begin(), rows.end(), std::greater<int>());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

} // namespace

int CountColumns(const CListCtrl& list)
{
    const HWND header = ListView_GetHeader(list.m_hWnd);
    return header == NULL ? 0 : Header_GetItemCount(header);
}

std::vector<int> SelectedRows(const CListCtrl& list)
{
    std::vector<int> rows;
    Collect(list, LVNI_SELECTED, rows);
    return rows;
}

bool ClearOtherRows(CListCtrl& list, int row)
{
    const HWND window = list.m_hWnd;
    const std::vector<int> rows = RowsToChange(list, row);
    for (size_t i = 0; i < rows.size() && ::IsWindow(window); ++i)
    {
        if (rows[i] != row)
            list.SetItemState(rows[i], 0, kSelectedAndFocused);
    }
    return ::IsWindow(window) != FALSE;
}

bool SelectOnlyRow(CListCtrl& list, int row)
{
    const HWND window = list.m_hWnd;
    const std::vector<int> rows = RowsToChange(list, row);
    for (size_t i = 0; i < rows.size() && ::IsWindow(window); ++i)
    {
        list.SetItemState(rows[i], rows[i] == row ? kSelectedAndFocused : 0, kSelectedAndFocused);
        if (rows[i] == row && ::IsWindow(window))
            list.EnsureVisible(row, FALSE);
    }
    return ::IsWindow(window) != FALSE;
}

bool ExchangeTexts(CListCtrl& list, int first, int second, int column)
{
    const HWND window = list.m_hWnd;
    const CString firstText = list.GetItemText(first, column);
    if (!::IsWindow(window))
        return false;
    const CString secondText = list.GetItemText(second, column);
    if (!::IsWindow(window))
        return false;
    list.SetItemText(first, column, secondText);
    if (!::IsWindow(window))
        return false;
    list.SetItemText(second, column, firstText);
    return ::IsWindow(window) != FALSE;
}

bool ExchangeData(CListCtrl& list, int first, int second)
{
    const HWND window = list.m_hWnd;
    const DWORD_PTR firstData = list.GetItemData(first);
    const DWORD_PTR secondData = list.GetItemData(second);
    list.SetItemData(first, secondData);
    if (!::IsWindow(window))
        return false;
    list.SetItemData(second, firstData);
    return ::IsWindow(window) != FALSE;
}

bool FetchRow(const CListCtrl& list, int row, std::vector<CString>& texts)
{
    const HWND window = list.m_hWnd;
    const int columns = CountColumns(list);
    for (int column = 0; column < columns && ::IsWindow(window); ++column)
        texts.push_back(list.GetItemText(row, column));
    return ::IsWindow(window) != FALSE;
}

bool InsertRow(CListCtrl& list, int row, const std::vector<CString>& texts)
{
    const HWND window = list.m_hWnd;
    list.InsertItem(row, texts.empty() ? L"" : texts[0].GetString());
    for (size_t column = 0; column < texts.size() && ::IsWindow(window); ++column)
        list.SetItemText(row, static_cast<int>(column), texts[column]);
    return ::IsWindow(window) != FALSE;
}

bool FocusAndSelect(CListCtrl& list, int row, BOOL partial, UINT state)
{
    const HWND window = list.m_hWnd;
    list.SetFocus();
    if (::IsWindow(window))
        list.EnsureVisible(row, partial);
    if (::IsWindow(window))
        list.SetItemState(row, state, kSelectedAndFocused);
    return ::IsWindow(window) != FALSE;
}

int RowAfterDelete(int deleted, int rows)
{
    return deleted < rows ? deleted : deleted - 1;
}
