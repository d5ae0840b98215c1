// CComboBox: an edit or static text with a list that drops down.
#pragma once

#include "afx/wnd/Wnd.h"

class AFX_API CComboBox : public CWnd
{
    DECLARE_DYNAMIC(CComboBox)

public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // CB_ERR (-1) reports an error everywhere, CB_ERRSPACE (-2) no memory.
    int GetCount() const { return static_cast<int>(::SendMessage(m_hWnd, CB_GETCOUNT, 0, 0)); }
    int AddString(LPCTSTR text) { return static_cast<int>(::SendMessage(m_hWnd, CB_ADDSTRING, 0, LPARAM(text))); }
    int InsertString(int index, LPCTSTR text)
    {
        return int(::SendMessage(m_hWnd, CB_INSERTSTRING, index, LPARAM(text)));
    }
    int DeleteString(UINT index) { return static_cast<int>(::SendMessage(m_hWnd, CB_DELETESTRING, index, 0)); }
    void ResetContent() { ::SendMessage(m_hWnd, CB_RESETCONTENT, 0, 0); }
    int FindString(int startAfter, LPCTSTR text) const { return Find(CB_FINDSTRING, startAfter, text); }
    int FindStringExact(int startAfter, LPCTSTR text) const { return Find(CB_FINDSTRINGEXACT, startAfter, text); }
    int SelectString(int startAfter, LPCTSTR text) { return Find(CB_SELECTSTRING, startAfter, text); }
    int Dir(UINT attributes, LPCTSTR pattern)
    {
        return int(::SendMessage(m_hWnd, CB_DIR, attributes, LPARAM(pattern)));
    }

    int GetCurSel() const { return static_cast<int>(::SendMessage(m_hWnd, CB_GETCURSEL, 0, 0)); }
    int SetCurSel(int index) { return static_cast<int>(::SendMessage(m_hWnd, CB_SETCURSEL, index, 0)); }
    int GetLBText(int index, LPTSTR buffer) const
    {
        return int(::SendMessage(m_hWnd, CB_GETLBTEXT, index, LPARAM(buffer)));
    }
    void GetLBText(int index, CString& text) const;
    int GetLBTextLen(int index) const { return static_cast<int>(::SendMessage(m_hWnd, CB_GETLBTEXTLEN, index, 0)); }
    DWORD_PTR GetItemData(int index) const { return ::SendMessage(m_hWnd, CB_GETITEMDATA, index, 0); }
    int SetItemData(int index, DWORD_PTR data)
    {
        return int(::SendMessage(m_hWnd, CB_SETITEMDATA, index, LPARAM(data)));
    }
    void* GetItemDataPtr(int index) const { return reinterpret_cast<void*>(GetItemData(index)); }
    int SetItemDataPtr(int index, void* data) { return SetItemData(index, reinterpret_cast<DWORD_PTR>(data)); }

    // The edit's selection as start (low word) and end (high word).
    DWORD GetEditSel() const { return static_cast<DWORD>(::SendMessage(m_hWnd, CB_GETEDITSEL, 0, 0)); }
    BOOL SetEditSel(int start, int end)
    {
        return BOOL(::SendMessage(m_hWnd, CB_SETEDITSEL, 0, MAKELPARAM(start, end)));
    }
    BOOL LimitText(int maxChars) { return static_cast<BOOL>(::SendMessage(m_hWnd, CB_LIMITTEXT, maxChars, 0)); }
    void Clear() { ::SendMessage(m_hWnd, WM_CLEAR, 0, 0); }
    void Copy() { ::SendMessage(m_hWnd, WM_COPY, 0, 0); }
    void Cut() { ::SendMessage(m_hWnd, WM_CUT, 0, 0); }
    void Paste() { ::SendMessage(m_hWnd, WM_PASTE, 0, 0); }

    void ShowDropDown(BOOL show = TRUE) { ::SendMessage(m_hWnd, CB_SHOWDROPDOWN, show, 0); }
    BOOL GetDroppedState() const { return static_cast<BOOL>(::SendMessage(m_hWnd, CB_GETDROPPEDSTATE, 0, 0)); }
    void GetDroppedControlRect(LPRECT rect) const { ::SendMessage(m_hWnd, CB_GETDROPPEDCONTROLRECT, 0, LPARAM(rect)); }
    int GetDroppedWidth() const { return static_cast<int>(::SendMessage(m_hWnd, CB_GETDROPPEDWIDTH, 0, 0)); }
    int SetDroppedWidth(UINT width) { return static_cast<int>(::SendMessage(m_hWnd, CB_SETDROPPEDWIDTH, width, 0)); }
    int GetItemHeight(int index) const { return static_cast<int>(::SendMessage(m_hWnd, CB_GETITEMHEIGHT, index, 0)); }
    int SetItemHeight(int index, UINT height)
    {
        return int(::SendMessage(m_hWnd, CB_SETITEMHEIGHT, index, MAKELONG(height, 0)));
    }
    int GetTopIndex() const { return static_cast<int>(::SendMessage(m_hWnd, CB_GETTOPINDEX, 0, 0)); }
    int SetTopIndex(int index) { return static_cast<int>(::SendMessage(m_hWnd, CB_SETTOPINDEX, index, 0)); }
    UINT GetHorizontalExtent() const { return static_cast<UINT>(::SendMessage(m_hWnd, CB_GETHORIZONTALEXTENT, 0, 0)); }
    void SetHorizontalExtent(UINT extent) { ::SendMessage(m_hWnd, CB_SETHORIZONTALEXTENT, extent, 0); }
    BOOL GetExtendedUI() const { return static_cast<BOOL>(::SendMessage(m_hWnd, CB_GETEXTENDEDUI, 0, 0)); }
    int SetExtendedUI(BOOL extended = TRUE) { return int(::SendMessage(m_hWnd, CB_SETEXTENDEDUI, extended, 0)); }
    int InitStorage(int items, UINT bytes)
    {
        return static_cast<int>(::SendMessage(m_hWnd, CB_INITSTORAGE, items, bytes));
    }
    BOOL SetCueBanner(LPCTSTR text) { return BOOL(::SendMessage(m_hWnd, CB_SETCUEBANNER, 0, LPARAM(text))); }
    BOOL GetComboBoxInfo(PCOMBOBOXINFO info) const { return ::GetComboBoxInfo(m_hWnd, info); }

    // Overridables of owner-drawn combo boxes.
    virtual void DrawItem(LPDRAWITEMSTRUCT drawItem);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT measureItem);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT compareItem);
    virtual void DeleteItem(LPDELETEITEMSTRUCT deleteItem);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

private:
    int Find(UINT message, int startAfter, LPCTSTR text) const
    {
        return static_cast<int>(::SendMessage(m_hWnd, message, startAfter, LPARAM(text)));
    }
};
