// The validating edit on a real parent: verdicts and their colours.
#include "EditFixture.h"

#include "MessageSpy.h"

#include "GdiCount.h"

namespace
{

const COLORREF kRed = RGB(255, 0, 0);
const COLORREF kYellow = RGB(255, 255, 128);
const COLORREF kPink = RGB(255, 196, 196);
const COLORREF kGreen = RGB(1, 200, 2);
const COLORREF kGrey = RGB(7, 77, 177);
const VVEbrush kNoKind = static_cast<VVEbrush>(12);

COLORREF Window()
{
    return ::GetSysColor(COLOR_WINDOW);
}

class SuperEditVerdict : public EditFixture
{
protected:
    void Paste(const wchar_t* text) { m_edit.ReplaceSel(text); }
};

} // namespace

TEST_F(SuperEditVerdict, PastedTextIsNotFilteredButPaintedRed)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    Paste(L"12a");
    EXPECT_EQ(L"12a", Text());
    EXPECT_EQ(0, m_edit.IsValid());
    EXPECT_EQ(VVB_INVALID, Status());
    EXPECT_EQ(kRed, Colour());
}

TEST_F(SuperEditVerdict, SignedTextsAreColouredAsTheyGrow)
{
    m_edit.SetValidCharSet(VVE_SIGNED, NULL);
    EXPECT_EQ(kYellow, ColourOf(L"-"));
    EXPECT_EQ(VVB_INCOMPLETE, Status());
    EXPECT_EQ(kRed, ColourOf(L"1-2"));
    EXPECT_EQ(kRed, ColourOf(L"- 1"));
    EXPECT_EQ(Window(), ColourOf(L"+5"));
    EXPECT_EQ(1, m_edit.IsValid());
}

TEST_F(SuperEditVerdict, FloatTextsAreColouredAsTheyGrow)
{
    m_edit.SetValidCharSet(VVE_FLOAT, NULL);
    EXPECT_EQ(Window(), ColourOf(L"1.5e-3"));
    EXPECT_EQ(kYellow, ColourOf(L"."));
    EXPECT_EQ(kYellow, ColourOf(L"1e"));
    EXPECT_EQ(kRed, ColourOf(L"1.2.3"));
    EXPECT_EQ(Window(), ColourOf(L"  5"));
    EXPECT_EQ(1, m_edit.IsValid());
    EXPECT_EQ(kRed, ColourOf(L"5 "));
    EXPECT_EQ(0, m_edit.IsValid());
}

TEST_F(SuperEditVerdict, FloatSyntaxIsNotAskedWhileTheParentJudges)
{
    m_edit.SetValidCharSet(VVE_FLOAT, NULL);
    m_edit.SetCustomValidation(1);
    m_parent.answer = VVB_VALID;
    m_edit.SetWindowText(L"1.2.3");
    EXPECT_EQ(1, m_edit.IsValid());
}

TEST_F(SuperEditVerdict, EmptyTextIsRedAndInvalidWhereItIsNotAllowed)
{
    m_edit.SetEmptyValid(0);
    EXPECT_EQ(kRed, ColourOf(L""));
    EXPECT_EQ(0, m_edit.IsValid());
    EXPECT_EQ(VVB_EMPTY_INVALID, Status());
}

TEST_F(SuperEditVerdict, LengthIsValidWhileEmptyTextsAreAllowedWhateverItIs)
{
    m_edit.SetTextLenMinMax(2, 3);
    m_edit.SetEnableLengthCheck(1);
    m_edit.SetWindowText(L"abcde");
    EXPECT_EQ(0, m_edit.IsValid());
    EXPECT_EQ(1, m_edit.IsValidLength());
    m_edit.SetEmptyValid(0);
    EXPECT_EQ(0, m_edit.IsValidLength());
    m_edit.SetEnableLengthCheck(0);
    EXPECT_EQ(1, m_edit.IsValidLength());
}

