#include "base/PlainNumber.h"

#include <clocale>
#include <cwchar>

namespace
{

const wchar_t kPoint = L'.';
const wchar_t kEndOfNumber = L';';

wchar_t LocalPoint()
{
    return static_cast<unsigned char>(*localeconv()->decimal_point);
}

} // namespace

double ReadPlainNumber(const wchar_t* text, const wchar_t** rest)
{
    CString local(text);
    const wchar_t point = LocalPoint();
    if (point != kPoint)
    {
        local.Replace(point, kEndOfNumber);
        local.Replace(kPoint, point);
    }
    const wchar_t* const begin = local;
    wchar_t* end = NULL;
    const double value = wcstod(begin, &end);
    if (rest != NULL)
        *rest = text + (end - begin);
    return value;
}

CString PlainNumberText(const wchar_t* format, double value)
{
    CString text;
    text.Format(format, value);
    text.Replace(LocalPoint(), kPoint);
    return text;
}
