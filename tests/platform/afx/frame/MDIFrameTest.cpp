#include "FrameFixture.h"

namespace
{
class ChildFrame : public CMDIChildWnd
{
public:
    int m_commands = 0;
    int m_activations = 0;
    static int s_alive;

    ChildFrame() { ++s_alive; }
    ~ChildFrame() override { --s_alive; }

protected:
    afx_msg void OnOwnCommand() { ++m_commands; }
    afx_msg void OnMDIActivate(BOOL activate, CWnd* activated, CWnd* deactivated)
    {
        CMDIChildWnd::OnMDIActivate(activate, activated, deactivated);
        m_activations += activate ? 1 : 0;
    }

    DECLARE_MESSAGE_MAP()
};

int ChildFrame::s_alive = 0;

BEGIN_MESSAGE_MAP(ChildFrame, CMDIChildWnd)
    ON_COMMAND(ID_FRAME_COMMAND, &ChildFrame::OnOwnCommand)
    ON_WM_MDIACTIVATE()
END_MESSAGE_MAP()
} // namespace

class MDIFrame : public testing::Test
{
protected:
    void SetUp() override
    {
        m_frame = new CMDIFrameWnd;
        ASSERT_TRUE(m_frame->Create(nullptr, L"MDI", WS_OVERLAPPEDWINDOW, CRect(50, 50, 650, 450)));
        m_frame->ActivateFrame();
        m_first = NewChild(L"first");
        m_second = NewChild(L"second");
    }
    void TearDown() override { m_frame->DestroyWindow(); }

    ChildFrame* NewChild(LPCTSTR title)
    {
        ChildFrame* const child = new ChildFrame;
        EXPECT_TRUE(
            child->Create(nullptr, title, WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW, CRect(0, 0, 200, 150), m_frame));
        return child;
    }

    CMDIFrameWnd* m_frame = nullptr;
    ChildFrame* m_first = nullptr;
    ChildFrame* m_second = nullptr;
};

TEST_F(MDIFrame, TheNewestChildIsActive)
{
    EXPECT_EQ(m_second, m_frame->MDIGetActive());
    EXPECT_EQ(m_second, m_frame->GetActiveFrame());
    EXPECT_EQ(m_frame, m_second->GetMDIFrame());
    EXPECT_EQ(2, ChildFrame::s_alive);
}

TEST_F(MDIFrame, ActivationChangesTheActiveChild)
{
    const int before = m_first->m_activations;
    m_first->MDIActivate();
    EXPECT_EQ(m_first, m_frame->MDIGetActive());
    EXPECT_EQ(before + 1, m_first->m_activations);
    m_frame->MDINext();
    EXPECT_EQ(m_second, m_frame->MDIGetActive());
}

TEST_F(MDIFrame, CommandsGoToTheActiveChildFirst)
{
    m_frame->SendMessage(WM_COMMAND, ID_FRAME_COMMAND);
    EXPECT_EQ(1, m_second->m_commands);
    m_first->MDIActivate();
    m_frame->SendMessage(WM_COMMAND, ID_FRAME_COMMAND);
    EXPECT_EQ(1, m_first->m_commands);
    EXPECT_EQ(1, m_second->m_commands);
}

TEST_F(MDIFrame, MaximisingAndRestoring)
{
    BOOL maximized = TRUE;
    m_frame->MDIGetActive(&maximized);
    EXPECT_FALSE(maximized);
    m_second->MDIMaximize();
    m_frame->MDIGetActive(&maximized);
    EXPECT_TRUE(maximized);
    m_second->MDIRestore();
    m_frame->MDIGetActive(&maximized);
    EXPECT_FALSE(maximized);
}

TEST_F(MDIFrame, DestroyedChildrenDeleteThemselves)
{
    m_second->DestroyWindow();
    EXPECT_EQ(1, ChildFrame::s_alive);
    EXPECT_EQ(m_first, m_frame->MDIGetActive());
    m_first->SendMessage(WM_CLOSE);
    EXPECT_EQ(0, ChildFrame::s_alive);
    EXPECT_EQ(nullptr, m_frame->MDIGetActive());
    EXPECT_EQ(m_frame, m_frame->GetActiveFrame());
}

TEST_F(MDIFrame, BarsLeaveTheRestToTheClient)
{
    TestBar bar;
    ASSERT_TRUE(bar.Create(m_frame, AFX_IDW_TOOLBAR, CBRS_LEFT, 50));
    m_frame->RecalcLayout();
    CRect client;
    ::GetWindowRect(m_frame->m_hWndMDIClient, &client);
    m_frame->ScreenToClient(&client);
    CRect whole;
    m_frame->GetClientRect(&whole);
    EXPECT_EQ(CRect(50, 0, whole.right, whole.bottom), client);
    m_frame->SetWindowPos(nullptr, 0, 0, 500, 300, SWP_NOMOVE | SWP_NOZORDER);
    ::GetWindowRect(m_frame->m_hWndMDIClient, &client);
    m_frame->ScreenToClient(&client);
    m_frame->GetClientRect(&whole);
    EXPECT_EQ(CRect(50, 0, whole.right, whole.bottom), client);
}
