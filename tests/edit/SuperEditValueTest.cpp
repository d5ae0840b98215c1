// Typed values: limits, default, reading and writing, leaving the control.
#include "EditFixture.h"

#include <cmath>
#include <limits>

#include "MessageBoxAnswer.h"

namespace
{

const COLORREF kRed = RGB(255, 0, 0);

class SuperEditValue : public EditFixture
{
protected:
    // What GetAllValue answers, in one.
    struct All
    {
        double def = -7;
        double min = -7;
        double max = -7;
        int result;

        explicit All(const CSuperEdit& edit) { result = edit.GetAllValue(def, min, max); }
    };

    void ExpectAll(double def, double min, double max) const
    {
        const All all(m_edit);
        EXPECT_EQ(1, all.result);
        EXPECT_EQ(def, all.def);
        EXPECT_EQ(min, all.min);
        EXPECT_EQ(max, all.max);
    }

    std::wstring ValidChars() const
    {
        CString chars;
        m_edit.GetValidChars(chars);
        return chars.GetString();
    }

    void ExpectEverythingChecked(VVEset set, const wchar_t* chars) const
    {
        EXPECT_EQ(set, m_edit.GetValidSet());
        EXPECT_EQ(chars, ValidChars());
        EXPECT_EQ(1, m_edit.GetEnableRangeCheck());
        EXPECT_EQ(0, m_edit.GetDisableValidation());
        EXPECT_EQ(1, m_edit.GetEnableLengthCheck());
        EXPECT_EQ(1, m_edit.GetEableValueCheck());
    }
};

// Throws where a text is put into the window.
class FailingEdit : public CSuperEdit
{
public:
    int kind = 0;

protected:
    void ShowText(const wchar_t*) override
    {
        if (kind == 0)
            AfxThrowNotSupportedException();
        throw kind;
    }
};

} // namespace

TEST_F(SuperEditValue, FloatInputChecksEverything)
{
    m_edit.SetDisableValidation(1);
    m_edit.SetInputFloat(2.5, 1, 10, TRUE, TRUE, L"tip");
    ExpectEverythingChecked(VVE_FLOAT, L"+-.0123456789Ee");
    ExpectAll(2.5, 1, 10);
    EXPECT_EQ(1, m_edit.GetEmptyValid());
    EXPECT_EQ(1, m_edit.GetEableTip());
    EXPECT_STREQ(L"tip", m_edit.GetTipText());
    EXPECT_EQ(L"", Text());
}

TEST_F(SuperEditValue, SignedInputChecksEverything)
{
    m_edit.SetDisableValidation(1);
    m_edit.SetInputSInt(-5, -10, 10, FALSE, FALSE, NULL);
    ExpectEverythingChecked(VVE_SIGNED, L"+-0123456789");
    ExpectAll(-5, -10, 10);
    EXPECT_EQ(0, m_edit.GetEmptyValid());
    EXPECT_EQ(0, m_edit.GetEableTip());
    EXPECT_EQ(L"-5", Text());
    EXPECT_EQ(1, m_edit.IsValid());
}

TEST_F(SuperEditValue, UnsignedInputChecksEverything)
{
    m_edit.SetDisableValidation(1);
    m_edit.SetInputInt(5, 1, 10, FALSE, FALSE, NULL);
    ExpectEverythingChecked(VVE_DECIMAL, L"0123456789");
    EXPECT_EQ(L"5", Text());
    EXPECT_EQ(1, m_edit.IsValid());
}

TEST_F(SuperEditValue, ShortFormsBringTheirLimits)
{
    m_edit.SetInputFloatSim(5, FALSE, TRUE, L"tip");
    EXPECT_EQ(VVE_FLOAT, m_edit.GetValidSet());
    ExpectAll(5, 0, 1e30);
    EXPECT_STREQ(L"tip", m_edit.GetTipText());
    m_edit.SetInputSIntSim(-5, FALSE, TRUE, NULL);
    EXPECT_EQ(VVE_SIGNED, m_edit.GetValidSet());
    ExpectAll(-5, -100000, 100000);
    m_edit.SetInputIntSim(6, FALSE, TRUE, NULL);
    EXPECT_EQ(VVE_DECIMAL, m_edit.GetValidSet());
    ExpectAll(6, 0, 100000);
}

TEST_F(SuperEditValue, SwappedLimitsTradePlaces)
{
    m_edit.SetInputInt(5, 10, 1, FALSE, FALSE, NULL);
    ExpectAll(5, 1, 10);
}

