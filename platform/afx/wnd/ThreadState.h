// State that the framework keeps per thread and for the process, under the documented names.
#pragma once

#include "afx/core/Geometry.h"

#include <commctrl.h>

class CDynLinkLibrary;
class CToolTipCtrl;
class CWinApp;
class CWinThread;
class CWnd;

class AFX_API _AFX_THREAD_STATE
{
public:
    MSG m_lastSentMsg = {}; // the message being dispatched to a window of the framework; CWnd::Default() uses it

    MSG m_msgCur = {}; // the last message taken from the queue
    CPoint m_ptCursorLast;
    UINT m_nMsgLast = 0;

    CWnd* m_pWndInit = nullptr; // the object that waits for its window during creation
    HHOOK m_hHookOldCbtFilter = nullptr;
    HHOOK m_hHookOldMsgFilter = nullptr;

    HMENU m_hTrackingMenu = nullptr; // popup menu being tracked by CMenu::TrackPopupMenu
    HWND m_hTrackingWindow = nullptr;

    CWinThread* m_pCurrentWinThread = nullptr;
    HWND m_hLockoutNotifyWindow = nullptr; // this window gets no notifications (validation shows a message box)
    int m_nTempMapLock = 0;                // temporary objects are kept while it isn't 0

    CToolTipCtrl* m_pToolTip = nullptr; // tip of the windows with EnableToolTips()
    CWnd* m_pLastHit = nullptr;
    INT_PTR m_nLastHit = -1; // what OnToolHitTest found
    TOOLINFO m_lastInfo = {};
};

// State of the module that the framework serves. One state serves all modules here, as in a process whose modules are
// extension DLLs of one program.
class AFX_API AFX_MODULE_STATE
{
public:
    CWinApp* m_pCurrentWinApp = nullptr;
    HINSTANCE m_hCurrentInstanceHandle = nullptr;
    LPCTSTR m_lpszCurrentAppName = nullptr;
    BYTE m_bDLL = FALSE;
    CDynLinkLibrary* m_libraryList = nullptr; // extension modules, the newest first
};

AFX_API _AFX_THREAD_STATE* AFXAPI AfxGetThreadState();
AFX_API AFX_MODULE_STATE* AFXAPI AfxGetModuleState();
AFX_API AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState();
AFX_API AFX_MODULE_STATE* AFXAPI AfxGetAppModuleState();

// There is one module state, so there is nothing to switch.
#define AFX_MANAGE_STATE(state) (void)(state);

// Temporary objects (CWnd::FromHandle and its kin) live until the thread is idle. Locks nest.
AFX_API void AFXAPI AfxLockTempMaps();
// The end of the last lock deletes the temporary objects, unless deleteTemps is FALSE. TRUE: another lock is left.
AFX_API BOOL AFXAPI AfxUnlockTempMaps(BOOL deleteTemps = TRUE);
