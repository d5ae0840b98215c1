// A tab sheet in its owner's window, with pages that count how often they are moved, shown or hidden.
#pragma once

#include "TabSheetPages.h"
#include "TipFixture.h"

#include "tip/TabSheet.h"

class CountingPage : public CDialog
{
public:
    int changes = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        changes += message == WM_WINDOWPOSCHANGING;
        return CDialog::WindowProc(message, wParam, lParam);
    }
};

class TabSheetFixture : public testing::Test
{
protected:
    static constexpr int kPages = 3;

    TabSheetFixture() { Create(); }

    void Create() { m_sheet.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 310, 210), &m_owner, 7); }

    void AddPages(int count = kPages)
    {
        static const wchar_t* const titles[] = {L"first", L"second", L"third"};
        for (int i = 0; i < count; ++i)
            ASSERT_EQ(1, m_sheet.AddPage(titles[i], &m_pages[i], IDD_TEST_PAGE));
    }

    void ShowPages()
    {
        AddPages();
        m_sheet.Show();
    }

    bool IsShown(int page) const { return ::IsWindowVisible(m_pages[page].GetSafeHwnd()) != FALSE; }

    // The only page that is shown, -1 for none, -2 for several.
    int Shown() const
    {
        int shown = -1;
        for (int i = 0; i < kPages; ++i)
        {
            if (IsShown(i))
                shown = shown == -1 ? i : -2;
        }
        return shown;
    }

    std::wstring Title(int tab) const
    {
        wchar_t text[64] = L"";
        TCITEM item = {};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = 64;
        EXPECT_TRUE(m_sheet.GetItem(tab, &item));
        return text;
    }

    CPoint MiddleOfTab(int tab) const
    {
        CRect rect(0, 0, 0, 0);
        EXPECT_TRUE(m_sheet.GetItemRect(tab, &rect));
        return rect.CenterPoint();
    }

    void Click(CPoint point)
    {
        const LPARAM place = MAKELPARAM(point.x, point.y);
        m_sheet.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, place);
        m_sheet.SendMessage(WM_LBUTTONUP, 0, place);
    }

    OwnerWindow m_owner;
    CountingPage m_pages[kPages];
    CTabSheet m_sheet;
};
