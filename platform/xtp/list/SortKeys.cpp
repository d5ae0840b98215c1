#include "xtp/list/SortKeys.h"

#include "afx/core/Api.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include <oleauto.h>
#include <wchar.h>

namespace
{
const double kBeforeEveryDate = -std::numeric_limits<double>::max();

double ReadNumber(const wchar_t* text)
{
    const double number = wcstod(text, nullptr);
    // The C runtime here reads "nan", which has no place in an order.
    return std::isnan(number) ? 0 : number;
}

bool IsDateSeparator(wchar_t c)
{
    return c == L'-' || c == L'/' || c == L'.';
}

// "12:30" or "12:30:05", with blanks around; true when the whole text is one.
bool ReadTime(const wchar_t* text, SYSTEMTIME& time)
{
    int hour = 0;
    int minute = 0;
    int second = 0;
    int used = 0;
    if (swscanf(text, L" %d:%d:%d %n", &hour, &minute, &second, &used) < 3)
    {
        second = 0;
        used = 0;
        if (swscanf(text, L" %d:%d %n", &hour, &minute, &used) < 2)
            return false;
    }
    if (text[used] != L'\0' || hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 59)
        return false;
    time.wHour = static_cast<WORD>(hour);
    time.wMinute = static_cast<WORD>(minute);
    time.wSecond = static_cast<WORD>(second);
    return true;
}

// Year first, the same separator twice, and a time or nothing after it.
bool ReadYearFirst(const wchar_t* text, SYSTEMTIME& time)
{
    int year = 0;
    int month = 0;
    int day = 0;
    wchar_t separators[2] = {};
    int used = 0;
    if (swscanf(text, L" %4d%lc%2d%lc%2d %n", &year, &separators[0], &month, &separators[1], &day, &used) < 5)
        return false;
    const int firstYear = 100; // below it the text may have the day first
    if (!IsDateSeparator(separators[0]) || separators[0] != separators[1] || year < firstYear || month < 1 || day < 1)
        return false;
    time.wYear = static_cast<WORD>(year);
    time.wMonth = static_cast<WORD>(month);
    time.wDay = static_cast<WORD>(day);
    return text[used] == L'\0' || ReadTime(text + used, time);
}

// False for a day that its month lacks: the conversion would take it for one of the next month.
bool ToCalendarDate(SYSTEMTIME time, double& date)
{
    SYSTEMTIME back = {};
    return SystemTimeToVariantTime(&time, &date) && VariantTimeToSystemTime(date, &back) && back.wDay == time.wDay &&
           back.wMonth == time.wMonth;
}
} // namespace

namespace xtp
{
SortKey MakeSortKey(const wchar_t* text, XTSortType type)
{
    SortKey key = {std::wstring(), 0, 0};
    switch (type)
    {
    case xtSortInt:
        key.integer = wcstoll(text, nullptr, 10);
        break;
    case xtSortFloat:
        key.number = ReadNumber(text);
        break;
    case xtSortDateTime:
        key.number = ReadDate(text, kBeforeEveryDate);
        break;
    case xtSortString:
        key.text = text;
        break;
    }
    return key;
}

std::vector<size_t> SortOrder(const std::vector<SortKey>& keys, bool ascending, XTSortType type)
{
    const auto less = [&keys, type](size_t left, size_t right) {
        if (type == xtSortString)
            return keys[left].text < keys[right].text;
        if (type == xtSortInt)
            return keys[left].integer < keys[right].integer;
        return keys[left].number < keys[right].number;
    };
    std::vector<size_t> order(keys.size());
    std::iota(order.begin(), order.end(), size_t(0));
    if (ascending)
        std::stable_sort(order.begin(), order.end(), less);
    else
        std::stable_sort(order.begin(), order.end(), [&less](size_t left, size_t right) { return less(right, left); });
    return order;
}

double ReadDate(const wchar_t* text, double fallback)
{
    SYSTEMTIME time = {};
    double date = 0;
    if (ReadYearFirst(text, time) && ToCalendarDate(time, date))
        return date;
    // What began as a date year first must not pass as another one by the locale's rules.
    if (time.wYear != 0)
        return fallback;
    if (ReadTime(text, time))
    {
        const double minutes = 60.0;
        const double seconds = 3600.0;
        const double hours = 24.0;
        return (time.wHour + time.wMinute / minutes + time.wSecond / seconds) / hours;
    }
    return SUCCEEDED(VarDateFromStr(const_cast<wchar_t*>(text), LOCALE_USER_DEFAULT, 0, &date)) ? date : fallback;
}
} // namespace xtp
