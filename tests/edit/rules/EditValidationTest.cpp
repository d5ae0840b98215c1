// How characters, syntax, range, length and limits add up to one verdict.
#include <gtest/gtest.h>

#include <string>

#include "edit/EditValidation.h"

namespace
{

const int kStatusBefore = 77;

class EditValidation : public testing::Test
{
protected:
    EditValidation()
    {
        ClearChars(m_table);
        m_rules = EditRules();
        m_rules.allowed = &m_table;
        m_rules.maxLength = 65535;
        m_rules.emptyValid = true;
        m_rules.precision = 0.0001;
        Use(VVE_ALL);
    }

    void Use(VVEset set)
    {
        m_rules.set = set;
        m_rules.anyChar = CharsOfSet(set) == NULL;
        m_rules.checkRange = IsNumericSet(set);
        ClearChars(m_table);
        MarkChars(m_table, CharsOfSet(set));
    }

    void Limit(double minimum, double maximum)
    {
        m_rules.checkValue = true;
        m_rules.minimum = minimum;
        m_rules.maximum = maximum;
    }

    void LimitLength(int least, int most)
    {
        m_rules.checkLength = true;
        m_rules.minLength = least;
        m_rules.maxLength = most;
    }

    EditVerdict Validate(const CString& text) const
    {
        CEditValidation validation(m_rules, text, kStatusBefore);
        if (m_rules.set == VVE_FLOAT)
            validation.JudgeFloat();
        else
            validation.JudgeCharacters();
        return validation.Finish();
    }

    EditVerdict Answer(LRESULT number, const wchar_t* text = L"text") { return Take(AnswerOfParent(number), text); }

    EditVerdict Take(const EditAnswer& answer, const wchar_t* text = L"text")
    {
        m_rules.custom = true;
        CEditValidation validation(m_rules, text, kStatusBefore);
        validation.TakeAnswer(answer);
        return validation.Finish();
    }

    void Expect(int status, EditBrush brush, bool isValid, const EditVerdict& verdict) const
    {
        EXPECT_EQ(status, verdict.status);
        EXPECT_EQ(brush, verdict.brush);
        EXPECT_EQ(isValid, verdict.IsValid());
    }

