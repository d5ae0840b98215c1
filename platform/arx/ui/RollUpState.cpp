#include "arx/ui/RollUpState.h"

namespace arxui
{

RollUpState::Change RollUpState::SetAutomatic(bool automatic)
{
    m_automatic = automatic;
    m_waiting = false;
    return automatic ? Change::None : SetRolledUp(false);
}

RollUpState::Change RollUpState::SetRolledUp(bool rolledUp)
{
    m_waiting = false;
    if (m_rolledUp == rolledUp)
        return Change::None;
    m_rolledUp = rolledUp;
    return rolledUp ? Change::RolledUp : Change::RolledDown;
}

RollUpState::Change RollUpState::Observe(bool cursorInside, bool held, DWORD now)
{
    const bool wantsOpen = cursorInside || held;
    if (!m_automatic || wantsOpen != m_rolledUp)
    {
        m_waiting = false;
        return Change::None;
    }
    if (!m_waiting)
    {
        m_waiting = true;
        m_waitingSince = now;
    }
    // The difference is right across the clock's wrap as well.
    if (now - m_waitingSince < (m_rolledUp ? rollDownDelay : rollUpDelay))
        return Change::None;
    return SetRolledUp(!m_rolledUp);
}

} // namespace arxui
