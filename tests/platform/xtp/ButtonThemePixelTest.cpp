// What the themes draw, state by state, into a picture in memory and with colours of the test's own.
#include <XTToolkitPro.h>

#include "DibCanvas.h"
#include "GdiCount.h"
#include "TestIcon.h"

#include <gtest/gtest.h>

namespace
{
const int kWidth = 40;
const int kHeight = 30;
const RECT kButton = {0, 0, kWidth, kHeight};
const COLORREF kBackground = RGB(10, 60, 30);
const COLORREF kIconColor = RGB(255, 0, 0);
const DWORD kFlat = 0x1001;
const DWORD kToggle = 0x1021;
const DWORD kRaised = 0;
const XTButtonColors kColors = {RGB(200, 200, 200), RGB(255, 255, 255), RGB(128, 128, 128), RGB(64, 64, 64),
                                RGB(0, 0, 0),       RGB(150, 150, 150), RGB(0, 0, 200),     RGB(250, 250, 250)};

XTButtonState Enabled()
{
    XTButtonState state = {};
    state.enabled = true;
    return state;
}

XTButtonState Hot()
{
    XTButtonState state = Enabled();
    state.hot = true;
    return state;
}

XTButtonState Pressed()
{
    XTButtonState state = Hot();
    state.pressed = true;
    return state;
}

XTButtonState Checked()
{
    XTButtonState state = Enabled();
    state.checked = true;
    return state;
}

XTButtonContent IconContent(HICON icon)
{
    XTButtonContent content = {};
    content.icon = icon;
    content.iconSize = SIZE{16, 16};
    return content;
}
} // namespace

class ThemePixels : public testing::Test
{
protected:
    ThemePixels() : m_canvas(kWidth, kHeight, kBackground), m_icon(kIconColor) {}

    void Draw(const CXTButtonTheme& theme, DWORD style, const XTButtonState& state)
    {
        Draw(theme, style, state, XTButtonContent());
    }

    void DrawIcon(const CXTButtonTheme& theme, DWORD style, const XTButtonState& state)
    {
        Draw(theme, style, state, IconContent(m_icon));
    }

    void Draw(const CXTButtonTheme& theme, DWORD style, const XTButtonState& state, const XTButtonContent& content)
    {
        m_canvas.Clear(kBackground);
        theme.Draw(m_canvas.Dc(), kButton, style, state, content, kColors);
    }

    COLORREF Corner() const { return m_canvas.Pixel(0, 0); }
    COLORREF Inside() const { return m_canvas.Pixel(5, kHeight / 2); }

    DibCanvas m_canvas;
    TestIcon m_icon;
};

TEST_F(ThemePixels, FlatButtonsLeaveTheBackgroundAloneAtRest)
{
    const CXTButtonTheme classic;
    const CXTButtonThemeOfficeXP officeXp;
    const CXTButtonThemeOffice2003 office2003;
    const CXTToolbarButtonTheme toolbar;
    for (const CXTButtonTheme* theme :
         std::initializer_list<const CXTButtonTheme*>{&classic, &officeXp, &office2003, &toolbar})
    {
        Draw(*theme, kFlat, Enabled());
        EXPECT_EQ(kWidth * kHeight, m_canvas.Count(kButton, kBackground, 0))
            << theme->GetRuntimeClass()->m_lpszClassName;
    }
}

TEST_F(ThemePixels, ThemesMadeFlatNeedNoStyle)
{
    Draw(CXTButtonThemeOfficeXP(TRUE), kRaised, Enabled());
    EXPECT_EQ(kBackground, Inside());
    Draw(CXTButtonThemeOfficeXP(FALSE), kRaised, Enabled());
    EXPECT_EQ(kColors.face, Inside());
    Draw(CXTToolbarButtonTheme(), kRaised, Enabled());
    EXPECT_EQ(kBackground, Inside());
}

TEST_F(ThemePixels, ClassicFaceIsRaisedAtRestAndSunkenWhenPressed)
{
    Draw(CXTButtonTheme(), kRaised, Enabled());
    EXPECT_EQ(kColors.light, Corner());
    EXPECT_EQ(kColors.darkShadow, m_canvas.Pixel(kWidth - 1, kHeight - 1));
    EXPECT_EQ(kColors.face, Inside());
    Draw(CXTButtonTheme(), kRaised, Pressed());
    EXPECT_EQ(kColors.darkShadow, Corner());
    EXPECT_EQ(kColors.light, m_canvas.Pixel(kWidth - 1, kHeight - 1));
}

