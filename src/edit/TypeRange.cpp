#include "edit/TypeRange.h"

#include <cfloat>
#include <cstdlib>
#include <cwchar>

#include "base/PlainNumber.h"

namespace
{

const __int64 kUnsignedMax = 4294967295LL;
const __int64 kSignedMin = -2147483647LL - 1;
const __int64 kSignedMax = 2147483647LL;

const int kRadix = 10;
const size_t kMaxDecimalRun = 11; // ten digits and a sign
const size_t kMaxHexRun = 8;
const size_t kMaxOctalRun = 10; // eleven digits may fit or not
const size_t kMaxBinaryRun = 32;
const wchar_t kLargestOctal[] = L"37777777777";

const wchar_t kDecimalChars[] = L"-+0123456789";
const wchar_t kHexChars[] = L"abcdefABCDEF0123456789";
const wchar_t kOctalChars[] = L"01234567";
const wchar_t kBinaryChars[] = L"01";
const wchar_t kZeroAndBlanks[] = L"0 \t";
const wchar_t kZeroSignsAndBlanks[] = L"0-+ \t";

int Compare(__int64 value, __int64 least, __int64 most)
{
    if (value < least)
        return -1;
    return value > most ? 1 : 0;
}

int CheckDecimal(const wchar_t* text, __int64 least, __int64 most)
{
    const wchar_t* const digits = text + wcsspn(text, kZeroSignsAndBlanks);
    if (wcsspn(digits, kDecimalChars) > kMaxDecimalRun)
        return 1;
    return Compare(_wcstoi64(text, NULL, kRadix), least, most);
}

int CheckRun(const wchar_t* text, const wchar_t* chars, size_t longest)
{
    const wchar_t* const digits = text + wcsspn(text, kZeroAndBlanks);
    return wcsspn(digits, chars) > longest ? 1 : 0;
}

int CheckOctal(const wchar_t* text)
{
    const wchar_t* const digits = text + wcsspn(text, L"0");
    const size_t run = wcsspn(digits, kOctalChars);
    if (run <= kMaxOctalRun)
        return 0;
    // Eleven digits decide: when they are the same, every further digit makes the run the greater text.
    const size_t length = wcslen(kLargestOctal);
    const int order = wcsncmp(digits, kLargestOctal, length);
    return order > 0 || (order == 0 && run > length) ? 1 : 0;
}

int CheckFloat(const wchar_t* text)
{
    const wchar_t* const digits = text + wcsspn(text, kZeroAndBlanks);
    const wchar_t* rest = NULL;
    const double value = ReadPlainNumber(digits, &rest);
    if (wcsstr(rest, L"INF") != NULL || !_finite(value))
        return 1;
    const bool isUnderflow = value == 0 && wcspbrk(digits, L"123456789") != NULL;
    return isUnderflow ? -1 : 0;
}

} // namespace

int CheckTypeRange(VVEset set, const wchar_t* text)
{
    if (text == NULL)
        return 0;
    switch (set)
    {
    case VVE_DECIMAL:
        return CheckDecimal(text, 0, kUnsignedMax);
    case VVE_HEX:
        return CheckRun(text, kHexChars, kMaxHexRun);
    case VVE_OCTAL:
        return CheckOctal(text);
    case VVE_BINARY:
        return CheckRun(text, kBinaryChars, kMaxBinaryRun);
    case VVE_FLOAT:
        return CheckFloat(text);
    default:
        return CheckDecimal(text, kSignedMin, kSignedMax);
    }
}

int CheckTypeRange(VVEset set, double value)
{
    if (!_finite(value))
        return 1;
    double least = static_cast<double>(kSignedMin);
    double most = static_cast<double>(kSignedMax);
    switch (set)
    {
    case VVE_FLOAT:
        return 0;
    case VVE_DECIMAL:
    case VVE_HEX:
    case VVE_OCTAL:
    case VVE_BINARY:
        least = 0;
        most = static_cast<double>(kUnsignedMax);
        break;
    default:
        break;
    }
    if (value < least)
        return -1;
    return value > most ? 1 : 0;
}
