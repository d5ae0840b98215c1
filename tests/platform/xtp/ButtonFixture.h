// A CXTButton in a framework window that counts its clicks.
#pragma once

#include <XTToolkitPro.h>

#include <gtest/gtest.h>

class ButtonParent : public CWnd
{
public:
    int Clicks() const { return m_clicks; }

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        m_clicks += HIWORD(wParam) == BN_CLICKED;
        return CWnd::OnCommand(wParam, lParam);
    }

private:
    int m_clicks = 0;
};

class ButtonFixture : public testing::Test
{
protected:
    static const int kWidth = 40;
    static const int kHeight = 30;

    void SetUp() override
    {
        const CRect frame(0, 0, 300, 200);
        const CRect rect(0, 0, kWidth, kHeight);
        const LPCTSTR windowClass = AfxRegisterWndClass(0, nullptr, ::GetSysColorBrush(COLOR_BTNFACE));
        ASSERT_TRUE(m_parent.CreateEx(0, windowClass, L"button", WS_OVERLAPPEDWINDOW | WS_VISIBLE, frame, nullptr, 0));
        ASSERT_TRUE(m_button.Create(L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, rect, &m_parent, 1));
    }

    void TearDown() override
    {
        m_button.DestroyWindow();
        m_parent.DestroyWindow();
    }

    void Press(CPoint point) { m_button.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y)); }
    void Release(CPoint point) { m_button.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y)); }
    void Move(CPoint point) { m_button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y)); }

    ButtonParent m_parent;
    CXTButton m_button;
};
