// The validating edit under a real keyboard.
#include "EditFixture.h"

#include "RealKeyboard.h"
#include "RealMouse.h"

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

    static bool IsATipShown()
    {
        const HWND tip = ::FindWindowW(TOOLTIPS_CLASSW, NULL);
        return tip != NULL && ::IsWindowVisible(tip);
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
    TypeText(L"1a2");
    EXPECT_TRUE(Shows(L"12"));
    EXPECT_EQ(1, m_edit.IsValid());
}

TEST_F(SuperEditInput, ChineseTypedIntoADecimalNumberGoesInAndTurnsInvalid)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    TypeText(L"1\x4E2D");
    EXPECT_TRUE(Shows(L"1\x4E2D"));
    EXPECT_EQ(0, m_edit.IsValid());
}

TEST_F(SuperEditInput, NumberIsValidatedWhileItGrows)
{
    m_edit.SetInputFloat(1, 0, 10, TRUE, FALSE, NULL);
    TypeText(L"1e");
    ASSERT_TRUE(Shows(L"1e"));
    EXPECT_EQ(0, m_edit.IsValid());
    TypeText(L"-3");
    ASSERT_TRUE(Shows(L"1e-3"));
    EXPECT_EQ(1, m_edit.IsValid());
    EXPECT_EQ(1e-3, m_edit.GetWindowValue());
}

TEST_F(SuperEditInput, BackspaceAndArrowsEdit)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    TypeText(L"123");
    ASSERT_TRUE(Shows(L"123"));
    PressKey(VK_LEFT);
    PressKey(VK_BACK);
    EXPECT_TRUE(Shows(L"13"));
}

TEST_F(SuperEditInput, MouseThatRestsOnTheControlShowsTheTip)
{
    m_edit.SetInputInt(5, 1, 10, FALSE, TRUE, L"tip");
    Leave();
    Enter();
    CRect rect;
    m_edit.GetWindowRect(&rect);
    EXPECT_TRUE(MoveMouseUntil(rect.TopLeft() + CPoint(5, 5), [] { return IsATipShown(); }));
}
