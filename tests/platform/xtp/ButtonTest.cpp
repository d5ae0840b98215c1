// CXTButton as a control: styles, ownership, checked and hot state, clicks, dialog manners.
#include <XTToolkitPro.h>

#include "ButtonFixture.h"
#include "GdiCount.h"
#include "TestIcon.h"
#include "Wait.h"

#include <gtest/gtest.h>

namespace
{
const CSize kIconSize(16, 16);

// Says when it goes.
class CountedTheme : public CXTToolbarButtonTheme
{
public:
    explicit CountedTheme(int& alive) : m_alive(alive) { ++m_alive; }
    ~CountedTheme() override { --m_alive; }

private:
    int& m_alive;
};

class Button : public ButtonFixture
{
};
} // namespace

TEST_F(Button, SetXButtonStyleGivesThePreviousStyle)
{
    const DWORD first = m_button.GetXButtonStyle();
    EXPECT_EQ(first, m_button.SetXButtonStyle(0x1001));
    EXPECT_EQ(0x1001u, m_button.SetXButtonStyle(0x1021, FALSE));
    EXPECT_EQ(0x1021u, m_button.GetXButtonStyle());
}

TEST_F(Button, OwnsItsTheme)
{
    int alive = 0;
    m_button.SetTheme(new CountedTheme(alive));
    EXPECT_EQ(1, alive);
    m_button.SetTheme(new CountedTheme(alive));
    EXPECT_EQ(1, alive);
    m_button.SetTheme(m_button.GetTheme());
    EXPECT_EQ(1, alive);
    m_button.SetTheme(nullptr);
    EXPECT_EQ(0, alive);
    {
        CXTButton shortLived;
        shortLived.SetTheme(new CountedTheme(alive));
    }
    EXPECT_EQ(0, alive);
}

TEST(ButtonTheme, ComesFromTheRunTimeClassGiven)
{
    CXTButton button(RUNTIME_CLASS(CXTButtonThemeOffice2003));
    ASSERT_NE(nullptr, button.GetTheme());
    EXPECT_TRUE(button.GetTheme()->IsKindOf(RUNTIME_CLASS(CXTButtonThemeOffice2003)));
    EXPECT_EQ(nullptr, CXTButton(nullptr).GetTheme());
    EXPECT_EQ(nullptr, CXTButton(RUNTIME_CLASS(CButton)).GetTheme());
}

TEST(ButtonTheme, ButtonsAreMadeByTheirRunTimeClass)
{
    CObject* object = RUNTIME_CLASS(CXTButton)->CreateObject();
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CXTButton)));
    delete object;
}

TEST_F(Button, RefusesIconsThatAreNone)
{
    const TestIcon icon(RGB(255, 0, 0));
    EXPECT_TRUE(m_button.SetIcon(kIconSize, icon));
    EXPECT_FALSE(m_button.SetIcon(kIconSize, static_cast<HICON>(nullptr)));
    EXPECT_FALSE(m_button.SetIcon(CSize(0, 16), icon));
    EXPECT_FALSE(m_button.SetIcon(kIconSize, 64000u));
    EXPECT_EQ(icon, m_button.GetIcon());
}

TEST_F(Button, BorrowsTheIconsItIsGiven)
{
    const TestIcon icon(RGB(255, 0, 0));
    {
        CXTButton shortLived;
        shortLived.SetIcon(kIconSize, icon);
    }
    ICONINFO info = {};
    ASSERT_TRUE(::GetIconInfo(icon, &info));
    ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
}

TEST_F(Button, CheckedStateIsReachedByBothPairs)
{
    EXPECT_FALSE(m_button.GetChecked());
    m_button.SetChecked(TRUE);
    EXPECT_TRUE(m_button.GetChecked());
    EXPECT_EQ(BST_CHECKED, m_button.GetCheck());
    m_button.SetCheck(BST_UNCHECKED);
    EXPECT_FALSE(m_button.GetChecked());
}

TEST_F(Button, AnyTrueValueChecks)
{
    m_button.SetChecked(5);
    EXPECT_EQ(TRUE, m_button.GetChecked());
}

