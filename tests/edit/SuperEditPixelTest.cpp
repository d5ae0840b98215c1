// The verdict as it is painted.
#include "EditFixture.h"

#include "DibCanvas.h"

namespace
{

const COLORREF kNothing = RGB(9, 99, 199);

class SuperEditPixel : public EditFixture
{
protected:
    // The background of the control with this text: a point far right of any character.
    COLORREF Background(const wchar_t* text)
    {
        m_edit.SetWindowText(text);
        CRect client;
        m_edit.GetClientRect(&client);
        const DibCanvas canvas(client.Width(), client.Height(), kNothing);
        m_edit.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.Dc()), PRF_CLIENT | PRF_ERASEBKGND);
        return canvas.Pixel(client.right - 5, client.bottom / 2);
    }
};

} // namespace

TEST_F(SuperEditPixel, PaintsEachVerdictInItsColour)
{
    m_edit.SetBrushColour(VVB_EMPTY, RGB(200, 255, 200));
    m_edit.SetBrushColour(VVB_VALID, RGB(240, 240, 255));
    m_edit.SetValidCharSet(VVE_FLOAT, NULL);
    EXPECT_EQ(RGB(200, 255, 200), Background(L""));
    EXPECT_EQ(RGB(240, 240, 255), Background(L"1.5"));
    EXPECT_EQ(RGB(255, 0, 0), Background(L"x"));
    EXPECT_EQ(RGB(255, 255, 128), Background(L"1e"));
    m_edit.SetEmptyValid(0);
    EXPECT_EQ(RGB(255, 0, 0), Background(L""));
}

TEST_F(SuperEditPixel, PaintsTheVerdictsOfTheParent)
{
    m_edit.SetCustomValidation(1);
    m_parent.answer = VVB_CUSTOM1;
    EXPECT_EQ(RGB(255, 196, 196), Background(L"a"));
    m_parent.answer = VVB_CUSTOM2;
    EXPECT_EQ(RGB(190, 190, 255), Background(L"a"));
}

TEST_F(SuperEditPixel, PaintsWrongLimitsRed)
{
    m_edit.SetInputInt(5, 1, 10, FALSE, FALSE, NULL);
    EXPECT_EQ(RGB(255, 0, 0), Background(L"11"));
    EXPECT_EQ(::GetSysColor(COLOR_WINDOW), Background(L"10"));
}

TEST_F(SuperEditPixel, PaintsTheDefaultColourWhileValidationIsDisabled)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    m_edit.SetDisableValidation(1);
    EXPECT_EQ(::GetSysColor(COLOR_WINDOW), Background(L"x"));
}