    CharTable m_table;
    EditRules m_rules;
};

struct Row
{
    const char* name;
    VVEset set;
    const wchar_t* text;
    int status;
    EditBrush brush;
};

const Row kRows[] = {
    {"any character", VVE_ALL, L"\x4E2D @!", VVB_VALID, BRUSH_VALID},
    {"any character, pasted lines", VVE_ALL, L"a\r\nb", VVB_VALID, BRUSH_VALID},
    {"any character, empty", VVE_ALL, L"", VVB_EMPTY, BRUSH_EMPTY},
    {"any character is not held against a range", VVE_ALL, L"99999999999", VVB_VALID, BRUSH_VALID},
    {"unknown set takes any character", static_cast<VVEset>(10), L"@", VVB_VALID, BRUSH_VALID},
    {"letters and digits", VVE_ALPHANUM, L"a 1", VVB_VALID, BRUSH_VALID},
    {"letters and digits, underscore", VVE_ALPHANUM, L"a_1", VVB_INVALID, BRUSH_ERROR},
    {"letters", VVE_ALPHA, L"a b", VVB_VALID, BRUSH_VALID},
    {"letters, digit", VVE_ALPHA, L"a1", VVB_INVALID, BRUSH_ERROR},
    {"decimal", VVE_DECIMAL, L"0012", VVB_VALID, BRUSH_VALID},
    {"decimal, pasted letter", VVE_DECIMAL, L"12a", VVB_INVALID, BRUSH_ERROR},
    {"decimal, pasted line feed", VVE_DECIMAL, L"12\r\n", VVB_INVALID, BRUSH_ERROR},
    {"decimal, blank", VVE_DECIMAL, L" 12", VVB_INVALID, BRUSH_ERROR},
    {"decimal, not a number", VVE_DECIMAL, L"NaN", VVB_INVALID, BRUSH_ERROR},
    {"decimal, Chinese text by its low bits, taken", VVE_DECIMAL, L"\x4E31", VVB_VALID, BRUSH_VALID},
    {"decimal, Chinese text by its low bits, refused", VVE_DECIMAL, L"\x4E2D", VVB_INVALID, BRUSH_ERROR},
    {"decimal, half of a surrogate pair", VVE_DECIMAL, L"1\xD83D", VVB_INVALID, BRUSH_ERROR},
    {"decimal above its type", VVE_DECIMAL, L"4294967296", VVB_TYPE_RANGE, BRUSH_WARNING},
    {"decimal far above every type", VVE_DECIMAL, L"99999999999999999999999999", VVB_TYPE_RANGE, BRUSH_WARNING},
    {"signed", VVE_SIGNED, L"-12", VVB_VALID, BRUSH_VALID},
    {"signed, plus", VVE_SIGNED, L"+5", VVB_VALID, BRUSH_VALID},
    {"signed, minus alone", VVE_SIGNED, L"-", VVB_INCOMPLETE, BRUSH_WARNING},
    {"signed, plus alone", VVE_SIGNED, L"+", VVB_INCOMPLETE, BRUSH_WARNING},
    {"signed, minus with a blank behind", VVE_SIGNED, L"- ", VVB_INCOMPLETE, BRUSH_WARNING},
    {"signed, sign in the middle", VVE_SIGNED, L"1-2", VVB_INVALID, BRUSH_ERROR},
    {"signed, sign at the end", VVE_SIGNED, L"12-", VVB_INVALID, BRUSH_ERROR},
    {"signed, two signs", VVE_SIGNED, L"--1", VVB_INVALID, BRUSH_ERROR},
    {"signed, blank behind the sign", VVE_SIGNED, L"- 1", VVB_INVALID, BRUSH_ERROR},
    {"signed, blank in front", VVE_SIGNED, L" 1", VVB_INVALID, BRUSH_ERROR},
    {"signed, letter", VVE_SIGNED, L"-1a", VVB_INVALID, BRUSH_ERROR},
    {"signed below its type", VVE_SIGNED, L"-2147483649", VVB_TYPE_RANGE, BRUSH_WARNING},
    {"signed, sign keeps its warning before the range", VVE_SIGNED, L"-", VVB_INCOMPLETE, BRUSH_WARNING},
    {"hex", VVE_HEX, L"00fF", VVB_VALID, BRUSH_VALID},
    {"hex, letter", VVE_HEX, L"0xff", VVB_INVALID, BRUSH_ERROR},
    {"hex above its type", VVE_HEX, L"1FFFFFFFF", VVB_TYPE_RANGE, BRUSH_WARNING},
    {"octal", VVE_OCTAL, L"17", VVB_VALID, BRUSH_VALID},
    {"octal, eight", VVE_OCTAL, L"18", VVB_INVALID, BRUSH_ERROR},
    {"octal above its type", VVE_OCTAL, L"40000000000", VVB_TYPE_RANGE, BRUSH_WARNING},
    {"octal, twelve digits that sort before the largest", VVE_OCTAL, L"100000000000", VVB_VALID, BRUSH_VALID},
    {"binary", VVE_BINARY, L"101", VVB_VALID, BRUSH_VALID},
    {"binary, two", VVE_BINARY, L"12", VVB_INVALID, BRUSH_ERROR},
    {"binary above its type", VVE_BINARY, L"100000000000000000000000000000000", VVB_TYPE_RANGE, BRUSH_WARNING},
    {"float", VVE_FLOAT, L"1.5e-3", VVB_VALID, BRUSH_VALID},
    {"float, point alone", VVE_FLOAT, L".", VVB_INCOMPLETE, BRUSH_WARNING},
    {"float, exponent waits", VVE_FLOAT, L"1e", VVB_INCOMPLETE, BRUSH_WARNING},
    {"float, two points", VVE_FLOAT, L"1.2.3", VVB_INVALID, BRUSH_ERROR},
    {"float, leading blanks", VVE_FLOAT, L"  5", VVB_VALID, BRUSH_VALID},
    {"float, blank behind", VVE_FLOAT, L"5 ", VVB_INVALID, BRUSH_ERROR},
    {"float, decimal comma", VVE_FLOAT, L"1,5", VVB_INVALID, BRUSH_ERROR},
    {"float, point after a sign turns valid", VVE_FLOAT, L"-.", VVB_VALID, BRUSH_VALID},
    {"float, blanks alone keep the status", VVE_FLOAT, L"  ", kStatusBefore, BRUSH_EMPTY},
    {"float, overflow is in its range", VVE_FLOAT, L"1e400", VVB_VALID, BRUSH_VALID},
    {"float, empty", VVE_FLOAT, L"", VVB_EMPTY, BRUSH_EMPTY},
};

} // namespace

