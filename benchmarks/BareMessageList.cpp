#include "BareMessageList.h"

namespace bench
{

namespace
{

std::wstring TextOf(HWND list, int row, int column)
{
    constexpr int longest = 512;
    wchar_t text[longest] = L"";
    ListView_GetItemText(list, row, column, text, longest);
    return text;
}

struct Keys
{
    std::vector<std::wstring> texts;
};

int CALLBACK CompareKeys(LPARAM first, LPARAM second, LPARAM parameter)
{
    const Keys& keys = *reinterpret_cast<const Keys*>(parameter);
    return ::lstrcmpW(keys.texts[first].c_str(), keys.texts[second].c_str());
}

} // namespace

BareMessageList::BareMessageList(HWND model, int rows)
{
    RECT area = {};
    ::GetClientRect(model, &area);
    const HWND owner = ::GetAncestor(model, GA_ROOT);
    const DWORD style = static_cast<DWORD>(::GetWindowLongPtrW(model, GWL_STYLE));
    m_list = ::CreateWindowExW(0, WC_LISTVIEWW, L"", style, 0, 0, area.right, area.bottom,
                               ::GetParent(model) != NULL ? ::GetParent(model) : owner, NULL, NULL, NULL);
    ListView_SetExtendedListViewStyle(m_list, ListView_GetExtendedListViewStyle(model));
    // The model keeps its images: without the share style each list would destroy them.
    ::SetWindowLongPtrW(m_list, GWL_STYLE, ::GetWindowLongPtrW(m_list, GWL_STYLE) | LVS_SHAREIMAGELISTS);
    ListView_SetImageList(m_list, ListView_GetImageList(model, LVSIL_SMALL), LVSIL_SMALL);
    CopyColumns(model);
    for (int row = 0; row < rows; ++row)
        CopyRow(model, row);
}

BareMessageList::~BareMessageList()
{
    ::DestroyWindow(m_list);
}

void BareMessageList::CopyColumns(HWND model)
{
    for (int column = 0; column < kColumns; ++column)
    {
        LVCOLUMNW data = {};
        wchar_t heading[64] = L"";
        data.mask = LVCF_TEXT | LVCF_WIDTH;
        data.cx = ListView_GetColumnWidth(model, column);
        data.pszText = heading;
        ListView_InsertColumn(m_list, column, &data);
    }
}

void BareMessageList::CopyRow(HWND model, int row)
{
    Row copy;
    LVITEMW item = {};
    item.mask = LVIF_IMAGE;
    item.iItem = row;
    ListView_GetItem(model, &item);
    copy.image = item.iImage;
    for (int column = 0; column < kColumns; ++column)
        copy.texts[column] = TextOf(model, row, column);
    m_rows.push_back(copy);
}

void BareMessageList::InsertRow(int row)
{
    Row& source = m_rows[row];
    LVITEMW item = {};
    item.mask = LVIF_TEXT | LVIF_IMAGE | LVIF_PARAM;
    item.iItem = row;
    item.iImage = source.image;
    item.lParam = row;
    item.pszText = source.texts[0].data();
    ListView_InsertItem(m_list, &item);
    for (int column = 1; column < kColumns; ++column)
        ListView_SetItemText(m_list, row, column, source.texts[column].data());
}

void BareMessageList::Fill()
{
    ::SendMessageW(m_list, WM_SETREDRAW, FALSE, 0);
    ListView_DeleteAllItems(m_list);
    for (int row = 0; row < static_cast<int>(m_rows.size()); ++row)
        InsertRow(row);
    const int last = static_cast<int>(m_rows.size()) - 1;
    ListView_EnsureVisible(m_list, last, FALSE);
    ListView_SetItemState(m_list, last, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    ::SendMessageW(m_list, WM_SETREDRAW, TRUE, 0);
}

void BareMessageList::Sort(int column)
{
    Keys keys;
    keys.texts.reserve(m_rows.size());
    for (int row = 0; row < ListView_GetItemCount(m_list); ++row)
        keys.texts.push_back(TextOf(m_list, row, column));
    ::SendMessageW(m_list, WM_SETREDRAW, FALSE, 0);
    ListView_SortItems(m_list, &CompareKeys, reinterpret_cast<LPARAM>(&keys));
    ::SendMessageW(m_list, WM_SETREDRAW, TRUE, 0);
}

} // namespace bench
