// Asks whether to stop for every so many steps only, which costs next to nothing.
#pragma once

#include "Checks.h"

namespace drawing_check
{

class StopPoll
{
public:
    explicit StopPoll(const Stop& stop) : m_stop(stop) {}

    // True from the moment on at which it was told to stop.
    bool operator()()
    {
        constexpr unsigned kSteps = 256;
        if (!m_stopped && m_steps++ % kSteps == 0)
            m_stopped = m_stop && m_stop();
        return m_stopped;
    }

private:
    const Stop& m_stop;
    unsigned m_steps = 0;
    bool m_stopped = false;
};

} // namespace drawing_check
