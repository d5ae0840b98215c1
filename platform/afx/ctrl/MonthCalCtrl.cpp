#include "afx/ctrl/MonthCalCtrl.h"

#include "afx/ctrl/TimeRange.h"

IMPLEMENT_DYNAMIC(CMonthCalCtrl, CWnd)

BOOL CMonthCalCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    RegisterDateControls();
    return CWnd::Create(MONTHCAL_CLASS, nullptr, style, rect, parent, id);
}

BOOL CMonthCalCtrl::Create(DWORD style, const POINT& place, CWnd* parent, UINT id)
{
    return Create(style, CRect(place, CSize(0, 0)), parent, id) && SizeMinReq();
}

BOOL CMonthCalCtrl::GetCurSel(CTime& day) const
{
    SYSTEMTIME parts = {};
    if (!GetCurSel(&parts))
        return FALSE;
    // A calendar knows days only, whatever time of day it was given.
    parts.wHour = parts.wMinute = parts.wSecond = parts.wMilliseconds = 0;
    day = CTime(parts);
    return TRUE;
}

BOOL CMonthCalCtrl::SetCurSel(const CTime& day)
{
    SYSTEMTIME parts;
    return day.GetAsSystemTime(parts) && SetCurSel(&parts);
}

BOOL CMonthCalCtrl::GetSelRange(CTime& first, CTime& last) const
{
    TimeRange range;
    if (!::SendMessage(m_hWnd, MCM_GETSELRANGE, 0, LPARAM(range.parts)))
        return FALSE;
    range.Read(GDTR_MIN | GDTR_MAX, &first, &last);
    return TRUE;
}

BOOL CMonthCalCtrl::SetSelRange(const CTime& first, const CTime& last)
{
    TimeRange range;
    return range.Write(&first, &last) == (GDTR_MIN | GDTR_MAX) &&
           ::SendMessage(m_hWnd, MCM_SETSELRANGE, 0, LPARAM(range.parts));
}

DWORD CMonthCalCtrl::GetRange(CTime* least, CTime* most) const
{
    TimeRange range;
    const DWORD limits = static_cast<DWORD>(::SendMessage(m_hWnd, MCM_GETRANGE, 0, LPARAM(range.parts)));
    range.Read(limits, least, most);
    return limits;
}

BOOL CMonthCalCtrl::SetRange(const CTime* least, const CTime* most)
{
    TimeRange range;
    const DWORD limits = range.Write(least, most);
    return static_cast<BOOL>(::SendMessage(m_hWnd, MCM_SETRANGE, limits, LPARAM(range.parts)));
}

BOOL CMonthCalCtrl::GetToday(CTime& day) const
{
    SYSTEMTIME parts = {};
    if (!::SendMessage(m_hWnd, MCM_GETTODAY, 0, LPARAM(&parts)))
        return FALSE;
    day = CTime(parts);
    return TRUE;
}

void CMonthCalCtrl::SetToday(const CTime* day)
{
    SYSTEMTIME parts;
    const bool given = day != nullptr && day->GetAsSystemTime(parts);
    ::SendMessage(m_hWnd, MCM_SETTODAY, 0, LPARAM(given ? &parts : nullptr));
}

int CMonthCalCtrl::GetFirstDayOfWeek(BOOL* local) const
{
    const LRESULT answer = ::SendMessage(m_hWnd, MCM_GETFIRSTDAYOFWEEK, 0, 0);
    if (local != nullptr)
        *local = HIWORD(answer);
    return LOWORD(answer);
}

BOOL CMonthCalCtrl::SetFirstDayOfWeek(int day, int* former)
{
    const LRESULT answer = ::SendMessage(m_hWnd, MCM_SETFIRSTDAYOFWEEK, 0, day);
    if (former != nullptr)
        *former = LOWORD(answer);
    return HIWORD(answer);
}

BOOL CMonthCalCtrl::SizeMinReq(BOOL repaint)
{
    CRect needed;
    if (!GetMinReqRect(&needed))
        return FALSE;
    const UINT flags = SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | (repaint ? 0 : SWP_NOREDRAW);
    return SetWindowPos(nullptr, 0, 0, needed.Width(), needed.Height(), flags);
}
