// The validating edit on a real parent: filter, verdicts, colours, what the parent is told.
#include "EditFixture.h"

#include "GdiCount.h"

namespace
{

const COLORREF kRed = RGB(255, 0, 0);
const COLORREF kYellow = RGB(255, 255, 128);
const COLORREF kPink = RGB(255, 196, 196);
const COLORREF kBlue = RGB(190, 190, 255);
const COLORREF kGreen = RGB(1, 200, 2);
const COLORREF kGrey = RGB(7, 77, 177);

const VVEbrush kNoKind = static_cast<VVEbrush>(12);

COLORREF Window()
{
    return ::GetSysColor(COLOR_WINDOW);
}

class SuperEdit : public EditFixture
{
protected:
    std::wstring ValidChars() const
    {
        CString chars;
        m_edit.GetValidChars(chars);
        return chars.GetString();
    }

    void Paste(const wchar_t* text) { m_edit.ReplaceSel(text); }
};

} // namespace

TEST_F(SuperEdit, BeginsWithTheDefaultsOfAPlainText)
{
    EXPECT_EQ(VVE_ALL, m_edit.GetValidSet());
    EXPECT_EQ(0, m_edit.GetTextMinLen());
    EXPECT_EQ(65535, m_edit.GetTextMaxLen());
    EXPECT_EQ(0, m_edit.GetEnableLengthCheck());
    EXPECT_EQ(0, m_edit.GetEnableRangeCheck());
    EXPECT_EQ(0, m_edit.GetEableValueCheck());
    EXPECT_EQ(0, m_edit.GetAllCharEntry());
    EXPECT_EQ(1, m_edit.GetEmptyValid());
    EXPECT_EQ(0, m_edit.GetDisableValidation());
    EXPECT_EQ(0, m_edit.GetCustomValidation());
    EXPECT_EQ(0, m_edit.GetEableTip());
    EXPECT_EQ(0.0001, m_edit.PrecValue());
    EXPECT_TRUE(m_edit.GetTipText().IsEmpty());
}

TEST_F(SuperEdit, FlagsAreKeptAsGiven)
{
    m_edit.SetEnableLengthCheck(1);
    m_edit.SetEnableRangeCheck(1);
    m_edit.SetEableValueCheck(1);
    m_edit.SetAllCharEntry(1);
    m_edit.SetEmptyValid(0);
    m_edit.SetDisableValidation(1);
    m_edit.SetCustomValidation(1);
    m_edit.SetEableTip(1);
    EXPECT_EQ(1, m_edit.GetEnableLengthCheck());
    EXPECT_EQ(1, m_edit.GetEnableRangeCheck());
    EXPECT_EQ(1, m_edit.GetEableValueCheck());
    EXPECT_EQ(1, m_edit.GetAllCharEntry());
    EXPECT_EQ(0, m_edit.GetEmptyValid());
    EXPECT_EQ(1, m_edit.GetDisableValidation());
    EXPECT_EQ(1, m_edit.GetCustomValidation());
    EXPECT_EQ(1, m_edit.GetEableTip());
}

TEST_F(SuperEdit, BeforeAValidationNothingIsValidButTheValue)
{
    TestedEdit edit;
    EXPECT_EQ(0, edit.IsValid());
    EXPECT_EQ(0, edit.IsValidSyntax());
    edit.SetEmptyValid(0);
    edit.SetEnableLengthCheck(1);
    EXPECT_EQ(0, edit.IsValidLength());
    edit.SetEableValueCheck(1);
    EXPECT_EQ(1, edit.IsValidValue());
}

// Character sets.

TEST_F(SuperEdit, SetBringsItsCharactersAndItsRangeCheck)
{
    for (int set = VVE_ALPHANUM; set <= VVE_FLOAT; ++set)
    {
        SCOPED_TRACE(set);
        m_edit.SetValidCharSet(static_cast<VVEset>(set), NULL);
        EXPECT_EQ(set, m_edit.GetValidSet());
        EXPECT_EQ(set >= VVE_DECIMAL ? 1 : 0, m_edit.GetEnableRangeCheck());
        EXPECT_FALSE(ValidChars().empty());
    }
    m_edit.SetValidCharSet(VVE_OCTAL, L"ignored");
    EXPECT_EQ(L"01234567", ValidChars());
}

