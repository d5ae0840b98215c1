// The message palette with its viewer in a frame, reached through its windows as a user reaches it.
#pragma once

#include "HostFrame.h"
#include "StoreFixture.h"

#include <commctrl.h>

#include "msg/MsgPalette.h"
#include "msg/MsgViewWnd.h"
#include "res/resource.h"

class ViewerFixture : public StoreFixture
{
protected:
    ~ViewerFixture() override { CMsgViewWnd::DestroyInstance(); }

    static void SetShowTree(bool show) { AfxGetApp()->WriteProfileInt(L"消息查看器", L"显示树", show); }

    static int GetShowTree() { return AfxGetApp()->GetProfileInt(L"消息查看器", L"显示树", -1); }

    // The viewer's windows. Show() first.
    static bool Show() { return KTMsgWnd::ShowMsgWnd(true); }
    static CMsgPaletteChildDlg& Dialog() { return CMsgViewWnd::Instance(false)->GetPalette().GetViewer(); }
    static HWND Viewer() { return Dialog().m_hWnd; }
    static HWND Item(int id) { return ::GetDlgItem(Viewer(), id); }
    static bool IsEnabled(int id) { return ::IsWindowEnabled(Item(id)) != FALSE; }
    static bool IsShown(int id) { return ::IsWindowVisible(Item(id)) != FALSE; }
    static void Click(int id) { ::SendMessageW(Item(id), BM_CLICK, 0, 0); }
    static CRect RectOf(int id)
    {
        CRect rect;
        ::GetWindowRect(Item(id), &rect);
        ::MapWindowPoints(NULL, Viewer(), reinterpret_cast<POINT*>(&rect), 2);
        return rect;
    }
    static std::wstring TextOf(int id)
    {
        std::wstring text(static_cast<size_t>(::GetWindowTextLengthW(Item(id))) + 1, L'\0');
        text.resize(static_cast<size_t>(::GetWindowTextW(Item(id), &text[0], static_cast<int>(text.size()))));
        return text;
    }

    // The list.
    static int Rows() { return ListView_GetItemCount(Item(IDC_LIST)); }
    static std::wstring Cell(int row, int column, int room = 1000)
    {
        std::wstring text(static_cast<size_t>(room), L'\0');
        LVITEMW item = {};
        item.iSubItem = column;
        item.pszText = &text[0];
        item.cchTextMax = room;
        text.resize(static_cast<size_t>(::SendMessageW(Item(IDC_LIST), LVM_GETITEMTEXTW, static_cast<WPARAM>(row),
                                                       reinterpret_cast<LPARAM>(&item))));
        return text;
    }
    static Texts Column(int column)
    {
        Texts texts;
        for (int row = 0; row < Rows(); ++row)
            texts.push_back(Cell(row, column));
        return texts;
    }
    static LVITEMW Row(int row)
    {
        LVITEMW item = {};
        item.mask = LVIF_IMAGE | LVIF_PARAM | LVIF_STATE;
        item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
        item.iItem = row;
        ::SendMessageW(Item(IDC_LIST), LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        return item;
    }
    static void SelectRows(const std::vector<int>& rows)
    {
        ListView_SetItemState(Item(IDC_LIST), -1, 0, LVIS_SELECTED);
        for (int row : rows)
            ListView_SetItemState(Item(IDC_LIST), row, LVIS_SELECTED, LVIS_SELECTED);
    }
    static std::vector<int> SelectedRows()
    {
        std::vector<int> rows;
        for (int row = -1; (row = ListView_GetNextItem(Item(IDC_LIST), row, LVNI_SELECTED)) >= 0;)
            rows.push_back(row);
        return rows;
    }
    static void DoubleClickList() { Notify(Item(IDC_LIST), NM_DBLCLK); }
    static void ClickHeader(int column)
    {
        const HWND header = ListView_GetHeader(Item(IDC_LIST));
        CRect rect;
        Header_GetItemRect(header, column, &rect);
        const LPARAM point = MAKELPARAM(rect.CenterPoint().x, rect.CenterPoint().y);
        ::SendMessageW(header, WM_LBUTTONDOWN, MK_LBUTTON, point);
        ::SendMessageW(header, WM_LBUTTONUP, 0, point);
    }

    // The tree.
    static HTREEITEM Root() { return TreeView_GetRoot(Item(IDC_TREE)); }
    static std::wstring TreeText(HTREEITEM item)
    {
        wchar_t text[1000] = L"";
        TVITEMW info = {};
        info.mask = TVIF_TEXT;
        info.hItem = item;
        info.pszText = text;
        info.cchTextMax = 1000;
        ::SendMessageW(Item(IDC_TREE), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&info));
        return info.pszText;
    }
    static std::vector<HTREEITEM> GroupItems()
    {
        std::vector<HTREEITEM> items;
        HTREEITEM item = TreeView_GetChild(Item(IDC_TREE), Root());
        for (; item != NULL; item = TreeView_GetNextSibling(Item(IDC_TREE), item))
            items.push_back(item);
        return items;
    }
    static Texts GroupTexts()
    {
        Texts texts;
        for (HTREEITEM item : GroupItems())
            texts.push_back(TreeText(item));
        return texts;
    }
    static HTREEITEM SelectedItem() { return TreeView_GetSelection(Item(IDC_TREE)); }
    static std::wstring SelectedText() { return TreeText(SelectedItem()); }
    static void SelectRoot() { TreeView_SelectItem(Item(IDC_TREE), Root()); }
    static void SelectGroup(const wchar_t* group)
    {
        for (HTREEITEM item : GroupItems())
        {
            if (TreeText(item) == group)
                TreeView_SelectItem(Item(IDC_TREE), item);
        }
        ASSERT_EQ(group, SelectedText());
    }

    HostFrame m_frame;

private:
    static void Notify(HWND control, UINT code)
    {
        NMITEMACTIVATE notice = {};
        notice.hdr.hwndFrom = control;
        notice.hdr.idFrom = static_cast<UINT_PTR>(::GetDlgCtrlID(control));
        notice.hdr.code = code;
        ::SendMessageW(::GetParent(control), WM_NOTIFY, notice.hdr.idFrom, reinterpret_cast<LPARAM>(&notice));
    }
};
