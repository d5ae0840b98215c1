// The message loop of a modal window.
#pragma once

#include "afx/wnd/Wnd.h"

class ModalPump
{
public:
    ModalPump(CWnd& window, DWORD flags); // MLF_ flags

    void Idle();
    bool Pump();

private:
    void Show();
    static bool IsShowMessage(const MSG& message);

    CWnd& m_window;
    DWORD m_flags;
    HWND m_parent;
    bool m_showPending;
    LPARAM m_idleCount = 0;
};