TEST_F(SuperEditVerdict, LengthIsJudgedWhereEmptyTextsAreNotAllowed)
{
    m_edit.SetEmptyValid(0);
    m_edit.SetEnableLengthCheck(1);
    m_edit.SetTextLenMinMax(2, 3);
    for (const wchar_t* text : {L"a", L"abcd", L""})
    {
        m_edit.SetWindowText(text);
        EXPECT_EQ(0, m_edit.IsValidLength()) << text;
    }
    m_edit.SetWindowText(L"ab");
    EXPECT_EQ(1, m_edit.IsValidLength());
    m_edit.SetWindowText(L"a");
    m_edit.SetEnableLengthCheck(0);
    EXPECT_EQ(1, m_edit.IsValidLength());
}

TEST_F(SuperEditVerdict, TooShortAndTooLongTextsAreYellow)
{
    m_edit.SetTextLenMinMax(2, 3);
    m_edit.SetEnableLengthCheck(1);
    EXPECT_EQ(kYellow, ColourOf(L"a"));
    EXPECT_EQ(VVB_TOO_SHORT, Status());
    EXPECT_EQ(-1, m_edit.CheckLen());
    EXPECT_EQ(kYellow, ColourOf(L"abcd"));
    EXPECT_EQ(VVB_TOO_LONG, Status());
    EXPECT_EQ(1, m_edit.CheckLen());
    EXPECT_EQ(0, m_edit.CheckLen(L"ab"));
    EXPECT_EQ(-1, m_edit.CheckLen(NULL));
    m_edit.SetDisableValidation(1);
    EXPECT_EQ(0, m_edit.CheckLen());
}

TEST_F(SuperEditVerdict, SwappedLengthsTradePlaces)
{
    m_edit.SetTextLenMinMax(10, 3);
    EXPECT_EQ(3, m_edit.GetTextMinLen());
    EXPECT_EQ(10, m_edit.GetTextMaxLen());
    EXPECT_EQ(10u, m_edit.GetLimitText());
}

TEST_F(SuperEditVerdict, LengthsOutsideTheControlsLimitsBecomeThem)
{
    m_edit.SetTextLenMinMax(-1, 70000);
    EXPECT_EQ(0, m_edit.GetTextMinLen());
    EXPECT_EQ(65535, m_edit.GetTextMaxLen());
    EXPECT_EQ(65535u, m_edit.GetLimitText());
    m_edit.SetTextLenMinMax(65536, -1);
    EXPECT_EQ(0, m_edit.GetTextMinLen());
    EXPECT_EQ(65535, m_edit.GetTextMaxLen());
    m_edit.SetTextLenMinMax(65535, 65535);
    EXPECT_EQ(65535, m_edit.GetTextMinLen());
}

TEST_F(SuperEditVerdict, TypingStopsAtTheMaximalLength)
{
    m_edit.SetTextLenMinMax(0, 2);
    Type(L"abc");
    EXPECT_EQ(L"ab", Text());
}

TEST_F(SuperEditVerdict, ColourOfAWrongInputIsThatOfWrongLimitsToo)
{
    m_edit.SetBrushColour(VVB_INVALID, kGreen);
    EXPECT_EQ(kGreen, m_edit.GetBrushColour(VVB_BELOW_MIN));
    EXPECT_EQ(kGreen, m_edit.GetBrushColour(VVB_ABOVE_MAX));
    m_edit.SetInputInt(5, 1, 10, FALSE, FALSE, NULL);
    EXPECT_EQ(kGreen, ColourOf(L"0"));
    EXPECT_EQ(VVB_BELOW_MIN, Status());
    EXPECT_EQ(kGreen, ColourOf(L"11"));
    EXPECT_EQ(VVB_ABOVE_MAX, Status());
}

