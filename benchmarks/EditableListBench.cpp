// Opening and closing an editor in a cell of the editable list beside creating, filling, focusing and destroying a bare
// edit in the same place.
#include <afxwin.h>

#include <afxcmn.h>

#include "Bench.h"

#include <SuperEdit.h>
#include <ZNListCtrl.h>

#include <stdexcept>

namespace bench
{

namespace
{

constexpr int kEdits = 20; // one alone is too short to be measured well
constexpr int kRuns = 15;
constexpr int kRows = 20;
constexpr int kRow = 3;
constexpr int kColumn = 1;
constexpr int kColumnWidth = 150;
constexpr int kBareId = 77;
constexpr double kMilliseconds = 1e3;
constexpr DWORD kEditStyle = WS_CHILD | WS_VISIBLE | WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL;
constexpr wchar_t kText[] = L"连续线";
const CRect kPlace(0, 0, 500, 500);

void EditInPlace(CZNListCtrl& list)
{
    for (int i = 0; i < kEdits; ++i)
    {
        list.ShowInPlaceEdit(kRow, kColumn, kText);
        list.EndEdit();
    }
}

void EditBare(CZNListCtrl& list)
{
    for (int i = 0; i < kEdits; ++i)
    {
        CRect cell;
        list.GetSubItemRect(kRow, kColumn, LVIR_BOUNDS, cell);
        const HWND edit =
            ::CreateWindowExW(0, WC_EDITW, NULL, kEditStyle, cell.left, cell.top, cell.Width(), cell.Height(),
                              list.m_hWnd, reinterpret_cast<HMENU>(static_cast<LONG_PTR>(kBareId)), NULL, NULL);
        ::SendMessageW(edit, WM_SETFONT, ::SendMessageW(list.m_hWnd, WM_GETFONT, 0, 0), TRUE);
        ::SetWindowTextW(edit, kText);
        ::SetFocus(edit);
        ::SendMessageW(edit, EM_SETSEL, 0, -1);
        ::SendMessageW(edit, EM_SCROLLCARET, 0, 0);
        ::DestroyWindow(edit);
    }
}

} // namespace

void MeasureEditableList(Report& report)
{
    CWnd owner;
    CZNListCtrl list;
    const BOOL made = owner.CreateEx(0, AfxRegisterWndClass(0), L"bench", WS_POPUP | WS_VISIBLE, kPlace, NULL, 0) &&
                      list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, kPlace, &owner, 1);
    if (!made)
        throw std::runtime_error("the list could not be made");
    list.InsertColumn(0, L"图层", LVCFMT_LEFT, kColumnWidth);
    list.InsertColumn(1, L"线型", LVCFMT_LEFT, kColumnWidth);
    for (int row = 0; row < kRows; ++row)
        list.InsertItem(row, kText);
    const Work ours = {nullptr, [&] { EditInPlace(list); }, nullptr};
    const Work bare = {nullptr, [&] { EditBare(list); }, nullptr};
    const Pair pair = MedianSeconds(kRuns, ours, bare);
    report.Add({"editable list: opening and closing an editor", "ms", pair.ours * kMilliseconds / kEdits,
                pair.bare * kMilliseconds / kEdits, 1.5, "bare edit, created, focused, destroyed"});
    owner.DestroyWindow();
}

} // namespace bench
