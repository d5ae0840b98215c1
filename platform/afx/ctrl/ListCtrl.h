// CListCtrl: the list view control.
//
// Texts of any length are read and written: GetItemText with a CString has no limit. The header of a report list is
// the client's object that subclassed it, otherwise an object that lives as long as this one.
#pragma once

#include "afx/ctrl/HeaderCtrl.h"
#include "afx/wnd/Wnd.h"

#include <commctrl.h>

class CEdit;
class CImageList;
class CToolTipCtrl;

class AFX_API CListCtrl : public CWnd
{
    DECLARE_DYNCREATE(CListCtrl)

public:
    CListCtrl();
    ~CListCtrl() override;

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    virtual BOOL CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // Rows.
    int GetItemCount() const { return static_cast<int>(::SendMessage(m_hWnd, LVM_GETITEMCOUNT, 0, 0)); }
    void SetItemCount(int items) { ::SendMessage(m_hWnd, LVM_SETITEMCOUNT, items, 0); }
    BOOL SetItemCountEx(int count, DWORD flags = LVSICF_NOINVALIDATEALL);
    // Index of the new row, -1 on failure.
    int InsertItem(const LVITEM* item)
    {
        return static_cast<int>(::SendMessage(m_hWnd, LVM_INSERTITEM, 0, LPARAM(item)));
    }
    int InsertItem(int row, LPCTSTR text);
    int InsertItem(int row, LPCTSTR text, int image);
    int InsertItem(UINT mask, int row, LPCTSTR text, UINT state, UINT stateMask, int image, LPARAM data);
    BOOL DeleteItem(int row) { return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_DELETEITEM, row, 0)); }
    BOOL DeleteAllItems() { return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_DELETEALLITEMS, 0, 0)); }
    BOOL GetItem(LVITEM* item) const { return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_GETITEM, 0, LPARAM(item))); }
    BOOL SetItem(const LVITEM* item) { return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_SETITEM, 0, LPARAM(item))); }
    BOOL SetItem(int row, int column, UINT mask, LPCTSTR text, int image, UINT state, UINT stateMask, LPARAM data);
    BOOL SetItem(int row, int column, UINT mask, LPCTSTR text, int image, UINT state, UINT stateMask, LPARAM data,
                 int indent);
    CString GetItemText(int row, int column) const;
    // Copies at most maxLength - 1 characters and returns their number.
    int GetItemText(int row, int column, LPTSTR text, int maxLength) const;
    BOOL SetItemText(int row, int column, LPCTSTR text);
    // 0 for a row that isn't there.
    DWORD_PTR GetItemData(int row) const;
    BOOL SetItemData(int row, DWORD_PTR data);
    UINT GetItemState(int row, UINT mask) const { return UINT(::SendMessage(m_hWnd, LVM_GETITEMSTATE, row, mask)); }
    BOOL SetItemState(int row, LVITEM* item)
    {
        return BOOL(::SendMessage(m_hWnd, LVM_SETITEMSTATE, row, LPARAM(item)));
    }
    BOOL SetItemState(int row, UINT state, UINT mask);
    BOOL GetCheck(int row) const;
    BOOL SetCheck(int row, BOOL check = TRUE);

    // Searching and selection.
    int GetNextItem(int row, int flags) const
    {
        return int(::SendMessage(m_hWnd, LVM_GETNEXTITEM, row, MAKELPARAM(flags, 0)));
    }
    int FindItem(LVFINDINFO* info, int start = -1) const
    {
        return int(::SendMessage(m_hWnd, LVM_FINDITEM, start, LPARAM(info)));
    }
    POSITION GetFirstSelectedItemPosition() const;
    int GetNextSelectedItem(POSITION& position) const;
    UINT GetSelectedCount() const { return static_cast<UINT>(::SendMessage(m_hWnd, LVM_GETSELECTEDCOUNT, 0, 0)); }
    int GetSelectionMark() { return static_cast<int>(::SendMessage(m_hWnd, LVM_GETSELECTIONMARK, 0, 0)); }
    int SetSelectionMark(int row) { return static_cast<int>(::SendMessage(m_hWnd, LVM_SETSELECTIONMARK, 0, row)); }
    int GetHotItem() { return static_cast<int>(::SendMessage(m_hWnd, LVM_GETHOTITEM, 0, 0)); }
    int SetHotItem(int row) { return static_cast<int>(::SendMessage(m_hWnd, LVM_SETHOTITEM, row, 0)); }
    BOOL SortItems(PFNLVCOMPARE compare, DWORD_PTR data)
    {
        return BOOL(::SendMessage(m_hWnd, LVM_SORTITEMS, data, LPARAM(compare)));
    }
    BOOL SortItemsEx(PFNLVCOMPARE compare, DWORD_PTR data);

    // Columns.
    // Index of the new column, -1 on failure. A width below 0 keeps the control's default.
    int InsertColumn(int column, const LVCOLUMN* info)
    {
        return int(::SendMessage(m_hWnd, LVM_INSERTCOLUMN, column, LPARAM(info)));
    }
    int InsertColumn(int column, LPCTSTR heading, int format = LVCFMT_LEFT, int width = -1, int subItem = -1);
    BOOL DeleteColumn(int column) { return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_DELETECOLUMN, column, 0)); }
    BOOL GetColumn(int column, LVCOLUMN* info) const
    {
        return BOOL(::SendMessage(m_hWnd, LVM_GETCOLUMN, column, LPARAM(info)));
    }
    BOOL SetColumn(int column, const LVCOLUMN* info)
    {
        return BOOL(::SendMessage(m_hWnd, LVM_SETCOLUMN, column, LPARAM(info)));
    }
    int GetColumnWidth(int column) const
    {
        return static_cast<int>(::SendMessage(m_hWnd, LVM_GETCOLUMNWIDTH, column, 0));
    }
    BOOL SetColumnWidth(int column, int width)
    {
        return BOOL(::SendMessage(m_hWnd, LVM_SETCOLUMNWIDTH, column, MAKELPARAM(width, 0)));
    }
    BOOL GetColumnOrderArray(LPINT order, int count = -1);
    BOOL SetColumnOrderArray(int count, LPINT order);
    // NULL for a list without a header.
    CHeaderCtrl* GetHeaderCtrl();
    CHeaderCtrl* GetHeaderCtrl() const { return const_cast<CListCtrl*>(this)->GetHeaderCtrl(); }
    int GetStringWidth(LPCTSTR text) const { return int(::SendMessage(m_hWnd, LVM_GETSTRINGWIDTH, 0, LPARAM(text))); }

    // Geometry, in client coordinates.
    BOOL GetItemRect(int row, LPRECT rect, UINT code) const;
    BOOL GetSubItemRect(int row, int column, int area, CRect& rect) const;
    BOOL GetItemPosition(int row, LPPOINT point) const
    {
        return BOOL(::SendMessage(m_hWnd, LVM_GETITEMPOSITION, row, LPARAM(point)));
    }
    BOOL SetItemPosition(int row, POINT point)
    {
        return BOOL(::SendMessage(m_hWnd, LVM_SETITEMPOSITION32, row, LPARAM(&point)));
    }
    int HitTest(LVHITTESTINFO* info) const
    {
        return static_cast<int>(::SendMessage(m_hWnd, LVM_HITTEST, 0, LPARAM(info)));
    }
    int HitTest(CPoint point, UINT* flags = nullptr) const;
    int SubItemHitTest(LPLVHITTESTINFO info) { return int(::SendMessage(m_hWnd, LVM_SUBITEMHITTEST, 0, LPARAM(info))); }
    int GetTopIndex() const { return static_cast<int>(::SendMessage(m_hWnd, LVM_GETTOPINDEX, 0, 0)); }
    int GetCountPerPage() const { return static_cast<int>(::SendMessage(m_hWnd, LVM_GETCOUNTPERPAGE, 0, 0)); }
    BOOL GetViewRect(LPRECT rect) const { return BOOL(::SendMessage(m_hWnd, LVM_GETVIEWRECT, 0, LPARAM(rect))); }
    BOOL EnsureVisible(int row, BOOL partialOk)
    {
        return BOOL(::SendMessage(m_hWnd, LVM_ENSUREVISIBLE, row, MAKELPARAM(partialOk, 0)));
    }
    BOOL Scroll(CSize size) { return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_SCROLL, size.cx, size.cy)); }
    BOOL RedrawItems(int first, int last)
    {
        return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_REDRAWITEMS, first, last));
    }
    BOOL Update(int row) { return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_UPDATE, row, 0)); }
    BOOL Arrange(UINT code) { return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_ARRANGE, code, 0)); }

    // Look.
    DWORD SetExtendedStyle(DWORD style) { return DWORD(::SendMessage(m_hWnd, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, style)); }
    DWORD GetExtendedStyle() const
    {
        return static_cast<DWORD>(::SendMessage(m_hWnd, LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0));
    }
    COLORREF GetBkColor() const { return static_cast<COLORREF>(::SendMessage(m_hWnd, LVM_GETBKCOLOR, 0, 0)); }
    BOOL SetBkColor(COLORREF color) { return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_SETBKCOLOR, 0, color)); }
    COLORREF GetTextColor() const { return static_cast<COLORREF>(::SendMessage(m_hWnd, LVM_GETTEXTCOLOR, 0, 0)); }
    BOOL SetTextColor(COLORREF color) { return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_SETTEXTCOLOR, 0, color)); }
    COLORREF GetTextBkColor() const { return static_cast<COLORREF>(::SendMessage(m_hWnd, LVM_GETTEXTBKCOLOR, 0, 0)); }
    BOOL SetTextBkColor(COLORREF color)
    {
        return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_SETTEXTBKCOLOR, 0, color));
    }
    // Borrowed; temporary objects are returned.
    CImageList* GetImageList(int kind) const;
    CImageList* SetImageList(CImageList* images, int kind);
    DWORD GetView() const { return static_cast<DWORD>(::SendMessage(m_hWnd, LVM_GETVIEW, 0, 0)); }
    DWORD SetView(int view) { return static_cast<DWORD>(::SendMessage(m_hWnd, LVM_SETVIEW, view, 0)); }
    CToolTipCtrl* GetToolTips() const;
    CToolTipCtrl* SetToolTips(CToolTipCtrl* tip);

    // Editing of labels.
    CEdit* EditLabel(int row);
    CEdit* GetEditControl() const;
    void CancelEditLabel() { ::SendMessage(m_hWnd, LVM_CANCELEDITLABEL, 0, 0); }

    // For LVS_OWNERDRAWFIXED.
    virtual void DrawItem(LPDRAWITEMSTRUCT drawItem);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

private:
    // Stays out of the handle map, so that a client can subclass the header with an object of its own.
    CHeaderCtrl m_header;
};
