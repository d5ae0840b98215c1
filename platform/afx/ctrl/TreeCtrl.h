// CTreeCtrl: the tree view control.
#pragma once

#include "afx/wnd/Wnd.h"

#include <commctrl.h>

class CEdit;
class CImageList;
class CToolTipCtrl;

class AFX_API CTreeCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTreeCtrl)

public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    virtual BOOL CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // Items. NULL reports a failure where an item is returned.
    UINT GetCount() const { return static_cast<UINT>(::SendMessage(m_hWnd, TVM_GETCOUNT, 0, 0)); }
    HTREEITEM InsertItem(LPTVINSERTSTRUCT insert);
    HTREEITEM InsertItem(UINT mask, LPCTSTR text, int image, int selectedImage, UINT state, UINT stateMask, LPARAM data,
                         HTREEITEM parent, HTREEITEM insertAfter);
    HTREEITEM InsertItem(LPCTSTR text, HTREEITEM parent = TVI_ROOT, HTREEITEM insertAfter = TVI_LAST);
    HTREEITEM InsertItem(LPCTSTR text, int image, int selectedImage, HTREEITEM parent = TVI_ROOT,
                         HTREEITEM insertAfter = TVI_LAST);
    BOOL DeleteItem(HTREEITEM item)
    {
        return static_cast<BOOL>(::SendMessage(m_hWnd, TVM_DELETEITEM, 0, LPARAM(item)));
    }
    BOOL DeleteAllItems() { return DeleteItem(TVI_ROOT); }
    BOOL GetItem(TVITEM* item) const { return static_cast<BOOL>(::SendMessage(m_hWnd, TVM_GETITEM, 0, LPARAM(item))); }
    BOOL SetItem(TVITEM* item) { return static_cast<BOOL>(::SendMessage(m_hWnd, TVM_SETITEM, 0, LPARAM(item))); }
    BOOL SetItem(HTREEITEM item, UINT mask, LPCTSTR text, int image, int selectedImage, UINT state, UINT stateMask,
                 LPARAM data);
    CString GetItemText(HTREEITEM item) const;
    BOOL SetItemText(HTREEITEM item, LPCTSTR text);
    BOOL GetItemImage(HTREEITEM item, int& image, int& selectedImage) const;
    BOOL SetItemImage(HTREEITEM item, int image, int selectedImage);
    UINT GetItemState(HTREEITEM item, UINT mask) const;
    BOOL SetItemState(HTREEITEM item, UINT state, UINT mask);
    // 0 for an item that isn't there.
    DWORD_PTR GetItemData(HTREEITEM item) const;
    BOOL SetItemData(HTREEITEM item, DWORD_PTR data);
    BOOL ItemHasChildren(HTREEITEM item) const;
    BOOL GetCheck(HTREEITEM item) const;
    BOOL SetCheck(HTREEITEM item, BOOL check = TRUE);

    // Walking.
    HTREEITEM GetNextItem(HTREEITEM item, UINT code) const;
    HTREEITEM GetRootItem() const { return GetNextItem(nullptr, TVGN_ROOT); }
    HTREEITEM GetChildItem(HTREEITEM item) const { return GetNextItem(item, TVGN_CHILD); }
    HTREEITEM GetNextSiblingItem(HTREEITEM item) const { return GetNextItem(item, TVGN_NEXT); }
    HTREEITEM GetPrevSiblingItem(HTREEITEM item) const { return GetNextItem(item, TVGN_PREVIOUS); }
    HTREEITEM GetParentItem(HTREEITEM item) const { return GetNextItem(item, TVGN_PARENT); }
    HTREEITEM GetFirstVisibleItem() const { return GetNextItem(nullptr, TVGN_FIRSTVISIBLE); }
    HTREEITEM GetNextVisibleItem(HTREEITEM item) const { return GetNextItem(item, TVGN_NEXTVISIBLE); }
    HTREEITEM GetPrevVisibleItem(HTREEITEM item) const { return GetNextItem(item, TVGN_PREVIOUSVISIBLE); }
    HTREEITEM GetLastVisibleItem() const { return GetNextItem(nullptr, TVGN_LASTVISIBLE); }
    HTREEITEM GetSelectedItem() const { return GetNextItem(nullptr, TVGN_CARET); }
    HTREEITEM GetDropHilightItem() const { return GetNextItem(nullptr, TVGN_DROPHILITE); }

    BOOL Select(HTREEITEM item, UINT code) { return BOOL(::SendMessage(m_hWnd, TVM_SELECTITEM, code, LPARAM(item))); }
    BOOL SelectItem(HTREEITEM item) { return Select(item, TVGN_CARET); }
    BOOL SelectDropTarget(HTREEITEM item) { return Select(item, TVGN_DROPHILITE); }
    BOOL SelectSetFirstVisible(HTREEITEM item) { return Select(item, TVGN_FIRSTVISIBLE); }
    BOOL Expand(HTREEITEM item, UINT code) { return BOOL(::SendMessage(m_hWnd, TVM_EXPAND, code, LPARAM(item))); }
    BOOL EnsureVisible(HTREEITEM item) { return BOOL(::SendMessage(m_hWnd, TVM_ENSUREVISIBLE, 0, LPARAM(item))); }
    BOOL SortChildren(HTREEITEM item) { return BOOL(::SendMessage(m_hWnd, TVM_SORTCHILDREN, 0, LPARAM(item))); }
    BOOL SortChildrenCB(LPTVSORTCB sort) { return BOOL(::SendMessage(m_hWnd, TVM_SORTCHILDRENCB, 0, LPARAM(sort))); }

    // Geometry, in client coordinates.
    BOOL GetItemRect(HTREEITEM item, LPRECT rect, BOOL textOnly) const;
    HTREEITEM HitTest(CPoint point, UINT* flags = nullptr) const;
    HTREEITEM HitTest(TVHITTESTINFO* info) const;
    UINT GetVisibleCount() const { return static_cast<UINT>(::SendMessage(m_hWnd, TVM_GETVISIBLECOUNT, 0, 0)); }
    UINT GetIndent() const { return static_cast<UINT>(::SendMessage(m_hWnd, TVM_GETINDENT, 0, 0)); }
    void SetIndent(UINT indent) { ::SendMessage(m_hWnd, TVM_SETINDENT, indent, 0); }
    SHORT GetItemHeight() const { return static_cast<SHORT>(::SendMessage(m_hWnd, TVM_GETITEMHEIGHT, 0, 0)); }
    SHORT SetItemHeight(SHORT height)
    {
        return static_cast<SHORT>(::SendMessage(m_hWnd, TVM_SETITEMHEIGHT, height, 0));
    }

    // Look.
    COLORREF GetBkColor() const { return static_cast<COLORREF>(::SendMessage(m_hWnd, TVM_GETBKCOLOR, 0, 0)); }
    COLORREF SetBkColor(COLORREF color)
    {
        return static_cast<COLORREF>(::SendMessage(m_hWnd, TVM_SETBKCOLOR, 0, color));
    }
    COLORREF GetTextColor() const { return static_cast<COLORREF>(::SendMessage(m_hWnd, TVM_GETTEXTCOLOR, 0, 0)); }
    COLORREF SetTextColor(COLORREF color)
    {
        return static_cast<COLORREF>(::SendMessage(m_hWnd, TVM_SETTEXTCOLOR, 0, color));
    }
    COLORREF GetLineColor() const { return static_cast<COLORREF>(::SendMessage(m_hWnd, TVM_GETLINECOLOR, 0, 0)); }
    COLORREF SetLineColor(COLORREF color)
    {
        return static_cast<COLORREF>(::SendMessage(m_hWnd, TVM_SETLINECOLOR, 0, color));
    }
    // Borrowed; temporary objects are returned.
    CImageList* GetImageList(UINT kind) const;
    CImageList* SetImageList(CImageList* images, int kind);
    CImageList* CreateDragImage(HTREEITEM item);
    BOOL SetInsertMark(HTREEITEM item, BOOL after = TRUE);
    CToolTipCtrl* GetToolTips() const;
    CToolTipCtrl* SetToolTips(CToolTipCtrl* tip);

    // Editing of labels.
    CEdit* EditLabel(HTREEITEM item);
    CEdit* GetEditControl() const;
    BOOL EndEditLabelNow(BOOL cancel) { return BOOL(::SendMessage(m_hWnd, TVM_ENDEDITLABELNOW, cancel, 0)); }
};
