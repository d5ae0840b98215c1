// The plain settings of the validating edit. None stands in the header, so that each is exported under its name
// whatever the compiler does with inline functions.
#include "edit/SuperEdit.h"

void CSuperEdit::SetValidSet(VVEset set)
{
    m_validSet = set;
}

VVEset CSuperEdit::GetValidSet() const
{
    return m_validSet;
}

int CSuperEdit::GetTextMinLen() const
{
    return m_minLength;
}

int CSuperEdit::GetTextMaxLen() const
{
    return m_maxLength;
}

void CSuperEdit::SetPrecValue(double precision)
{
    m_precision = precision;
}

double CSuperEdit::PrecValue() const
{
    return m_precision;
}

void CSuperEdit::SetEnableLengthCheck(int enable)
{
    m_lengthCheck = enable;
}

int CSuperEdit::GetEnableLengthCheck() const
{
    return m_lengthCheck;
}

void CSuperEdit::SetEnableRangeCheck(int enable)
{
    m_rangeCheck = enable;
}

int CSuperEdit::GetEnableRangeCheck() const
{
    return m_rangeCheck;
}

void CSuperEdit::SetEableValueCheck(int enable)
{
    m_valueCheck = enable;
}

int CSuperEdit::GetEableValueCheck() const
{
    return m_valueCheck;
}

void CSuperEdit::SetEmptyValid(int valid)
{
    m_emptyValid = valid;
}

int CSuperEdit::GetEmptyValid() const
{
    return m_emptyValid;
}

void CSuperEdit::SetAllCharEntry(int enable)
{
    m_allCharEntry = enable;
}

int CSuperEdit::GetAllCharEntry() const
{
    return m_allCharEntry;
}

void CSuperEdit::SetDisableValidation(int disable)
{
    m_disableValidation = disable;
}

int CSuperEdit::GetDisableValidation() const
{
    return m_disableValidation;
}

void CSuperEdit::SetCustomValidation(int enable)
{
    m_customValidation = enable;
}

int CSuperEdit::GetCustomValidation() const
{
    return m_customValidation;
}

void CSuperEdit::SetCustomErrorIsValid(int which, int valid)
{
    if (which >= 1 && which <= CUSTOM_VERDICTS)
        m_customErrorIsValid[which - 1] = valid;
}

int CSuperEdit::GetCustomErrorIsValid(int which, int& valid) const
{
    if (which < 1 || which > CUSTOM_VERDICTS)
        return 0;
    valid = m_customErrorIsValid[which - 1];
    return 1;
}

CString CSuperEdit::GetTipText() const
{
    return m_tipText;
}

int CSuperEdit::GetEableTip() const
{
    return m_tipEnabled;
}
