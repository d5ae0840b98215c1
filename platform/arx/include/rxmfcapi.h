// The host's framework objects. The frame is null when the program runs without one, the view of the current drawing
// as well when no drawing is open. Document and command lines are always null: the host keeps no framework documents,
// and its command line is its own.
#pragma once

#include "arx/Api.h"

#include "arx/WindowsTypes.h"

class CDocument;
class CMDIFrameWnd;
class CView;
class CWinApp;
class CWnd;

ARX_API CWinApp* acedGetAcadWinApp();
ARX_API CDocument* acedGetAcadDoc();
ARX_API CView* acedGetAcadDwgView();
ARX_API CMDIFrameWnd* acedGetAcadFrame();
ARX_API CWnd* acedGetAcadDockCmdLine();
ARX_API CWnd* acedGetAcadTextCmdLine();
// The host library.
ARX_API HINSTANCE acedGetAcadResourceInstance();

// The frame's window, which is all that other threads may use of it; null without a frame.
extern "C" ARX_API HWND adsw_acadMainWnd();
