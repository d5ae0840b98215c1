#include "list/SortText.h"

#include <wchar.h>
#include <wctype.h>

#include "base/PlainNumber.h"

namespace
{

const wchar_t* EndWithoutBlanks(const wchar_t* text)
{
    const wchar_t* end = text + wcslen(text);
    while (end != text && iswspace(end[-1]))
        --end;
    return end;
}

bool IsDigit(wchar_t ch)
{
    return ch >= L'0' && ch <= L'9'; // iswdigit takes full-width digits, which have no value
}

bool IsSign(wchar_t ch)
{
    return ch == L'-' || ch == L'+';
}

} // namespace

bool IsNumericText(const wchar_t* text)
{
    if (text == NULL)
        return false;
    const wchar_t* const end = EndWithoutBlanks(text);
    if (text == end)
        return false;
    int points = 0;
    for (const wchar_t* at = IsSign(*text) ? text + 1 : text; at != end; ++at)
    {
        points += *at == L'.';
        if (points > 1 || (*at != L'.' && !IsDigit(*at)))
            return false;
    }
    return true;
}

double NumberOfText(const wchar_t* text)
{
    const wchar_t* at = text;
    while (iswspace(*at))
        ++at;
    if (IsSign(*at))
        ++at;
    // Newer C runtimes read "inf", "nan" and hexadecimal numbers, older ones read 0; a NaN would have no place in an
    // order.
    if ((!IsDigit(*at) && *at != L'.') || (at[0] == L'0' && towlower(at[1]) == L'x'))
        return 0;
    return ReadPlainNumber(text);
}

int CompareSortTexts(int mode, const wchar_t* first, const wchar_t* second)
{
    switch (mode)
    {
    case SORT_TEXT_DESCENDING:
        return _wcsicmp(second, first);
    case SORT_TEXT_ASCENDING:
        return _wcsicmp(first, second);
    case SORT_NUMBER_DESCENDING:
        return NumberOfText(second) > NumberOfText(first) ? 1 : 0;
    case SORT_NUMBER_ASCENDING:
        return NumberOfText(first) > NumberOfText(second) ? 1 : 0;
    default:
        return 0;
    }
}
