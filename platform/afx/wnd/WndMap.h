// The calling thread's map from windows to their objects. Only the framework's own rooms use it.
#pragma once

#include "afx/core/HandleMap.h"
#include "afx/wnd/Wnd.h"

CHandleMap<CWnd, HWND>& AfxWndMap();