TEST_F(ThemePixels, ClassicFlatFaceHasAThinFrameWhileHot)
{
    Draw(CXTButtonTheme(), kFlat, Hot());
    EXPECT_EQ(kColors.light, Corner());
    EXPECT_EQ(kColors.shadow, m_canvas.Pixel(kWidth - 1, kHeight - 1));
    EXPECT_EQ(kColors.face, m_canvas.Pixel(kWidth - 2, kHeight - 2));
}

TEST_F(ThemePixels, ClassicSemiFlatFaceGetsItsFullFrameWhileHot)
{
    Draw(CXTButtonTheme(), BS_XT_SEMIFLAT, Enabled());
    EXPECT_EQ(kColors.shadow, m_canvas.Pixel(kWidth - 1, kHeight - 1));
    Draw(CXTButtonTheme(), BS_XT_SEMIFLAT, Hot());
    EXPECT_EQ(kColors.darkShadow, m_canvas.Pixel(kWidth - 1, kHeight - 1));
    EXPECT_EQ(kColors.shadow, m_canvas.Pixel(kWidth - 2, kHeight - 2));
}

TEST_F(ThemePixels, TheDefaultButtonHasADarkEdge)
{
    XTButtonState state = Enabled();
    state.isDefault = true;
    Draw(CXTButtonTheme(), kRaised, state);
    EXPECT_EQ(kColors.darkShadow, Corner());
    EXPECT_EQ(kColors.light, m_canvas.Pixel(1, 1));
    Draw(CXTButtonThemeOfficeXP(), kRaised, state);
    EXPECT_EQ(kColors.darkShadow, Corner());
}

TEST_F(ThemePixels, HotToolButtonHasAFrameOfTheHighlightColourAndATintedFace)
{
    Draw(CXTToolbarButtonTheme(), kFlat, Hot());
    const RECT top = {0, 0, kWidth, 1};
    const RECT bottom = {0, kHeight - 1, kWidth, kHeight};
    EXPECT_EQ(kWidth, m_canvas.Count(top, kColors.highlight, 0));
    EXPECT_EQ(kWidth, m_canvas.Count(bottom, kColors.highlight, 0));
    EXPECT_EQ(RGB(175, 175, 235), Inside());
}

TEST_F(ThemePixels, PressedIsDarkerThanHotAndCheckedLighter)
{
    const CXTToolbarButtonTheme theme;
    Draw(theme, kToggle, Hot());
    const int hot = GetRValue(Inside());
    Draw(theme, kToggle, Pressed());
    EXPECT_LT(GetRValue(Inside()), hot);
    Draw(theme, kToggle, Checked());
    EXPECT_GT(GetRValue(Inside()), hot);
    EXPECT_NE(kBackground, Inside());
    EXPECT_EQ(kColors.highlight, Corner());
}

TEST_F(ThemePixels, ACheckedButtonIsDarkerWhileHot)
{
    const CXTToolbarButtonTheme theme;
    Draw(theme, kToggle, Checked());
    const int quiet = GetRValue(Inside());
    XTButtonState state = Checked();
    state.hot = true;
    Draw(theme, kToggle, state);
    EXPECT_LT(GetRValue(Inside()), quiet);
}

TEST_F(ThemePixels, TheIconStandsInTheMiddle)
{
    DrawIcon(CXTToolbarButtonTheme(), kFlat, Enabled());
    EXPECT_EQ(16 * 16, m_canvas.Count(kButton, kIconColor));
    EXPECT_TRUE(m_canvas.Near(12, 7, kIconColor));
    EXPECT_TRUE(m_canvas.Near(27, 22, kIconColor));
    EXPECT_EQ(kBackground, m_canvas.Pixel(11, 7));
    EXPECT_EQ(kBackground, m_canvas.Pixel(28, 22));
}

TEST_F(ThemePixels, ToolAndClassicIconsMoveByOnePixelWhenPressed)
{
    const CXTToolbarButtonTheme toolbar;
    const CXTButtonTheme classic;
    for (const CXTButtonTheme* theme : std::initializer_list<const CXTButtonTheme*>{&toolbar, &classic})
    {
        DrawIcon(*theme, kFlat, Pressed());
        EXPECT_FALSE(m_canvas.Near(12, 7, kIconColor));
        EXPECT_TRUE(m_canvas.Near(13, 8, kIconColor));
        EXPECT_TRUE(m_canvas.Near(28, 23, kIconColor));
    }
}

TEST_F(ThemePixels, OfficeIconsStayWhenPressed)
{
    DrawIcon(CXTButtonThemeOfficeXP(), kRaised, Pressed());
    EXPECT_TRUE(m_canvas.Near(12, 7, kIconColor));
    EXPECT_FALSE(m_canvas.Near(28, 23, kIconColor));
}

