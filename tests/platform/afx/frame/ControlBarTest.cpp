#include "FrameFixture.h"

// Bars take their edges in the order of the windows; the view gets the rest.
class ControlBar : public FrameFixture
{
protected:
    void SetUp() override
    {
        FrameFixture::SetUp();
        ASSERT_TRUE(m_top.Create(m_frame, AFX_IDW_TOOLBAR, CBRS_TOP, 20));
        ASSERT_TRUE(m_left.Create(m_frame, AFX_IDW_TOOLBAR + 2, CBRS_LEFT, 40));
        ASSERT_TRUE(m_right.Create(m_frame, AFX_IDW_TOOLBAR + 3, CBRS_RIGHT, 60));
        // The order of the children is the order of the layout.
        m_top.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        m_frame->RecalcLayout();
    }

    TestBar m_top;
    TestBar m_left;
    TestBar m_right;
};

TEST_F(ControlBar, BarsRegisterWithTheirFrame)
{
    EXPECT_EQ(3, m_frame->m_listControlBars.GetCount());
    EXPECT_EQ(&m_left, m_frame->GetControlBar(AFX_IDW_TOOLBAR + 2));
    EXPECT_EQ(nullptr, m_frame->GetControlBar(AFX_IDW_STATUS_BAR));
    EXPECT_EQ(m_frame, m_left.GetDockingFrame());
    m_left.DestroyWindow();
    EXPECT_EQ(2, m_frame->m_listControlBars.GetCount());
    EXPECT_EQ(nullptr, m_frame->GetControlBar(AFX_IDW_TOOLBAR + 2));
}

TEST_F(ControlBar, BarsTakeTheirEdges)
{
    const CRect client = Client();
    EXPECT_EQ(CRect(0, 0, client.right, 20), m_top.Place());
    EXPECT_EQ(CRect(0, 20, 40, client.bottom), m_left.Place());
    EXPECT_EQ(CRect(client.right - 60, 20, client.right, client.bottom), m_right.Place());
    EXPECT_EQ(CRect(40, 20, client.right - 60, client.bottom), ViewPlace());
}

TEST_F(ControlBar, TheLayoutFollowsTheFramesSize)
{
    m_frame->SetWindowPos(nullptr, 0, 0, 500, 350, SWP_NOMOVE | SWP_NOZORDER);
    const CRect client = Client();
    EXPECT_EQ(client.right, m_right.Place().right);
    EXPECT_EQ(client.bottom, m_left.Place().bottom);
    EXPECT_EQ(CRect(40, 20, client.right - 60, client.bottom), ViewPlace());
}

TEST_F(ControlBar, AtTheBottomItTakesTheBottom)
{
    m_top.SetBarStyle(CBRS_BOTTOM);
    m_frame->RecalcLayout();
    const CRect client = Client();
    EXPECT_EQ(CRect(0, client.bottom - 20, client.right, client.bottom), m_top.Place());
    EXPECT_EQ(client.bottom - 20, ViewPlace().bottom);
    EXPECT_EQ(0, ViewPlace().top);
}

TEST_F(ControlBar, ShowingAndHidingLaysOutAtOnce)
{
    m_frame->ShowControlBar(&m_left, FALSE, FALSE);
    EXPECT_FALSE(m_left.IsVisible());
    EXPECT_FALSE(m_left.GetStyle() & WS_VISIBLE);
    EXPECT_EQ(0, ViewPlace().left);
    m_frame->ShowControlBar(&m_left, TRUE, FALSE);
    EXPECT_TRUE(m_left.IsVisible());
    EXPECT_EQ(40, ViewPlace().left);
}

TEST_F(ControlBar, DelayedShowingWaitsForIdleTime)
{
    m_frame->ShowControlBar(&m_left, FALSE, TRUE);
    EXPECT_FALSE(m_left.IsVisible()); // so that a button that toggles it sees the new state
    EXPECT_TRUE(m_left.GetStyle() & WS_VISIBLE);
    EXPECT_EQ(40, ViewPlace().left);
    m_frame->SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_FALSE(m_left.GetStyle() & WS_VISIBLE);
    EXPECT_EQ(0, ViewPlace().left);
}

TEST_F(ControlBar, AskingForTheLayoutMovesNothing)
{
    const CRect before = ViewPlace();
    m_left.m_thickness = 100;
    CRect left;
    m_frame->RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, CWnd::reposQuery, &left);
    EXPECT_EQ(100, left.left);
    EXPECT_EQ(before, ViewPlace());
    EXPECT_EQ(40, m_left.Place().Width());
}

TEST_F(ControlBar, ABarIsNeverLargerThanWhatIsLeft)
{
    m_left.m_thickness = 10000;
    m_frame->RecalcLayout();
    EXPECT_EQ(Client().right, m_left.Place().right);
    EXPECT_EQ(0, ViewPlace().Width());
}

TEST_F(ControlBar, ABarWithoutAnEdgeTakesNothing)
{
    m_left.SetBarStyle(CBRS_FLOATING | CBRS_ALIGN_LEFT);
    EXPECT_TRUE(m_left.IsFloating());
    m_right.SetBarStyle(CBRS_NOALIGN);
    m_frame->RecalcLayout();
    EXPECT_EQ(CRect(0, 20, Client().right, Client().bottom), ViewPlace());
}

TEST_F(ControlBar, IdleTimeUpdatesShownBarsOnly)
{
    m_left.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_EQ(1, m_left.m_updates);
    EXPECT_TRUE(m_left.m_disable);
    m_frame->ShowControlBar(&m_left, FALSE, FALSE);
    m_left.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_EQ(1, m_left.m_updates);
}

TEST_F(ControlBar, CommandsOfItsChildrenGoToTheFrame)
{
    m_left.SendMessage(WM_COMMAND, ID_FRAME_COMMAND);
    EXPECT_EQ(1, m_frame->m_commands);
}

TEST_F(ControlBar, BordersNarrowTheInside)
{
    m_left.SetBorders(1, 2, 3, 4);
    CRect horizontal(0, 0, 100, 100);
    m_left.CalcInsideRect(horizontal, TRUE);
    EXPECT_EQ(CRect(1, 2, 100 - 3 - 1, 100 - 4), horizontal); // its right edge has a line
    CRect vertical(0, 0, 100, 100);
    m_left.CalcInsideRect(vertical, FALSE);
    EXPECT_EQ(CRect(2, 1, 100 - 4 - 1, 100 - 3), vertical);
}