TEST_F(SuperEdit, SetOfAnyCharacterForgetsTheTable)
{
    m_edit.SetValidCharSet(VVE_OCTAL, NULL);
    m_edit.SetValidCharSet(VVE_ALL, NULL);
    EXPECT_EQ(L"", ValidChars());
    EXPECT_EQ(0, m_edit.GetEnableRangeCheck());
}

TEST_F(SuperEdit, UnknownSetTakesEveryCharacter)
{
    m_edit.SetValidCharSet(static_cast<VVEset>(10), NULL);
    EXPECT_EQ(10, m_edit.GetValidSet());
    Type(L"@");
    EXPECT_EQ(L"@", Text());
    EXPECT_EQ(1, m_edit.IsValid());
}

TEST_F(SuperEdit, CustomSetTakesTheGivenCharacters)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    m_edit.SetValidCharSet(VVE_CUSTOM, L"ba");
    EXPECT_EQ(VVE_CUSTOM, m_edit.GetValidSet());
    EXPECT_EQ(0, m_edit.GetEnableRangeCheck());
    EXPECT_EQ(L"ab", ValidChars());
}

TEST_F(SuperEdit, CustomSetWithoutCharactersOnlyClearsTheTable)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    m_edit.SetValidCharSet(VVE_CUSTOM, NULL);
    EXPECT_EQ(VVE_DECIMAL, m_edit.GetValidSet());
    EXPECT_EQ(1, m_edit.GetEnableRangeCheck());
    EXPECT_EQ(L"", ValidChars());
    m_edit.SetValidCharSet(VVE_CUSTOM, L"");
    EXPECT_EQ(VVE_CUSTOM, m_edit.GetValidSet());
    EXPECT_EQ(0, m_edit.GetEnableRangeCheck());
}

TEST_F(SuperEdit, OwnCharactersLeaveSetAndRangeCheckAlone)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    m_edit.SetValidChars(L"xy");
    EXPECT_EQ(L"xy", ValidChars());
    EXPECT_EQ(VVE_DECIMAL, m_edit.GetValidSet());
    EXPECT_EQ(1, m_edit.GetEnableRangeCheck());
    m_edit.SetValidChars(L"");
    EXPECT_EQ(L"", ValidChars());
    m_edit.SetValidChars(NULL);
    EXPECT_EQ(L"", ValidChars());
}

TEST_F(SuperEdit, SettingTheSetAloneLeavesTheCharacters)
{
    m_edit.SetValidChars(L"xy");
    m_edit.SetValidSet(VVE_HEX);
    EXPECT_EQ(VVE_HEX, m_edit.GetValidSet());
    EXPECT_EQ(L"xy", ValidChars());
    EXPECT_EQ(0, m_edit.GetEnableRangeCheck());
}

// Keystrokes.

TEST_F(SuperEdit, DefaultSetTakesAllKeystrokesAndIsAlwaysValid)
{
    Type(L"a1@ \x4E2D");
    EXPECT_EQ(L"a1@ \x4E2D", Text());
    EXPECT_EQ(1, m_edit.IsValid());
    EXPECT_EQ(VVB_VALID, Status());
}

TEST_F(SuperEdit, DefaultSetShowsTheEmptyBrushForAnEmptyText)
{
    m_edit.SetBrushColour(VVB_EMPTY, kGreen);
    m_edit.SetBrushColour(VVB_VALID, kGrey);
    EXPECT_EQ(kGreen, ColourOf(L""));
    EXPECT_EQ(1, m_edit.IsValid());
    EXPECT_EQ(kGrey, ColourOf(L"a"));
}

TEST_F(SuperEdit, WrongKeystrokeIsDropped)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    Type(L"1a2");
    EXPECT_EQ(L"12", Text());
}

TEST_F(SuperEdit, ControlCharactersAlwaysPass)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    Type(L"12\b");
    EXPECT_EQ(L"1", Text());
}

TEST_F(SuperEdit, ChineseCharacterPassesTheFilterAndIsJudgedByItsLowBits)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    Type(L"\x4E2D");
    EXPECT_EQ(L"\x4E2D", Text());
    EXPECT_EQ(0, m_edit.IsValid());
    m_edit.SetWindowText(L"");
    Type(L"\x4E31");
    EXPECT_EQ(1, m_edit.IsValid());
}

