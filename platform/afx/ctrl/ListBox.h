// CListBox: a list of strings, of one or several columns and selections.
#pragma once

#include "afx/wnd/Wnd.h"

class AFX_API CListBox : public CWnd
{
    DECLARE_DYNAMIC(CListBox)

public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // LB_ERR (-1) reports an error everywhere, LB_ERRSPACE (-2) no memory.
    int GetCount() const { return static_cast<int>(::SendMessage(m_hWnd, LB_GETCOUNT, 0, 0)); }
    int AddString(LPCTSTR text) { return static_cast<int>(::SendMessage(m_hWnd, LB_ADDSTRING, 0, LPARAM(text))); }
    int InsertString(int index, LPCTSTR text)
    {
        return int(::SendMessage(m_hWnd, LB_INSERTSTRING, index, LPARAM(text)));
    }
    int DeleteString(UINT index) { return static_cast<int>(::SendMessage(m_hWnd, LB_DELETESTRING, index, 0)); }
    void ResetContent() { ::SendMessage(m_hWnd, LB_RESETCONTENT, 0, 0); }
    int FindString(int startAfter, LPCTSTR text) const { return Find(LB_FINDSTRING, startAfter, text); }
    int FindStringExact(int startAfter, LPCTSTR text) const { return Find(LB_FINDSTRINGEXACT, startAfter, text); }
    int SelectString(int startAfter, LPCTSTR text) { return Find(LB_SELECTSTRING, startAfter, text); }
    int Dir(UINT attributes, LPCTSTR pattern)
    {
        return int(::SendMessage(m_hWnd, LB_DIR, attributes, LPARAM(pattern)));
    }

    int GetText(int index, LPTSTR buffer) const
    {
        return int(::SendMessage(m_hWnd, LB_GETTEXT, index, LPARAM(buffer)));
    }
    void GetText(int index, CString& text) const;
    int GetTextLen(int index) const { return static_cast<int>(::SendMessage(m_hWnd, LB_GETTEXTLEN, index, 0)); }
    DWORD_PTR GetItemData(int index) const { return ::SendMessage(m_hWnd, LB_GETITEMDATA, index, 0); }
    int SetItemData(int index, DWORD_PTR data)
    {
        return int(::SendMessage(m_hWnd, LB_SETITEMDATA, index, LPARAM(data)));
    }
    void* GetItemDataPtr(int index) const { return reinterpret_cast<void*>(GetItemData(index)); }
    int SetItemDataPtr(int index, void* data) { return SetItemData(index, reinterpret_cast<DWORD_PTR>(data)); }

    // Single selection.
    int GetCurSel() const { return static_cast<int>(::SendMessage(m_hWnd, LB_GETCURSEL, 0, 0)); }
    int SetCurSel(int index) { return static_cast<int>(::SendMessage(m_hWnd, LB_SETCURSEL, index, 0)); }
    // Multiple selection; GetSel serves both.
    int GetSel(int index) const { return static_cast<int>(::SendMessage(m_hWnd, LB_GETSEL, index, 0)); }
    int SetSel(int index, BOOL select = TRUE)
    {
        return static_cast<int>(::SendMessage(m_hWnd, LB_SETSEL, select, index));
    }
    int GetSelCount() const { return static_cast<int>(::SendMessage(m_hWnd, LB_GETSELCOUNT, 0, 0)); }
    int GetSelItems(int maxItems, LPINT indices) const;
    int SelItemRange(BOOL select, int first, int last);
    void SetAnchorIndex(int index) { ::SendMessage(m_hWnd, LB_SETANCHORINDEX, index, 0); }
    int GetAnchorIndex() const { return static_cast<int>(::SendMessage(m_hWnd, LB_GETANCHORINDEX, 0, 0)); }
    int GetCaretIndex() const { return static_cast<int>(::SendMessage(m_hWnd, LB_GETCARETINDEX, 0, 0)); }
    int SetCaretIndex(int index, BOOL scroll = TRUE)
    {
        return int(::SendMessage(m_hWnd, LB_SETCARETINDEX, index, !scroll));
    }

    int GetTopIndex() const { return static_cast<int>(::SendMessage(m_hWnd, LB_GETTOPINDEX, 0, 0)); }
    int SetTopIndex(int index) { return static_cast<int>(::SendMessage(m_hWnd, LB_SETTOPINDEX, index, 0)); }
    int GetItemRect(int index, LPRECT rect) const
    {
        return int(::SendMessage(m_hWnd, LB_GETITEMRECT, index, LPARAM(rect)));
    }
    int GetItemHeight(int index) const { return static_cast<int>(::SendMessage(m_hWnd, LB_GETITEMHEIGHT, index, 0)); }
    int SetItemHeight(int index, UINT height)
    {
        return int(::SendMessage(m_hWnd, LB_SETITEMHEIGHT, index, MAKELONG(height, 0)));
    }
    // The item nearest to a point in client coordinates.
    UINT ItemFromPoint(CPoint point, BOOL& outside) const;
    void SetColumnWidth(int width) { ::SendMessage(m_hWnd, LB_SETCOLUMNWIDTH, width, 0); }
    int GetHorizontalExtent() const { return static_cast<int>(::SendMessage(m_hWnd, LB_GETHORIZONTALEXTENT, 0, 0)); }
    void SetHorizontalExtent(int extent) { ::SendMessage(m_hWnd, LB_SETHORIZONTALEXTENT, extent, 0); }
    BOOL SetTabStops(int count, LPINT stops)
    {
        return BOOL(::SendMessage(m_hWnd, LB_SETTABSTOPS, count, LPARAM(stops)));
    }
    int InitStorage(int items, UINT bytes)
    {
        return static_cast<int>(::SendMessage(m_hWnd, LB_INITSTORAGE, items, bytes));
    }

    // Overridables of owner-drawn list boxes.
    virtual void DrawItem(LPDRAWITEMSTRUCT drawItem);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT measureItem);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT compareItem);
    virtual void DeleteItem(LPDELETEITEMSTRUCT deleteItem);
    virtual int VKeyToItem(UINT key, UINT index);
    virtual int CharToItem(UINT key, UINT index);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

private:
    int Find(UINT message, int startAfter, LPCTSTR text) const
    {
        return static_cast<int>(::SendMessage(m_hWnd, message, startAfter, LPARAM(text)));
    }
};
