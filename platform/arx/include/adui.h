// The host's dialog and docking library (AdUi). Include the framework's headers first.
#pragma once

#include <afxwin.h>

#include <afxcmn.h>
#include <afxext.h>

#include "arx/Api.h"

// Sent by the host to a modeless dialog that holds the focus, before the host takes the focus back to its command line:
// TRUE keeps the focus in the dialog, FALSE gives it away.
#ifndef WM_ACAD_KEEPFOCUS
#define WM_ACAD_KEEPFOCUS (WM_USER + 0x6D01)
#endif

// Initialises the library; a module that uses it calls this once. More calls do no harm.
ARX_API void InitAdUiDLL();

// Writes the layout of every docking tool that has a tool identifier into the application's profile.
ARX_API void AdUiSaveDockingToolPositions();

#include "aduiBaseDialog.h"
#include "aduiDialog.h"
#include "aduiDock.h"
