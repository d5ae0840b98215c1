// The flat button under a real mouse.
#include "MyButtonFixture.h"

#include "Wait.h"

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

    static void Send(DWORD flags)
    {
        INPUT input = {};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = flags;
        ::SendInput(1, &input, sizeof(input));
    }

    // Puts the cursor there, again while the condition does not hold: a move that the display reports late may take it
    // back under Wine.
    template<class CONDITION>
    bool MouseAt(CPoint client, CONDITION condition)
    {
        CPoint point(client);
        m_button.ClientToScreen(&point);
        const int attempts = 10;
        for (int i = 0; i < attempts; ++i)
        {
            ::SetCursorPos(point.x, point.y);
            Send(MOUSEEVENTF_MOVE);
            if (WaitFor(condition, 500))
                return true;
        }
        return false;
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
    Send(MOUSEEVENTF_LEFTDOWN);
    EXPECT_TRUE(WaitFor([this] { return ShowsSunken(); }));
    Send(MOUSEEVENTF_LEFTUP);
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
    INPUT input[2] = {};
    input[0].type = INPUT_KEYBOARD;
    input[0].ki.wVk = VK_SPACE;
    input[1] = input[0];
    input[1].ki.dwFlags = KEYEVENTF_KEYUP;
    ::SendInput(2, input, sizeof(INPUT));
    EXPECT_TRUE(WaitFor([this] { return m_owner.clicks == 1; }));
}
