#include "list/ZNSortListCtrl.h"

#include <algorithm>
#include <vector>

#include "base/FlagGuard.h"
#include "list/ColorCell.h"
#include "list/RowIndices.h"
#include "list/SortArrow.h"
#include "list/SortOrder.h"
#include "list/SortText.h"

#include <ZNKTPub.h>

namespace
{

const int kArrows = 2;
const int kColorColumnBlock = 10;
const int kFewestRows = 2; // fewer are neither sorted nor striped
const int kNumericMode = 2;
const UINT kTextFormat = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX;
const int kHighlightIndent = 6; // pixels between the edge of a highlighted cell and its text
const int kFirstColumnHighlightIndent = 2;

// Guard: what the drawing of a cell changes in a device context is put back. SaveDC would put back more, but takes
// longer than all the drawing.
class CSavedDC
{
public:
    explicit CSavedDC(HDC dc)
        : m_dc(dc), m_font(::GetCurrentObject(dc, OBJ_FONT)), m_textColor(::GetTextColor(dc)),
          m_backColor(::GetBkColor(dc)), m_backMode(::GetBkMode(dc))
    {
    }

    ~CSavedDC()
    {
        SelectFont(m_font);
        ::SetTextColor(m_dc, m_textColor);
        ::SetBkColor(m_dc, m_backColor);
        ::SetBkMode(m_dc, m_backMode);
    }

    void SelectFont(HGDIOBJ font)
    {
        if (font != NULL && font != ::GetCurrentObject(m_dc, OBJ_FONT))
            ::SelectObject(m_dc, font);
    }

private:
    CSavedDC(const CSavedDC&);
    CSavedDC& operator=(const CSavedDC&);

    HDC m_dc;
    HGDIOBJ m_font;
    COLORREF m_textColor;
    COLORREF m_backColor;
    int m_backMode;
};

// Guard: a list of one column has an empty second one while it is sorted. Some versions of the list view do not sort a
// list of a single column rightly.
class CSecondColumn
{
public:
    explicit CSecondColumn(CListCtrl& list) : m_list(list), m_inserted(false)
    {
        const CHeaderCtrl* const header = list.GetHeaderCtrl();
        if (header != NULL && header->GetItemCount() == 1)
            m_inserted = list.InsertColumn(1, L"") == 1;
    }

    ~CSecondColumn()
    {
        if (m_inserted && ::IsWindow(m_list.m_hWnd))
            m_list.DeleteColumn(1);
    }

private:
    CSecondColumn(const CSecondColumn&);
    CSecondColumn& operator=(const CSecondColumn&);

    CListCtrl& m_list;
    bool m_inserted;
};

// The texts of a column, first row first. False when the owner, who is asked for texts that it keeps itself, destroyed
// the list or changed its number of rows meanwhile.
bool FetchTexts(const CListCtrl& list, int column, std::vector<CString>& texts)
{
    const int rows = list.GetItemCount();
    texts.resize(rows);
    for (int row = 0; row < rows; ++row)
    {
        texts[row] = list.GetItemText(row, column);
        if (!::IsWindow(list.m_hWnd))
            return false;
    }
    return list.GetItemCount() == rows;
}

void DrawCellText(CDC& dc, const CString& text, CRect rect, COLORREF color)
{
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(color);
    dc.DrawText(text, &rect, kTextFormat);
}

HGDIOBJ FontOf(const CWnd& wnd)
{
    return reinterpret_cast<HGDIOBJ>(::SendMessage(wnd.m_hWnd, WM_GETFONT, 0, 0));
}

} // namespace

IMPLEMENT_DYNAMIC(CZNSortListCtrl, CListCtrl)

BEGIN_MESSAGE_MAP(CZNSortListCtrl, CListCtrl)
    ON_NOTIFY_REFLECT_EX(LVN_COLUMNCLICK, &CZNSortListCtrl::OnColumnclick)
    ON_NOTIFY_REFLECT(NM_CUSTOMDRAW, &CZNSortListCtrl::OnCustomDraw)
    ON_NOTIFY_REFLECT_EX(LVN_ITEMCHANGING, &CZNSortListCtrl::OnItemChange)
    ON_NOTIFY_REFLECT_EX(LVN_ITEMCHANGED, &CZNSortListCtrl::OnItemChange)
    ON_WM_PAINT()
    ON_WM_LBUTTONDOWN()
    ON_WM_RBUTTONDOWN()
END_MESSAGE_MAP()

CZNSortListCtrl::CZNSortListCtrl()
    : m_bArrowsMade(false), m_bCellHighlight(false), m_nHighlightItem(-1), m_nHighlightSubItem(-1), m_nSortEnabled(1),
      m_mapColorColumns(kColorColumnBlock), m_sorting(false), m_painting(false), m_isFocusedWhilePainting(false)
{
}