TEST_F(SuperEditValue, DefaultOutsideTheLimitsBecomesTheMinimum)
{
    m_edit.SetInputInt(50, 1, 10, FALSE, FALSE, NULL);
    ExpectAll(1, 1, 10);
    m_edit.SetInputInt(0, 1, 10, FALSE, FALSE, NULL);
    ExpectAll(1, 1, 10);
}

TEST_F(SuperEditValue, LimitsAndDefaultsThatAreNoNumberDoNotMixUpTheOthers)
{
    const double noNumber = std::numeric_limits<double>::quiet_NaN();
    m_edit.SetInputFloat(noNumber, 1, 10, FALSE, FALSE, NULL);
    ExpectAll(1, 1, 10);
    EXPECT_EQ(L"1", Text());
    m_edit.SetInputFloat(5, noNumber, 10, TRUE, FALSE, NULL);
    const All all(m_edit);
    EXPECT_TRUE(std::isnan(all.min));
    EXPECT_EQ(10, all.max);
}

TEST_F(SuperEditValue, ValuesBeyondEveryTypeAreWrittenAndRefused)
{
    const double infinity = std::numeric_limits<double>::infinity();
    for (const VVEset set : {VVE_ALL, VVE_SIGNED, VVE_FLOAT})
    {
        m_edit.SetValidCharSet(set, NULL);
        EXPECT_EQ(0, m_edit.SetWindowValue(infinity)) << set;
        EXPECT_EQ(0, m_edit.SetWindowValue(-infinity)) << set;
        EXPECT_EQ(0, m_edit.SetWindowValue(std::numeric_limits<double>::quiet_NaN())) << set;
    }
}

TEST_F(SuperEditValue, AllValuesAreHiddenWhileValuesAreNotChecked)
{
    m_edit.SetAllValue(5, 1, 10);
    const All all(m_edit);
    EXPECT_EQ(0, all.result);
    EXPECT_EQ(-7, all.def);
    m_edit.SetEableValueCheck(1);
    ExpectAll(5, 1, 10);
}

TEST_F(SuperEditValue, EmptyTextThatIsNotAllowedIsReplacedAtOnce)
{
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    m_edit.SetAllValue(5, 1, 10);
    EXPECT_EQ(L"", Text());
    m_edit.SetEmptyValid(0);
    m_edit.SetAllValue(5, 1, 10);
    EXPECT_EQ(L"5", Text());
}

TEST_F(SuperEditValue, TextOutsideTheLimitsIsReplacedAndAnyOtherStays)
{
    m_edit.SetWindowText(L"7");
    m_edit.SetInputInt(5, 1, 10, FALSE, FALSE, NULL);
    EXPECT_EQ(L"7", Text());
    m_edit.SetAllValue(2, 1, 6);
    EXPECT_EQ(L"2", Text());
    m_edit.SetAllValue(4, 3, 6);
    EXPECT_EQ(L"4", Text());
}

TEST_F(SuperEditValue, PrecisionWidensTheLimits)
{
    m_edit.SetInputFloat(5, 0, 10, FALSE, FALSE, NULL);
    m_edit.SetWindowText(L"10.00005");
    EXPECT_EQ(1, m_edit.IsValid());
    m_edit.SetWindowText(L"10.001");
    EXPECT_EQ(0, m_edit.IsValid());
    EXPECT_EQ(0, m_edit.IsValidValue());
    EXPECT_EQ(VVB_ABOVE_MAX, Status());
    m_edit.SetPrecValue(0.01);
    EXPECT_EQ(0.01, m_edit.PrecValue());
    m_edit.DoValidation(0);
    EXPECT_EQ(1, m_edit.IsValid());
}

TEST_F(SuperEditValue, LimitCheckKeepsItsVerdict)
{
    m_edit.SetInputInt(5, 1, 10, FALSE, FALSE, NULL);
    EXPECT_EQ(0, m_edit.CheckValueOutRange(10));
    EXPECT_EQ(2, m_edit.CheckValueOutRange(11));
    EXPECT_EQ(-1, m_edit.CheckValueOutRange(0));
    m_edit.SetWindowText(L"11");
    EXPECT_EQ(2, m_edit.CheckValueOutRange());
    EXPECT_EQ(0, m_edit.IsValidValue());
    m_edit.SetEableValueCheck(0);
    EXPECT_EQ(1, m_edit.IsValidValue());
    EXPECT_EQ(0, m_edit.CheckValueOutRange(11));
    m_edit.SetWindowText(L"");
    EXPECT_EQ(-1, m_edit.CheckValueOutRange());
    m_edit.SetEmptyValid(1);
    EXPECT_EQ(0, m_edit.CheckValueOutRange());
}

