// CTime: a moment, in seconds since 1 January 1970 UTC. CTimeSpan: a difference of moments, in seconds.
//
// Parts (year, hour ...) are in local time unless a name says Gmt. A part outside its calendar range throws
// CInvalidArgException; a date that the runtime can't express (before 1970) gives the invalid moment -1, whose parts
// are 0 and whose text is empty.
#pragma once

#include "afx/core/String.h"

#include <time.h>

class AFX_API CTimeSpan
{
public:
    CTimeSpan() : m_timeSpan(0) {}
    CTimeSpan(__time64_t seconds) : m_timeSpan(seconds) {}
    CTimeSpan(LONG days, int hours, int minutes, int seconds);

    LONGLONG GetDays() const;
    LONGLONG GetTotalHours() const;
    LONG GetHours() const; // -23 to 23
    LONGLONG GetTotalMinutes() const;
    LONG GetMinutes() const; // -59 to 59
    LONGLONG GetTotalSeconds() const { return m_timeSpan; }
    LONG GetSeconds() const; // -59 to 59
    __time64_t GetTimeSpan() const { return m_timeSpan; }

    CTimeSpan operator+(CTimeSpan span) const { return CTimeSpan(m_timeSpan + span.m_timeSpan); }
    CTimeSpan operator-(CTimeSpan span) const { return CTimeSpan(m_timeSpan - span.m_timeSpan); }
    CTimeSpan& operator+=(CTimeSpan span);
    CTimeSpan& operator-=(CTimeSpan span);
    bool operator==(CTimeSpan span) const { return m_timeSpan == span.m_timeSpan; }
    bool operator!=(CTimeSpan span) const { return m_timeSpan != span.m_timeSpan; }
    bool operator<(CTimeSpan span) const { return m_timeSpan < span.m_timeSpan; }
    bool operator>(CTimeSpan span) const { return m_timeSpan > span.m_timeSpan; }
    bool operator<=(CTimeSpan span) const { return m_timeSpan <= span.m_timeSpan; }
    bool operator>=(CTimeSpan span) const { return m_timeSpan >= span.m_timeSpan; }

    // %D days, %H hours, %M minutes, %S seconds of a span that is not negative, %% a percent sign; any other throws.
    CString Format(LPCWSTR format) const;
    CString Format(UINT formatId) const;

private:
    __time64_t m_timeSpan;
};

class AFX_API CTime
{
public:
    CTime() : m_time(0) {}
    CTime(__time64_t time) : m_time(time) {}
    // Local time. Month 1 to 12, day 1 to 31, hour 0 to 23. daylight: 1 summer time, 0 standard time, -1 as the system
    // says.
    CTime(int year, int month, int day, int hour, int minute, int second, int daylight = -1);
    // Date and time as a FAT directory packs them; local time, seconds in twos.
    CTime(WORD dosDate, WORD dosTime, int daylight = -1);
    // Local time; a structure of zeros stands for the moment 0.
    CTime(const SYSTEMTIME& local, int daylight = -1);
    CTime(const FILETIME& utc, int daylight = -1);

    static CTime GetCurrentTime();

    // The parts in *parts, or NULL for an invalid moment.
    struct tm* GetGmtTm(struct tm* parts) const;
    struct tm* GetLocalTm(struct tm* parts) const;
    bool GetAsSystemTime(SYSTEMTIME& local) const;

    __time64_t GetTime() const { return m_time; }
    int GetYear() const;
    int GetMonth() const;
    int GetDay() const;
    int GetHour() const;
    int GetMinute() const;
    int GetSecond() const;
    int GetDayOfWeek() const; // 1 Sunday to 7 Saturday

    CTime& operator=(__time64_t time);
    CTime& operator+=(CTimeSpan span);
    CTime& operator-=(CTimeSpan span);
    CTimeSpan operator-(CTime time) const { return CTimeSpan(m_time - time.m_time); }
    CTime operator-(CTimeSpan span) const { return CTime(m_time - span.GetTimeSpan()); }
    CTime operator+(CTimeSpan span) const { return CTime(m_time + span.GetTimeSpan()); }
    bool operator==(CTime time) const { return m_time == time.m_time; }
    bool operator!=(CTime time) const { return m_time != time.m_time; }
    bool operator<(CTime time) const { return m_time < time.m_time; }
    bool operator>(CTime time) const { return m_time > time.m_time; }
    bool operator<=(CTime time) const { return m_time <= time.m_time; }
    bool operator>=(CTime time) const { return m_time >= time.m_time; }

    // As strftime: %Y %m %d %H %M %S ...
    CString Format(LPCWSTR format) const;
    CString Format(UINT formatId) const;
    CString FormatGmt(LPCWSTR format) const;
    CString FormatGmt(UINT formatId) const;

    // TRUE when the moment can be a FILETIME (1601 and later).
    static bool IsValidFILETIME(const FILETIME& utc);

private:
    __time64_t m_time;
};