TEST_F(SuperEdit, FilterIsOffWithAllCharEntryButValidationStays)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    m_edit.SetAllCharEntry(1);
    Type(L"a");
    EXPECT_EQ(L"a", Text());
    EXPECT_EQ(0, m_edit.IsValid());
}

TEST_F(SuperEdit, FilterIsOffWhileValidationIsDisabled)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    m_edit.SetDisableValidation(1);
    Type(L"a");
    EXPECT_EQ(L"a", Text());
    EXPECT_EQ(1, m_edit.IsValid());
}

// Verdicts and colours.

TEST_F(SuperEdit, PastedTextIsNotFilteredButPaintedRed)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    Paste(L"12a");
    EXPECT_EQ(L"12a", Text());
    EXPECT_EQ(0, m_edit.IsValid());
    EXPECT_EQ(VVB_INVALID, Status());
    EXPECT_EQ(kRed, Colour());
}

TEST_F(SuperEdit, SignedTextsAreColouredAsTheyGrow)
{
    m_edit.SetValidCharSet(VVE_SIGNED, NULL);
    EXPECT_EQ(kYellow, ColourOf(L"-"));
    EXPECT_EQ(VVB_INCOMPLETE, Status());
    EXPECT_EQ(kRed, ColourOf(L"1-2"));
    EXPECT_EQ(kRed, ColourOf(L"- 1"));
    EXPECT_EQ(Window(), ColourOf(L"+5"));
    EXPECT_EQ(1, m_edit.IsValid());
}

TEST_F(SuperEdit, FloatTextsAreColouredAsTheyGrow)
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

TEST_F(SuperEdit, FloatSyntaxIsNotAskedWhileTheParentJudges)
{
    m_edit.SetValidCharSet(VVE_FLOAT, NULL);
    m_edit.SetCustomValidation(1);
    m_parent.answer = VVB_VALID;
    m_edit.SetWindowText(L"1.2.3");
    EXPECT_EQ(1, m_edit.IsValid());
}

TEST_F(SuperEdit, EmptyTextIsRedAndInvalidWhereItIsNotAllowed)
{
    m_edit.SetEmptyValid(0);
    EXPECT_EQ(kRed, ColourOf(L""));
    EXPECT_EQ(0, m_edit.IsValid());
    EXPECT_EQ(VVB_EMPTY_INVALID, Status());
}

TEST_F(SuperEdit, LengthIsValidWhileEmptyTextsAreAllowedWhateverItIs)
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

TEST_F(SuperEdit, TooShortAndTooLongTextsAreYellow)
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

TEST_F(SuperEdit, SwappedLengthsTradePlaces)
{
    m_edit.SetTextLenMinMax(10, 3);
    EXPECT_EQ(3, m_edit.GetTextMinLen());
    EXPECT_EQ(10, m_edit.GetTextMaxLen());
    EXPECT_EQ(10u, m_edit.GetLimitText());
}

TEST_F(SuperEdit, LengthsOutsideTheControlsLimitsBecomeThem)
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

TEST_F(SuperEdit, TypingStopsAtTheMaximalLength)
{
    m_edit.SetTextLenMinMax(0, 2);
    Type(L"abc");
    EXPECT_EQ(L"ab", Text());
}

TEST_F(SuperEdit, ColourOfAWrongInputIsThatOfWrongLimitsToo)
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

TEST_F(SuperEdit, KindsBeginWithTheirColours)
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

TEST_F(SuperEdit, KindsShareTheirBrushes)
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

TEST_F(SuperEdit, KindThatIsNoneIsIgnored)
{
    EXPECT_EQ(0, m_edit.SetBrushColour(kNoKind, kGreen));
    EXPECT_EQ(Window(), m_edit.GetBrushColour(kNoKind));
    for (int kind = VVB_EMPTY_INVALID; kind <= VVB_CUSTOM2; ++kind)
        EXPECT_NE(kGreen, m_edit.GetBrushColour(static_cast<VVEbrush>(kind))) << kind;
}

TEST_F(SuperEdit, SecondCustomColourReadsAsTheFirst)
{
    EXPECT_EQ(0, m_edit.SetBrushColour(VVB_CUSTOM2, kGreen));
    EXPECT_EQ(kPink, m_edit.GetBrushColour(VVB_CUSTOM2));
    m_edit.SetBrushColour(VVB_CUSTOM1, kGrey);
    EXPECT_EQ(kGrey, m_edit.GetBrushColour(VVB_CUSTOM2));
    m_edit.SetCustomValidation(1);
    m_parent.answer = VVB_CUSTOM2;
    EXPECT_EQ(kGreen, ColourOf(L"a")) << "it is painted all the same";
}

