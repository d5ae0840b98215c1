// A window that runs its own message loop until somebody ends it.
#include <afxpriv.h>
#include <afxwin.h>

#include <gtest/gtest.h>

namespace
{
const UINT WM_END = WM_APP + 40;

class Modal : public CWnd
{
public:
    int kicks = 0;
    int endAtKick = -1;
    bool visibleAtFirstKick = false;

    BOOL CreateModal() { return CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 30, 30), nullptr, 0); }

protected:
    afx_msg LRESULT OnEnd(WPARAM result, LPARAM)
    {
        EndModalLoop(static_cast<int>(result));
        return 0;
    }
    afx_msg LRESULT OnKickIdle(WPARAM, LPARAM count)
    {
        if (kicks++ == 0)
            visibleAtFirstKick = IsWindowVisible() != FALSE;
        if (count == endAtKick)
            EndModalLoop(static_cast<int>(count));
        return count < endAtKick;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Modal, CWnd)
    ON_MESSAGE(WM_END, &Modal::OnEnd)
    ON_MESSAGE(WM_KICKIDLE, &Modal::OnKickIdle)
END_MESSAGE_MAP()
} // namespace

TEST(ModalLoop, EndsWithTheGivenResult)
{
    Modal window;
    ASSERT_TRUE(window.CreateModal());
    window.PostMessage(WM_END, 1234);
    EXPECT_EQ(1234, window.RunModalLoop(MLF_NOKICKIDLE));
    EXPECT_EQ(0u, window.m_nFlags & (WF_MODALLOOP | WF_CONTINUEMODAL));
}

TEST(ModalLoop, KicksTheWindowWhileItAsksForMore)
{
    Modal window;
    ASSERT_TRUE(window.CreateModal());
    window.endAtKick = 3;
    EXPECT_EQ(3, window.RunModalLoop());
    EXPECT_EQ(4, window.kicks);
}

TEST(ModalLoop, ShowsTheWindowInIdleTime)
{
    Modal window;
    ASSERT_TRUE(window.CreateModal());
    window.endAtKick = 0;
    window.RunModalLoop(MLF_SHOWONIDLE);
    EXPECT_TRUE(window.visibleAtFirstKick);
}

TEST(ModalLoop, QuitEndsItAndIsLeftForTheOuterLoop)
{
    Modal window;
    ASSERT_TRUE(window.CreateModal());
    ::PostQuitMessage(0);
    EXPECT_EQ(-1, window.RunModalLoop(MLF_NOKICKIDLE));
    MSG message = {};
    bool quit = false;
    while (!quit && ::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
        quit = message.message == WM_QUIT;
    EXPECT_TRUE(quit);
}
