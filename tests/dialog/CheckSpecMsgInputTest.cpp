// The check window under a real mouse and keyboard: its hover rules, dragging, pinning, closing.
#include "CheckMsgFixture.h"

#include "RealKeyboard.h"
#include "RealMouse.h"

namespace
{

const CPoint kObject(400, 300);   // what the mouse rests on
const CPoint kElsewhere(900, 80); // away from it and from the window

CPoint Pointer()
{
    CPoint pointer;
    ::GetCursorPos(&pointer);
    return pointer;
}

class CheckSpecMsgInput : public CheckMsgFixture
{
protected:
    CheckSpecMsgInput()
    {
        StartThread();
        BringToFront();
    }

    // Rests the mouse on the object and posts its texts until the window is there.
    bool Hover()
    {
        return MoveMouseUntil(kObject, [this] {
            if (Pointer() == kObject && !IsShown())
                ShowMsg({L"圆", L"半径: 25"});
            return IsShown();
        });
    }

    bool IsWorkedIn() const { return ::SendMessageW(Dialog(), 0x7101, 0, 0) == 1; }

    CPoint MiddleOf(int id) const
    {
        CRect place;
        ::GetWindowRect(Item(id), &place);
        return place.CenterPoint();
    }

    // Presses and releases the button until something comes of it.
    template<class CONDITION>
    bool ClickUntil(CPoint point, CONDITION condition)
    {
        if (!MoveMouseUntil(point, [&] { return ::WindowFromPoint(Pointer()) == ::WindowFromPoint(point); }))
            return false;
        SendMouse(point, MOUSEEVENTF_LEFTDOWN);
        SendMouse(point, MOUSEEVENTF_LEFTUP);
        return WaitFor(condition);
    }
};

} // namespace

TEST_F(CheckSpecMsgInput, ComesUpRightBelowTheRestingMouse)
{
    ASSERT_TRUE(Hover());
    EXPECT_EQ(Pointer().x + 2, Place().left);
    EXPECT_EQ(Pointer().y + 2, Place().top);
}

TEST_F(CheckSpecMsgInput, HidesWhenTheMouseLeaves)
{
    ASSERT_TRUE(Hover());
    EXPECT_TRUE(MoveMouseUntil(kElsewhere, [this] { return !IsShown(); }));
}

TEST_F(CheckSpecMsgInput, StaysWhileTheMouseIsInsideAndHidesAfterwards)
{
    // The display may report an earlier place of the mouse late (RealMouse.h), and the window rightly hides then.
    constexpr int attempts = 4;
    bool inside = false;
    for (int i = 0; i < attempts && !inside; ++i)
    {
        ASSERT_TRUE(Hover());
        inside = MoveMouseUntil(Place().CenterPoint(), [this] { return !IsShown() || IsWorkedIn(); }) && IsShown();
    }
    ASSERT_TRUE(inside);
    ::SendMessageW(Dialog(), WM_TIMER, 2, 0);
    EXPECT_TRUE(IsShown());
    EXPECT_TRUE(MoveMouseUntil(kElsewhere, [this] { return !IsShown(); }));
}

TEST_F(CheckSpecMsgInput, DoesNotComeUpWhenTheMouseHasLeftTheObject)
{
    ASSERT_TRUE(MoveMouseUntil(kObject, [] { return Pointer() == kObject; }));
    m_thread->Hold();
    ShowMsg({L"a"});
    m_thread->LetGo();
    ASSERT_TRUE(ShowsText(L"a\r\n"));
    if (!IsShown()) // else the machine was slower than the delay
    {
        ASSERT_TRUE(MoveMouseUntil(kElsewhere, [] { return Pointer().y == kElsewhere.y; }));
        ::SendMessageW(Dialog(), WM_TIMER, 1, 0);
    }
    EXPECT_TRUE(WaitUntilShown(false));
    EXPECT_EQ(FALSE, ::KillTimer(Dialog(), 1));
}

TEST_F(CheckSpecMsgInput, APinnedWindowStaysWhenTheMouseLeavesAndWhereItIs)
{
    ASSERT_TRUE(Hover());
    const CRect place = Place();
    ASSERT_TRUE(ClickUntil(MiddleOf(kDockId), [this] { return m_thread->releases == 1; }));
    m_thread->Hold(); // comes after the click is worked off
    m_thread->LetGo();
    ASSERT_TRUE(MoveMouseUntil(kElsewhere, [] { return Pointer().y == kElsewhere.y; }));
    ::SendMessageW(Dialog(), WM_TIMER, 2, 0);
    EXPECT_TRUE(IsShown());
    ShowMsg({L"another"});
    EXPECT_TRUE(ShowsText(L"another\r\n"));
    ::SendMessageW(Dialog(), WM_TIMER, 1, 0);
    EXPECT_TRUE(IsShown());
    EXPECT_TRUE(place == Place());
}

TEST_F(CheckSpecMsgInput, TheCloseButtonHidesIt)
{
    ASSERT_TRUE(Hover());
    EXPECT_TRUE(ClickUntil(MiddleOf(kCloseId), [this] { return !IsShown(); }));
}

TEST_F(CheckSpecMsgInput, IsDraggedByItsEmptySpace)
{
    ASSERT_TRUE(Hover());
    const CRect before = Place();
    const CPoint grip(before.CenterPoint().x, MiddleOf(kDockId).y); // between the buttons
    ASSERT_TRUE(MoveMouseUntil(grip, [&] { return ::WindowFromPoint(Pointer()) == Dialog(); }));
    SendMouse(grip, MOUSEEVENTF_LEFTDOWN);
    const CPoint by(60, 40);
    EXPECT_TRUE(MoveMouseUntil(grip + by, [&] { return Place().left > before.left + 50; }));
    SendMouse(grip + by, MOUSEEVENTF_LEFTUP);
    EXPECT_TRUE(WaitFor([&] { return Place().top > before.top + 30; }));
    EXPECT_TRUE(before.Size() == Place().Size());
}

TEST_F(CheckSpecMsgInput, EscapeHidesItOnceTheMouseMadeItActive)
{
    ASSERT_TRUE(Hover());
    const CPoint text = MiddleOf(kTextId);
    ASSERT_TRUE(MoveMouseUntil(text, [this] { return ::GetForegroundWindow() == Dialog(); }));
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(WaitUntilShown(false));
}
