// The numeric side of the validating edit: limits, reading and writing values.
#include "edit/SuperEdit.h"

#include <algorithm>

#include "base/PlainNumber.h"
#include "base/WindowWatch.h"
#include "edit/CharTable.h"
#include "edit/TypeRange.h"
#include "edit/ValueText.h"

namespace
{

const double kFloatMin = 0.0;
const double kFloatMax = 1e30;
const int kSignedMin = -100000;
const int kSignedMax = 100000;
const int kUnsignedMin = 0;
const int kUnsignedMax = 100000;

const int kMaxReason = 510;
const wchar_t kFailureFormat[] = L"SetWindowText函数错误，错误原因：%s";
const wchar_t kUnknownFailure[] = L"调用SetWindowText函数时出现未知错误！";

// Sets whose numbers are judged as they stand in the window, wrapped and cut off.
bool IsUnsignedSet(VVEset set)
{
    return IsNumericSet(set) && set != VVE_SIGNED && set != VVE_FLOAT;
}

} // namespace

void CSuperEdit::SetInputFloat(double def, double min, double max, int emptyValid, int enableTip, const wchar_t* tip)
{
    if (!SetUpNumber(VVE_FLOAT, def, min, max, emptyValid))
        return;
    SetEableTip(enableTip);
    SetTipText(tip);
}

void CSuperEdit::SetInputSInt(int def, int min, int max, int emptyValid, int enableTip, const wchar_t* tip)
{
    if (!SetUpNumber(VVE_SIGNED, def, min, max, emptyValid))
        return;
    SetEableTip(enableTip);
    SetTipText(tip);
}

void CSuperEdit::SetInputInt(int def, int min, int max, int emptyValid, int enableTip, const wchar_t* tip)
{
    if (!SetUpNumber(VVE_DECIMAL, def, min, max, emptyValid))
        return;
    SetEableTip(enableTip);
    SetTipText(tip);
}

void CSuperEdit::SetInputFloatSim(double def, int emptyValid, int enableTip, const wchar_t* tip)
{
    SetInputFloat(def, kFloatMin, kFloatMax, emptyValid, enableTip, tip);
}

void CSuperEdit::SetInputSIntSim(int def, int emptyValid, int enableTip, const wchar_t* tip)
{
    SetInputSInt(def, kSignedMin, kSignedMax, emptyValid, enableTip, tip);
}

void CSuperEdit::SetInputIntSim(int def, int emptyValid, int enableTip, const wchar_t* tip)
{
    SetInputInt(def, kUnsignedMin, kUnsignedMax, emptyValid, enableTip, tip);
}

void CSuperEdit::SetAllValue(double def, double min, double max)
{
    m_minimum = min;
    m_maximum = max;
    if (m_minimum > m_maximum)
        std::swap(m_minimum, m_maximum);
    // So written, a default that is no number is outside as well.
    const bool isInside = def >= m_minimum && def <= m_maximum;
    m_default = isInside ? def : m_minimum;

    const CString text = Text();
    if (text.IsEmpty())
    {
        if (!m_emptyValid)
            SetWindowValue(m_default);
        return;
    }
    if (CompareWithLimits(ReadPlainNumber(text), m_minimum, m_maximum, m_precision) != 0)
        SetWindowValue(m_default);
}

int CSuperEdit::GetAllValue(double& def, double& min, double& max) const
{
    if (!m_valueCheck)
        return 0;
    def = m_default;
    min = m_minimum;
    max = m_maximum;
    return 1;
}

int CSuperEdit::GetWindowValue(double& value) const
{
    return ReadValue(ReadingRules(), Text(), value);
}

int CSuperEdit::GetWindowValue(long& value) const
{
    return ReadValue(ReadingRules(), Text(), value);
}

int CSuperEdit::GetWindowValue(unsigned long& value) const
{
    return ReadValue(ReadingRules(), Text(), value);
}

double CSuperEdit::GetWindowValue() const
{
    double value = 0;
    return GetWindowValue(value) ? value : 0.0;
}

int CSuperEdit::SetWindowValue(double value)
{
    const CString text = TextOfValue(m_validSet, value);
    const CWindowWatch watch(*this);
    if (m_validSet == VVE_FLOAT)
        ShowFloat(text);
    else
        ShowText(text);
    if (watch.IsGone())
        return 0;
    const int range = IsUnsignedSet(m_validSet) ? CheckRange() : CheckRange(m_validSet, value);
    return range == 0 && m_syntaxValid ? 1 : 0;
}

int CSuperEdit::SetWindowValue(long value)
{
    if (m_validSet == VVE_FLOAT)
        return SetWindowValue(static_cast<double>(value));
    CString text;
    const CWindowWatch watch(*this);
    if (TextOfInteger(m_validSet, value, text))
        ShowText(text);
    return watch.IsGone() ? 0 : m_syntaxValid;
}

int CSuperEdit::SetWindowValue(unsigned long value)
{
    if (m_validSet == VVE_FLOAT)
        return SetWindowValue(static_cast<double>(value));
    CString text;
    const CWindowWatch watch(*this);
    if (TextOfInteger(m_validSet, value, text))
        ShowText(text);
    return watch.IsGone() ? 0 : m_syntaxValid;
}

void CSuperEdit::ShowText(const wchar_t* text)
{
    if (GetSafeHwnd() != NULL)
        SetWindowText(text);
}

ValueRules CSuperEdit::ReadingRules() const
{
    const ValueRules rules = {m_validSet, m_rangeCheck != 0, m_syntaxValid || m_disableValidation};
    return rules;
}

// Everything is checked from here on. False when the parent destroyed the window as it was told of the default.
bool CSuperEdit::SetUpNumber(VVEset set, double def, double min, double max, int emptyValid)
{
    SetValidChars(CharsOfSet(set));
    m_validSet = set;
    m_rangeCheck = 1;
    m_disableValidation = 0;
    m_lengthCheck = 1;
    m_emptyValid = emptyValid;
    m_valueCheck = 1;
    const CWindowWatch watch(*this);
    SetAllValue(def, min, max);
    return !watch.IsGone();
}

void CSuperEdit::ShowFloat(const CString& text)
{
    try
    {
        ShowText(text);
    }
    catch (CException* exception)
    {
        wchar_t reason[kMaxReason + 1] = L"";
        exception->GetErrorMessage(reason, kMaxReason + 1);
        exception->Delete();
        CString message;
        message.Format(kFailureFormat, reason);
        ReportFailure(message);
    }
    catch (...)
    {
        ReportFailure(kUnknownFailure);
    }
}
