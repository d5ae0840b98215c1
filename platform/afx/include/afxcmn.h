// Common controls.
#pragma once

#include <afxwin.h>
#include <commctrl.h>

#include "afx/ctrl/HeaderCtrl.h"
#include "afx/ctrl/ListCtrl.h"
#include "afx/ctrl/RichEditCtrl.h"
#include "afx/ctrl/TabCtrl.h"
#include "afx/ctrl/ToolTipCtrl.h"
#include "afx/ctrl/TreeCtrl.h"
#include "afx/gdi/ImageList.h"
