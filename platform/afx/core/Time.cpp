#include "afx/core/Time.h"

#include "afx/core/Exceptions.h"

#include <string.h>
#include <vector>
#include <wchar.h>

namespace
{
const LONGLONG kSecondsPerMinute = 60;
const LONGLONG kSecondsPerHour = 60 * kSecondsPerMinute;
const LONGLONG kSecondsPerDay = 24 * kSecondsPerHour;

const int kFirstTmYear = 1900;

const size_t kFirstFormatRoom = 128;
const size_t kLastFormatRoom = 65536;

void Require(bool good)
{
    if (!good)
        AfxThrowInvalidArgException();
}

__time64_t MakeTime(int year, int month, int day, int hour, int minute, int second, int daylight)
{
    const int lastMonth = 12, lastDay = 31, lastHour = 23, lastMinute = 59, lastSecond = 59;
    Require(year >= kFirstTmYear && month >= 1 && month <= lastMonth && day >= 1 && day <= lastDay);
    Require(hour >= 0 && hour <= lastHour && minute >= 0 && minute <= lastMinute && second >= 0 &&
            second <= lastSecond);
    struct tm parts = {};
    parts.tm_year = year - kFirstTmYear;
    parts.tm_mon = month - 1;
    parts.tm_mday = day;
    parts.tm_hour = hour;
    parts.tm_min = minute;
    parts.tm_sec = second;
    parts.tm_isdst = daylight;
    return _mktime64(&parts);
}

bool IsZero(const SYSTEMTIME& time)
{
    const SYSTEMTIME zero = {};
    return memcmp(&time, &zero, sizeof(zero)) == 0;
}

__time64_t MakeTime(const SYSTEMTIME& local, int daylight)
{
    return MakeTime(local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute, local.wSecond, daylight);
}

// An empty result is legal, so the format gets one character of its own that is cut off afterwards. Text that doesn't
// fit gives 0, but Wine's runtime fills the room and reports all of it.
CString FormatParts(LPCWSTR format, const struct tm& parts)
{
    const CString marked = CString(format) + L'.';
    for (size_t room = kFirstFormatRoom; room <= kLastFormatRoom; room *= 2)
    {
        std::vector<wchar_t> text(room);
        const size_t length = wcsftime(text.data(), room, marked, &parts);
        if (length > 0 && length < room)
            return CString(text.data(), static_cast<int>(length) - 1);
    }
    return CString();
}

void AppendNumber(CString& text, LONGLONG value, LPCWSTR format)
{
    text.AppendFormat(format, value);
}

void AppendSpanPart(CString& text, wchar_t code, const CTimeSpan& span)
{
    switch (code)
    {
    case L'D':
        AppendNumber(text, span.GetDays(), L"%I64d");
        break;
    case L'H':
        AppendNumber(text, span.GetHours(), L"%02I64d");
        break;
    case L'M':
        AppendNumber(text, span.GetMinutes(), L"%02I64d");
        break;
    case L'S':
        AppendNumber(text, span.GetSeconds(), L"%02I64d");
        break;
    case L'%':
        text.AppendChar(L'%');
        break;
    default:
        AfxThrowInvalidArgException();
    }
}

CString LoadFormat(UINT formatId)
{
    CString format;
    Require(format.LoadString(formatId) != FALSE);
    return format;
}
} // namespace

CTimeSpan::CTimeSpan(LONG days, int hours, int minutes, int seconds)
    : m_timeSpan(days * kSecondsPerDay + hours * kSecondsPerHour + minutes * kSecondsPerMinute + seconds)
{
}

LONGLONG CTimeSpan::GetDays() const
{
    return m_timeSpan / kSecondsPerDay;
}

LONGLONG CTimeSpan::GetTotalHours() const
{
    return m_timeSpan / kSecondsPerHour;
}

LONG CTimeSpan::GetHours() const
{
    return static_cast<LONG>(m_timeSpan % kSecondsPerDay / kSecondsPerHour);
}

LONGLONG CTimeSpan::GetTotalMinutes() const
{
    return m_timeSpan / kSecondsPerMinute;
}

LONG CTimeSpan::GetMinutes() const
{
    return static_cast<LONG>(m_timeSpan % kSecondsPerHour / kSecondsPerMinute);
}

LONG CTimeSpan::GetSeconds() const
{
    return static_cast<LONG>(m_timeSpan % kSecondsPerMinute);
}

CTimeSpan& CTimeSpan::operator+=(CTimeSpan span)
{
    m_timeSpan += span.m_timeSpan;
    return *this;
}

CTimeSpan& CTimeSpan::operator-=(CTimeSpan span)
{
    m_timeSpan -= span.m_timeSpan;
    return *this;
}

CString CTimeSpan::Format(LPCWSTR format) const
{
    Require(format != NULL && m_timeSpan >= 0);
    CString text;
    for (; *format != 0; ++format)
    {
        if (*format == L'%')
            AppendSpanPart(text, *++format, *this);
        else
            text.AppendChar(*format);
    }
    return text;
}