TEST_F(SuperEditVerdict, KindsBeginWithTheirColours)
{
    EXPECT_EQ(Window(), m_edit.GetBrushColour(VVB_EMPTY_INVALID));
    EXPECT_EQ(Window(), m_edit.GetBrushColour(VVB_EMPTY));
    EXPECT_EQ(Window(), m_edit.GetBrushColour(VVB_VALID));
    EXPECT_EQ(kRed, m_edit.GetBrushColour(VVB_INVALID));
    for (int kind = VVB_INCOMPLETE; kind <= VVB_TYPE_RANGE; ++kind)
        EXPECT_EQ(kYellow, m_edit.GetBrushColour(static_cast<VVEbrush>(kind))) << kind;
    EXPECT_EQ(kRed, m_edit.GetBrushColour(VVB_BELOW_MIN));
    EXPECT_EQ(kRed, m_edit.GetBrushColour(VVB_ABOVE_MAX));
    EXPECT_EQ(kPink, m_edit.GetBrushColour(VVB_CUSTOM1));
}

TEST_F(SuperEditVerdict, KindsShareTheirBrushes)
{
    m_edit.SetBrushColour(VVB_EMPTY_INVALID, RGB(1, 0, 0));
    EXPECT_EQ(RGB(1, 0, 0), m_edit.GetBrushColour(VVB_EMPTY));
    EXPECT_EQ(Window(), m_edit.GetBrushColour(VVB_VALID));
    m_edit.SetBrushColour(VVB_TOO_LONG, RGB(2, 0, 0));
    EXPECT_EQ(RGB(2, 0, 0), m_edit.GetBrushColour(VVB_INCOMPLETE));
    EXPECT_EQ(RGB(2, 0, 0), m_edit.GetBrushColour(VVB_TOO_SHORT));
    EXPECT_EQ(RGB(2, 0, 0), m_edit.GetBrushColour(VVB_TYPE_RANGE));
    EXPECT_EQ(kRed, m_edit.GetBrushColour(VVB_INVALID));
}

TEST_F(SuperEditVerdict, KindThatIsNoneIsIgnored)
{
    EXPECT_EQ(0, m_edit.SetBrushColour(kNoKind, kGreen));
    EXPECT_EQ(Window(), m_edit.GetBrushColour(kNoKind));
    for (int kind = VVB_EMPTY_INVALID; kind <= VVB_CUSTOM2; ++kind)
        EXPECT_NE(kGreen, m_edit.GetBrushColour(static_cast<VVEbrush>(kind))) << kind;
}

TEST_F(SuperEditVerdict, SecondCustomColourReadsAsTheFirst)
{
    EXPECT_EQ(0, m_edit.SetBrushColour(VVB_CUSTOM2, kGreen));
    EXPECT_EQ(kPink, m_edit.GetBrushColour(VVB_CUSTOM2));
    m_edit.SetBrushColour(VVB_CUSTOM1, kGrey);
    EXPECT_EQ(kGrey, m_edit.GetBrushColour(VVB_CUSTOM2));
    m_edit.SetCustomValidation(1);
    m_parent.answer = VVB_CUSTOM2;
    EXPECT_EQ(kGreen, ColourOf(L"a")) << "it is painted all the same";
}

TEST_F(SuperEditVerdict, NewColoursReplaceTheOldBrushes)
{
    m_edit.SetBrushColour(VVB_INVALID, kGreen);
    const size_t before = CountGdiObjects();
    for (int i = 0; i < 20; ++i)
        m_edit.SetBrushColour(VVB_INVALID, RGB(i, 0, 0));
    EXPECT_EQ(before, CountGdiObjects());
}

TEST_F(SuperEditVerdict, ControlsLeaveNoGdiObjectBehind)
{
    {
        TestedEdit first;
    }
    const size_t before = CountGdiObjects();
    for (int i = 0; i < 20; ++i)
        TestedEdit edit;
    EXPECT_EQ(before, CountGdiObjects());
}

TEST_F(SuperEditVerdict, ReadOnlyControlHasDefaultColoursAndIsNotValidatedOnPaint)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    m_edit.SetWindowText(L"1");
    ASSERT_EQ(1, m_edit.IsValid());
    m_edit.SetReadOnly(TRUE);
    EXPECT_NE(kRed, ColourOf(L"x"));
    EXPECT_EQ(1, m_edit.IsValid());
}