TEST_F(SuperEdit, NewColoursReplaceTheOldBrushes)
{
    m_edit.SetBrushColour(VVB_INVALID, kGreen);
    const size_t before = CountGdiObjects();
    for (int i = 0; i < 20; ++i)
        m_edit.SetBrushColour(VVB_INVALID, RGB(i, 0, 0));
    EXPECT_EQ(before, CountGdiObjects());
}

TEST_F(SuperEdit, ControlsLeaveNoGdiObjectBehind)
{
    {
        TestedEdit first;
    }
    const size_t before = CountGdiObjects();
    for (int i = 0; i < 20; ++i)
        TestedEdit edit;
    EXPECT_EQ(before, CountGdiObjects());
}

TEST_F(SuperEdit, ReadOnlyControlHasDefaultColoursAndIsNotValidatedOnPaint)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    m_edit.SetWindowText(L"1");
    ASSERT_EQ(1, m_edit.IsValid());
    m_edit.SetReadOnly(TRUE);
    EXPECT_NE(kRed, ColourOf(L"x"));
    EXPECT_EQ(1, m_edit.IsValid());
}

TEST_F(SuperEdit, DisabledControlHasDefaultColoursAndIsNotValidatedOnPaint)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    m_edit.SetWindowText(L"1");
    ASSERT_EQ(1, m_edit.IsValid());
    m_edit.EnableWindow(FALSE);
    EXPECT_NE(kRed, ColourOf(L"x"));
    EXPECT_EQ(1, m_edit.IsValid());
}

TEST_F(SuperEdit, DisabledValidationHasDefaultColoursAndReportsEverythingValid)
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

TEST_F(SuperEdit, HiddenControlIsValidatedOnRequest)
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

TEST_F(SuperEdit, RedrawingValidates)
{
    m_edit.SetWindowText(L"x");
    ASSERT_EQ(1, m_edit.IsValid());
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    m_edit.DoValidation(1);
    EXPECT_EQ(0, m_edit.IsValid());
}

TEST_F(SuperEdit, CheckFunctionsValidateAndGiveTheBrush)
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
}

TEST_F(SuperEdit, WorksWithoutAWindow)
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

// What the parent is told and asked.

TEST_F(SuperEdit, ParentSeesEveryChange)
{
    m_parent.changes = 0;
    Type(L"ab");
    EXPECT_EQ(2, m_parent.changes);
}

TEST_F(SuperEdit, ParentIsToldWhenTheVerdictFlips)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    m_edit.SetWindowText(L"1");
    m_parent.validity.clear();
    m_edit.SetWindowText(L"2");
    EXPECT_TRUE(m_parent.validity.empty());
    m_edit.SetWindowText(L"x");
    ASSERT_EQ(1u, m_parent.validity.size());
    EXPECT_EQ(m_edit.m_hWnd, m_parent.validity[0].window);
    EXPECT_EQ(EditParent::kEditId, m_parent.validity[0].controlId);
    EXPECT_EQ(VVB_INVALID, m_parent.validity[0].status);
    EXPECT_EQ(0, m_parent.validity[0].valid);
    m_edit.SetWindowText(L"3");
    ASSERT_EQ(2u, m_parent.validity.size());
    EXPECT_EQ(VVB_VALID, m_parent.validity[1].status);
    EXPECT_EQ(1, m_parent.validity[1].valid);
}

TEST_F(SuperEdit, MessageNumbersAreThoseOfTheInterface)
{
    EXPECT_EQ(32769, WM_VVE_VALIDATE);
    EXPECT_EQ(32770, WM_VVE_VALIDITY);
}

TEST_F(SuperEdit, ParentJudgesTheTextWithTheStatusBefore)
{
    m_edit.SetWindowText(L"a");
    m_edit.SetCustomValidation(1);
    m_parent.answer = VVB_INCOMPLETE;
    m_parent.askedStatus.clear();
    m_edit.SetWindowText(L"ab");
    ASSERT_FALSE(m_parent.askedStatus.empty());
    EXPECT_EQ(VVB_VALID, m_parent.askedStatus.front());
    EXPECT_EQ(L"ab", m_parent.askedText);
    EXPECT_EQ(0, m_edit.IsValid());
    EXPECT_EQ(kYellow, Colour());
    EXPECT_EQ(VVB_INCOMPLETE, m_parent.askedStatus.back());
}

