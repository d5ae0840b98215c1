// CZNListCtrl: operations on rows.
#include "list/ZNListCtrl.h"

#include "list/ListRows.h"

namespace
{

const int kNothing = -1;
const int kSeveralDeleted = -2;

} // namespace

int CZNListCtrl::UpItem(int nItem)
{
    UINT state = 0;
    if (!BeginMove(nItem, state))
        return kNothing;
    return FinishMove(nItem == 0 ? nItem : MoveByOne(nItem, -1), state, nItem);
}

int CZNListCtrl::DownItem(int nItem)
{
    UINT state = 0;
    if (!BeginMove(nItem, state))
        return kNothing;
    return FinishMove(nItem == GetItemCount() - 1 ? nItem : MoveByOne(nItem, 1), state, nItem);
}

int CZNListCtrl::TopItem(int nItem)
{
    UINT state = 0;
    if (!BeginMove(nItem, state))
        return kNothing;
    if (nItem == 0)
        return FinishMove(0, state, nItem);
    const HWND list = m_hWnd;
    std::vector<CString> texts;
    if (!FetchRow(*this, nItem, texts))
        return kNothing;
    DeleteItem(nItem);
    if (!::IsWindow(list) || !InsertRow(*this, 0, texts))
        return kNothing;
    return FinishMove(0, state, nItem);
}

int CZNListCtrl::EndItem(int nItem)
{
    UINT state = 0;
    if (!BeginMove(nItem, state))
        return kNothing;
    const int last = GetItemCount() - 1;
    if (nItem == last)
        return FinishMove(last, state, nItem);
    const HWND list = m_hWnd;
    std::vector<CString> texts;
    if (!FetchRow(*this, nItem, texts) || !InsertRow(*this, last + 1, texts))
        return kNothing;
    DeleteItem(nItem);
    return ::IsWindow(list) ? FinishMove(last, state, nItem) : kNothing;
}

int CZNListCtrl::InsItem(int nItem)
{
    if (!::IsWindow(m_hWnd) || !CloseEdit())
        return kNothing;
    const HWND list = m_hWnd;
    const int asked = nItem == -1 ? GetNextItem(-1, LVNI_SELECTED) : nItem;
    if (asked < 0 || asked > GetItemCount())
        return kNothing;
    const int row = InsertItem(asked, L"");
    if (row < 0 || !::IsWindow(list) || !ClearOtherRows(*this, row) ||
        !FocusAndSelect(*this, row, FALSE, kSelectedAndFocused))
        return kNothing;
    return row;
}

int CZNListCtrl::DelItem(int nItem)
{
    if (!::IsWindow(m_hWnd) || !CloseEdit())
        return kNothing;
    CArray<int, int> rows;
    if (nItem >= 0 && nItem < GetItemCount())
        rows.Add(nItem);
    else if (nItem == -1)
    {
        const std::vector<int> selected = SelectedRows(*this);
        for (size_t i = 0; i < selected.size(); ++i)
            rows.Add(selected[i]);
    }
    if (rows.IsEmpty())
        return kNothing;
    const HWND list = m_hWnd;
    ::SendMessage(::GetParent(list), WM_LISTCTRL_BEFOREDELETE, reinterpret_cast<WPARAM>(&rows),
                  reinterpret_cast<LPARAM>(this));
    return ::IsWindow(list) ? DeleteRows(rows) : kNothing;
}

void CZNListCtrl::SelectItem(int nItem, bool bOnly)
{
    if (!::IsWindow(m_hWnd) || nItem < 0 || nItem >= GetItemCount())
        return;
    const HWND list = m_hWnd;
    SetItemState(nItem, kSelectedAndFocused, kSelectedAndFocused);
    if (bOnly && ::IsWindow(list) && (GetStyle() & LVS_SINGLESEL) == 0)
        ClearOtherRows(*this, nItem);
}

// Finds the row that is meant and the state that goes with it.
bool CZNListCtrl::BeginMove(int& row, UINT& state)
{
    if (!::IsWindow(m_hWnd) || !CloseEdit())
        return false;
    if (row == -1)
        row = GetNextItem(-1, LVNI_SELECTED);
    if (row < 0 || row >= GetItemCount())
        return false;
    state = GetItemState(row, kSelectedAndFocused);
    return true;
}

int CZNListCtrl::FinishMove(int row, UINT state, int result)
{
    return row >= 0 && FocusAndSelect(*this, row, TRUE, state) ? result : kNothing;
}

// Where the row is afterwards, -1 when the list is gone.
int CZNListCtrl::MoveByOne(int row, int step)
{
    const int target = row + step;
    const int columns = CountColumns(*this);
    for (int column = 0; column < columns; ++column)
    {
        // Item data and highlight go with every column. Owners rely on where they end up.
        if (!ExchangeTexts(*this, row, target, column) || !ExchangeData(*this, row, target))
            return kNothing;
        MoveHighlight(step);
    }
    return target;
}

// From the last to the first, so that the indices stay right. The owner had the array in its hands before.
int CZNListCtrl::DeleteRows(const CArray<int, int>& rows)
{
    const HWND list = m_hWnd;
    for (INT_PTR i = rows.GetSize() - 1; i >= 0 && ::IsWindow(list); --i)
        DeleteItem(rows[i]);
    if (!::IsWindow(list) || rows.IsEmpty())
        return kNothing;
    if (rows.GetSize() > 1)
        return kSeveralDeleted;
    const int row = RowAfterDelete(rows[0], GetItemCount());
    if (row >= 0 && !FocusAndSelect(*this, row, FALSE, kSelectedAndFocused))
        return kNothing;
    return row;
}
