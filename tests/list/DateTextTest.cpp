// Reading and writing the text of a date cell.
#include <gtest/gtest.h>

#include "list/DateText.h"

#include <string>

namespace
{

struct ReadRow
{
    const char* name;
    const wchar_t* text;
    DateFields expected;
};

std::string Show(const DateFields& f)
{
    std::string text;
    for (const int part : {f.year, f.month, f.day, f.hour, f.minute, f.second})
        text += std::to_string(part) + " ";
    return text;
}

std::string Show(const SYSTEMTIME& m)
{
    return Show(DateFields{m.wYear, m.wMonth, m.wDay, m.wHour, m.wMinute, m.wSecond});
}

struct MomentRow
{
    const char* name;
    DateFields fields;
    bool shown;
    DateFields expected;
};

} // namespace

TEST(DateText, IsReadByItsParts)
{
    const ReadRow rows[] = {
        {"null", nullptr, {2000, 1, 1, 0, 0, 0}},
        {"empty", L"", {2000, 1, 1, 0, 0, 0}},
        {"no separator", L"20160507", {2000, 1, 1, 0, 0, 0}},
        {"year alone", L"2016-", {2016, 1, 1, 0, 0, 0}},
        {"year and half a month", L"2016-05", {2016, 1, 1, 0, 0, 0}},
        {"year and month", L"2016-05-", {2016, 5, 1, 0, 0, 0}},
        {"day of one digit stays the first", L"2016-05-7", {2016, 5, 1, 0, 0, 0}},
        {"all of one digit", L"2016-5-7", {2016, 5, 1, 0, 0, 0}},
        {"full date", L"2016-05-07", {2016, 5, 7, 0, 0, 0}},
        {"day of one digit before a blank", L"2016-5-7 ", {2016, 5, 7, 0, 0, 0}},
        {"hours and minutes are hours alone", L"2016-05-07 10:30", {2016, 5, 7, 10, 0, 0}},
        {"full time", L"2016-05-07 10:30:15", {2016, 5, 7, 10, 30, 15}},
        {"no seconds behind the second colon", L"2016-05-07 10:30:", {2016, 5, 7, 10, 30, 0}},
        {"time without a colon", L"2016-05-07 10", {2016, 5, 7, 0, 0, 0}},
        {"blanks before the time", L"2016-05-07  \t 10:30:15", {2016, 5, 7, 10, 30, 15}},
        {"month 12", L"2016-12-07", {2016, 12, 7, 0, 0, 0}},
        {"month 13 is 0", L"2016-13-07", {2016, 0, 7, 0, 0, 0}},
        {"month 14 is 1", L"2016-14-07", {2016, 1, 7, 0, 0, 0}},
        {"day 31", L"2016-05-31", {2016, 5, 31, 0, 0, 0}},
        {"day 32 is 0", L"2016-05-32", {2016, 5, 0, 0, 0, 0}},
        {"day 33 is 1", L"2016-05-33", {2016, 5, 1, 0, 0, 0}},
        {"day 32 with a time", L"2016-05-32 1:2:3", {2016, 5, 0, 1, 2, 3}},
        {"hour 24 is 0", L"2016-05-07 24:60:60", {2016, 5, 7, 0, 0, 0}},
        {"hour 25 is 1", L"2016-05-07 25:61:62", {2016, 5, 7, 1, 1, 2}},
        {"letters are 0", L"a-b-cc", {0, 0, 0, 0, 0, 0}},
        {"digits before letters count", L"2016y-5m-07d", {2016, 5, 7, 0, 0, 0}},
        {"nothing before the first separator", L"-5-07", {0, 5, 7, 0, 0, 0}},
        {"no day at all", L"2016-05- 10:00:00", {2016, 5, 0, 10, 0, 0}},
    };
    for (const ReadRow& row : rows)
        EXPECT_EQ(Show(row.expected), Show(ReadDateText(row.text))) << row.name;
}

TEST(DateText, NearestMomentIsADayOfTheCalendar)
{
    const MomentRow rows[] = {
        {"as it is", {2016, 5, 7, 10, 30, 15}, true, {2016, 5, 7, 10, 30, 15}},
        {"month 0 is the first", {2016, 0, 7, 0, 0, 0}, true, {2016, 1, 7, 0, 0, 0}},
        {"day 0 is the first", {2016, 5, 0, 0, 0, 0}, true, {2016, 5, 1, 0, 0, 0}},
        {"leap day", {2016, 2, 29, 0, 0, 0}, true, {2016, 2, 29, 0, 0, 0}},
        {"no leap day", {2015, 2, 29, 0, 0, 0}, true, {2015, 3, 1, 0, 0, 0}},
        {"no leap day in 1900", {1900, 2, 29, 0, 0, 0}, true, {1900, 3, 1, 0, 0, 0}},
        {"leap day in 2000", {2000, 2, 30, 0, 0, 0}, true, {2000, 3, 1, 0, 0, 0}},
        {"31 April", {2016, 4, 31, 0, 0, 0}, true, {2016, 5, 1, 0, 0, 0}},
        {"31 December", {2016, 12, 31, 0, 0, 0}, true, {2016, 12, 31, 0, 0, 0}},
        {"negative time", {2016, 5, 7, -3, -1, -5}, true, {2016, 5, 7, 0, 0, 0}},
        {"first year", {1753, 1, 1, 0, 0, 0}, true, {1753, 1, 1, 0, 0, 0}},
        {"before the first year", {1752, 12, 31, 0, 0, 0}, false, {}},
        {"before 1970", {1950, 3, 7, 0, 0, 0}, true, {1950, 3, 7, 0, 0, 0}},
        {"last year", {9999, 12, 31, 23, 59, 59}, true, {9999, 12, 31, 23, 59, 59}},
        {"after the last year", {10000, 1, 1, 0, 0, 0}, false, {}},
        {"year 0", {0, 5, 7, 0, 0, 0}, false, {}},
        {"negative year", {-5, 5, 7, 0, 0, 0}, false, {}},
    };
    for (const MomentRow& row : rows)
    {
        SYSTEMTIME moment = {};
        EXPECT_EQ(row.shown, NearestMoment(row.fields, moment)) << row.name;
        if (row.shown)
        {
            EXPECT_EQ(Show(row.expected), Show(moment)) << row.name;
        }
    }
}

// Where CTime takes the parts, it comes to the same moment.
TEST(DateText, NearestMomentAgreesWithTheFrameworksTime)
{
    for (int month = 1; month <= 12; ++month)
    {
        for (int day = 1; day <= 31; ++day)
        {
            SYSTEMTIME moment = {};
            ASSERT_TRUE(NearestMoment(DateFields{2015, month, day, 12, 0, 0}, moment));
            SYSTEMTIME expected = {};
            ASSERT_TRUE(CTime(2015, month, day, 12, 0, 0).GetAsSystemTime(expected));
            EXPECT_EQ(Show(expected), Show(moment));
        }
    }
}

TEST(DateText, IsWrittenWithoutTheTimeOfDay)
{
    SYSTEMTIME moment = {};
    moment.wYear = 2016;
    moment.wMonth = 5;
    moment.wDay = 7;
    moment.wHour = 10;
    EXPECT_STREQ(L"2016-05-07", DateTextOf(moment));
    moment.wMonth = 12;
    moment.wDay = 31;
    EXPECT_STREQ(L"2016-12-31", DateTextOf(moment));
}
