// CTabCtrl: a row of tabs.
#pragma once

#include "afx/wnd/Wnd.h"

#include <commctrl.h>

class CImageList;
class CToolTipCtrl;

class AFX_API CTabCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTabCtrl)

public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    int GetItemCount() const { return static_cast<int>(::SendMessage(m_hWnd, TCM_GETITEMCOUNT, 0, 0)); }
    BOOL GetItem(int index, TCITEM* item) const
    {
        return BOOL(::SendMessage(m_hWnd, TCM_GETITEM, index, LPARAM(item)));
    }
    BOOL SetItem(int index, TCITEM* item) { return BOOL(::SendMessage(m_hWnd, TCM_SETITEM, index, LPARAM(item))); }
    // Index of the new tab, -1 on failure.
    LONG InsertItem(int index, TCITEM* item)
    {
        return LONG(::SendMessage(m_hWnd, TCM_INSERTITEM, index, LPARAM(item)));
    }
    LONG InsertItem(int index, LPCTSTR text);
    LONG InsertItem(int index, LPCTSTR text, int image);
    LONG InsertItem(UINT mask, int index, LPCTSTR text, int image, LPARAM data);
    BOOL DeleteItem(int index) { return static_cast<BOOL>(::SendMessage(m_hWnd, TCM_DELETEITEM, index, 0)); }
    BOOL DeleteAllItems() { return static_cast<BOOL>(::SendMessage(m_hWnd, TCM_DELETEALLITEMS, 0, 0)); }

    int GetCurSel() const { return static_cast<int>(::SendMessage(m_hWnd, TCM_GETCURSEL, 0, 0)); }
    // Sends no notification. Result: the tab selected before, -1 for none.
    int SetCurSel(int index) { return static_cast<int>(::SendMessage(m_hWnd, TCM_SETCURSEL, index, 0)); }
    int GetCurFocus() const { return static_cast<int>(::SendMessage(m_hWnd, TCM_GETCURFOCUS, 0, 0)); }
    void SetCurFocus(int index) { ::SendMessage(m_hWnd, TCM_SETCURFOCUS, index, 0); }
    int HitTest(TCHITTESTINFO* info) const
    {
        return static_cast<int>(::SendMessage(m_hWnd, TCM_HITTEST, 0, LPARAM(info)));
    }

    BOOL GetItemRect(int index, LPRECT rect) const
    {
        return BOOL(::SendMessage(m_hWnd, TCM_GETITEMRECT, index, LPARAM(rect)));
    }
    // From window rectangle to display area, or (larger) the other way round.
    void AdjustRect(BOOL larger, LPRECT rect) { ::SendMessage(m_hWnd, TCM_ADJUSTRECT, larger, LPARAM(rect)); }
    CSize SetItemSize(CSize size);
    void SetPadding(CSize size) { ::SendMessage(m_hWnd, TCM_SETPADDING, 0, MAKELPARAM(size.cx, size.cy)); }
    int SetMinTabWidth(int width) { return static_cast<int>(::SendMessage(m_hWnd, TCM_SETMINTABWIDTH, 0, width)); }
    int GetRowCount() const { return static_cast<int>(::SendMessage(m_hWnd, TCM_GETROWCOUNT, 0, 0)); }
    BOOL HighlightItem(int index, BOOL highlight = TRUE);
    DWORD GetExtendedStyle() { return static_cast<DWORD>(::SendMessage(m_hWnd, TCM_GETEXTENDEDSTYLE, 0, 0)); }
    DWORD SetExtendedStyle(DWORD style, DWORD mask = 0)
    {
        return DWORD(::SendMessage(m_hWnd, TCM_SETEXTENDEDSTYLE, mask, style));
    }

    // Borrowed; temporary objects are returned.
    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* images);
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* tip);

    // For TCS_OWNERDRAWFIXED.
    virtual void DrawItem(LPDRAWITEMSTRUCT drawItem);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
