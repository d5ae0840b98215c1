// CXTButton's own part of the drawing: which state it tells its theme, which icon, over which background.
#include <XTToolkitPro.h>

#include "ButtonFixture.h"
#include "DibCanvas.h"
#include "GdiCount.h"
#include "TestIcon.h"

#include <gtest/gtest.h>

namespace
{
const CSize kIconSize(16, 16);
const COLORREF kRed = RGB(255, 0, 0);
const COLORREF kBlue = RGB(0, 0, 255);
} // namespace

class ButtonPixels : public ButtonFixture
{
protected:
    ButtonPixels() : m_canvas(kWidth, kHeight, RGB(0, 255, 0)), m_red(kRed), m_blue(kBlue) {}

    void SetUp() override
    {
        ButtonFixture::SetUp();
        m_button.SetXButtonStyle(0x1021);
        m_button.SetTheme(new CXTToolbarButtonTheme());
        m_button.SetIcon(kIconSize, m_red, m_blue);
    }

    void Draw(UINT state)
    {
        DRAWITEMSTRUCT item = {};
        item.CtlType = ODT_BUTTON;
        item.hDC = m_canvas.Dc();
        item.hwndItem = m_button;
        item.itemState = state;
        item.rcItem = RECT{0, 0, kWidth, kHeight};
        m_button.DrawItem(&item);
    }

    COLORREF Centre() const { return m_canvas.Pixel(kWidth / 2, kHeight / 2); }
    COLORREF Corner() const { return m_canvas.Pixel(0, 0); }

    DibCanvas m_canvas;
    TestIcon m_red;
    TestIcon m_blue;
};

TEST_F(ButtonPixels, TakesTheBackgroundFromTheParent)
{
    Draw(0);
    EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), Corner());
    EXPECT_EQ(kRed, Centre());
}

TEST_F(ButtonPixels, HasAFrameWhileHot)
{
    Move(CPoint(5, 5));
    Draw(0);
    EXPECT_EQ(::GetSysColor(COLOR_HIGHLIGHT), Corner());
    m_button.SendMessage(WM_MOUSELEAVE, 0, 0);
    Draw(0);
    EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), Corner());
}

TEST_F(ButtonPixels, ShowsTheSecondIconWhilePressedOrChecked)
{
    Draw(ODS_SELECTED);
    EXPECT_EQ(kBlue, Centre());
    m_button.SetChecked(TRUE);
    Draw(0);
    EXPECT_EQ(kBlue, Centre());
    EXPECT_EQ(::GetSysColor(COLOR_HIGHLIGHT), Corner());
}

TEST_F(ButtonPixels, TheCheckedStateShowsOnlyWithTheToggleStyle)
{
    m_button.SetXButtonStyle(0x1001);
    m_button.SetChecked(TRUE);
    Draw(0);
    EXPECT_EQ(kRed, Centre());
    EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), Corner());
}

TEST_F(ButtonPixels, ADisabledButtonIsNeverHot)
{
    Move(CPoint(5, 5));
    Draw(ODS_DISABLED);
    EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), Corner());
    EXPECT_EQ(GetRValue(Centre()), GetBValue(Centre()));
}

TEST_F(ButtonPixels, WithoutAThemeTheStyleChoosesTheLook)
{
    m_button.SetTheme(nullptr);
    m_button.SetXButtonStyle(0);
    Draw(0);
    EXPECT_EQ(::GetSysColor(COLOR_BTNHIGHLIGHT), Corner());
    m_button.SetXButtonStyle(BS_XT_WINXP_COMPAT);
    Draw(0);
    EXPECT_NE(::GetSysColor(COLOR_BTNHIGHLIGHT), Corner());
    EXPECT_NE(::GetSysColor(COLOR_BTNFACE), Corner());
}

TEST_F(ButtonPixels, PaintsItselfOnTheScreen)
{
    m_button.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    const HDC screen = ::GetDC(m_button);
    ::BitBlt(m_canvas.Dc(), 0, 0, kWidth, kHeight, screen, 0, 0, SRCCOPY);
    ::ReleaseDC(m_button, screen);
    EXPECT_TRUE(m_canvas.Near(kWidth / 2, kHeight / 2, kRed));
    EXPECT_TRUE(m_canvas.Near(0, 0, ::GetSysColor(COLOR_BTNFACE)));
}

TEST_F(ButtonPixels, AnEmptyRectangleDrawsNothing)
{
    DRAWITEMSTRUCT item = {};
    item.hDC = m_canvas.Dc();
    item.rcItem = RECT{5, 5, 5, 5};
    m_button.DrawItem(&item);
    EXPECT_EQ(RGB(0, 255, 0), m_canvas.Pixel(5, 5));
}

TEST_F(ButtonPixels, LeavesNoObjectsBehind)
{
    m_button.SetWindowText(L"text");
    Draw(ODS_DISABLED);
    const size_t objects = CountGdiObjects();
    for (int i = 0; i < 20; ++i)
        Draw(i % 2 == 0 ? ODS_DISABLED : ODS_SELECTED);
    EXPECT_EQ(objects, CountGdiObjects());
}