CZNSortListCtrl::~CZNSortListCtrl() {}

void CZNSortListCtrl::EnableSort(int enable)
{
    m_nSortEnabled = enable;
}

void CZNSortListCtrl::SetSortSubitems(CArray<int, int>& columns)
{
    m_aSortSubitems.Copy(columns);
}

void CZNSortListCtrl::SetSortSubitems(int column)
{
    m_aSortSubitems.RemoveAll();
    m_aSortSubitems.Add(column);
}

void CZNSortListCtrl::SetIsColorColumn(int nCol, int bIsColor)
{
    m_mapColorColumns[nCol] = bIsColor;
}

void CZNSortListCtrl::SortColumn(int nCol, int bNumeric, int nOrder)
{
    if (m_sorting || !::IsWindow(m_hWnd))
        return;
    MakeArrows();
    CHeaderCtrl* const header = GetHeaderCtrl();
    ClearOtherArrows(header, nCol);
    if (nOrder < SORT_STATE_NONE || nOrder > 1)
        return;
    const int asked = nOrder < 0 ? SORT_STATE_REVERSE : nOrder == 1 ? SORT_STATE_ASCENDING : SORT_STATE_DESCENDING;
    const int state = ModiHeardCtrl(header, nCol, asked);
    if (nOrder < 0 && state != SORT_STATE_ASCENDING && state != SORT_STATE_DESCENDING)
        return;
    const bool ascending = nOrder < 0 ? state == SORT_STATE_ASCENDING : nOrder == 1;
    SortRows(nCol, (ascending ? SORT_TEXT_ASCENDING : SORT_TEXT_DESCENDING) + (bNumeric == 1 ? kNumericMode : 0));
}

int CZNSortListCtrl::ModiHeardCtrl(CHeaderCtrl* header, int nCol, int nState)
{
    // The text is not written back: nothing changes it, and a heading longer than a buffer would be cut.
    HDITEM item = {};
    item.mask = HDI_FORMAT | HDI_LPARAM | HDI_IMAGE;
    if (header == NULL || !::IsWindow(header->m_hWnd) || !header->GetItem(nCol, &item))
        return SORT_STATE_REVERSE;
    const int state = NextSortState(item.lParam, nState);
    const int arrowFormat = HDF_IMAGE | HDF_BITMAP_ON_RIGHT;
    item.lParam = state;
    if (state == SORT_STATE_NONE)
    {
        item.mask = HDI_FORMAT | HDI_LPARAM;
        item.fmt &= ~arrowFormat;
    }
    else
    {
        item.mask = HDI_FORMAT | HDI_LPARAM | HDI_IMAGE;
        item.fmt |= arrowFormat;
        item.iImage = state;
    }
    header->SetItem(nCol, &item);
    return state;
}

void CZNSortListCtrl::SetCellHighlight(bool bOn, int nItem, int nSubItem)
{
    m_bCellHighlight = bOn;
    m_nHighlightItem = nItem;
    m_nHighlightSubItem = nSubItem;
    if (::IsWindow(m_hWnd))
        RedrawItems(nItem, nItem);
}

void CZNSortListCtrl::GetClickPos(int& nItem, int& nSubItem)
{
    nItem = m_nHighlightItem;
    nSubItem = m_nHighlightSubItem;
}

int CALLBACK CZNSortListCtrl::MyCompareProc(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort)
{
    const SortInfo* const info = reinterpret_cast<const SortInfo*>(lParamSort);
    if (info == NULL)
        return 0;
    if (info->order != NULL)
        return info->order->Compare(lParam1, lParam2);
    if (info->list == NULL || !::IsWindow(info->list->m_hWnd))
        return 0;
    const CString first = info->list->GetItemText(static_cast<int>(lParam1), info->column);
    const CString second = info->list->GetItemText(static_cast<int>(lParam2), info->column);
    return CompareSortTexts(info->mode, first, second);
}

bool CZNSortListCtrl::PrepareSort()
{
    return true;
}

void CZNSortListCtrl::MoveHighlight(int rows)
{
    m_nHighlightItem += rows;
}

