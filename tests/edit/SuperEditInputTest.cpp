// The validating edit under a real keyboard.
#include "EditFixture.h"

#include "Wait.h"

namespace
{

class SuperEditInput : public EditFixture
{
protected:
    void SetUp() override
    {
        m_parent.SetForegroundWindow();
        ASSERT_TRUE(WaitFor([this] { return ::GetForegroundWindow() == m_parent.m_hWnd; }));
        Enter();
    }

    static void SendKey(WORD key, WORD scan, DWORD flags)
    {
        INPUT input = {};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.wScan = scan;
        input.ki.dwFlags = flags;
        ::SendInput(1, &input, sizeof(input));
    }

    static void Press(const std::wstring& keys)
    {
        for (const wchar_t key : keys)
        {
            SendKey(0, key, KEYEVENTF_UNICODE);
            SendKey(0, key, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP);
        }
    }

    // Dispatches as the framework does, so that messages are relayed to the tip.
    static bool PumpUntilATipIsShown()
    {
        return WaitFor([] {
            MSG message;
            while (::PeekMessageW(&message, NULL, 0, 0, PM_NOREMOVE))
                AfxGetThread()->PumpMessage();
            const HWND tip = ::FindWindowW(TOOLTIPS_CLASSW, NULL);
            return tip != NULL && ::IsWindowVisible(tip);
        });
    }

    bool Shows(const wchar_t* text)
    {
        return WaitFor([this, text] { return Text() == text; });
    }
};

} // namespace

TEST_F(SuperEditInput, LetterTypedIntoADecimalNumberIsDropped)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    Press(L"1a2");
    EXPECT_TRUE(Shows(L"12"));
    EXPECT_EQ(1, m_edit.IsValid());
}

TEST_F(SuperEditInput, ChineseTypedIntoADecimalNumberGoesInAndTurnsInvalid)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    Press(L"1\x4E2D");
    EXPECT_TRUE(Shows(L"1\x4E2D"));
    EXPECT_EQ(0, m_edit.IsValid());
}

TEST_F(SuperEditInput, NumberIsValidatedWhileItGrows)
{
    m_edit.SetInputFloat(1, 0, 10, TRUE, FALSE, NULL);
    Press(L"1e");
    ASSERT_TRUE(Shows(L"1e"));
    EXPECT_EQ(0, m_edit.IsValid());
    Press(L"-3");
    ASSERT_TRUE(Shows(L"1e-3"));
    EXPECT_EQ(1, m_edit.IsValid());
    EXPECT_EQ(1e-3, m_edit.GetWindowValue());
}

TEST_F(SuperEditInput, BackspaceAndArrowsEdit)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    Press(L"123");
    ASSERT_TRUE(Shows(L"123"));
    for (const WORD key : {WORD(VK_LEFT), WORD(VK_BACK)})
    {
        SendKey(key, 0, 0);
        SendKey(key, 0, KEYEVENTF_KEYUP);
    }
    EXPECT_TRUE(Shows(L"13"));
}

TEST_F(SuperEditInput, MouseThatRestsOnTheControlShowsTheTip)
{
    m_edit.SetInputInt(5, 1, 10, FALSE, TRUE, L"tip");
    Leave();
    Enter();
    CRect rect;
    m_edit.GetWindowRect(&rect);
    ::SetCursorPos(rect.left + 5, rect.top + 5);
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = MOUSEEVENTF_MOVE;
    input.mi.dx = 1;
    ::SendInput(1, &input, sizeof(input));
    EXPECT_TRUE(PumpUntilATipIsShown());
}
