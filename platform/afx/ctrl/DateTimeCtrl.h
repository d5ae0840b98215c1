// CDateTimeCtrl: a date and time picker.
#pragma once

#include "afx/core/Time.h"
#include "afx/wnd/Wnd.h"

#include <commctrl.h>

class CFont;
class CMonthCalCtrl;

class AFX_API CDateTimeCtrl : public CWnd
{
    DECLARE_DYNCREATE(CDateTimeCtrl)

public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // GDT_VALID, or GDT_NONE when a picker with DTS_SHOWNONE has its box cleared; the time is written only with
    // GDT_VALID. A moment that CTime can't express gives its invalid moment.
    DWORD GetTime(CTime& time) const;
    DWORD GetTime(LPSYSTEMTIME time) const;
    // NULL clears the box of a picker with DTS_SHOWNONE. FALSE: not a time that the picker takes.
    BOOL SetTime(const CTime* time);
    BOOL SetTime(LPSYSTEMTIME time = NULL);

    // Which limits there are: GDTR_MIN, GDTR_MAX. A limit that is not there is the moment 0; NULL sets no limit.
    DWORD GetRange(CTime* least, CTime* most) const;
    BOOL SetRange(const CTime* least, const CTime* most);

    // As "yyyy-MM-dd HH:mm"; NULL brings back the format of the style.
    BOOL SetFormat(LPCTSTR format);

    // The calendar that drops down: NULL (some versions: a hidden one) while it does not; its colours (MCSC_...) and
    // its font, which is borrowed.
    CMonthCalCtrl* GetMonthCalCtrl() const;
    COLORREF GetMonthCalColor(int part) const;
    COLORREF SetMonthCalColor(int part, COLORREF color);
    CFont* GetMonthCalFont() const;
    void SetMonthCalFont(HFONT font, BOOL redraw = TRUE);
};
