// The flat button under a real mouse.
#include "MyButtonFixture.h"

#include "RealKeyboard.h"
#include "RealMouse.h"

class MyButtonInput : public MyButtonFixture
{
protected:
    void SetUp() override
    {
        Create(0);
        m_button.SetBackgroundColor(kBackground);
        m_owner.SetForegroundWindow();
        ASSERT_TRUE(WaitFor([this] { return ::GetForegroundWindow() == m_owner.m_hWnd; }));
        m_button.UpdateWindow();
    }

    CPoint OnScreen(CPoint client) const
    {
        CPoint point(client);
        m_button.ClientToScreen(&point);
        return point;
    }

    template<class CONDITION>
    bool MouseAt(CPoint client, CONDITION condition)
    {
        return MoveMouseUntil(OnScreen(client), condition);
    }

    const CPoint kInside{kWidth / 2, kHeight / 2};
    const CPoint kOutside{kWidth + 30, kHeight + 30};
};

TEST_F(MyButtonInput, TheFrameRisesUnderTheMouseAndGoesWithIt)
{
    ASSERT_TRUE(MouseAt(kOutside, [this] { return ShowsFlat(); }));
    EXPECT_TRUE(MouseAt(kInside, [this] { return ShowsRaised(); }));
    EXPECT_TRUE(MouseAt(kOutside, [this] { return ShowsFlat(); }));
    EXPECT_FALSE(m_button.IsHovering());
}

TEST_F(MyButtonInput, APressSinksTheFrameAndAReleaseClicks)
{
    ASSERT_TRUE(MouseAt(kInside, [this] { return m_button.IsHovering(); }));
    SendMouse(OnScreen(kInside), MOUSEEVENTF_LEFTDOWN);
    EXPECT_TRUE(WaitFor([this] { return ShowsSunken(); }));
    SendMouse(OnScreen(kInside), MOUSEEVENTF_LEFTUP);
    EXPECT_TRUE(WaitFor([this] { return m_owner.clicks == 1; }));
    EXPECT_FALSE(ShowsSunken());
}

TEST_F(MyButtonInput, ACheckedButtonStaysSunkenUnderTheMouse)
{
    m_button.SetCheck(1);
    ASSERT_TRUE(MouseAt(kInside, [this] { return m_button.IsHovering(); }));
    EXPECT_TRUE(ShowsSunken());
    ASSERT_TRUE(MouseAt(kOutside, [this] { return !m_button.IsHovering(); }));
    EXPECT_TRUE(ShowsSunken());
}

TEST_F(MyButtonInput, TheSpaceBarClicks)
{
    m_button.SetFocus();
    PressKey(VK_SPACE);
    EXPECT_TRUE(WaitFor([this] { return m_owner.clicks == 1; }));
}
