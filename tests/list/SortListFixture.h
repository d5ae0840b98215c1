// A sortable list in a dialog-like owner window that counts what it is told and may do something evil meanwhile.
#pragma once

#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "list/ZNSortListCtrl.h"

typedef std::vector<std::wstring> Texts;

class ListOwner : public CWnd
{
public:
    ListOwner()
    {
        const CString wndClass = AfxRegisterWndClass(0, ::LoadCursor(NULL, IDC_ARROW));
        const CRect rect(50, 50, 650, 550);
        CreateEx(0, wndClass, L"owner", WS_POPUP | WS_VISIBLE, rect, NULL, 0);
    }

    ~ListOwner() override { DestroyWindow(); }

    int Count(UINT code) { return m_counts[code]; }

    // Called for every notification of the list that reaches this window.
    std::function<void(NMHDR&)> onNotify;

    // Whether a change of a row is refused before the list hears of it, as an owner without the framework may do.
    std::function<bool(NMLISTVIEW&)> refuse;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        NMHDR& notification = *reinterpret_cast<NMHDR*>(lParam);
        if (refuse && notification.code == LVN_ITEMCHANGING && refuse(reinterpret_cast<NMLISTVIEW&>(notification)))
        {
            *result = TRUE;
            return TRUE;
        }
        // The list takes its share first, as with any owner that has a message map.
        const BOOL handled = CWnd::OnNotify(wParam, lParam, result);
        if (!handled)
            ++m_counts[notification.code];
        if (onNotify)
            onNotify(notification);
        return handled;
    }

private:
    std::map<UINT, int> m_counts;
};

class SortListFixture : public testing::Test
{
protected:
    static constexpr int kListId = 7;
    static constexpr int kColumnWidth = 100;

    SortListFixture() { Create(); }

    ~SortListFixture() override { m_owner.onNotify = nullptr; }

    void Create(DWORD style = LVS_REPORT)
    {
        if (::IsWindow(m_list.m_hWnd))
            m_list.DestroyWindow();
        const CRect rect(0, 0, 500, 400);
        m_list.Create(style | WS_CHILD | WS_VISIBLE, rect, &m_owner, kListId);
    }

    // One column for each text of a row; the item data of a row is 1000 + its index.
    void Fill(const std::vector<Texts>& rows)
    {
        for (size_t column = 0; column < rows[0].size(); ++column)
            m_list.InsertColumn(static_cast<int>(column), L"column", LVCFMT_LEFT, kColumnWidth);
        for (size_t row = 0; row < rows.size(); ++row)
        {
            const int index = m_list.InsertItem(static_cast<int>(row), rows[row][0].c_str());
            m_list.SetItemData(index, 1000 + row);
            for (size_t column = 1; column < rows[row].size(); ++column)
                m_list.SetItemText(index, static_cast<int>(column), rows[row][column].c_str());
        }
    }

    void FillColumn(const Texts& texts)
    {
        std::vector<Texts> rows;
        for (const std::wstring& text : texts)
            rows.push_back({text, L"second"});
        Fill(rows);
    }

    Texts Column(int column)
    {
        Texts texts;
        for (int row = 0; row < m_list.GetItemCount(); ++row)
            texts.push_back(m_list.GetItemText(row, column).GetString());
        return texts;
    }

    std::vector<DWORD_PTR> Data()
    {
        std::vector<DWORD_PTR> data;
        for (int row = 0; row < m_list.GetItemCount(); ++row)
            data.push_back(m_list.GetItemData(row));
        return data;
    }

    // What the list view does when a heading was clicked.
    void ClickHeading(int column)
    {
        NMLISTVIEW notification = {};
        notification.hdr.hwndFrom = m_list.m_hWnd;
        notification.hdr.idFrom = kListId;
        notification.hdr.code = LVN_COLUMNCLICK;
        notification.iItem = -1;
        notification.iSubItem = column;
        m_owner.SendMessage(WM_NOTIFY, kListId, reinterpret_cast<LPARAM>(&notification));
    }

    HDITEM Heading(int column)
    {
        HDITEM item = {};
        item.mask = HDI_FORMAT | HDI_LPARAM | HDI_IMAGE;
        m_list.GetHeaderCtrl()->GetItem(column, &item);
        return item;
    }

    int State(int column) { return static_cast<int>(Heading(column).lParam); }

    bool HasArrow(int column)
    {
        const int flags = HDF_IMAGE | HDF_BITMAP_ON_RIGHT;
        return (Heading(column).fmt & flags) == flags;
    }

    ListOwner m_owner;
    CZNSortListCtrl m_list;
};
