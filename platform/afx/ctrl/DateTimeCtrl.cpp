#include "afx/ctrl/DateTimeCtrl.h"

#include "afx/ctrl/MonthCalCtrl.h"
#include "afx/ctrl/TimeRange.h"
#include "afx/gdi/GdiObject.h"

IMPLEMENT_DYNCREATE(CDateTimeCtrl, CWnd)

BOOL CDateTimeCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    RegisterDateControls();
    return CWnd::Create(DATETIMEPICK_CLASS, nullptr, style, rect, parent, id);
}

DWORD CDateTimeCtrl::GetTime(CTime& time) const
{
    SYSTEMTIME parts;
    const DWORD kind = GetTime(&parts);
    if (kind == GDT_VALID)
        time = CTime(parts);
    return kind;
}

DWORD CDateTimeCtrl::GetTime(LPSYSTEMTIME time) const
{
    return static_cast<DWORD>(::SendMessage(m_hWnd, DTM_GETSYSTEMTIME, 0, LPARAM(time)));
}

BOOL CDateTimeCtrl::SetTime(const CTime* time)
{
    SYSTEMTIME parts;
    if (time == nullptr)
        return SetTime(static_cast<LPSYSTEMTIME>(nullptr));
    return time->GetAsSystemTime(parts) && SetTime(&parts);
}

BOOL CDateTimeCtrl::SetTime(LPSYSTEMTIME time)
{
    SYSTEMTIME none = {}; // a null pointer is refused by some versions, even where no time is meant
    const WPARAM kind = time == nullptr ? GDT_NONE : GDT_VALID;
    return BOOL(::SendMessage(m_hWnd, DTM_SETSYSTEMTIME, kind, LPARAM(time == nullptr ? &none : time)));
}

DWORD CDateTimeCtrl::GetRange(CTime* least, CTime* most) const
{
    TimeRange range;
    const DWORD limits = static_cast<DWORD>(::SendMessage(m_hWnd, DTM_GETRANGE, 0, LPARAM(range.parts)));
    range.Read(limits, least, most);
    return limits;
}

BOOL CDateTimeCtrl::SetRange(const CTime* least, const CTime* most)
{
    TimeRange range;
    const DWORD limits = range.Write(least, most);
    return static_cast<BOOL>(::SendMessage(m_hWnd, DTM_SETRANGE, limits, LPARAM(range.parts)));
}

BOOL CDateTimeCtrl::SetFormat(LPCTSTR format)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, DTM_SETFORMAT, 0, LPARAM(format)));
}

CMonthCalCtrl* CDateTimeCtrl::GetMonthCalCtrl() const
{
    return static_cast<CMonthCalCtrl*>(
        CWnd::FromHandle(reinterpret_cast<HWND>(::SendMessage(m_hWnd, DTM_GETMONTHCAL, 0, 0))));
}

COLORREF CDateTimeCtrl::GetMonthCalColor(int part) const
{
    return static_cast<COLORREF>(::SendMessage(m_hWnd, DTM_GETMCCOLOR, part, 0));
}

COLORREF CDateTimeCtrl::SetMonthCalColor(int part, COLORREF color)
{
    return static_cast<COLORREF>(::SendMessage(m_hWnd, DTM_SETMCCOLOR, part, color));
}

CFont* CDateTimeCtrl::GetMonthCalFont() const
{
    return CFont::FromHandle(reinterpret_cast<HFONT>(::SendMessage(m_hWnd, DTM_GETMCFONT, 0, 0)));
}

void CDateTimeCtrl::SetMonthCalFont(HFONT font, BOOL redraw)
{
    ::SendMessage(m_hWnd, DTM_SETMCFONT, WPARAM(font), redraw);
}
