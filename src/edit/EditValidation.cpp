#include "edit/EditValidation.h"

#include "edit/FloatScanner.h"
#include "edit/TypeRange.h"
#include "edit/ValueText.h"

EditAnswer NoAnswer()
{
    const EditAnswer answer = {false, VVB_EMPTY_INVALID, BRUSH_EMPTY};
    return answer;
}

EditAnswer AnswerOfParent(LRESULT number)
{
    EditAnswer answer = NoAnswer();
    if (number == VVB_EMPTY_INVALID)
        return answer;
    answer.isAnswered = true;
    // The limits are the control's own business: 8 and 9 are no answers of a parent.
    if (number < VVB_EMPTY || number > VVB_CUSTOM2 || number == VVB_BELOW_MIN || number == VVB_ABOVE_MAX)
        return answer;
    answer.status = static_cast<int>(number);
    answer.brush = BrushOfKind(static_cast<VVEbrush>(number));
    return answer;
}

int CheckLength(const EditRules& rules, int length)
{
    if (!rules.checkLength || rules.isDisabled)
        return 0;
    if (length < rules.minLength)
        return -1;
    return length > rules.maxLength ? 1 : 0;
}

int CheckLimits(const EditRules& rules, double value)
{
    if (!rules.checkValue || rules.isDisabled || !IsNumericSet(rules.set))
        return 0;
    return CompareWithLimits(value, rules.minimum, rules.maximum, rules.precision);
}

int CheckLimits(const EditRules& rules, const CString& text)
{
    if (text.IsEmpty())
        return rules.emptyValid ? 0 : -1;
    const ValueRules reading = {rules.set, rules.checkRange, true};
    double value = 0;
    // A value is held against the limits also when its text is no good one.
    ReadValue(reading, text, value);
    return CheckLimits(rules, value);
}

CEditValidation::CEditValidation(const EditRules& rules, const CString& text, int status)
    : m_rules(rules), m_text(text), m_isAnswered(rules.customAnswered)
{
    m_verdict.syntaxValid = false;
    m_verdict.lengthValid = false;
    m_verdict.valueValid = false;
    Judge(status, BRUSH_VALID);
}

void CEditValidation::TakeAnswer(const EditAnswer& answer)
{
    m_isAnswered = answer.isAnswered;
    Judge(answer.status, answer.brush);
    JudgeTypeRange();
}

void CEditValidation::JudgeCharacters()
{
    for (int i = 0; !m_rules.anyChar && i < m_text.GetLength(); ++i)
    {
        if (!IsMarked(*m_rules.allowed, m_text[i]))
        {
            Judge(VVB_INVALID, BRUSH_ERROR);
            break;
        }
    }
    if (m_rules.set == VVE_SIGNED)
        JudgeSign();
    JudgeTypeRange();
}

// A set of numbers with a point has no range here: a number that no double holds meets the limits first.
void CEditValidation::JudgeFloat()
{
    const FloatSyntax syntax = ScanFloat(m_text, m_verdict.status);
    Judge(syntax.status, syntax.brush);
    if (m_rules.set != VVE_FLOAT)
        JudgeTypeRange();
}

const EditVerdict& CEditValidation::Finish()
{
    const int length = CheckLength(m_rules, m_text.GetLength());
    const bool customAccepted = IsCustomAccepted();
    const bool emptyAccepted = m_rules.emptyValid && m_text.IsEmpty();
    const bool unasked = m_rules.custom && !m_isAnswered;
    m_verdict.syntaxValid = m_verdict.brush == BRUSH_VALID || customAccepted || emptyAccepted || unasked;
    m_verdict.lengthValid = length == 0 || emptyAccepted;
    if (length != 0)
        JudgeLength(length);
    else if (m_verdict.syntaxValid && !customAccepted)
        Judge(VVB_VALID, BRUSH_VALID);
    if (m_text.IsEmpty())
        JudgeEmptyText();
    JudgeValue();
    return m_verdict;
}

void CEditValidation::Judge(int status, EditBrush brush)
{
    m_verdict.status = status;
    m_verdict.brush = brush;
}

// A sign stands first and alone, and waits for a digit.
void CEditValidation::JudgeSign()
{
    CString number = m_text;
    number.Trim();
    if (number.IsEmpty())
        return;
    const bool beginsWithSign = number.FindOneOf(L"+-") == 0;
    const CString rest = number.Mid(1);
    if (rest.FindOneOf(L"+- ") >= 0)
        Judge(VVB_INVALID, BRUSH_ERROR);
    else if (beginsWithSign && rest.IsEmpty())
        Judge(VVB_INCOMPLETE, BRUSH_WARNING);
}

void CEditValidation::JudgeTypeRange()
{
    if (m_rules.checkRange && m_verdict.brush == BRUSH_VALID && CheckTypeRange(m_rules.set, m_text) != 0)
        Judge(VVB_TYPE_RANGE, BRUSH_WARNING);
}

void CEditValidation::JudgeLength(int length)
{
    Judge(length > 0 ? VVB_TOO_LONG : VVB_TOO_SHORT, BRUSH_WARNING);
}

void CEditValidation::JudgeEmptyText()
{
    if (m_rules.minLength == 0 && m_rules.emptyValid)
    {
        Judge(VVB_EMPTY, BRUSH_EMPTY);
        return;
    }
    Judge(VVB_EMPTY_INVALID, BRUSH_ERROR);
    m_verdict.lengthValid = false;
}

void CEditValidation::JudgeValue()
{
    const int value = CheckLimits(m_rules, m_text);
    m_verdict.valueValid = value == 0;
    if (m_rules.checkValue && value != 0)
        Judge(value < 0 ? VVB_BELOW_MIN : VVB_ABOVE_MAX, BRUSH_ERROR);
}

bool CEditValidation::IsCustomAccepted() const
{
    if (!m_rules.custom || !m_isAnswered)
        return false;
    return (m_verdict.brush == BRUSH_CUSTOM1 && m_rules.customErrorIsValid[0]) ||
           (m_verdict.brush == BRUSH_CUSTOM2 && m_rules.customErrorIsValid[1]);
}
