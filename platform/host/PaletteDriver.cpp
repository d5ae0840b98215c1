#include "host/PaletteDriver.h"

#include "arx/ui/DockBarRegistry.h"

#include <cwchar>

namespace arxhost
{
namespace
{

struct ControlSearch
{
    int id;
    const wchar_t* className;
    HWND found;
};

BOOL CALLBACK MatchControl(HWND window, LPARAM search)
{
    ControlSearch& wanted = *reinterpret_cast<ControlSearch*>(search);
    wchar_t className[64] = L"";
    GetClassNameW(window, className, _countof(className));
    const bool matches =
        wanted.className != NULL ? _wcsicmp(className, wanted.className) == 0 : ::GetDlgCtrlID(window) == wanted.id;
    if (!matches || !::IsWindowVisible(window))
        return TRUE;
    wanted.found = window;
    return FALSE;
}

HWND FindWith(HWND root, ControlSearch search)
{
    EnumChildWindows(root, &MatchControl, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

// The list view that has the row; otherwise a message.
std::wstring FindRow(HWND root, int row, HWND& list)
{
    list = FindControlOfClass(root, WC_LISTVIEWW);
    if (list == NULL)
        return L"面板中没有列表。";
    const int count = ListView_GetItemCount(list);
    if (row < 1 || row > count)
        return L"列表没有第 " + std::to_wstring(row) + L" 行（共 " + std::to_wstring(count) + L" 行）。";
    return std::wstring();
}

std::wstring ItemText(HWND tree, HTREEITEM item)
{
    wchar_t text[260] = L"";
    TVITEMW read = {};
    read.mask = TVIF_TEXT;
    read.hItem = item;
    read.pszText = text;
    read.cchTextMax = _countof(text);
    ::SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&read));
    return text;
}

HTREEITEM FindItem(HWND tree, HTREEITEM first, const std::wstring& text)
{
    for (HTREEITEM item = first; item != NULL; item = TreeView_GetNextSibling(tree, item))
    {
        if (ItemText(tree, item).find(text) != std::wstring::npos)
            return item;
        if (HTREEITEM inside = FindItem(tree, TreeView_GetChild(tree, item), text))
            return inside;
    }
    return NULL;
}

} // namespace

CAdUiPaletteSet* CurrentPaletteSet()
{
    CAdUiPaletteSet* newest = NULL;
    CAdUiPaletteSet* newestVisible = NULL;
    for (CAdUiDockControlBar* bar : arxui::DockBars())
    {
        CAdUiPaletteSet* set = DYNAMIC_DOWNCAST(CAdUiPaletteSet, bar);
        if (set == NULL)
            continue;
        newest = set;
        if (set->IsWindowVisible())
            newestVisible = set;
    }
    return newestVisible != NULL ? newestVisible : newest;
}

HWND FindControl(HWND root, int id)
{
    return FindWith(root, {id, NULL, NULL});
}

HWND FindControlOfClass(HWND root, const wchar_t* className)
{
    return FindWith(root, {0, className, NULL});
}

std::wstring PressControl(HWND root, int id)
{
    const HWND control = FindControl(root, id);
    if (control == NULL)
        return L"没有编号为 " + std::to_wstring(id) + L" 的可见控件。";
    if (!::IsWindowEnabled(control))
        return L"编号为 " + std::to_wstring(id) + L" 的控件不可用。";
    // Posted: a press may open a dialog, and the script must not stand inside its loop.
    ::PostMessageW(control, BM_CLICK, 0, 0);
    return std::wstring();
}

std::wstring SelectListRow(HWND root, int row, bool add)
{
    HWND list = NULL;
    const std::wstring error = FindRow(root, row, list);
    if (!error.empty())
        return error;
    ::SetFocus(list);
    if (!add)
        ListView_SetItemState(list, -1, 0, LVIS_SELECTED);
    const UINT state = LVIS_SELECTED | LVIS_FOCUSED;
    ListView_SetItemState(list, row - 1, state, state);
    ListView_EnsureVisible(list, row - 1, FALSE);
    return std::wstring();
}

std::wstring DoubleClickListRow(HWND root, int row)
{
    HWND list = NULL;
    const std::wstring error = FindRow(root, row, list);
    if (!error.empty())
        return error;
    ListView_EnsureVisible(list, row - 1, FALSE);
    RECT label = {};
    ListView_GetItemRect(list, row - 1, &label, LVIR_LABEL);
    const LPARAM point = MAKELPARAM(label.left + 2, (label.top + label.bottom) / 2);
    for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP})
        ::PostMessageW(list, message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, point);
    return std::wstring();
}

std::wstring SelectTreeItem(HWND root, const std::wstring& text)
{
    const HWND tree = FindControlOfClass(root, WC_TREEVIEWW);
    if (tree == NULL)
        return L"面板中没有树。";
    const HTREEITEM item = FindItem(tree, TreeView_GetRoot(tree), text);
    if (item == NULL)
        return L"树中没有包含“" + text + L"”的项。";
    ::SetFocus(tree);
    TreeView_SelectItem(tree, item);
    return std::wstring();
}

} // namespace arxhost
