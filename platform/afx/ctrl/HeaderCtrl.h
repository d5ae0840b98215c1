// CHeaderCtrl: the column headings of a list.
#pragma once

#include "afx/wnd/Wnd.h"

#include <commctrl.h>

class CImageList;

class AFX_API CHeaderCtrl : public CWnd
{
    DECLARE_DYNAMIC(CHeaderCtrl)

public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    int GetItemCount() const { return static_cast<int>(::SendMessage(m_hWnd, HDM_GETITEMCOUNT, 0, 0)); }
    BOOL GetItem(int position, HDITEM* item) const
    {
        return BOOL(::SendMessage(m_hWnd, HDM_GETITEM, position, LPARAM(item)));
    }
    BOOL SetItem(int position, HDITEM* item)
    {
        return BOOL(::SendMessage(m_hWnd, HDM_SETITEM, position, LPARAM(item)));
    }
    // Index of the new item, -1 on failure.
    int InsertItem(int position, HDITEM* item)
    {
        return int(::SendMessage(m_hWnd, HDM_INSERTITEM, position, LPARAM(item)));
    }
    BOOL DeleteItem(int position) { return static_cast<BOOL>(::SendMessage(m_hWnd, HDM_DELETEITEM, position, 0)); }
    BOOL GetItemRect(int index, LPRECT rect) const
    {
        return BOOL(::SendMessage(m_hWnd, HDM_GETITEMRECT, index, LPARAM(rect)));
    }
    BOOL Layout(HDLAYOUT* layout) { return static_cast<BOOL>(::SendMessage(m_hWnd, HDM_LAYOUT, 0, LPARAM(layout))); }
    int HitTest(LPHDHITTESTINFO info) { return static_cast<int>(::SendMessage(m_hWnd, HDM_HITTEST, 0, LPARAM(info))); }

    int OrderToIndex(int order) const { return static_cast<int>(::SendMessage(m_hWnd, HDM_ORDERTOINDEX, order, 0)); }
    // With a count of -1 all items; the array must have room for them.
    BOOL GetOrderArray(LPINT order, int count = -1);
    BOOL SetOrderArray(int count, LPINT order)
    {
        return BOOL(::SendMessage(m_hWnd, HDM_SETORDERARRAY, count, LPARAM(order)));
    }

    // Temporary objects; the list is borrowed.
    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* images);

    // For items with HDF_OWNERDRAW.
    virtual void DrawItem(LPDRAWITEMSTRUCT drawItem);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
