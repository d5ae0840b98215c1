// A report list whose cells are edited in place.
//
//     CZNListCtrl m_layers;                                   // DDX_Control, or Create with LVS_REPORT
//     m_layers.m_aNoEditColumns.Add(0);                       // keys never lead into column 0
//
//     ON_NOTIFY(LVN_BEGINLABELEDITW, IDC_LAYERS, &CMyDlg::OnBeginEdit)
//     ON_NOTIFY(LVN_ENDLABELEDITW, IDC_LAYERS, &CMyDlg::OnEndEdit)
//
//     void CMyDlg::OnBeginEdit(NMHDR* header, LRESULT* result)
//     {
//         const LVITEMW& cell = reinterpret_cast<NMLVDISPINFOW*>(header)->item;
//         if (cell.iSubItem == 1)
//             m_layers.ShowInPlaceEdit(cell.iItem, cell.iSubItem, cell.pszText);
//     }
//
//     void CMyDlg::OnEndEdit(NMHDR* header, LRESULT* result)
//     {
//         const LVITEMW& cell = reinterpret_cast<NMLVDISPINFOW*>(header)->item;
//         m_layers.SetItemText(cell.iItem, cell.iSubItem, cell.pszText);
//     }
//
// The list knows where a cell is, what the focus and the keys do, and when an edit ends. The parent decides which
// editor a cell gets, if any, and what becomes of the text: the list never writes into the cell.
//
// To the parent, as NMLVDISPINFOW with LVIF_TEXT, row, column, text and its length; the answer is not used:
//   LVN_BEGINLABELEDITW  a cell was clicked or reached by a key: its present text. Answer with ShowInPlace... or not.
//   LVN_ENDLABELEDITW    an editor was closed: the final text. Comes exactly once for each editor, also when the edit
//                        ends by scrolling, by a heading that is drawn wider, by the loss of the focus or by
//                        DestroyWindow. A list that goes down with its parent drops an editor that still stands,
//                        without a word.
//   WM_LISTCTRL_BEFOREDELETE  see there.
// In all of them the parent may open or end an edit, delete rows and destroy the list. A sort ends an edit, too; an
// owner that inserts or deletes rows by the functions of CListCtrl ends it first, because an edit keeps the row number
// that it began with.
//
// Keys: Space and Enter edit the selected row. In an editor Up, Down, Ctrl+Left, Ctrl+Right and Enter (the next cell,
// row by row) go to another cell; where there is none, the key goes to the dialog. Tab and Escape are the dialog's.
//
// Columns are sub-item indices. Cells that do not exist open nothing. No function shows an error. Header clicks sort
// nothing unless EnableSort(1) is called. The list must not have LVS_EDITLABELS, which brings an editor of its own.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>
#include <afxdtctl.h>
#include <afxtempl.h>

#include "base/ZnktApi.h"
#include "list/ZNSortListCtrl.h"

class CSuperEdit;
struct CellGrid;
struct CellPlace;

// Style of an editable list, beside its window style.
enum
{
    ZNLCS_CLICKEDIT = 0x01,          // a click on another row edits at once, otherwise it only selects the row
    ZNLCS_DEFAULTEXTRA = 0x08,       // the owner's; the list does not look at it
    ZNLCS_KEEPEDITONKILLFOCUS = 0x10 // an editor stays open when it loses the focus
};

// To the parent, before rows are deleted by DelItem, so that it can free what their item data points to.
// wParam: CArray<int, int>*, the rows in ascending order. lParam: CZNListCtrl*. The result is not used.
enum
{
    WM_LISTCTRL_BEFOREDELETE = WM_USER + 103
};

class ZNKT_API CZNListCtrl : public CZNSortListCtrl
{
    DECLARE_DYNAMIC(CZNListCtrl)

public:
    // Which editor is open.
    enum EditKind
    {
        None = 0,
        EditWithButton = 1,
        ValidatingEdit = 2,
        ComboBox = 3,
        DateTime = 4
    };

    CZNListCtrl();
    virtual ~CZNListCtrl();

    // ZNLCS_... flags, all at once. ZNLCS_CLICKEDIT | ZNLCS_DEFAULTEXTRA at first.
    void SetZNListCtrlStyle(unsigned long style);
    unsigned long GetZNListCtrlStyle() const;

    // Whether a key that leads to a cell asks for an editor there. True at first.
    void SetIfEnterNextEdit(bool enter);

    // Whether keys may lead into a column: it is not among m_aNoEditColumns. Columns that do not exist may be edited.
    bool IsEdit(int nSubItem) const;

    // Open an editor over a cell and give it the focus. The editor belongs to the list and ends with the edit. Null:
    // there is no such cell, or it was closed again on the way. An edit under way is ended first. Null is an empty
    // text.

    // A validating edit; its characters, limits and tip are set up through the pointer. A text that is not valid when
    // the edit ends is replaced by the text of the cell.
    CSuperEdit* ShowInPlaceEdit(int nItem, int nSubItem, const wchar_t* text);

