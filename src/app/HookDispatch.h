// A message on its way through a chain of hooks.
//
// Hooks come and go while their chain is running. A hook that left may still want to pass the message on, so its place
// is kept here until the message is done: the hook behind it and the window's own procedure.
#pragma once

#include <afxwin.h>

#include <vector>

class CDySubclassWnd;

class CHookDispatch
{
public:
    // The message is on its way as long as the object lives. Objects nest.
    explicit CHookDispatch(HWND hwnd);
    ~CHookDispatch();

    // Keeps the place of a hook that is about to leave its chain. The hook must still be linked.
    static void Leave(CDySubclassWnd& hook);

    // Forgets a hook whose object goes.
    static void Forget(const CDySubclassWnd& hook);

    // The window is gone: what is on its way to it ends.
    static void EndOf(HWND hwnd);

    // Passes the current message on for a hook that left its chain during it. False: it did not leave.
    static bool PassOn(const CDySubclassWnd& hook, UINT msg, WPARAM wParam, LPARAM lParam, LRESULT& result);

private:
    struct Place
    {
        const CDySubclassWnd* hook;
        CDySubclassWnd* next;
        WNDPROC previous;
    };

    CHookDispatch(const CHookDispatch&);
    CHookDispatch& operator=(const CHookDispatch&);

    const Place* PlaceOf(const CDySubclassWnd& hook) const;
    void Keep(CDySubclassWnd& hook);

    static CHookDispatch* s_innermost;

    CHookDispatch* m_outer;
    HWND m_hwnd; // null when the window is gone
    std::vector<Place> m_left;
};
