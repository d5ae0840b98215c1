#include "list/DateText.h"

#include <algorithm>

#include <stdlib.h>

namespace
{

const wchar_t kDateSeparator = L'-';
const wchar_t kTimeSeparator = L':';
const wchar_t kBlank = L' ';
const wchar_t kDateFormat[] = L"%04d-%02d-%02d";

const int kMonths = 12;
const int kDayMask = 31;
const int kHours = 24;
const int kSixty = 60;
const DateFields kDefaults = {2000, 1, 1, 0, 0, 0};

// Date pickers begin with the first full year of the Gregorian calendar in use today, and end with four digits.
const int kFirstYear = 1753;
const int kLastYear = 9999;

// Cuts what stands before the separator off the text. False, and nothing cut, when there is none.
bool CutBefore(CString& text, wchar_t separator, CString& before)
{
    const int place = text.Find(separator);
    if (place < 0)
        return false;
    before = text.Left(place);
    text = text.Mid(place + 1);
    return true;
}

void ReadTime(CString text, DateFields& fields)
{
    CString part;
    if (!CutBefore(text, kTimeSeparator, part))
        return;
    fields.hour = _wtoi(part) % kHours;
    if (!CutBefore(text, kTimeSeparator, part))
        return;
    fields.minute = _wtoi(part) % kSixty;
    fields.second = _wtoi(text) % kSixty;
}

int DaysOf(int year, int month)
{
    static const int days[kMonths] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool isLeap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return days[month - 1] + (isLeap && month == 2 ? 1 : 0);
}

} // namespace

DateFields ReadDateText(const wchar_t* text)
{
    DateFields fields = kDefaults;
    CString rest(text);
    CString part;
    if (!CutBefore(rest, kDateSeparator, part))
        return fields;
    fields.year = _wtoi(part);
    if (!CutBefore(rest, kDateSeparator, part))
        return fields;
    fields.month = _wtoi(part) % (kMonths + 1);
    if (CutBefore(rest, kBlank, part))
    {
        fields.day = _wtoi(part) & kDayMask;
        ReadTime(rest.TrimLeft(), fields);
    }
    else if (rest.GetLength() > 1)
    {
        fields.day = _wtoi(rest) & kDayMask;
    }
    return fields;
}

bool NearestMoment(const DateFields& fields, SYSTEMTIME& moment)
{
    if (fields.year < kFirstYear || fields.year > kLastYear)
        return false;
    int month = std::max(fields.month, 1);
    int day = std::max(fields.day, 1);
    // December has as many days as can be written, so that the year never runs over.
    if (day > DaysOf(fields.year, month))
        day -= DaysOf(fields.year, month++);
    const SYSTEMTIME none = {};
    moment = none;
    moment.wYear = static_cast<WORD>(fields.year);
    moment.wMonth = static_cast<WORD>(month);
    moment.wDay = static_cast<WORD>(day);
    moment.wHour = static_cast<WORD>(std::max(fields.hour, 0));
    moment.wMinute = static_cast<WORD>(std::max(fields.minute, 0));
    moment.wSecond = static_cast<WORD>(std::max(fields.second, 0));
    return true;
}

CString DateTextOf(const SYSTEMTIME& moment)
{
    CString text;
    text.Format(kDateFormat, moment.wYear, moment.wMonth, moment.wDay);
    return text;
}
