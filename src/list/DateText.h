// The text of a date cell. No window is needed.
#pragma once

#include <afxwin.h>

// As written in the text: not every combination is a day of the calendar.
struct DateFields
{
    int year;
    int month;
    int day;
    int hour;
    int minute;
    int second;
};

// Reads "2016-05-07" or "2016-05-07 10:30:15". What is missing keeps the value that it has in 2000-01-01 00:00:00.
// Deliberate: a day of one digit at the end of the text is not read ("2016-05-7" is the 1st), and minutes and seconds
// are read only when both are there ("10:30" is 10:00:00). Month, day and time are cut to their ranges by the
// remainder, so that the month 13 and the day 32 are 0. Null is an empty text.
DateFields ReadDateText(const wchar_t* text);

// The nearest moment of the calendar: a month or a day 0 is the first one, days that a month does not have run into
// the next month, negative times of day are 0. False for years that a date picker cannot show.
bool NearestMoment(const DateFields& fields, SYSTEMTIME& moment);

// "2016-05-07".
CString DateTextOf(const SYSTEMTIME& moment);