TEST_F(Button, ClickIsReportedOnceAndLeavesTheCheckedState)
{
    m_button.SetXButtonStyle(0x1021);
    Press(CPoint(5, 5));
    EXPECT_EQ(0, m_parent.Clicks());
    Release(CPoint(5, 5));
    EXPECT_EQ(1, m_parent.Clicks());
    EXPECT_FALSE(m_button.GetChecked());
}

TEST_F(Button, ReleasingOutsideIsNoClick)
{
    Press(CPoint(5, 5));
    Move(CPoint(-50, 5));
    Release(CPoint(-50, 5));
    EXPECT_EQ(0, m_parent.Clicks());
}

TEST_F(Button, FastClicksAllCount)
{
    Press(CPoint(5, 5));
    Release(CPoint(5, 5));
    m_button.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
    Release(CPoint(5, 5));
    EXPECT_EQ(2, m_parent.Clicks());
}

TEST_F(Button, SpaceBarClicks)
{
    m_button.SetFocus();
    m_button.SendMessage(WM_KEYDOWN, VK_SPACE, 0);
    m_button.SendMessage(WM_KEYUP, VK_SPACE, 0);
    EXPECT_EQ(1, m_parent.Clicks());
}

TEST_F(Button, IsHotWhileTheMouseIsOverIt)
{
    EXPECT_FALSE(m_button.IsHot());
    Move(CPoint(5, 5));
    EXPECT_TRUE(m_button.IsHot());
    m_button.SendMessage(WM_MOUSELEAVE, 0, 0);
    EXPECT_FALSE(m_button.IsHot());
}

TEST_F(Button, IsNotHotWhenTheMouseIsHeldOutsideIt)
{
    Press(CPoint(5, 5));
    Move(CPoint(5, 5));
    EXPECT_TRUE(m_button.IsHot());
    Move(CPoint(500, 5));
    EXPECT_FALSE(m_button.IsHot());
    Release(CPoint(500, 5));
}

TEST_F(Button, DisablingEndsTheHotState)
{
    Move(CPoint(5, 5));
    m_button.EnableWindow(FALSE);
    EXPECT_FALSE(m_button.IsHot());
}

TEST_F(Button, IsOwnerDrawnWhetherCreatedOrSubclassed)
{
    EXPECT_EQ(DWORD(BS_OWNERDRAW), m_button.GetStyle() & BS_TYPEMASK);

    const HWND plain =
        ::CreateWindowW(L"BUTTON", L"x", WS_CHILD | BS_PUSHBUTTON, 0, 0, 20, 20, m_parent, nullptr, nullptr, nullptr);
    CXTButton subclassed;
    ASSERT_TRUE(subclassed.SubclassWindow(plain));
    EXPECT_EQ(DWORD(BS_OWNERDRAW), subclassed.GetStyle() & BS_TYPEMASK);
    subclassed.DestroyWindow();
}

TEST_F(Button, TellsADialogWhetherItIsTheDefaultButton)
{
    EXPECT_EQ(DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON, m_button.SendMessage(WM_GETDLGCODE, 0, 0));
    m_button.SendMessage(BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
    EXPECT_EQ(DLGC_BUTTON | DLGC_DEFPUSHBUTTON, m_button.SendMessage(WM_GETDLGCODE, 0, 0));
    EXPECT_EQ(DWORD(BS_OWNERDRAW), m_button.GetStyle() & BS_TYPEMASK);
    m_button.SendMessage(BM_SETSTYLE, BS_PUSHBUTTON, TRUE);
    EXPECT_EQ(DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON, m_button.SendMessage(WM_GETDLGCODE, 0, 0));
}

TEST_F(Button, WorksBeforeItHasAWindow)
{
    CXTButton button;
    button.SetXButtonStyle(0x1021);
    button.SetTheme(new CXTToolbarButtonTheme());
    button.SetChecked(TRUE);
    EXPECT_TRUE(button.GetChecked());
}