BOOL CZNSortListCtrl::OnColumnclick(NMHDR* notification, LRESULT* result)
{
    *result = 0;
    if (m_nSortEnabled == 0 || GetItemCount() < kFewestRows)
        return FALSE;
    const HWND list = m_hWnd;
    const int column = reinterpret_cast<NMLISTVIEW*>(notification)->iSubItem;
    const CString text = GetItemText(0, column);
    const int numeric = text.IsEmpty() || IsNumericText(text);
    if (m_aSortSubitems.IsEmpty())
        SortColumn(column, numeric, -1);
    for (INT_PTR i = 0; ::IsWindow(list) && i < m_aSortSubitems.GetSize(); ++i)
    {
        if (m_aSortSubitems[i] == column)
            SortColumn(column, numeric, -1);
    }
    return FALSE;
}

void CZNSortListCtrl::OnCustomDraw(NMHDR* notification, LRESULT* result)
{
    NMLVCUSTOMDRAW& draw = *reinterpret_cast<NMLVCUSTOMDRAW*>(notification);
    if (draw.nmcd.dwDrawStage == (CDDS_ITEMPREPAINT | CDDS_SUBITEM))
        *result = DrawCell(draw);
    else
        *result = CDRF_NOTIFYITEMDRAW; // the same number asks for the sub-items of a row
}

BOOL CZNSortListCtrl::OnItemChange(NMHDR* notification, LRESULT* result)
{
    *result = 0;
    return m_sorting && reinterpret_cast<NMLISTVIEW*>(notification)->uChanged == LVIF_PARAM;
}

// Where the focus is, is asked once for all cells: the answer can come from another process and takes longer than the
// drawing of a cell.
void CZNSortListCtrl::OnPaint()
{
    m_isFocusedWhilePainting = ::GetFocus() == m_hWnd;
    const CFlagGuard painting(m_painting);
    CListCtrl::OnPaint();
}

void CZNSortListCtrl::OnLButtonDown(UINT flags, CPoint point)
{
    IsClickedItem(point);
    CListCtrl::OnLButtonDown(flags, point);
}

void CZNSortListCtrl::OnRButtonDown(UINT flags, CPoint point)
{
    IsClickedItem(point);
    CListCtrl::OnRButtonDown(flags, point);
}

void CZNSortListCtrl::MakeArrows()
{
    CHeaderCtrl* const header = GetHeaderCtrl();
    if (!m_bArrowsMade)
    {
        m_imgSortArrows.Create(kSortArrowPixels, kSortArrowPixels, ILC_COLOR24 | ILC_MASK, kArrows, 0);
        for (int up = 1; up >= 0; --up)
        {
            CBitmap* const arrow = MakeColorBoxImage(up);
            m_imgSortArrows.Add(arrow, kSortArrowMask);
            delete arrow;
        }
        m_bArrowsMade = true;
    }
    // The list view gives its header the small images of its rows whenever these are set.
    if (header != NULL && header->GetImageList() != &m_imgSortArrows)
        header->SetImageList(&m_imgSortArrows);
}

CBitmap* CZNSortListCtrl::MakeColorBoxImage(int bUp)
{
    CClientDC client(this);
    CDC memory;
    memory.CreateCompatibleDC(&client);
    CBitmap* const bitmap = new CBitmap;
    bitmap->CreateCompatibleBitmap(&client, kSortArrowPixels, kSortArrowPixels);
    CBitmap* const before = memory.SelectObject(bitmap);
    DrawSortArrow(memory, bUp != 0);
    memory.SelectObject(before);
    return bitmap;
}

void CZNSortListCtrl::ClearOtherArrows(CHeaderCtrl* header, int column)
{
    if (header == NULL)
        return;
    for (int other = header->GetItemCount() - 1; other >= 0; --other)
    {
        if (other != column)
            ModiHeardCtrl(header, other, SORT_STATE_NONE);
    }
}

void CZNSortListCtrl::SortRows(int column, int mode)
{
    // A list that keeps no rows cannot sort any.
    if ((GetStyle() & LVS_OWNERDATA) != 0)
        return;
    if (!PrepareSort())
        return;
    const CFlagGuard sorting(m_sorting);
    std::vector<CString> texts;
    if (!FetchTexts(*this, column, texts))
        return;
    const CSortOrder order(texts, mode);
    const CRowIndices indices(*this);
    if (!indices.AreSet())
        return;
    const CSecondColumn secondColumn(*this);
    SortInfo info = {this, column, mode, &order};
    SortItems(MyCompareProc, reinterpret_cast<DWORD_PTR>(&info));
}

void CZNSortListCtrl::IsClickedItem(CPoint point)
{
    const int row = FindRow(point);
    const int column = FindColumn(row, point);
    if (column < 0)
    {
        m_nHighlightItem = -1;
        m_nHighlightSubItem = -1;
        return;
    }
    RedrawItems(m_nHighlightItem, m_nHighlightItem);
    m_nHighlightItem = row;
    m_nHighlightSubItem = column;
    RedrawItems(m_nHighlightItem, m_nHighlightItem);
}