TEST_F(EditValidation, JudgesTheTextsOfEverySet)
{
    for (const Row& row : kRows)
    {
        SCOPED_TRACE(row.name);
        Use(row.set);
        const bool isValid = row.status == VVB_VALID || row.status == VVB_EMPTY;
        Expect(row.status, row.brush, isValid, Validate(row.text));
    }
}

TEST_F(EditValidation, JudgesTextsOfAnyLength)
{
    std::wstring text(70000, L'0');
    Use(VVE_DECIMAL);
    Expect(VVB_VALID, BRUSH_VALID, true, Validate(text.c_str()));
    text += L'x';
    Expect(VVB_INVALID, BRUSH_ERROR, false, Validate(text.c_str()));
}

TEST_F(EditValidation, SignIsFollowedByNoBlankEvenIfBlanksAreAllowed)
{
    Use(VVE_SIGNED);
    MarkChars(m_table, L" ");
    Expect(VVB_INVALID, BRUSH_ERROR, false, Validate(L"- 1"));
    Expect(VVB_INVALID, BRUSH_ERROR, false, Validate(L"1 2"));
    Expect(VVB_VALID, BRUSH_VALID, true, Validate(L" -1 "));
}

TEST_F(EditValidation, FloatSyntaxOfAnotherSetIsHeldAgainstTheRangeOfThatSet)
{
    Use(VVE_DECIMAL);
    CEditValidation validation(m_rules, L"4294967296", kStatusBefore);
    validation.JudgeFloat();
    Expect(VVB_TYPE_RANGE, BRUSH_WARNING, false, validation.Finish());
}

TEST_F(EditValidation, RangeIsCheckedOnlyOnRequest)
{
    Use(VVE_DECIMAL);
    m_rules.checkRange = false;
    Expect(VVB_VALID, BRUSH_VALID, true, Validate(L"4294967296"));
}

TEST_F(EditValidation, WrongCharacterWinsOverTheRange)
{
    Use(VVE_DECIMAL);
    Expect(VVB_INVALID, BRUSH_ERROR, false, Validate(L"4294967296a"));
}

TEST_F(EditValidation, TooShortAndTooLongTextsAreInvalid)
{
    LimitLength(2, 4);
    Expect(VVB_TOO_SHORT, BRUSH_WARNING, false, Validate(L"a"));
    Expect(VVB_VALID, BRUSH_VALID, true, Validate(L"ab"));
    Expect(VVB_VALID, BRUSH_VALID, true, Validate(L"abcd"));
    Expect(VVB_TOO_LONG, BRUSH_WARNING, false, Validate(L"abcde"));
    EXPECT_TRUE(Validate(L"abcde").syntaxValid);
    EXPECT_FALSE(Validate(L"abcde").lengthValid);
}

TEST_F(EditValidation, WrongLengthCoversAWrongCharacter)
{
    Use(VVE_DECIMAL);
    LimitLength(2, 4);
    Expect(VVB_TOO_SHORT, BRUSH_WARNING, false, Validate(L"a"));
    EXPECT_FALSE(Validate(L"a").syntaxValid);
}

