// CTime and CTimeSpan.
#include <afx.h>

#include <gtest/gtest.h>

namespace
{
const LONGLONG kSecondsOfDay = 24 * 60 * 60;

struct BadDate
{
    int year, month, day, hour, minute, second;
};

const BadDate kBadDates[] = {
    {1899, 1, 1, 0, 0, 0},  {2020, 0, 1, 0, 0, 0},  {2020, 13, 1, 0, 0, 0}, {2020, 1, 0, 0, 0, 0},
    {2020, 1, 32, 0, 0, 0}, {2020, 1, 1, 24, 0, 0}, {2020, 1, 1, -1, 0, 0}, {2020, 1, 1, 0, 60, 0},
    {2020, 1, 1, 0, 0, 60}, {2020, 1, 1, 0, 0, -1},
};
} // namespace

TEST(Time, GivesBackItsParts)
{
    const CTime time(2010, 2, 28, 13, 5, 59);
    EXPECT_EQ(2010, time.GetYear());
    EXPECT_EQ(2, time.GetMonth());
    EXPECT_EQ(28, time.GetDay());
    EXPECT_EQ(13, time.GetHour());
    EXPECT_EQ(5, time.GetMinute());
    EXPECT_EQ(59, time.GetSecond());
    EXPECT_EQ(1, time.GetDayOfWeek()) << "a Sunday";
}

TEST(Time, RefusesPartsOutOfTheirRange)
{
    for (const BadDate& row : kBadDates)
        EXPECT_THROW(CTime(row.year, row.month, row.day, row.hour, row.minute, row.second), CInvalidArgException*);
}

TEST(Time, OverlongMonthsRunIntoTheNext)
{
    const CTime time(2010, 2, 30, 0, 0, 0);
    EXPECT_EQ(3, time.GetMonth());
    EXPECT_EQ(2, time.GetDay());
}

TEST(Time, BeforeTheEpochIsInvalid)
{
    const CTime time(1960, 1, 1, 0, 0, 0);
    EXPECT_EQ(-1, time.GetTime());
    EXPECT_EQ(0, time.GetYear());
    EXPECT_EQ(0, time.GetMonth());
    EXPECT_STREQ(L"", time.Format(L"%Y"));
    SYSTEMTIME system;
    EXPECT_FALSE(time.GetAsSystemTime(system));
}

TEST(Time, FormatsAsTheRuntimeDoes)
{
    const CTime time(2010, 2, 3, 4, 5, 6);
    EXPECT_STREQ(L"2010-02-03 04:05:06", time.Format(L"%Y-%m-%d %H:%M:%S"));
    EXPECT_STREQ(L"", time.Format(L""));
    EXPECT_STREQ(L"100%", time.Format(L"100%%"));
    const CString longFormat(L'x', 500);
    EXPECT_STREQ(longFormat, time.Format(longFormat));
    EXPECT_STREQ(L"1970-01-01 00:00:00", CTime(0).FormatGmt(L"%Y-%m-%d %H:%M:%S"));
}

TEST(Time, RoundTripsThroughSystemTime)
{
    const CTime time(2011, 12, 31, 23, 59, 58);
    SYSTEMTIME system;
    ASSERT_TRUE(time.GetAsSystemTime(system));
    EXPECT_EQ(2011, system.wYear);
    EXPECT_EQ(6, system.wDayOfWeek) << "a Saturday";
    EXPECT_EQ(time, CTime(system));
    const SYSTEMTIME zero = {};
    EXPECT_EQ(0, CTime(zero).GetTime());
}

TEST(Time, ReadsFileTimes)
{
    SYSTEMTIME utc = {};
    utc.wYear = 2010;
    utc.wMonth = 7;
    utc.wDay = 15;
    FILETIME file;
    ASSERT_TRUE(::SystemTimeToFileTime(&utc, &file));
    EXPECT_TRUE(CTime::IsValidFILETIME(file));
    const LONGLONG julyFifteenth2010 = 14805;
    EXPECT_EQ(julyFifteenth2010 * kSecondsOfDay, CTime(file).GetTime());
}

TEST(Time, CalculatesWithSpans)
{
    const CTime start(2012, 2, 28, 12, 0, 0);
    const CTime end = start + CTimeSpan(2, 0, 0, 0);
    EXPECT_EQ(3, end.GetMonth());
    EXPECT_EQ(1, end.GetDay());
    EXPECT_EQ(CTimeSpan(2, 0, 0, 0), end - start);
    CTime moving(start);
    moving += CTimeSpan(0, 1, 0, 0);
    EXPECT_TRUE(moving > start && start < moving && moving != start && start <= end);
    moving -= CTimeSpan(0, 1, 0, 0);
    EXPECT_EQ(start, moving);
}

TEST(Time, CurrentTimeIsTheSystems)
{
    const __time64_t before = _time64(NULL);
    const CTime now = CTime::GetCurrentTime();
    EXPECT_GE(now.GetTime(), before);
    EXPECT_LE(now.GetTime(), _time64(NULL));
}

TEST(TimeSpan, SplitsIntoParts)
{
    const CTimeSpan span(3, 4, 5, 6);
    EXPECT_EQ(3, span.GetDays());
    EXPECT_EQ(4, span.GetHours());
    EXPECT_EQ(5, span.GetMinutes());
    EXPECT_EQ(6, span.GetSeconds());
    EXPECT_EQ(76, span.GetTotalHours());
    EXPECT_EQ(76 * 60 + 5, span.GetTotalMinutes());
    EXPECT_EQ(-6, CTimeSpan(0, 0, 0, -6).GetSeconds());
}

TEST(TimeSpan, FormatsItsOwnCodes)
{
    const CTimeSpan span(3, 4, 5, 6);
    EXPECT_STREQ(L"3 days 04:05:06 100%", span.Format(L"%D days %H:%M:%S 100%%"));
    EXPECT_THROW(span.Format(L"%Y"), CInvalidArgException*);
    EXPECT_THROW(span.Format(L"%"), CInvalidArgException*);
    EXPECT_THROW(CTimeSpan(-1).Format(L"%S"), CInvalidArgException*);
}