TEST_F(ThemePixels, ADisabledIconIsGreyAndFaded)
{
    m_canvas.Clear(kColors.window);
    CXTToolbarButtonTheme().Draw(m_canvas.Dc(), kButton, kFlat, XTButtonState(), IconContent(m_icon), kColors);
    const COLORREF point = m_canvas.Pixel(20, 15);
    EXPECT_EQ(GetRValue(point), GetGValue(point));
    EXPECT_EQ(GetRValue(point), GetBValue(point));
    EXPECT_GT(GetRValue(point), 100);
    EXPECT_LT(GetRValue(point), 220);
    EXPECT_EQ(0, m_canvas.Count(kButton, kIconColor));
    EXPECT_EQ(kColors.window, m_canvas.Pixel(2, 2));
}

TEST_F(ThemePixels, ADisabledToolButtonHasNoFrameAtRest)
{
    Draw(CXTToolbarButtonTheme(), kFlat, XTButtonState());
    EXPECT_EQ(kBackground, Corner());
}

TEST_F(ThemePixels, CaptionsTakeTheColourOfTheState)
{
    XTButtonContent content = {};
    content.caption = L"WWW";
    Draw(CXTToolbarButtonTheme(), kFlat, Enabled(), content);
    EXPECT_GT(m_canvas.Count(kButton, kColors.text, 0), 0);
    Draw(CXTToolbarButtonTheme(), kFlat, XTButtonState(), content);
    EXPECT_EQ(0, m_canvas.Count(kButton, kColors.text, 0));
    EXPECT_GT(m_canvas.Count(kButton, kColors.disabledText), 0);
}

TEST_F(ThemePixels, TheCaptionStandsRightOfTheIconOrBelowIt)
{
    XTButtonContent content = IconContent(m_icon);
    content.caption = L"W";
    Draw(CXTToolbarButtonTheme(), kFlat, Enabled(), content);
    EXPECT_FALSE(m_canvas.Near(27, 15, kIconColor));
    EXPECT_TRUE(m_canvas.Near(12, 15, kIconColor));

    content.stacked = true;
    Draw(CXTToolbarButtonTheme(), kFlat, Enabled(), content);
    EXPECT_FALSE(m_canvas.Near(20, kHeight - 2, kIconColor));
    EXPECT_TRUE(m_canvas.Near(20, 5, kIconColor));
}

TEST_F(ThemePixels, TheFocusRectangleIsDottedInsideTheFrame)
{
    XTButtonState state = Enabled();
    state.focused = true;
    Draw(CXTButtonThemeOfficeXP(), kRaised, state);
    const RECT line = {3, 3, kWidth - 3, 4};
    const int face = m_canvas.Count(line, kColors.face, 0);
    EXPECT_GT(face, 0);
    EXPECT_LT(face, kWidth - 6);
    state.focused = false;
    Draw(CXTButtonThemeOfficeXP(), kRaised, state);
    EXPECT_EQ(kWidth - 6, m_canvas.Count(line, kColors.face, 0));
}

TEST_F(ThemePixels, Office2003FadesFromLightToDark)
{
    Draw(CXTButtonThemeOffice2003(), kRaised, Hot());
    EXPECT_GT(GetRValue(m_canvas.Pixel(20, 2)), GetRValue(m_canvas.Pixel(20, kHeight - 3)));
    Draw(CXTButtonThemeOffice2003(), kRaised, Pressed());
    EXPECT_LT(GetRValue(m_canvas.Pixel(20, 2)), GetRValue(m_canvas.Pixel(20, kHeight - 3)));
}

TEST_F(ThemePixels, HilitePressedKeepsTheHotLookWhilePressed)
{
    Draw(CXTButtonThemeOfficeXP(), kRaised, Hot());
    const COLORREF hot = Inside();
    Draw(CXTButtonThemeOfficeXP(), BS_XT_HILITEPRESSED, Pressed());
    EXPECT_EQ(hot, Inside());
}

TEST_F(ThemePixels, DrawingLeavesTheDeviceContextAndTheObjectCountAsTheyWere)
{
    XTButtonContent content = IconContent(m_icon);
    content.caption = L"W";
    content.font = static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT));
    Draw(CXTButtonThemeOffice2003(), kRaised, XTButtonState(), content);
    const HGDIOBJ font = ::GetCurrentObject(m_canvas.Dc(), OBJ_FONT);
    const COLORREF text = ::GetTextColor(m_canvas.Dc());
    const size_t objects = CountGdiObjects();
    for (int i = 0; i < 20; ++i)
        Draw(CXTButtonThemeOffice2003(), kRaised, XTButtonState(), content);
    EXPECT_EQ(font, ::GetCurrentObject(m_canvas.Dc(), OBJ_FONT));
    EXPECT_EQ(text, ::GetTextColor(m_canvas.Dc()));
    EXPECT_EQ(objects, CountGdiObjects());
}