CString CTimeSpan::Format(UINT formatId) const
{
    return Format(LoadFormat(formatId).GetString());
}

CTime::CTime(int year, int month, int day, int hour, int minute, int second, int daylight)
    : m_time(MakeTime(year, month, day, hour, minute, second, daylight))
{
}

CTime::CTime(WORD dosDate, WORD dosTime, int daylight) : m_time(0)
{
    FILETIME packed;
    SYSTEMTIME local;
    Require(::DosDateTimeToFileTime(dosDate, dosTime, &packed) && ::FileTimeToSystemTime(&packed, &local));
    m_time = MakeTime(local, daylight);
}

CTime::CTime(const SYSTEMTIME& local, int daylight) : m_time(IsZero(local) ? 0 : MakeTime(local, daylight)) {}

CTime::CTime(const FILETIME& utc, int daylight) : m_time(0)
{
    FILETIME localFileTime;
    SYSTEMTIME local;
    Require(::FileTimeToLocalFileTime(&utc, &localFileTime) && ::FileTimeToSystemTime(&localFileTime, &local));
    m_time = MakeTime(local, daylight);
}

CTime CTime::GetCurrentTime()
{
    return CTime(::_time64(NULL));
}

struct tm* CTime::GetGmtTm(struct tm* parts) const
{
    const struct tm* found = parts == NULL || m_time < 0 ? NULL : _gmtime64(&m_time);
    if (found == NULL)
        return NULL;
    *parts = *found;
    return parts;
}

struct tm* CTime::GetLocalTm(struct tm* parts) const
{
    const struct tm* found = parts == NULL || m_time < 0 ? NULL : _localtime64(&m_time);
    if (found == NULL)
        return NULL;
    *parts = *found;
    return parts;
}

bool CTime::GetAsSystemTime(SYSTEMTIME& local) const
{
    struct tm parts;
    if (GetLocalTm(&parts) == NULL)
        return false;
    local.wYear = static_cast<WORD>(parts.tm_year + kFirstTmYear);
    local.wMonth = static_cast<WORD>(parts.tm_mon + 1);
    local.wDayOfWeek = static_cast<WORD>(parts.tm_wday);
    local.wDay = static_cast<WORD>(parts.tm_mday);
    local.wHour = static_cast<WORD>(parts.tm_hour);
    local.wMinute = static_cast<WORD>(parts.tm_min);
    local.wSecond = static_cast<WORD>(parts.tm_sec);
    local.wMilliseconds = 0;
    return true;
}

int CTime::GetYear() const
{
    struct tm parts;
    return GetLocalTm(&parts) == NULL ? 0 : parts.tm_year + kFirstTmYear;
}

int CTime::GetMonth() const
{
    struct tm parts;
    return GetLocalTm(&parts) == NULL ? 0 : parts.tm_mon + 1;
}

int CTime::GetDay() const
{
    struct tm parts;
    return GetLocalTm(&parts) == NULL ? 0 : parts.tm_mday;
}

int CTime::GetHour() const
{
    struct tm parts;
    return GetLocalTm(&parts) == NULL ? 0 : parts.tm_hour;
}

int CTime::GetMinute() const
{
    struct tm parts;
    return GetLocalTm(&parts) == NULL ? 0 : parts.tm_min;
}

int CTime::GetSecond() const
{
    struct tm parts;
    return GetLocalTm(&parts) == NULL ? 0 : parts.tm_sec;
}

int CTime::GetDayOfWeek() const
{
    struct tm parts;
    return GetLocalTm(&parts) == NULL ? 0 : parts.tm_wday + 1;
}

CTime& CTime::operator=(__time64_t time)
{
    m_time = time;
    return *this;
}

CTime& CTime::operator+=(CTimeSpan span)
{
    m_time += span.GetTimeSpan();
    return *this;
}

CTime& CTime::operator-=(CTimeSpan span)
{
    m_time -= span.GetTimeSpan();
    return *this;
}

CString CTime::Format(LPCWSTR format) const
{
    struct tm parts;
    return format == NULL || GetLocalTm(&parts) == NULL ? CString() : FormatParts(format, parts);
}

CString CTime::Format(UINT formatId) const
{
    return Format(LoadFormat(formatId).GetString());
}

CString CTime::FormatGmt(LPCWSTR format) const
{
    struct tm parts;
    return format == NULL || GetGmtTm(&parts) == NULL ? CString() : FormatParts(format, parts);
}

CString CTime::FormatGmt(UINT formatId) const
{
    return FormatGmt(LoadFormat(formatId).GetString());
}

bool CTime::IsValidFILETIME(const FILETIME& utc)
{
    FILETIME local;
    SYSTEMTIME parts;
    return ::FileTimeToLocalFileTime(&utc, &local) && ::FileTimeToSystemTime(&local, &parts);
}
