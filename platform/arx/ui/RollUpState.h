// Roll-up of a floating palette set as a state machine without a window: while automatic roll-up is on, the set rolls
// up to its caption some time after the cursor left it, and rolls down when the cursor rests on the caption.
//
// Times are milliseconds of a wrapping 32-bit clock (GetTickCount), given by the caller.
#pragma once

#include "arx/Api.h"

#include <windows.h>

namespace arxui
{

class ARX_API RollUpState
{
public:
    enum class Change
    {
        None,
        RolledUp,
        RolledDown
    };

    static const DWORD rollUpDelay = 600;
    static const DWORD rollDownDelay = 200;

    bool IsRolledUp() const { return m_rolledUp; }
    bool IsAutomatic() const { return m_automatic; }

    // Turning automatic roll-up off rolls the set down.
    Change SetAutomatic(bool automatic);

    // Rolls up or down at once (the button of a docked set, a restored layout).
    Change SetRolledUp(bool rolledUp);

    // One look at the cursor. `held` is true while the set must stay open: it has the focus, is dragged or shows a
    // menu.
    Change Observe(bool cursorInside, bool held, DWORD now);

private:
    bool m_automatic = false;
    bool m_rolledUp = false;
    bool m_waiting = false;
    DWORD m_waitingSince = 0;
};

} // namespace arxui
