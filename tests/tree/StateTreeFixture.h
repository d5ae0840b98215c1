// A check tree in a dialog-like owner window that notes what it is told and may do something evil meanwhile.
#pragma once

#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "Wait.h"
#include "tree/StateTreeCtrl.h"

class StateTreeOwner : public CWnd
{
public:
    struct Told
    {
        UINT code;
        HTREEITEM item; // of a check change
        int check;
        HWND from;
        UINT_PTR id;
        WPARAM wParam;
    };

    StateTreeOwner()
    {
        const CString wndClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(NULL, IDC_ARROW));
        CreateEx(0, wndClass, L"owner", WS_POPUP | WS_VISIBLE, CRect(50, 50, 450, 450), NULL, 0);
    }

    ~StateTreeOwner() override { DestroyWindow(); }

    // The private notifications in their order.
    std::vector<Told> told;

    // Called for each of them, after it was noted.
    std::function<void(const Told&)> onTold;

    // Called for every notification that the tree did not keep for itself.
    std::function<void(const NMHDR&)> onOther;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        const NMHDR& header = *reinterpret_cast<const NMHDR*>(lParam);
        if (header.code == STATETREEN_CLICK || header.code == STATETREEN_CHECKCHANGED)
        {
            Told one = {header.code, NULL, -1, header.hwndFrom, header.idFrom, wParam};
            if (header.code == STATETREEN_CHECKCHANGED)
            {
                const NMSTATETREECHECK& change = *reinterpret_cast<const NMSTATETREECHECK*>(lParam);
                one.item = change.hItem;
                one.check = change.bCheck;
            }
            told.push_back(one);
            if (onTold)
                onTold(one);
            return TRUE;
        }
        const BOOL handled = CWnd::OnNotify(wParam, lParam, result);
        if (!handled && onOther)
            onOther(header);
        return handled;
    }
};

class StateTreeFixture : public testing::Test
{
protected:
    static constexpr UINT kTreeId = 11;
    static constexpr DWORD kStyle =
        WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_LINESATROOT | TVS_HASLINES | TVS_SHOWSELALWAYS;

    StateTreeFixture() { m_tree.Create(kStyle, Place(), &m_owner, kTreeId); }

    ~StateTreeFixture() override
    {
        m_owner.onTold = nullptr;
        m_owner.onOther = nullptr;
    }

    static CRect Place() { return CRect(0, 0, 300, 380); }

    // An item with this check value.
    HTREEITEM Add(HTREEITEM parent, int value)
    {
        const HTREEITEM item = m_tree.InsertItem(L"item", parent == NULL ? TVI_ROOT : parent, TVI_LAST);
        m_tree.SetItemState(item, INDEXTOSTATEIMAGEMASK(value), TVIS_STATEIMAGEMASK);
        return item;
    }

    std::vector<HTREEITEM> AddAll(HTREEITEM parent, const std::vector<int>& values)
    {
        std::vector<HTREEITEM> items;
        for (int value : values)
            items.push_back(Add(parent, value));
        return items;
    }

    static int ValueIn(const CTreeCtrl& tree, HTREEITEM item)
    {
        return (tree.GetItemState(item, TVIS_STATEIMAGEMASK) & TVIS_STATEIMAGEMASK) >> 12;
    }

    int Value(HTREEITEM item) const { return ValueIn(m_tree, item); }

    std::vector<int> Values(const std::vector<HTREEITEM>& items) const
    {
        std::vector<int> values;
        for (HTREEITEM item : items)
            values.push_back(Value(item));
        return values;
    }

    void ExpandAll()
    {
        for (HTREEITEM item = m_tree.GetRootItem(); item != NULL; item = CStateTreeCtrl::GetNextTreeItem(m_tree, item))
            m_tree.Expand(item, TVE_EXPAND);
        m_tree.UpdateWindow();
    }

    // Client point in the middle of an item's check box, of its label.
    CPoint BoxOf(HTREEITEM item) const
    {
        CRect label;
        m_tree.GetItemRect(item, &label, TRUE);
        CPoint point(label.left, label.CenterPoint().y);
        UINT where = 0;
        while (point.x > 0 && (where & TVHT_ONITEMSTATEICON) == 0)
        {
            --point.x;
            m_tree.HitTest(point, &where);
        }
        return CPoint(point.x - 4, point.y);
    }

    CPoint LabelOf(HTREEITEM item) const
    {
        CRect label;
        m_tree.GetItemRect(item, &label, TRUE);
        return label.CenterPoint();
    }

    // The click handler asks for the cursor, not for the message's point. The window is put under the cursor instead of
    // the cursor on the window, because a move of the cursor is taken back by what the display reports late.
    void PutUnderCursor(CPoint point) { PutUnderCursor(m_tree, point); }

    void PutUnderCursor(const CWnd& wnd, CPoint point)
    {
        wnd.ClientToScreen(&point);
        CPoint cursor;
        ::GetCursorPos(&cursor);
        CRect place;
        m_owner.GetWindowRect(&place);
        place.OffsetRect(cursor - point);
        m_owner.SetWindowPos(NULL, place.left, place.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }

    // A press and a release on the tree by messages.
    void Click(CPoint point, UINT down = WM_LBUTTONDOWN)
    {
        PutUnderCursor(point);
        const HWND tree = m_tree.m_hWnd;
        const LPARAM at = MAKELPARAM(point.x, point.y);
        ::PostMessage(tree, WM_LBUTTONUP, 0, at); // ends the native tree's wait for a drag
        ::SendMessage(tree, down, MK_LBUTTON, at);
        if (::IsWindow(tree))
            ::SendMessage(tree, WM_LBUTTONUP, 0, at);
    }

    void ClickBox(HTREEITEM item) { Click(BoxOf(item)); }

    void PressSpace()
    {
        const HWND tree = m_tree.m_hWnd;
        for (UINT message : {WM_KEYDOWN, WM_CHAR, WM_KEYUP})
            ::SendMessage(tree, message, VK_SPACE, 1);
    }

    std::vector<UINT> Codes() const
    {
        std::vector<UINT> codes;
        for (const StateTreeOwner::Told& one : m_owner.told)
            codes.push_back(one.code);
        return codes;
    }

    StateTreeOwner m_owner;
    CStateTreeCtrl m_tree;
};

typedef std::vector<int> Ints;
typedef std::vector<UINT> CodeList;
typedef std::vector<HTREEITEM> Items;
