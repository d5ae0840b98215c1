// The sortable list beside a bare list view that does the same work: sorting many rows, painting colour cells.
#include <afxwin.h>

#include <afxcmn.h>

#include "Bench.h"

#include <ZNSortListCtrl.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace bench
{

namespace
{

constexpr int kRows = 100000;
constexpr int kPaintedRows = 40;
constexpr int kPaints = 20; // one alone is too short to be measured well
constexpr int kRuns = 5;
constexpr int kColumnWidth = 150;
constexpr double kMilliseconds = 1e3;
constexpr UINT kTextFormat = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX;
constexpr int kEveryRow = -1;
constexpr COLORREF kSelected = 0xC56A31;
const CRect kPlace(0, 0, 500, 800);

// Texts in no order: multiplying by a number without a common divisor scatters them.
std::wstring TextOf(int row)
{
    return L"图元 " + std::to_wstring(row * 7919LL % kRows);
}

void AddColumns(CListCtrl& list)
{
    list.InsertColumn(0, L"名称", LVCFMT_LEFT, kColumnWidth);
    list.InsertColumn(1, L"颜色", LVCFMT_LEFT, kColumnWidth);
    list.InsertColumn(2, L"线色", LVCFMT_LEFT, kColumnWidth);
}

void Fill(CListCtrl& list, int rows)
{
    list.SetRedraw(FALSE);
    list.DeleteAllItems();
    for (int row = 0; row < rows; ++row)
    {
        list.InsertItem(LVIF_TEXT | LVIF_PARAM, row, TextOf(row).c_str(), 0, 0, 0, row);
        list.SetItemText(row, 1, L"红色");
        list.SetItemText(row, 2, L"255,128,0");
    }
    list.SetRedraw(TRUE);
}

int CALLBACK CompareKeys(LPARAM first, LPARAM second, LPARAM parameter)
{
    const std::vector<CString>& keys = *reinterpret_cast<const std::vector<CString>*>(parameter);
    return keys[first].CompareNoCase(keys[second]);
}

// Sorts rows whose item data is their index.
void SortBare(CListCtrl& list)
{
    std::vector<CString> keys(list.GetItemCount());
    for (int row = 0; row < list.GetItemCount(); ++row)
        keys[row] = list.GetItemText(row, 0);
    list.SortItems(CompareKeys, reinterpret_cast<DWORD_PTR>(&keys));
}

// The least that a cell of this look takes: its text is fetched, but colour and state are known beforehand instead of
// being read from the name, the list and the focus.
void DrawBare(CListCtrl& list, NMLVCUSTOMDRAW& draw, COLORREF color, bool selected)
{
    const CString text = list.GetItemText(static_cast<int>(draw.nmcd.dwItemSpec), draw.iSubItem);
    CDC& dc = *CDC::FromHandle(draw.nmcd.hdc);
    CRect cell(draw.nmcd.rc);
    dc.FillSolidRect(&cell, selected ? kSelected : RGB(255, 255, 255));
    CRect swatch(cell);
    swatch.DeflateRect(2, 2);
    swatch.right = swatch.left + swatch.Height();
    dc.FillSolidRect(&swatch, color);
    dc.Draw3dRect(&swatch, 0, 0);
    cell.left = swatch.right + 2;
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(::GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    dc.DrawText(text, &cell, kTextFormat);
}

// The owner of both lists; draws the bare one.
class Owner : public CWnd
{
public:
    Owner()
    {
        if (!CreateEx(0, AfxRegisterWndClass(0), L"bench", WS_POPUP | WS_VISIBLE, kPlace, NULL, 0))
            throw std::runtime_error("the window of the lists could not be made");
    }

    ~Owner() override { DestroyWindow(); }

    CListCtrl* bare = nullptr;
    bool bareIsSelected = false; // every row

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        NMLVCUSTOMDRAW& draw = *reinterpret_cast<NMLVCUSTOMDRAW*>(lParam);
        const NMHDR& from = draw.nmcd.hdr;
        if (from.code != NM_CUSTOMDRAW || bare == nullptr || from.hwndFrom != bare->m_hWnd)
            return CWnd::OnNotify(wParam, lParam, result);
        *result = CDRF_NOTIFYITEMDRAW;
        if (draw.nmcd.dwDrawStage != (CDDS_ITEMPREPAINT | CDDS_SUBITEM))
            return TRUE;
        *result = draw.iSubItem == 0 ? CDRF_NEWFONT : CDRF_SKIPDEFAULT;
        draw.clrTextBk = draw.nmcd.dwItemSpec % 2 ? RGB(255, 255, 200) : RGB(255, 255, 255);
        if (draw.iSubItem > 0)
            DrawBare(*bare, draw, draw.iSubItem == 1 ? RGB(255, 0, 0) : RGB(255, 128, 0), bareIsSelected);
        return TRUE;
    }
};

// Only the list that is being measured is visible, so that the other one has nothing to paint. It has the focus.
void ShowOnly(CListCtrl& shown, CListCtrl& hidden)
{
    hidden.ShowWindow(SW_HIDE);
    shown.ShowWindow(SW_SHOW);
    shown.SetFocus();
    shown.UpdateWindow();
}

void PaintOften(CListCtrl& list)
{
    for (int i = 0; i < kPaints; ++i)
        list.RedrawWindow(NULL, NULL, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

void MeasureSorting(Report& report, CZNSortListCtrl& ours, CListCtrl& bare)
{
    const Work sort = {[&] { Fill(ours, kRows); }, [&] { ours.SortColumn(0, 0, 1); }, nullptr};
    const Work bareSort = {[&] { Fill(bare, kRows); }, [&] { SortBare(bare); }, nullptr};
    const Pair pair = MedianSeconds(kRuns, sort, bareSort);
    report.Add({"sort list: sorting 100,000 rows by text", "ms", pair.ours * kMilliseconds, pair.bare * kMilliseconds,
                1.5, "bare list view, keys fetched once"});
}

void MeasurePainting(Report& report, const char* name, CZNSortListCtrl& ours, CListCtrl& bare)
{
    const Work paint = {[&] { ShowOnly(ours, bare); }, [&] { PaintOften(ours); }, nullptr};
    const Work barePaint = {[&] { ShowOnly(bare, ours); }, [&] { PaintOften(bare); }, nullptr};
    const Pair pair = MedianSeconds(kRuns, paint, barePaint);
    report.Add({name, "ms", pair.ours * kMilliseconds / kPaints, pair.bare * kMilliseconds / kPaints, 2,
                "bare list view, custom draw of known colours and states"});
}

void MeasurePainting(Report& report, CZNSortListCtrl& ours, Owner& owner)
{
    CListCtrl& bare = *owner.bare;
    Fill(ours, kPaintedRows);
    Fill(bare, kPaintedRows);
    MeasurePainting(report, "sort list: painting 40 rows with two colour columns", ours, bare);
    ours.SetItemState(kEveryRow, LVIS_SELECTED, LVIS_SELECTED);
    bare.SetItemState(kEveryRow, LVIS_SELECTED, LVIS_SELECTED);
    owner.bareIsSelected = true;
    MeasurePainting(report, "sort list: painting the same rows, all selected", ours, bare);
}

} // namespace

void MeasureSortList(Report& report)
{
    Owner owner;
    CZNSortListCtrl ours;
    CListCtrl bare;
    const DWORD style = WS_CHILD | WS_VISIBLE | LVS_REPORT;
    if (!ours.Create(style, kPlace, &owner, 1) || !bare.Create(style, kPlace, &owner, 2))
        throw std::runtime_error("the lists could not be made");
    owner.bare = &bare;
    AddColumns(ours);
    AddColumns(bare);
    ours.SetIsColorColumn(1, 1);
    ours.SetIsColorColumn(2, 1);
    MeasureSorting(report, ours, bare);
    MeasurePainting(report, ours, owner);
}

} // namespace bench
