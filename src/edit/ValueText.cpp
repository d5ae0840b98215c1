#include "edit/ValueText.h"

#include <climits>
#include <cstdlib>
#include <cwchar>

#include "base/PlainNumber.h"
#include "edit/CharTable.h"
#include "edit/TypeRange.h"

namespace
{

const int kBinary = 2;
const int kOctal = 8;
const int kDecimal = 10;
const int kHexadecimal = 16;

const double kLongMin = -2147483648.0;
const double kLongMax = 2147483647.0;
const double kUnsignedMax = 4294967295.0;
const double kInt64Bound = 9223372036854775808.0;

const int kAbove = 2;

int RadixOf(VVEset set)
{
    switch (set)
    {
    case VVE_HEX:
        return kHexadecimal;
    case VVE_OCTAL:
        return kOctal;
    case VVE_BINARY:
        return kBinary;
    default:
        return kDecimal;
    }
}

bool HasOwnRadix(VVEset set)
{
    return RadixOf(set) != kDecimal;
}

const wchar_t* NotNull(const wchar_t* text)
{
    return text != NULL ? text : L"";
}

bool IsInRange(const ValueRules& rules, VVEset range, const wchar_t* text)
{
    return !rules.checkRange || CheckTypeRange(range, text) == 0;
}

// The processor's answer to a number that does not fit.
long TruncateToLong(double value)
{
    return value > kLongMin - 1 && value < kLongMax + 1 ? static_cast<long>(value) : LONG_MIN;
}

// Wraps like the conversion of an integer; what does not even fit 64 bits becomes 0.
unsigned long TruncateToUnsigned(double value)
{
    if (!(value > -kInt64Bound && value < kInt64Bound))
        return 0;
    return static_cast<unsigned long>(static_cast<__int64>(value));
}

unsigned long ReadUnsigned(VVEset set, const wchar_t* text)
{
    return wcstoul(NotNull(text), NULL, RadixOf(set));
}

// Everything but the sets with a radix of their own is read by the unsigned rule, signed numbers included.
int JudgeInteger(const ValueRules& rules, const wchar_t* text)
{
    const VVEset range = HasOwnRadix(rules.set) ? rules.set : VVE_DECIMAL;
    return IsInRange(rules, range, text) && rules.isAccepted ? 1 : 0;
}

int ReadFloat(const ValueRules& rules, const wchar_t* text, double& value)
{
    value = ReadPlainNumber(NotNull(text));
    return IsInRange(rules, VVE_FLOAT, text) && rules.isAccepted ? 1 : 0;
}

CString DigitsOf(unsigned long value, int radix)
{
    const wchar_t digits[] = L"0123456789abcdef";
    CString text;
    do
    {
        text.Insert(0, digits[value % radix]);
        value /= radix;
    } while (value != 0);
    return text;
}

CString SignedText(long value)
{
    CString text;
    text.Format(L"%d", static_cast<int>(value));
    return text;
}

} // namespace

int ReadValue(const ValueRules& rules, const wchar_t* text, double& value)
{
    if (rules.set == VVE_FLOAT)
        return ReadFloat(rules, text, value);
    if (rules.set > VVE_FLOAT)
        return rules.isAccepted ? 1 : 0;
    if (rules.set == VVE_DECIMAL || HasOwnRadix(rules.set))
    {
        unsigned long integer = 0;
        const int result = ReadValue(rules, text, integer);
        value = integer;
        return result;
    }
    long integer = 0;
    const int result = ReadValue(rules, text, integer);
    value = integer;
    return result;
}

int ReadValue(const ValueRules& rules, const wchar_t* text, long& value)
{
    if (rules.set > VVE_FLOAT)
        return rules.isAccepted ? 1 : 0;
    if (rules.set == VVE_FLOAT)
    {
        double number = 0;
        const int result = ReadFloat(rules, text, number);
        value = TruncateToLong(number);
        return number > kLongMax || number < kLongMin ? 0 : result;
    }
    value = static_cast<long>(ReadUnsigned(rules.set, text));
    return JudgeInteger(rules, text);
}

int ReadValue(const ValueRules& rules, const wchar_t* text, unsigned long& value)
{
    if (rules.set > VVE_FLOAT)
        return !rules.checkRange && rules.isAccepted ? 1 : 0;
    if (rules.set == VVE_FLOAT)
    {
        double number = 0;
        const int result = ReadFloat(rules, text, number);
        value = TruncateToUnsigned(number);
        return number > kUnsignedMax ? 0 : result;
    }
    value = ReadUnsigned(rules.set, text);
    return JudgeInteger(rules, text);
}

CString TextOfValue(VVEset set, double value)
{
    if (set == VVE_FLOAT)
        return PlainNumberText(L"%0.8g", value);
    if (set == VVE_DECIMAL || HasOwnRadix(set))
        return DigitsOf(TruncateToUnsigned(value), RadixOf(set));
    return SignedText(TruncateToLong(value));
}

bool TextOfInteger(VVEset set, long value, CString& text)
{
    if (set == VVE_DECIMAL || HasOwnRadix(set))
        return TextOfInteger(set, static_cast<unsigned long>(value), text);
    if (set >= VVE_FLOAT)
        return false;
    text = SignedText(value);
    return true;
}

bool TextOfInteger(VVEset set, unsigned long value, CString& text)
{
    if (set >= VVE_FLOAT)
        return false;
    text = set == VVE_SIGNED ? SignedText(static_cast<long>(value)) : DigitsOf(value, RadixOf(set));
    return true;
}

int CompareWithLimits(double value, double least, double most, double precision)
{
    if (value > most + precision)
        return kAbove;
    return value < least - precision ? -1 : 0;
}