TEST_F(SuperEditValue, TypeRangeIsThatOfTheSet)
{
    m_edit.SetValidCharSet(VVE_OCTAL, NULL);
    EXPECT_EQ(1, m_edit.CheckRange(L"40000000000"));
    EXPECT_EQ(0, m_edit.CheckRange(L"37777777777"));
    EXPECT_EQ(0, m_edit.CheckRange(L"100000000000"));
    EXPECT_EQ(0, m_edit.CheckRange(NULL));
    m_edit.SetWindowText(L"40000000000");
    EXPECT_EQ(1, m_edit.CheckRange());
    EXPECT_EQ(1, CSuperEdit::CheckRange(VVE_FLOAT, L"1e400"));
    EXPECT_EQ(-1, CSuperEdit::CheckRange(VVE_FLOAT, L"1e-400"));
    EXPECT_EQ(-1, CSuperEdit::CheckRange(VVE_HEX, -1.0));
}

TEST_F(SuperEditValue, ReadsTheTextInEveryType)
{
    m_edit.SetValidCharSet(VVE_HEX, NULL);
    m_edit.SetWindowText(L"ff");
    long integer = 0;
    unsigned long natural = 0;
    double number = 0;
    EXPECT_EQ(1, m_edit.GetWindowValue(integer));
    EXPECT_EQ(1, m_edit.GetWindowValue(natural));
    EXPECT_EQ(1, m_edit.GetWindowValue(number));
    EXPECT_EQ(255, integer);
    EXPECT_EQ(255u, natural);
    EXPECT_EQ(255, number);
    EXPECT_EQ(255, m_edit.GetWindowValue());
}

TEST_F(SuperEditValue, NegativeSignedTextFailsWhileTheRangeIsChecked)
{
    m_edit.SetInputSInt(1, -10, 10, FALSE, FALSE, NULL);
    m_edit.SetWindowText(L"-5");
    ASSERT_EQ(1, m_edit.IsValid());
    long value = 0;
    EXPECT_EQ(0, m_edit.GetWindowValue(value));
    EXPECT_EQ(-5, value);
    EXPECT_EQ(0, m_edit.GetWindowValue());
    m_edit.SetEnableRangeCheck(0);
    EXPECT_EQ(1, m_edit.GetWindowValue(value));
    EXPECT_EQ(-5, m_edit.GetWindowValue());
}

TEST_F(SuperEditValue, WrongSyntaxHasNoValueUnlessValidationIsDisabled)
{
    m_edit.SetInputFloat(5, 0, 10, FALSE, FALSE, NULL);
    m_edit.SetWindowText(L"5x");
    double value = 0;
    EXPECT_EQ(0, m_edit.GetWindowValue(value));
    EXPECT_EQ(0, m_edit.GetWindowValue());
    m_edit.SetDisableValidation(1);
    EXPECT_EQ(1, m_edit.GetWindowValue(value));
    EXPECT_EQ(5, m_edit.GetWindowValue());
}

TEST_F(SuperEditValue, WritesEightDigitsOfAFloat)
{
    m_edit.SetInputFloat(5, 0, 10, FALSE, FALSE, NULL);
    EXPECT_EQ(1, m_edit.SetWindowValue(3.14159265358979));
    EXPECT_EQ(L"3.1415927", Text());
    EXPECT_EQ(1, m_edit.SetWindowValue(-7L));
    EXPECT_EQ(L"-7", Text());
    EXPECT_EQ(1, m_edit.SetWindowValue(8UL));
    EXPECT_EQ(L"8", Text());
}

TEST_F(SuperEditValue, WritesInTheRadixOfTheSet)
{
    m_edit.SetValidCharSet(VVE_HEX, NULL);
    EXPECT_EQ(1, m_edit.SetWindowValue(255.0));
    EXPECT_EQ(L"ff", Text());
    EXPECT_EQ(1, m_edit.SetWindowValue(-1L));
    EXPECT_EQ(L"ffffffff", Text());
    m_edit.SetValidCharSet(VVE_SIGNED, NULL);
    EXPECT_EQ(1, m_edit.SetWindowValue(-12.9));
    EXPECT_EQ(L"-12", Text());
    EXPECT_EQ(1, m_edit.SetWindowValue(4294967295UL));
    EXPECT_EQ(L"-1", Text());
    m_edit.SetValidCharSet(VVE_DECIMAL, NULL);
    EXPECT_EQ(1, m_edit.SetWindowValue(-1L));
    EXPECT_EQ(L"4294967295", Text());
}