TEST_F(EditValidation, LengthIsCheckedOnlyOnRequest)
{
    LimitLength(2, 4);
    m_rules.checkLength = false;
    Expect(VVB_VALID, BRUSH_VALID, true, Validate(L"abcde"));
    m_rules.checkLength = true;
    m_rules.isDisabled = true;
    Expect(VVB_VALID, BRUSH_VALID, true, Validate(L"abcde"));
}

TEST_F(EditValidation, LengthRuleAnswersOnWhichSideATextLies)
{
    LimitLength(2, 4);
    EXPECT_EQ(-1, CheckLength(m_rules, 1));
    EXPECT_EQ(0, CheckLength(m_rules, 2));
    EXPECT_EQ(0, CheckLength(m_rules, 4));
    EXPECT_EQ(1, CheckLength(m_rules, 5));
}

TEST_F(EditValidation, EmptyTextIsRedWhereItIsNotAllowed)
{
    m_rules.emptyValid = false;
    Expect(VVB_EMPTY_INVALID, BRUSH_ERROR, false, Validate(L""));
}

TEST_F(EditValidation, EmptyTextIsRedWhereALengthIsAsked)
{
    LimitLength(2, 4);
    Expect(VVB_EMPTY_INVALID, BRUSH_ERROR, false, Validate(L""));
    m_rules.checkLength = false;
    Expect(VVB_EMPTY_INVALID, BRUSH_ERROR, false, Validate(L""));
}

TEST_F(EditValidation, EmptyTextIsBelowTheMinimumWhereValuesAreChecked)
{
    Use(VVE_DECIMAL);
    Limit(0, 10);
    m_rules.emptyValid = false;
    Expect(VVB_BELOW_MIN, BRUSH_ERROR, false, Validate(L""));
    m_rules.emptyValid = true;
    Expect(VVB_EMPTY, BRUSH_EMPTY, true, Validate(L""));
}

TEST_F(EditValidation, ValueOutsideTheLimitsIsRed)
{
    Use(VVE_FLOAT);
    Limit(0, 10);
    Expect(VVB_BELOW_MIN, BRUSH_ERROR, false, Validate(L"-1"));
    Expect(VVB_VALID, BRUSH_VALID, true, Validate(L"10.00005"));
    Expect(VVB_ABOVE_MAX, BRUSH_ERROR, false, Validate(L"10.001"));
    Expect(VVB_ABOVE_MAX, BRUSH_ERROR, false, Validate(L"1e400"));
    EXPECT_FALSE(Validate(L"10.001").valueValid);
    EXPECT_TRUE(Validate(L"10.001").syntaxValid);
}

TEST_F(EditValidation, ValueWinsOverTypeRangeAndSyntax)
{
    Use(VVE_DECIMAL);
    Limit(0, 10);
    Expect(VVB_ABOVE_MAX, BRUSH_ERROR, false, Validate(L"4294967296"));
    Expect(VVB_ABOVE_MAX, BRUSH_ERROR, false, Validate(L"12a"));
}

TEST_F(EditValidation, NegativeValuesAreHeldAgainstTheLimits)
{
    Use(VVE_SIGNED);
    Limit(-10, 10);
    Expect(VVB_VALID, BRUSH_VALID, true, Validate(L"-10"));
    Expect(VVB_BELOW_MIN, BRUSH_ERROR, false, Validate(L"-11"));
}

TEST_F(EditValidation, LimitsHoldForNumericSetsAndOnRequestOnly)
{
    Limit(0, 10);
    for (int set = VVE_CUSTOM; set <= VVE_FLOAT + 1; ++set)
    {
        m_rules.set = static_cast<VVEset>(set);
        const bool isNumeric = set >= VVE_DECIMAL && set <= VVE_FLOAT;
        EXPECT_EQ(isNumeric ? 2 : 0, CheckLimits(m_rules, 11.0)) << set;
        EXPECT_EQ(isNumeric ? -1 : 0, CheckLimits(m_rules, -1.0)) << set;
    }
    m_rules.set = VVE_FLOAT;
    m_rules.isDisabled = true;
    EXPECT_EQ(0, CheckLimits(m_rules, 11.0));
    m_rules.isDisabled = false;
    m_rules.checkValue = false;
    EXPECT_EQ(0, CheckLimits(m_rules, 11.0));
}

