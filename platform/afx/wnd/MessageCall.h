// Calls a window message's handler with the arguments that its signature asks for.
#pragma once

#include "afx/wnd/Wnd.h"

// FALSE: the handler left the message to the default processing.
BOOL AfxCallMessageHandler(CWnd* target, const AFX_MSGMAP_ENTRY& entry, const MSG& message, LRESULT* result);

// Argument of a reflected WM_CTLCOLOR, and of the generic one that stands for all kinds.
struct AFX_CTLCOLOR
{
    HWND hWnd;
    HDC hDC;
    UINT nCtlType; // CTLCOLOR_EDIT ...
};