TEST_F(SuperEditVerdict, DisabledControlHasDefaultColoursAndIsNotValidatedOnPaint)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    m_edit.SetWindowText(L"1");
    ASSERT_EQ(1, m_edit.IsValid());
    m_edit.EnableWindow(FALSE);
    EXPECT_NE(kRed, ColourOf(L"x"));
    EXPECT_EQ(1, m_edit.IsValid());
}

TEST_F(SuperEditVerdict, DisabledValidationHasDefaultColoursAndReportsEverythingValid)
{
    m_edit.SetInputInt(5, 1, 10, FALSE, FALSE, NULL);
    m_edit.SetWindowText(L"x");
    ASSERT_EQ(0, m_edit.IsValid());
    m_edit.SetDisableValidation(1);
    EXPECT_EQ(1, m_edit.IsValid());
    EXPECT_EQ(1, m_edit.IsValidSyntax());
    EXPECT_EQ(1, m_edit.IsValidLength());
    EXPECT_EQ(1, m_edit.IsValidValue());
    EXPECT_NE(kRed, Colour());
}

TEST_F(SuperEditVerdict, HiddenControlIsValidatedOnRequest)
{
    m_edit.ShowWindow(SW_HIDE);
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    m_edit.SetWindowText(L"x");
    m_edit.DoValidation(0);
    EXPECT_EQ(0, m_edit.IsValid());
    m_edit.SetWindowText(L"1");
    m_edit.DoValidation(0);
    EXPECT_EQ(1, m_edit.IsValid());
}

TEST_F(SuperEditVerdict, RedrawingValidates)
{
    m_edit.SetWindowText(L"x");
    ASSERT_EQ(1, m_edit.IsValid());
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    m_edit.DoValidation(1);
    EXPECT_EQ(0, m_edit.IsValid());
}

TEST_F(SuperEditVerdict, RedrawingErasesTheWholeControl)
{
    m_edit.UpdateWindow();
    const MessageSpy spy(m_edit.m_hWnd, WM_ERASEBKGND);
    m_edit.DoValidation(1);
    EXPECT_FALSE(spy.Seen().empty());
}

TEST_F(SuperEditVerdict, CheckFunctionsValidateAndGiveTheBrush)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    m_edit.SetWindowText(L"x");
    const auto colour = [](CBrush* brush) {
        LOGBRUSH data = {};
        brush->GetLogBrush(&data);
        return data.lbColor;
    };
    EXPECT_EQ(kRed, colour(m_edit.Validate()));
    EXPECT_EQ(kRed, colour(m_edit.CheckAlphaNum()));
    EXPECT_EQ(kRed, colour(m_edit.CheckDecimal()));
    EXPECT_EQ(kRed, colour(m_edit.CheckAlpha()));
    EXPECT_EQ(kRed, colour(m_edit.CheckHexadecimal()));
    EXPECT_EQ(kRed, colour(m_edit.CheckOctal()));
    EXPECT_EQ(kRed, colour(m_edit.CheckBinary()));
    m_edit.SetWindowText(L"1.");
    EXPECT_EQ(Window(), colour(m_edit.CheckFloat())) << "by the syntax of numbers whatever the set";
    m_edit.SetWindowText(L"4294967296");
    EXPECT_EQ(kYellow, colour(m_edit.CheckFloat())) << "and by the range of the set";
}

TEST_F(SuperEditVerdict, WorksWithoutAWindow)
{
    TestedEdit edit;
    edit.SetInputInt(5, 1, 10, FALSE, TRUE, L"tip");
    edit.SetTextLenMinMax(1, 5);
    edit.DoValidation(1);
    EXPECT_EQ(0, edit.IsValid());
    edit.SetEmptyValid(1);
    edit.SetTextLenMinMax(0, 5);
    edit.DoValidation(1);
    EXPECT_EQ(1, edit.IsValid());
    EXPECT_EQ(0, edit.GetWindowValue());
    edit.SetCustomValidation(1);
    edit.DoValidation(0);
    EXPECT_EQ(1, edit.IsValid());
}
