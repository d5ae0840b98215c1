// Messages and structures that windows of the framework exchange among themselves.
#pragma once

#include <afxwin.h>

#define WM_QUERYAFXWNDPROC 0x0360  // result 1 from a window of this framework
#define WM_SIZEPARENT 0x0361       // lParam: AFX_SIZEPARENTPARAMS*
#define WM_SETMESSAGESTRING 0x0362 // wParam: string id or 0, lParam: LPCTSTR when wParam is 0
#define WM_IDLEUPDATECMDUI 0x0363  // wParam: BOOL, disable items without a handler
#define WM_INITIALUPDATE 0x0364    // sent to the views of a frame once everything is created
#define WM_COMMANDHELP 0x0365
#define WM_HELPHITTEST 0x0366
#define WM_EXITHELPMODE 0x0367
#define WM_RECALCPARENT 0x0368
#define WM_SIZECHILD 0x0369
#define WM_KICKIDLE 0x036A // sent to modal windows by other idle loops; result: more idle work wanted
#define WM_QUERYCENTERWND 0x036B
#define WM_DISABLEMODAL 0x036C // sent before a top-level window is disabled; result: stay enabled
#define WM_FLOATSTATUS 0x036D  // wParam: FS_ bits
#define WM_ACTIVATETOPLEVEL 0x036E
#define WM_POPMESSAGESTRING 0x0375

// wParam of WM_FLOATSTATUS.
enum
{
    FS_SHOW = 0x01,
    FS_HIDE = 0x02,
    FS_ACTIVATE = 0x04,
    FS_DEACTIVATE = 0x08,
    FS_ENABLE = 0x10,
    FS_DISABLE = 0x20,
    FS_SYNCACTIVE = 0x40
};

// lParam of WM_SIZEPARENT: the layout of a window's children. Each child that takes an edge moves itself through hDWP
// and takes its part off rect. With hDWP NULL sizes are only asked for.
struct AFX_SIZEPARENTPARAMS
{
    HDWP hDWP;
    RECT rect;      // client coordinates of the parent; what is left
    SIZE sizeTotal; // sum of what was taken
    BOOL bStretch;  // bars cover their whole edge
};

// Moves a child within a layout; rect in client coordinates of its parent. Nothing happens when it is there already.
AFX_API void AFXAPI AfxRepositionWindow(AFX_SIZEPARENTPARAMS* layout, HWND window, LPCRECT rect);
