// How long the mouse-following tip stays. The clock is the test's.
#include "FollowTipFixture.h"

#include "TraceCapture.h"

namespace
{

const UINT_PTR kTimer = 1;

class FollowTipLife : public FollowTipFixture
{
protected:
    // What the tip's timer does so many milliseconds later.
    void Tick(ClockedTip& tip, DWORD later)
    {
        tip.now += later;
        ::SendMessageW(Tip(), WM_TIMER, kTimer, 0);
    }
};

} // namespace

TEST_F(FollowTipLife, NoSecondsAreTwenty)
{
    ClockedTip& tip = ClockedTip::Show(L"a", 0);
    Tick(tip, 20000);
    EXPECT_TRUE(IsVisible());
    Tick(tip, 1);
    EXPECT_EQ(NULL, Tip());
}

TEST_F(FollowTipLife, SecondsCount)
{
    ClockedTip& tip = ClockedTip::Show(L"a", 3);
    Tick(tip, 3000);
    EXPECT_TRUE(IsVisible());
    Tick(tip, 1);
    EXPECT_EQ(NULL, Tip());
}

TEST_F(FollowTipLife, ANewMessageStartsItsOwnTime)
{
    ClockedTip& tip = ClockedTip::Show(L"a", 3);
    Tick(tip, 2500);
    CFollowMouseTipWnd::ShowMsg(L"b", 2, NULL);
    Tick(tip, 2000);
    EXPECT_TRUE(IsVisible());
    Tick(tip, 1);
    EXPECT_EQ(NULL, Tip());
}

TEST_F(FollowTipLife, AHiddenTipEndsToo)
{
    ClockedTip& tip = ClockedTip::Show(L"a", 3);
    CFollowMouseTipWnd::Hide();
    Tick(tip, 3001);
    EXPECT_EQ(NULL, Tip());
}

TEST_F(FollowTipLife, TheEndForgetsTheWatchedWindow)
{
    CFollowMouseTipWnd::SetWatchWnd(&m_owner);
    Tick(ClockedTip::Show(L"a", 3), 3001);
    ClockedTip& next = ClockedTip::Show(L"a");
    next.OnMouseMove(::GetDesktopWindow());
    EXPECT_TRUE(IsVisible());
}

TEST_F(FollowTipLife, OtherTimersDoNotEndTheTip)
{
    ClockedTip& tip = ClockedTip::Show(L"a", 3);
    tip.now += 10000;
    tip.SendMessage(WM_TIMER, 2, 0);
    EXPECT_TRUE(IsVisible());
}

TEST_F(FollowTipLife, HugeTimesDoNotWrapAround)
{
    ClockedTip& tip = ClockedTip::Show(L"a", 536870912); // times 1000 it would be 0 in 32 bits
    Tick(tip, 1000000);
    EXPECT_TRUE(IsVisible());
}

TEST_F(FollowTipLife, DestroyInsideTheTipsOwnTimer)
{
    ClockedTip& tip = ClockedTip::Show(L"a", 3);
    tip.onTimer = [] { CFollowMouseTipWnd::Destroy(); };
    ::SendMessageW(Tip(), WM_TIMER, kTimer, 0);
    EXPECT_EQ(NULL, Tip());
    CFollowMouseTipWnd::ShowMsg(L"a", 5, NULL);
    EXPECT_TRUE(IsVisible());
}

TEST_F(FollowTipLife, ANewTipInsideTheTipsOwnTimer)
{
    ClockedTip& tip = ClockedTip::Show(L"a", 3);
    tip.onTimer = [] {
        CFollowMouseTipWnd::Destroy();
        CFollowMouseTipWnd::ShowMsg(L"b", 5, NULL);
    };
    ::SendMessageW(Tip(), WM_TIMER, kTimer, 0);
    EXPECT_TRUE(IsVisible());
}

// With the real clock: the timer runs and the tip goes by itself.
TEST_F(FollowTipLife, ATipOfOneSecondGoesByItself)
{
    CFollowMouseTipWnd::ShowMsg(L"a", 1, NULL);
    ASSERT_TRUE(IsVisible());
    EXPECT_TRUE(WaitFor([this] { return Tip() == NULL; }, 20000));
}