TEST_F(SuperEdit, ParentIsNotAskedWhileValidationIsDisabled)
{
    m_edit.SetCustomValidation(1);
    m_edit.SetDisableValidation(1);
    m_parent.askedStatus.clear();
    m_edit.DoValidation(0);
    EXPECT_TRUE(m_parent.askedStatus.empty());
}

TEST_F(SuperEdit, CustomVerdictsHaveTheirColoursAndCanCountAsValid)
{
    m_edit.SetCustomValidation(1);
    m_parent.answer = VVB_CUSTOM1;
    EXPECT_EQ(kPink, ColourOf(L"a"));
    EXPECT_EQ(0, m_edit.IsValid());
    m_parent.answer = VVB_CUSTOM2;
    EXPECT_EQ(kBlue, ColourOf(L"b"));
    m_edit.SetCustomErrorIsValid(2, 1);
    EXPECT_EQ(kBlue, ColourOf(L"c"));
    EXPECT_EQ(1, m_edit.IsValid());
}

TEST_F(SuperEdit, CustomVerdictsAreNumberedFromOneToTwo)
{
    int valid = 7;
    EXPECT_EQ(1, m_edit.GetCustomErrorIsValid(1, valid));
    EXPECT_EQ(0, valid);
    m_edit.SetCustomErrorIsValid(2, 1);
    EXPECT_EQ(1, m_edit.GetCustomErrorIsValid(2, valid));
    EXPECT_EQ(1, valid);
    for (const int which : {0, 3, -1, 1000})
    {
        valid = 7;
        m_edit.SetCustomErrorIsValid(which, 1);
        EXPECT_EQ(0, m_edit.GetCustomErrorIsValid(which, valid)) << which;
        EXPECT_EQ(7, valid) << which;
    }
    EXPECT_EQ(1, m_edit.GetCustomErrorIsValid(1, valid));
    EXPECT_EQ(0, valid);
}

// Edit commands.

TEST_F(SuperEdit, EditCommandsWorkOnTheText)
{
    m_edit.SetWindowText(L"one");
    m_edit.SendMessage(WM_COMMAND, 32778);
    int start = 0;
    int end = 0;
    m_edit.GetSel(start, end);
    EXPECT_EQ(0, start);
    EXPECT_EQ(3, end);
    EXPECT_EQ(m_edit.m_hWnd, ::GetFocus());
    m_edit.SendMessage(WM_COMMAND, 32774);
    EXPECT_EQ(L"", Text());
    m_edit.SendMessage(WM_COMMAND, 32776);
    m_edit.SendMessage(WM_COMMAND, 32776);
    EXPECT_EQ(L"oneone", Text());
    m_edit.SetSel(0, 1);
    m_edit.SendMessage(WM_COMMAND, 32775);
    m_edit.SendMessage(WM_COMMAND, 32777);
    EXPECT_EQ(L"neone", Text());
    m_edit.SendMessage(WM_COMMAND, 32773);
    EXPECT_EQ(L"oneone", Text());
    m_edit.SetSel(6, 6);
    m_edit.SendMessage(WM_COMMAND, 32776);
    EXPECT_EQ(L"oneoneo", Text());
}

// Long and strange texts.

TEST_F(SuperEdit, ValidatesTextsBeyondTheLengthThatCanBeTyped)
{
    m_edit.SetValidCharSet(VVE_ALPHA, NULL);
    const std::wstring text(70000, L'a');
    EXPECT_EQ(Window(), ColourOf(text.c_str()));
    EXPECT_EQ(1, m_edit.IsValid());
    m_edit.SetEnableLengthCheck(1);
    EXPECT_EQ(kYellow, Colour());
    EXPECT_EQ(1, m_edit.CheckLen());
}

TEST_F(SuperEdit, StrangeTextsAreJudgedLikeAnyOther)
{
    m_edit.SetInputFloat(1, 0, 10, FALSE, FALSE, NULL);
    for (const wchar_t* text : {L"NaN", L"INF", L"1,5", L"1\r\n2", L"\xD83D", L"\xFF11", L"\x00FF"})
        EXPECT_EQ(kRed, ColourOf(text)) << text;
}