TEST_F(SuperEditValue, WritingAnswersWhetherTheTextIsAcceptable)
{
    m_edit.SetValidCharSet(VVE_SIGNED, NULL);
    EXPECT_EQ(0, m_edit.SetWindowValue(1e10)) << "outside of the type";
    m_edit.SetValidCharSet(VVE_CUSTOM, L"ab");
    EXPECT_EQ(0, m_edit.SetWindowValue(5.0)) << "digits are not allowed";
    EXPECT_EQ(0, m_edit.SetWindowValue(5L));
    EXPECT_EQ(0, m_edit.SetWindowValue(5UL));
    m_edit.SetValidCharSet(VVE_CUSTOM, L"5");
    EXPECT_EQ(1, m_edit.SetWindowValue(5.0));
}

TEST_F(SuperEditValue, UnsignedSetsJudgeTheTextThatWasWrittenAndOthersTheNumber)
{
    for (const VVEset set : {VVE_DECIMAL, VVE_HEX, VVE_OCTAL, VVE_BINARY})
    {
        m_edit.SetValidCharSet(set, NULL);
        EXPECT_EQ(1, m_edit.SetWindowValue(-1.0)) << set;
    }
    m_edit.SetValidCharSet(VVE_SIGNED, NULL);
    EXPECT_EQ(0, m_edit.SetWindowValue(4294967295.0));
}

TEST_F(SuperEditValue, UnknownSetLeavesTheTextForIntegers)
{
    m_edit.SetValidCharSet(static_cast<VVEset>(10), NULL);
    m_edit.SetWindowText(L"kept");
    EXPECT_EQ(1, m_edit.SetWindowValue(5L));
    EXPECT_EQ(1, m_edit.SetWindowValue(5UL));
    EXPECT_EQ(L"kept", Text());
}

TEST_F(SuperEditValue, FailureToWriteAFloatIsShownAndTheControlStaysUsable)
{
    FailingEdit edit;
    edit.SetValidCharSet(VVE_FLOAT, NULL);
    MessageBoxAnswer answer(IDOK);
    EXPECT_EQ(0, edit.SetWindowValue(5.0));
    edit.kind = 1;
    EXPECT_EQ(0, edit.SetWindowValue(5.0));
    ASSERT_EQ(2u, answer.Boxes().size());
    EXPECT_EQ(0u, answer.Boxes()[0].text.find(L"SetWindowText函数错误，错误原因："));
    EXPECT_EQ(L"调用SetWindowText函数时出现未知错误！", answer.Boxes()[1].text);
    edit.DoValidation(0);
    EXPECT_EQ(1, edit.IsValid());
}

// Leaving the control.

TEST_F(SuperEditValue, LeavingWithAWrongTextRestoresTheDefault)
{
    m_edit.SetInputInt(5, 1, 10, FALSE, FALSE, NULL);
    Enter();
    m_edit.SetWindowText(L"abc");
    EXPECT_EQ(kRed, Colour());
    Leave();
    EXPECT_EQ(L"5", Text());
    EXPECT_EQ(1, m_edit.IsValid());
}

TEST_F(SuperEditValue, LeavingDoesNotClamp)
{
    m_edit.SetInputInt(5, 1, 10, FALSE, FALSE, NULL);
    Enter();
    m_edit.SetWindowText(L"11");
    Leave();
    EXPECT_EQ(L"5", Text());
}

TEST_F(SuperEditValue, LeavingKeepsAValidText)
{
    m_edit.SetInputInt(5, 1, 10, TRUE, FALSE, NULL);
    Enter();
    m_edit.SetWindowText(L"7");
    Leave();
    EXPECT_EQ(L"7", Text());
    Enter();
    m_edit.SetWindowText(L"");
    Leave();
    EXPECT_EQ(L"", Text());
}

TEST_F(SuperEditValue, LeavingRestoresNothingWhileValuesAreNotCheckedOrValidationIsDisabled)
{
    m_edit.SetInputInt(5, 1, 10, FALSE, FALSE, NULL);
    m_edit.SetEableValueCheck(0);
    Enter();
    m_edit.SetWindowText(L"abc");
    Leave();
    EXPECT_EQ(L"abc", Text());
    m_edit.SetEableValueCheck(1);
    m_edit.SetDisableValidation(1);
    Enter();
    Leave();
    EXPECT_EQ(L"abc", Text());
}