    // An edit with a button of three dots. A click ends the edit and then sends nMsg to the parent, with row and
    // column.
    CEdit* ShowInPlaceEditBtn(int nItem, int nSubItem, int nMsg, const wchar_t* text);

    // An empty combo box of the kind that dwStyle says (CBS_...). Every selection posts nMsg to the parent, with the
    // item data of the entry and 0.
    CComboBox* ShowInPlaceComboBox(int nItem, int nSubItem, unsigned long dwStyle, int nMsg);

    // A date picker (DTS_...). Without a moment, and for one that CTime holds as invalid, it begins as the picker does
    // by itself. A text is "2016-05-07" or "2016-05-07 10:30:15"; a month or day 0 shows as the first, a day that the
    // month does not have as one of the next month, and a year outside 1753 to 9999, which no picker shows, as no
    // moment. The final text is "2016-05-07", empty when the picker holds none.
    CDateTimeCtrl* ShowInPlaceDateTimeCtrl(int nItem, int nSubItem, unsigned long dwStyle, const CTime* pTime);
    CDateTimeCtrl* ShowInPlaceDateTimeCtrl(int nItem, int nSubItem, unsigned long dwStyle, const wchar_t* text);

    // Closes the editor and tells the parent. Nothing happens while the button of three dots has the focus: it is being
    // clicked.
    void EndEdit();

    // Operations on rows. -1 is the first selected row. An edit under way is ended first, but by SelectItem. -1 is the
    // answer to a row that does not exist, when nothing is selected, and when the list was destroyed on the way.

    // Move a row by one or to an end of the list, and select it there: the index before the move. The texts move.
    // Item data moves with UpItem and DownItem in lists with an odd number of columns, else it stays in its place;
    // TopItem and EndItem leave 0. Images and check boxes stay. The highlighted cell moves a row for every column.
    int UpItem(int nItem);
    int DownItem(int nItem);
    int TopItem(int nItem);
    int EndItem(int nItem);

    // Inserts an empty row before nItem, or behind the last one, and makes it the only selected one: its index.
    int InsItem(int nItem);

    // Deletes a row, with -1 all selected ones. The row that is selected then, -1 when the list is empty; -2 when
    // several rows were deleted, and none is selected then.
    int DelItem(int nItem);

    // Selects a row and gives it the focus among the rows; with bOnly no other one, where the list allows several.
    void SelectItem(int nItem, bool bOnly);

    virtual BOOL DestroyWindow();
    virtual BOOL PreTranslateMessage(MSG* message);
    virtual BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo);

    // Columns that keys never lead into.
    CArray<int, int> m_aNoEditColumns;

protected:
    virtual bool PrepareSort();
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);

    DECLARE_MESSAGE_MAP()

    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* scrollBar);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* scrollBar);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint screenPoint);
    afx_msg void OnDestroy();
    afx_msg void OnParentNotify(UINT message, LPARAM lParam);
    afx_msg void OnBtn();
    afx_msg void OnSelchangeCombo();

private:
    CZNListCtrl(const CZNListCtrl&);
    CZNListCtrl& operator=(const CZNListCtrl&);

    bool HasCell(int row, int column) const;

    // Opening.
    bool PrepareCell(int row, int column, CRect& cell);
    void Open(CWnd* editor, EditKind kind, int row, int column);
    void TakeFont(CWnd* editor);
    bool GiveFocus(CWnd* editor);
    bool ShowText(CEdit* edit, const wchar_t* text);
    CDateTimeCtrl* OpenPicker(int row, int column, unsigned long style, SYSTEMTIME* moment);

    // Ending.
    bool CloseEdit();
    bool IsButtonFocused() const;
    CString FinalText(CWnd* editor, EditKind kind, int row, int column);
    bool IsFocusLost(UINT id, int code, void* extra) const;
    bool IsFromEditor() const;
    void ForgetEditor();

    // Mouse and keys.
    CellPlace CellAt(CPoint point);
    bool IsEdited(const CellPlace& cell) const;
    void ClickEditedCell(UINT flags, CPoint point, const CellPlace& cell);
    void ClickCell(const CellPlace& cell);
    bool HandleKey(UINT key);
    CellGrid Grid() const;
    bool FindStart(CellPlace& start) const;
    void MoveTo(const CellPlace& target);
    void EnterCell(const CellPlace& cell);

    // Notifying.
    void AskForEditor(int row, int column);
    void Notify(UINT code, int row, int column, CString text);

    // Rows.
    bool BeginMove(int& row, UINT& state);
    int FinishMove(int row, UINT state, int result);
    int MoveByOne(int row, int step);
    int DeleteRows(const CArray<int, int>& rows);

    CWnd* m_pEditWnd;
    CButton* m_pEditButton;
    int m_nLastItem;
    int m_nLastSubItem;
    int m_nEditItem;
    int m_nEditSubItem;
    UINT m_nNotifyMsg;
    bool m_bEnterNextEdit;
    EditKind m_nEditKind;
    unsigned long m_dwListStyle;
    bool m_keepsEditor; // the focus that the editor loses comes back at once
};
