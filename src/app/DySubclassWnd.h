// A hook that is attached to any window at run time and sees every message of it before the window's own procedure.
//
//     class CWheelStopper : public CDySubclassWnd
//     {
//     protected:
//         virtual LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam)
//         {
//             return msg == WM_MOUSEWHEEL ? 0 : CDySubclassWnd::WindowProc(msg, wParam, lParam);
//         }
//     };
//
//     m_stopper.HookWindow(hwndOfSomebodyElse);
//     m_stopper.HookWindow(NULL); // lets go again
//
// Any number of hooks may be attached to one window; the newest sees a message first. A hook is detached by itself when
// its window is destroyed: it does not see WM_NCDESTROY. Its object stays the owner's.
//
// Hooks may be attached, detached and deleted while a message is on its way through their chain, the running hook by
// itself included, and the window may be destroyed: the rest of the chain sees the message, as far as it still exists,
// when the running hook passes it on. A hook that is attached meanwhile sees the next message. Only a hook that deletes
// itself can't pass its message on.
//
// The first hook takes the place of the window's procedure and the last one puts it back. Whoever subclassed the window
// in between is cut off then: detach before him.
//
// All of it belongs to the thread of the user interface; nothing is locked.
#pragma once

#include <afxwin.h>

#include "base/ZnktApi.h"

class ZNKT_API CDySubclassWnd : public CObject
{
    DECLARE_DYNAMIC(CDySubclassWnd)

public:
    CDySubclassWnd();
    virtual ~CDySubclassWnd(); // detaches

    // Attaches the hook as the first of the window's chain; a hook that is attached already leaves its place first.
    // Null detaches. A handle that is no window of this process leaves the hook detached. The result is always nonzero.
    BOOL HookWindow(HWND hwnd);

    // The window that the hook is attached to; null when it is detached.
    HWND GetHookedWindow() const { return m_hooked; }

protected:
    // Sees a message first. The default passes it on: to the next hook, behind the last one to the window's own
    // procedure. Overrides call it for everything that they do not handle. A hook that was never attached answers 0.
    virtual LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam);

    // Passes on the message that is being dispatched, as the default WindowProc does.
    LRESULT Default();

private:
    friend class CSubclassWndMap;
    friend class CHookDispatch;

    CDySubclassWnd(const CDySubclassWnd&);
    CDySubclassWnd& operator=(const CDySubclassWnd&);

    HWND m_hooked;
    WNDPROC m_previous; // the window's procedure before the first hook of the chain came; the same for all of them
    CDySubclassWnd* m_next;
    bool m_wasHooked; // a hook that never was attached may live on any thread
};
