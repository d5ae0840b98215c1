// CMonthCalCtrl: a calendar of one or several months.
#pragma once

#include "afx/core/Time.h"
#include "afx/wnd/Wnd.h"

#include <commctrl.h>

class AFX_API CMonthCalCtrl : public CWnd
{
    DECLARE_DYNAMIC(CMonthCalCtrl)

public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    virtual BOOL Create(DWORD style, const POINT& place, CWnd* parent, UINT id);

    // The selected day of a calendar without MCS_MULTISELECT. FALSE on failure.
    BOOL GetCurSel(CTime& day) const;
    BOOL GetCurSel(LPSYSTEMTIME day) const { return BOOL(::SendMessage(m_hWnd, MCM_GETCURSEL, 0, LPARAM(day))); }
    BOOL SetCurSel(const CTime& day);
    BOOL SetCurSel(const LPSYSTEMTIME day) { return BOOL(::SendMessage(m_hWnd, MCM_SETCURSEL, 0, LPARAM(day))); }

    // The selected days of one with MCS_MULTISELECT, and how many they may be.
    BOOL GetSelRange(CTime& first, CTime& last) const;
    BOOL SetSelRange(const CTime& first, const CTime& last);
    int GetMaxSelCount() const { return static_cast<int>(::SendMessage(m_hWnd, MCM_GETMAXSELCOUNT, 0, 0)); }
    BOOL SetMaxSelCount(int days) { return static_cast<BOOL>(::SendMessage(m_hWnd, MCM_SETMAXSELCOUNT, days, 0)); }

    // As those of CDateTimeCtrl.
    DWORD GetRange(CTime* least, CTime* most) const;
    BOOL SetRange(const CTime* least, const CTime* most);

    BOOL GetToday(CTime& day) const;
    void SetToday(const CTime* day);
    // 0 is Monday. The former day; *local: whether it is not the one of the system's settings.
    int GetFirstDayOfWeek(BOOL* local = NULL) const;
    BOOL SetFirstDayOfWeek(int day, int* former = NULL);

    // Months that the arrows move by, 0: as many as are shown.
    int GetMonthDelta() const { return static_cast<int>(::SendMessage(m_hWnd, MCM_GETMONTHDELTA, 0, 0)); }
    int SetMonthDelta(int months) { return static_cast<int>(::SendMessage(m_hWnd, MCM_SETMONTHDELTA, months, 0)); }

    // Look. MCSC_... name the parts.
    COLORREF GetColor(int part) const { return COLORREF(::SendMessage(m_hWnd, MCM_GETCOLOR, part, 0)); }
    COLORREF SetColor(int part, COLORREF color) { return COLORREF(::SendMessage(m_hWnd, MCM_SETCOLOR, part, color)); }
    BOOL GetMinReqRect(RECT* rect) const { return BOOL(::SendMessage(m_hWnd, MCM_GETMINREQRECT, 0, LPARAM(rect))); }
    BOOL SizeMinReq(BOOL repaint = TRUE);
    DWORD HitTest(PMCHITTESTINFO info)
    {
        return static_cast<DWORD>(::SendMessage(m_hWnd, MCM_HITTEST, 0, LPARAM(info)));
    }
    BOOL SetDayState(int months, LPMONTHDAYSTATE states)
    {
        return BOOL(::SendMessage(m_hWnd, MCM_SETDAYSTATE, months, LPARAM(states)));
    }
};
