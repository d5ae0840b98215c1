// A button with a tip in its owner's window.
#pragma once

#include "TipFixture.h"

#include "tip/ToolTipXTButton.h"

class TestToolTipButton : public CToolTipXTButton
{
public:
    using CToolTipXTButton::CToolTipXTButton;
    using CToolTipXTButton::ShowTipWindow;
};

class ToolTipButtonFixture : public testing::Test
{
protected:
    ToolTipButtonFixture() : m_owner(new OwnerWindow), m_button(new TestToolTipButton)
    {
        ::SetCursorPos(5, 5); // away from the button
        Create(*m_button);
        m_button->SetToolTip(L"what the button does");
    }

    void Create(TestToolTipButton& button)
    {
        button.Create(L"button", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, CRect(150, 100, 250, 125), m_owner.get(), 7);
    }

    static HWND Tip() { return ::FindWindowW(L"ZNXTButtonToolTipWnd", NULL); }
    static bool IsTipVisible() { return Tip() != NULL && ::IsWindowVisible(Tip()); }

    // The message as the message loop shows it to the button before it is dispatched.
    BOOL Offer(UINT message)
    {
        MSG offered = {};
        offered.hwnd = m_button->m_hWnd;
        offered.message = message;
        return m_button->PreTranslateMessage(&offered);
    }

    CPoint MiddleOfButton() const { return ScreenRect(m_button->m_hWnd).CenterPoint(); }

    std::unique_ptr<OwnerWindow> m_owner;
    std::unique_ptr<TestToolTipButton> m_button;
};
