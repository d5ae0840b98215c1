// Controls of dates and times.
#pragma once

#include <afxwin.h>
#include <commctrl.h>

#include "afx/ctrl/DateTimeCtrl.h"
#include "afx/ctrl/MonthCalCtrl.h"
