// The button with a tip under a real mouse.
#include "ToolTipButtonFixture.h"

namespace
{

class ToolTipButtonInput : public ToolTipButtonFixture
{
protected:
    ToolTipButtonInput() { m_owner->SetForegroundWindow(); }

    CPoint BesideButton() const
    {
        const CRect button = ScreenRect(m_button->m_hWnd);
        return CPoint(button.left - 60, button.bottom + 60);
    }
};

} // namespace

TEST_F(ToolTipButtonInput, TheTipShowsWhileTheMouseIsOverTheButton)
{
    EXPECT_TRUE(MoveMouseUntil(MiddleOfButton(), [this] { return IsTipVisible() && m_button->IsHot(); }));
    EXPECT_TRUE(MoveMouseUntil(BesideButton(), [] { return Tip() == NULL; }));
    EXPECT_TRUE(MoveMouseUntil(MiddleOfButton(), [] { return IsTipVisible(); }));
}

TEST_F(ToolTipButtonInput, AClickHidesTheTipUntilTheMouseReturns)
{
    ASSERT_TRUE(MoveMouseUntil(MiddleOfButton(), [] { return IsTipVisible(); }));
    EXPECT_TRUE(ClickMouseUntil(MiddleOfButton(), [] { return !IsTipVisible(); }));
    EXPECT_TRUE(MoveMouseUntil(BesideButton(), [] { return Tip() == NULL; }));
    EXPECT_TRUE(MoveMouseUntil(MiddleOfButton(), [] { return IsTipVisible(); }));
}
