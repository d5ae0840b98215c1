// Tips of a window that says which tool lies under the mouse.
#include <afxcmn.h>
#include <afxwin.h>

#include <gtest/gtest.h>

namespace
{
const CRect LeftTool(0, 0, 40, 100);
const CRect RightTool(40, 0, 80, 100);

class Tools : public CWnd
{
public:
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* info) const override
    {
        const bool left = LeftTool.PtInRect(point) != FALSE;
        if (!left && !RightTool.PtInRect(point))
            return -1;
        info->hwnd = m_hWnd;
        info->uId = left ? 1 : 2;
        info->rect = left ? LeftTool : RightTool;
        info->lpszText = LPSTR_TEXTCALLBACK;
        return static_cast<INT_PTR>(info->uId);
    }

    void Move(int x, int y)
    {
        MSG message = {};
        message.hwnd = m_hWnd;
        message.message = WM_MOUSEMOVE;
        message.lParam = MAKELPARAM(x, y);
        PreTranslateMessage(&message);
    }
    void Press()
    {
        MSG message = {};
        message.hwnd = m_hWnd;
        message.message = WM_LBUTTONDOWN;
        PreTranslateMessage(&message);
    }
};

class ToolTips : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_window.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 100, 100), nullptr, 0));
    }
    void TearDown() override { m_window.DestroyWindow(); }

    static const _AFX_THREAD_STATE& State() { return *AfxGetThreadState(); }

    Tools m_window;
};
} // namespace

TEST_F(ToolTips, AreOffUntilTheyAreEnabled)
{
    m_window.Move(5, 5);
    EXPECT_EQ(nullptr, State().m_pToolTip);
}

TEST_F(ToolTips, TheToolUnderTheMouseIsTheTipsOnlyOne)
{
    m_window.EnableToolTips();
    m_window.Move(5, 5);
    ASSERT_NE(nullptr, State().m_pToolTip);
    EXPECT_EQ(1, State().m_nLastHit);
    EXPECT_EQ(1, State().m_pToolTip->GetToolCount());
    m_window.Move(45, 5);
    EXPECT_EQ(2, State().m_nLastHit);
    EXPECT_EQ(1, State().m_pToolTip->GetToolCount());
    m_window.Move(95, 5);
    EXPECT_EQ(-1, State().m_nLastHit);
    EXPECT_EQ(0, State().m_pToolTip->GetToolCount());
}

TEST_F(ToolTips, AButtonPressEndsTheTip)
{
    m_window.EnableToolTips();
    m_window.Move(5, 5);
    m_window.Press();
    EXPECT_EQ(-1, State().m_nLastHit);
    EXPECT_EQ(0, State().m_pToolTip->GetToolCount());
}

TEST_F(ToolTips, TheTipEndsWithItsWindow)
{
    m_window.EnableToolTips();
    m_window.Move(5, 5);
    const HWND tip = State().m_pToolTip->m_hWnd;
    m_window.DestroyWindow();
    EXPECT_EQ(nullptr, State().m_pToolTip);
    EXPECT_FALSE(::IsWindow(tip));
}

TEST_F(ToolTips, ChildWindowsAreToolsByThemselves)
{
    CWnd plain;
    ASSERT_TRUE(plain.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 100, 100), nullptr, 0));
    CWnd child;
    ASSERT_TRUE(child.Create(L"STATIC", L"", WS_CHILD | WS_VISIBLE, CRect(10, 10, 30, 30), &plain, 44));
    TOOLINFO info = {};
    EXPECT_EQ(44, plain.OnToolHitTest(CPoint(15, 15), &info));
    EXPECT_EQ(UINT_PTR(child.m_hWnd), info.uId);
    EXPECT_EQ(UINT(TTF_IDISHWND), info.uFlags & TTF_IDISHWND);
    EXPECT_EQ(-1, plain.OnToolHitTest(CPoint(90, 90), &info));
}
