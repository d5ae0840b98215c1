// A report list whose rows are sorted by a click on a heading.
//
//     CZNSortListCtrl m_list;                                  // DDX_Control, or Create with LVS_REPORT
//     m_list.InsertColumn(0, L"图层", LVCFMT_LEFT, 120);
//     m_list.InsertColumn(1, L"颜色", LVCFMT_LEFT, 100);
//     m_list.SetIsColorColumn(1, 1);                           // a swatch beside each colour name
//     m_list.SetSortSubitems(0);                               // a click on 颜色 sorts nothing
//
// A column sorts as numbers when the text of row 0 is a plain number or empty, as texts (without regard to letter case)
// otherwise. The first click on a heading sorts descending, the next ones reverse. Equal rows keep their order, and
// every row keeps its item data.
//
// The control uses the lParam and the image of every header item and the header's image list for its arrows: the owner
// must leave them alone. It answers NM_CUSTOMDRAW itself. LVN_COLUMNCLICK goes on to the parent after the sort.
// While the rows are being sorted their item data is not the owner's, so that notifications about item data are not
// passed on; the owner may destroy the window or delete rows in any other notification.
//
// Columns are sub-item indices, points are client coordinates in pixels. Rows and columns that do not exist are
// accepted and do nothing. No function shows an error.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>
#include <afxtempl.h>

#include "base/ZnktApi.h"

class CSortOrder;

class ZNKT_API CZNSortListCtrl : public CListCtrl
{
    DECLARE_DYNAMIC(CZNSortListCtrl)

public:
    // What MyCompareProc gets.
    struct SortInfo
    {
        CListCtrl* list;
        int column;
        int mode;                // 0 text descending, 1 text ascending, 2 number descending, 3 number ascending
        const CSortOrder* order; // of the list's own sort: the places found before; null compares the rows' texts
    };

    CZNSortListCtrl();
    virtual ~CZNSortListCtrl();

    // 0: a click on a heading sorts nothing. 1 at first.
    void EnableSort(int enable);

    // The columns that a click may sort, copied; none means all of them. A column that is named twice is sorted twice.
    void SetSortSubitems(CArray<int, int>& columns);
    void SetSortSubitems(int column);

    // Whether the texts of a column are names of colours, shown with a swatch.
    void SetIsColorColumn(int nCol, int bIsColor);

    // Sorts the rows. bNumeric 1: as numbers, otherwise as texts. nOrder 1: ascending, 0: descending, -1: the reverse
    // of what the heading shows; any other value only clears the arrows of the other columns.
    void SortColumn(int nCol, int bNumeric, int nOrder);

    // Sets the arrow of a heading: -1 none, 0 up (ascending), 1 down (descending); any other value reverses it, where a
    // heading without an arrow gets the arrow up. Answers the state set, -2 when there is no such heading.
    int ModiHeardCtrl(CHeaderCtrl* header, int nCol, int nState);

    // Whether the cell that was clicked last is highlighted, and which one that is; redraws the row named.
    void SetCellHighlight(bool bOn, int nItem, int nSubItem);

    // The cell that was clicked last with either button; -1, -1 when the last click hit none.
    void GetClickPos(int& nItem, int& nSubItem);

    // Compares two rows for LVM_SORTITEMS. The first two parameters are row indices, the third is a SortInfo. In the
    // numeric modes the answer is 1 or 0, never below 0.
    static int CALLBACK MyCompareProc(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort);

protected:
    // The rows are about to change their places. False keeps them where they are.
    virtual bool PrepareSort();

    // The highlighted row is another one from now on; nothing is redrawn.
    void MoveHighlight(int rows);

    DECLARE_MESSAGE_MAP()

    afx_msg BOOL OnColumnclick(NMHDR* notification, LRESULT* result);
    afx_msg void OnCustomDraw(NMHDR* notification, LRESULT* result);
    afx_msg BOOL OnItemChange(NMHDR* notification, LRESULT* result);
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);

private:
    CZNSortListCtrl(const CZNSortListCtrl&);
    CZNSortListCtrl& operator=(const CZNSortListCtrl&);

    void MakeArrows();
    CBitmap* MakeColorBoxImage(int bUp);
    void ClearOtherArrows(CHeaderCtrl* header, int column);
    void SortRows(int column, int mode);

    void IsClickedItem(CPoint point);
    int FindRow(CPoint point);
    int FindColumn(int row, CPoint point);

    LRESULT DrawCell(NMLVCUSTOMDRAW& draw);
    bool DrawColor(CDC& dc, int row, int column);
    bool DrawHighlight(CDC& dc, int row, int column);
    bool GetCellRect(int row, int column, CRect& cell);
    bool IsFocused() const;

    CImageList m_imgSortArrows;
    bool m_bArrowsMade;
    CArray<int, int> m_aSortSubitems;
    bool m_bCellHighlight;
    int m_nHighlightItem;
    int m_nHighlightSubItem;
    int m_nSortEnabled;
    CMap<int, int, int, int> m_mapColorColumns;
    bool m_sorting;
    bool m_painting;
    bool m_isFocusedWhilePainting;
};