int CZNSortListCtrl::FindRow(CPoint point)
{
    int row = 0;
    int end = GetItemCount();
    if ((GetStyle() & LVS_TYPEMASK) == LVS_REPORT)
    {
        // Only rows in view can lie under the point; one more than fits is seen in part.
        row = GetTopIndex();
        end = std::min(end, row + GetCountPerPage() + 1);
    }
    for (; row < end; ++row)
    {
        CRect bounds;
        if (GetItemRect(row, &bounds, LVIR_BOUNDS) && bounds.PtInRect(point))
            return row;
    }
    return -1;
}

int CZNSortListCtrl::FindColumn(int row, CPoint point)
{
    const CHeaderCtrl* const header = GetHeaderCtrl();
    const int columns = row < 0 || header == NULL ? 0 : header->GetItemCount();
    for (int column = 0; column < columns; ++column)
    {
        CRect label;
        if (GetSubItemRect(row, column, LVIR_LABEL, label) && label.PtInRect(point))
            return column;
    }
    return -1;
}

LRESULT CZNSortListCtrl::DrawCell(NMLVCUSTOMDRAW& draw)
{
    const int row = static_cast<int>(draw.nmcd.dwItemSpec);
    LRESULT result = CDRF_DODEFAULT;
    if (GetItemCount() >= kFewestRows)
    {
        draw.clrTextBk = RowBackground(row);
        result = CDRF_NEWFONT;
    }
    CDC* const dc = CDC::FromHandle(draw.nmcd.hdc);
    if (dc == NULL)
        return result;
    int isColor = 0;
    const bool drawn = m_mapColorColumns.Lookup(draw.iSubItem, isColor) && isColor != 0
                           ? DrawColor(*dc, row, draw.iSubItem)
                           : DrawHighlight(*dc, row, draw.iSubItem);
    return drawn ? CDRF_SKIPDEFAULT : result;
}

bool CZNSortListCtrl::DrawColor(CDC& dc, int row, int column)
{
    const CString text = GetItemText(row, column);
    CRect cell;
    if (!::IsWindow(m_hWnd) || !GetCellRect(row, column, cell))
        return false;
    const bool selected = GetItemState(row, LVIS_SELECTED) != 0;
    const ColorCellState state = {IsWindowEnabled() != FALSE, selected, selected && IsFocused()};
    const COLORREF textColor = state.listFocused ? ::GetSysColor(COLOR_HIGHLIGHTTEXT) : ::GetSysColor(COLOR_WINDOWTEXT);
    CSavedDC saved(dc.m_hDC);
    saved.SelectFont(FontOf(*this));
    DrawColorCell(dc, cell, ColorCellBackground(state), SwatchColor(ZNKTPub::GetColorFromName(text)));
    DrawCellText(dc, text, ColorTextRect(cell), textColor);
    return true;
}

bool CZNSortListCtrl::DrawHighlight(CDC& dc, int row, int column)
{
    if (!m_bCellHighlight || row == -1 || row != m_nHighlightItem || column != m_nHighlightSubItem)
        return false;
    const CString text = GetItemText(row, column);
    CRect cell;
    // Some versions of the list view have a label also for rows and columns that are not there.
    if (!::IsWindow(m_hWnd) || !GetCellRect(row, column, cell) || !GetSubItemRect(row, column, LVIR_LABEL, cell))
        return false;
    CSavedDC saved(dc.m_hDC);
    saved.SelectFont(FontOf(*this));
    dc.FillSolidRect(&cell, ::GetSysColor(COLOR_HIGHLIGHT));
    dc.DrawFocusRect(&cell);
    cell.left += column == 0 ? kFirstColumnHighlightIndent : kHighlightIndent;
    DrawCellText(dc, text, cell, ::GetSysColor(COLOR_HIGHLIGHTTEXT));
    return true;
}

// The notification's own rectangle begins at the window's edge or at that of the scrolled row, depending on the version
// of the list view. The place of the heading, moved with the row, is the same cell in all of them.
bool CZNSortListCtrl::GetCellRect(int row, int column, CRect& cell)
{
    const CHeaderCtrl* const header = GetHeaderCtrl();
    CRect bounds;
    if (header == NULL || !header->GetItemRect(column, &cell) || !GetItemRect(row, &bounds, LVIR_BOUNDS))
        return false;
    cell = CRect(cell.left + bounds.left, bounds.top, cell.right + bounds.left, bounds.bottom);
    return true;
}

bool CZNSortListCtrl::IsFocused() const
{
    return m_painting ? m_isFocusedWhilePainting : ::GetFocus() == m_hWnd;
}
