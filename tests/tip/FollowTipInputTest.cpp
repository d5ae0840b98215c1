// The mouse-following tip under a real mouse.
#include "FollowTipFixture.h"

namespace
{

const CPoint kInside(200, 450); // of the owner
const CPoint kFurther(330, 520);
const CPoint kElsewhere(750, 350); // in the other window

class FollowTipInput : public FollowTipFixture
{
protected:
    FollowTipInput() : m_other(CRect(700, 300, 800, 400))
    {
        m_owner.SetForegroundWindow();
        MoveMouseUntil(kInside, [] { return Pointer() == kInside; });
    }

    bool IsBesidePointer() const { return IsVisible() && ScreenRect(Tip()).TopLeft() == PlaceByPointer(); }

    OwnerWindow m_other;
};

} // namespace

TEST_F(FollowTipInput, FollowsTheMouseOverTheWatchedWindow)
{
    CFollowMouseTipWnd::SetWatchWnd(&m_owner);
    CFollowMouseTipWnd::ShowMsg(L"a", 60, NULL);
    for (const CPoint& point : {kFurther, kInside})
        EXPECT_TRUE(MoveMouseUntil(point, [this, point] { return Pointer() == point && IsBesidePointer(); }));
}

TEST_F(FollowTipInput, HidesOverAnotherWindowAndReturns)
{
    CFollowMouseTipWnd::SetWatchWnd(&m_owner);
    CFollowMouseTipWnd::ShowMsg(L"a", 60, NULL);
    EXPECT_TRUE(MoveMouseUntil(kElsewhere, [this] { return !IsVisible(); }));
    EXPECT_TRUE(MoveMouseUntil(kInside, [this] { return IsBesidePointer(); }));
}

TEST_F(FollowTipInput, FollowsEverywhereWithoutAWatchedWindow)
{
    CFollowMouseTipWnd::ShowMsg(L"a", 60, NULL);
    EXPECT_TRUE(MoveMouseUntil(kElsewhere, [this] { return Pointer() == kElsewhere && IsBesidePointer(); }));
}

TEST_F(FollowTipInput, FollowsTheMouseOverACaptionToo)
{
    m_owner.ModifyStyle(0, WS_CAPTION, SWP_FRAMECHANGED);
    const CRect place = ScreenRect(m_owner.m_hWnd);
    const CPoint caption(place.left + 100, place.top + ::GetSystemMetrics(SM_CYCAPTION) / 2);
    ASSERT_EQ(HTCAPTION, m_owner.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(caption.x, caption.y)));
    CFollowMouseTipWnd::SetWatchWnd(&m_owner);
    CFollowMouseTipWnd::ShowMsg(L"a", 60, NULL);
    EXPECT_TRUE(MoveMouseUntil(caption, [this, caption] { return Pointer() == caption && IsBesidePointer(); }));
}

TEST_F(FollowTipInput, StaysHiddenAfterHide)
{
    CFollowMouseTipWnd::ShowMsg(L"a", 60, NULL);
    CFollowMouseTipWnd::Hide();
    EXPECT_TRUE(MoveMouseUntil(kFurther, [] { return Pointer() == kFurther; }));
    EXPECT_FALSE(IsVisible());
}

TEST_F(FollowTipInput, AMoveAfterTheEndHarmsNobody)
{
    CFollowMouseTipWnd::ShowMsg(L"a", 60, NULL);
    CFollowMouseTipWnd::Destroy();
    EXPECT_TRUE(MoveMouseUntil(kFurther, [] { return Pointer() == kFurther; }));
    EXPECT_EQ(NULL, Tip());
}

TEST_F(FollowTipInput, OtherHooksOfTheThreadStillSeeTheMouse)
{
    static int seen;
    seen = 0;
    const HHOOK hook = ::SetWindowsHookExW(
        WH_MOUSE,
        [](int code, WPARAM wParam, LPARAM lParam) {
            ++seen;
            return ::CallNextHookEx(NULL, code, wParam, lParam);
        },
        NULL, ::GetCurrentThreadId());
    CFollowMouseTipWnd::ShowMsg(L"a", 60, NULL); // its hook comes first
    EXPECT_TRUE(MoveMouseUntil(kFurther, [] { return seen > 0; }));
    ::UnhookWindowsHookEx(hook);
}