TEST_F(EditValidation, EmptyTextIsOutsideTheLimitsAlsoWhileTheyAreNotChecked)
{
    m_rules.emptyValid = false;
    EXPECT_EQ(-1, CheckLimits(m_rules, CString()));
    EXPECT_FALSE(Validate(L"").valueValid);
    m_rules.emptyValid = true;
    EXPECT_EQ(0, CheckLimits(m_rules, CString()));
}

TEST_F(EditValidation, AnswersOfTheParentSelectStatusAndBrush)
{
    Expect(VVB_EMPTY, BRUSH_EMPTY, false, Answer(1));
    Expect(VVB_VALID, BRUSH_VALID, true, Answer(2));
    Expect(VVB_INVALID, BRUSH_ERROR, false, Answer(3));
    for (int number = VVB_INCOMPLETE; number <= VVB_TYPE_RANGE; ++number)
        Expect(number, BRUSH_WARNING, false, Answer(number));
    Expect(VVB_CUSTOM1, BRUSH_CUSTOM1, false, Answer(10));
    Expect(VVB_CUSTOM2, BRUSH_CUSTOM2, false, Answer(11));
}

TEST_F(EditValidation, AnswersThatAreNoVerdictGiveStatusZeroAndTheEmptyBrush)
{
    for (const LRESULT number : {LRESULT(8), LRESULT(9), LRESULT(12), LRESULT(-1), LRESULT(1) << 40})
        Expect(VVB_EMPTY_INVALID, BRUSH_EMPTY, false, Answer(number));
}

TEST_F(EditValidation, ParentThatDoesNotAnswerLeavesTheTextValid)
{
    Expect(VVB_VALID, BRUSH_VALID, true, Answer(0));
    Expect(VVB_VALID, BRUSH_VALID, true, Take(NoAnswer()));
    EXPECT_FALSE(AnswerOfParent(0).isAnswered);
    EXPECT_EQ(VVB_EMPTY_INVALID, NoAnswer().status);
    EXPECT_EQ(BRUSH_EMPTY, NoAnswer().brush);
}

TEST_F(EditValidation, CustomVerdictCountsAsValidOnRequestAndKeepsItsColour)
{
    m_rules.customErrorIsValid[0] = true;
    Expect(VVB_CUSTOM1, BRUSH_CUSTOM1, true, Answer(10));
    Expect(VVB_CUSTOM2, BRUSH_CUSTOM2, false, Answer(11));
    m_rules.customErrorIsValid[0] = false;
    m_rules.customErrorIsValid[1] = true;
    Expect(VVB_CUSTOM1, BRUSH_CUSTOM1, false, Answer(10));
    Expect(VVB_CUSTOM2, BRUSH_CUSTOM2, true, Answer(11));
}

TEST_F(EditValidation, WrongLengthCoversACustomVerdict)
{
    LimitLength(0, 3);
    m_rules.customErrorIsValid[0] = true;
    Expect(VVB_TOO_LONG, BRUSH_WARNING, false, Answer(10));
}

TEST_F(EditValidation, ValidAnswerIsHeldAgainstTheTypeRange)
{
    Use(VVE_DECIMAL);
    Expect(VVB_TYPE_RANGE, BRUSH_WARNING, false, Answer(2, L"4294967296"));
    Expect(VVB_INVALID, BRUSH_ERROR, false, Answer(3, L"4294967296"));
}

TEST_F(EditValidation, ParentJudgesWithoutRegardToTheCharacters)
{
    Use(VVE_DECIMAL);
    Expect(VVB_VALID, BRUSH_VALID, true, Answer(2, L"abc"));
}

TEST_F(EditValidation, EmptyTextIsJudgedBesidesTheParent)
{
    Expect(VVB_EMPTY, BRUSH_EMPTY, true, Answer(3, L""));
    m_rules.emptyValid = false;
    Expect(VVB_EMPTY_INVALID, BRUSH_ERROR, false, Answer(2, L""));
}
