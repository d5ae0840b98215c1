// The host's framework objects. All null (and acedGetAcadResourceInstance() the host library's own handle) when the
// program runs without a frame.
#pragma once

#include "arx/Api.h"

#include <windows.h>

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
ARX_API HINSTANCE acedGetAcadResourceInstance();

// The frame's window, which is all that other threads may use of it.
extern "C" ARX_API HWND adsw_acadMainWnd();
