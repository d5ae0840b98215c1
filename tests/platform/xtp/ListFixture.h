// A report list with two columns in a framework window that counts what the list reports.
#pragma once

#include <XTToolkitPro.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

class ListParent : public CWnd
{
public:
    int ParamChanges() const { return m_paramChanges; }
    int HeaderClicks() const { return m_headerClicks; }
    void ClearCount() { m_paramChanges = 0; }

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        const NMHDR* header = reinterpret_cast<const NMHDR*>(lParam);
        if (header->code == LVN_ITEMCHANGED)
            m_paramChanges += (reinterpret_cast<const NMLISTVIEW*>(lParam)->uChanged & LVIF_PARAM) != 0;
        m_headerClicks += header->code == HDN_ITEMCLICKW;
        return CWnd::OnNotify(wParam, lParam, result);
    }

private:
    int m_paramChanges = 0;
    int m_headerClicks = 0;
};

class ListFixture : public testing::Test
{
protected:
    void SetUp() override
    {
        const CRect rect(0, 0, 400, 300);
        ASSERT_TRUE(m_parent.CreateEx(0, AfxRegisterWndClass(0), L"list", WS_OVERLAPPEDWINDOW, rect, nullptr, 0));
        ASSERT_TRUE(m_list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SHOWSELALWAYS, rect, &m_parent, 1));
        m_list.InsertColumn(0, L"name", LVCFMT_LEFT, 150);
        m_list.InsertColumn(1, L"number", LVCFMT_LEFT, 100);
    }

    void TearDown() override
    {
        m_list.DestroyWindow();
        m_parent.DestroyWindow();
    }

    void AddRow(const wchar_t* name, const wchar_t* number, DWORD_PTR data)
    {
        const int row = m_list.InsertItem(m_list.GetItemCount(), name);
        m_list.SetItemText(row, 1, number);
        m_list.SetItemData(row, data);
    }

    std::string Texts(int column) const
    {
        std::string texts;
        for (int row = 0; row < m_list.GetItemCount(); ++row)
        {
            const CString text = m_list.GetItemText(row, column);
            texts += (row > 0 ? "|" : "") + std::string(CW2A(text));
        }
        return texts;
    }

    std::vector<DWORD_PTR> Data() const
    {
        std::vector<DWORD_PTR> data;
        for (int row = 0; row < m_list.GetItemCount(); ++row)
            data.push_back(m_list.GetItemData(row));
        return data;
    }

    int Image(int row) const
    {
        LVITEM item = {};
        item.mask = LVIF_IMAGE;
        item.iItem = row;
        m_list.GetItem(&item);
        return item.iImage;
    }

    ListParent m_parent;
    CListCtrl m_list;
};
