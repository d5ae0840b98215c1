// What pickers and calendars of dates have in common.
#pragma once

#include "afx/core/Time.h"

#include <commctrl.h>

// The common controls register the classes of dates only when they are asked to.
inline void RegisterDateControls()
{
    const INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_DATE_CLASSES};
    ::InitCommonControlsEx(&classes);
}

// Two limits as the controls keep them, and as moments. The flags are GDTR_MIN and GDTR_MAX.
struct TimeRange
{
    SYSTEMTIME parts[2] = {};

    DWORD Write(const CTime* least, const CTime* most)
    {
        DWORD limits = 0;
        if (least != nullptr && least->GetAsSystemTime(parts[0]))
            limits |= GDTR_MIN;
        if (most != nullptr && most->GetAsSystemTime(parts[1]))
            limits |= GDTR_MAX;
        return limits;
    }

    void Read(DWORD limits, CTime* least, CTime* most) const
    {
        if (least != nullptr)
            *least = (limits & GDTR_MIN) != 0 ? CTime(parts[0]) : CTime();
        if (most != nullptr)
            *most = (limits & GDTR_MAX) != 0 ? CTime(parts[1]) : CTime();
    }
};
