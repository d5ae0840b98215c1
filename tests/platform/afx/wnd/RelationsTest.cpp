// A window among others: relatives, centring, the layout of bars, messages to descendants.
#include <afxpriv.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <vector>

namespace
{
const UINT WM_CALL = WM_APP + 50;
const int BarHeight = 20;

int g_calls = 0;

class Counting : public CWnd
{
protected:
    afx_msg LRESULT OnCall(WPARAM, LPARAM)
    {
        ++g_calls;
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Counting, CWnd)
    ON_MESSAGE(WM_CALL, &Counting::OnCall)
END_MESSAGE_MAP()

// Takes the upper edge of its parent.
class TopBar : public CWnd
{
protected:
    afx_msg LRESULT OnSizeParent(WPARAM, LPARAM lParam)
    {
        AFX_SIZEPARENTPARAMS* const layout = reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
        CRect edge(layout->rect);
        edge.bottom = edge.top + BarHeight;
        layout->rect.top += BarHeight;
        layout->sizeTotal.cy += BarHeight;
        AfxRepositionWindow(layout, m_hWnd, &edge);
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(TopBar, CWnd)
    ON_MESSAGE(WM_SIZEPARENT, &TopBar::OnSizeParent)
END_MESSAGE_MAP()

class Relations : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_top.CreateEx(0, nullptr, L"", WS_POPUP, CRect(100, 100, 400, 300), nullptr, 0));
        ASSERT_TRUE(m_child.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 100), &m_top, 1));
        ASSERT_TRUE(m_grandchild.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 20, 10), &m_child, 2));
    }
    void TearDown() override { m_top.DestroyWindow(); }

    CRect PlaceOf(const CWnd& window, CWnd& parent)
    {
        CRect rect;
        window.GetWindowRect(&rect);
        parent.ScreenToClient(&rect);
        return rect;
    }

    Counting m_top;
    Counting m_child;
    Counting m_grandchild;
};
} // namespace

TEST_F(Relations, ParentsAndTheTopOfThem)
{
    EXPECT_EQ(&m_child, m_grandchild.GetParent());
    EXPECT_EQ(&m_top, m_grandchild.GetTopLevelParent());
    EXPECT_EQ(&m_top, m_grandchild.GetParentOwner());
    EXPECT_EQ(nullptr, m_grandchild.GetParentFrame());
}

TEST_F(Relations, AnOwnerMayBeSetApartFromTheParent)
{
    EXPECT_EQ(&m_child, m_grandchild.GetOwner());
    m_grandchild.SetOwner(&m_top);
    EXPECT_EQ(&m_top, m_grandchild.GetOwner());
}

TEST_F(Relations, DescendantsAreFoundAtAnyDepth)
{
    EXPECT_EQ(&m_grandchild, m_top.GetDescendantWindow(2));
    EXPECT_EQ(nullptr, m_top.GetDescendantWindow(3));
    EXPECT_EQ(nullptr, m_top.GetDlgItem(2));
}

TEST_F(Relations, MessagesGoToAllDescendantsOrToChildrenOnly)
{
    g_calls = 0;
    m_top.SendMessageToDescendants(WM_CALL);
    EXPECT_EQ(2, g_calls);
    m_top.SendMessageToDescendants(WM_CALL, 0, 0, FALSE);
    EXPECT_EQ(3, g_calls);
}

TEST_F(Relations, RectanglesAreMappedByBothCorners)
{
    CRect rect(1, 2, 11, 22);
    m_child.ClientToScreen(&rect);
    EXPECT_EQ(CRect(101, 102, 111, 122), rect);
    m_top.ScreenToClient(&rect);
    EXPECT_EQ(CRect(1, 2, 11, 22), rect);
}

TEST_F(Relations, AChildIsCentredInItsParent)
{
    m_grandchild.CenterWindow();
    EXPECT_EQ(CRect(40, 45, 60, 55), PlaceOf(m_grandchild, m_child));
}

TEST_F(Relations, APopupIsCentredOverTheGivenWindowInsideTheScreen)
{
    m_top.ShowWindow(SW_SHOWNOACTIVATE);
    Counting popup;
    ASSERT_TRUE(popup.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 50, 40), &m_top, 0));
    popup.CenterWindow(&m_top);
    CRect over;
    m_top.GetWindowRect(&over);
    CRect rect;
    popup.GetWindowRect(&rect);
    EXPECT_EQ(over.CenterPoint(), rect.CenterPoint());

    m_top.SetWindowPos(&CWnd::wndTop, -280, 0, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE);
    popup.CenterWindow(&m_top);
    popup.GetWindowRect(&rect);
    EXPECT_EQ(0, rect.left);
}

TEST_F(Relations, BarsTakeTheirEdgesAndThePaneTheRest)
{
    const UINT idBar = 50;
    const UINT idPane = 60;
    TopBar first;
    TopBar second;
    CWnd pane;
    ASSERT_TRUE(first.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 1, 1), &m_top, idBar));
    ASSERT_TRUE(second.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 1, 1), &m_top, idBar + 1));
    ASSERT_TRUE(pane.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 1, 1), &m_top, idPane));

    CRect left;
    m_top.RepositionBars(idBar, idBar + 1, idPane, CWnd::reposQuery, &left);
    EXPECT_EQ(CRect(0, 2 * BarHeight, 300, 200), left);
    EXPECT_EQ(CRect(0, 0, 1, 1), PlaceOf(pane, m_top));

    m_top.RepositionBars(idBar, idBar + 1, idPane);
    EXPECT_EQ(CRect(0, 2 * BarHeight, 300, 200), PlaceOf(pane, m_top));
    CRect border(1, 2, 3, 4);
    m_top.RepositionBars(idBar, idBar + 1, idPane, CWnd::reposExtra, &border);
    EXPECT_EQ(CRect(1, 2 * BarHeight + 2, 297, 196), PlaceOf(pane, m_top));
}

TEST_F(Relations, StylesTellWhetherTheyChanged)
{
    EXPECT_TRUE(m_child.ModifyStyle(0, WS_BORDER));
    EXPECT_FALSE(m_child.ModifyStyle(0, WS_BORDER));
    EXPECT_TRUE(m_child.GetStyle() & WS_BORDER);
    EXPECT_TRUE(m_child.ModifyStyle(WS_BORDER, 0, SWP_FRAMECHANGED));
    EXPECT_EQ(0u, m_child.GetStyle() & WS_BORDER);
}
