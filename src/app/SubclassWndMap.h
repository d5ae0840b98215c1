// From a window to the first hook of its chain: there is one such map in the module.
#pragma once

#include <afxwin.h>
#include <afxcoll.h>

class CDySubclassWnd;

class CSubclassWndMap : private CMapPtrToPtr
{
public:
    // Created on first use.
    static CSubclassWndMap& Instance();

    // Puts a detached hook in front of the window's chain. Nothing happens where the window's procedure can't be
    // replaced: there is no such window, or it belongs to another process.
    void Add(HWND hwnd, CDySubclassWnd& hook);

    // Takes an attached hook out of its chain; the last one puts the window's procedure back.
    void Remove(CDySubclassWnd& hook);

private:
    CSubclassWndMap();
    ~CSubclassWndMap(); // detaches what is left, so that no window is sent to a module that is gone

    CSubclassWndMap(const CSubclassWndMap&);
    CSubclassWndMap& operator=(const CSubclassWndMap&);

    CDySubclassWnd* First(HWND hwnd) const;
    void RemoveAll(HWND hwnd);
    LRESULT Dispatch(const MSG& message);
    LRESULT Destroy(const MSG& message);

    static LRESULT CALLBACK HookProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam);
};
