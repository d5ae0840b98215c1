// Guard: a flag is true while it lives, and has its former value again afterwards.
#pragma once

class CFlagGuard
{
public:
    explicit CFlagGuard(bool& flag) : m_flag(flag), m_before(flag) { m_flag = true; }
    ~CFlagGuard() { m_flag = m_before; }

private:
    CFlagGuard(const CFlagGuard&);
    CFlagGuard& operator=(const CFlagGuard&);

    bool& m_flag;
    bool m_before;
};
