#include "InputPointManager.h"

AcEdInputPointManager::AcEdInputPointManager() {}

AcEdInputPointManager::~AcEdInputPointManager() {}

namespace arxed
{

Acad::ErrorStatus InputPointManager::addPointMonitor(AcEdInputPointMonitor* monitor)
{
    if (monitor == nullptr)
    {
        return Acad::eInvalidInput;
    }
    if (m_monitors.Has(monitor))
    {
        return Acad::eDuplicateKey;
    }
    m_monitors.Add(monitor);
    return Acad::eOk;
}

Acad::ErrorStatus InputPointManager::removePointMonitor(AcEdInputPointMonitor* monitor)
{
    if (monitor == nullptr)
    {
        return Acad::eInvalidInput;
    }
    if (!m_monitors.Has(monitor))
    {
        return Acad::eKeyNotFound;
    }
    m_monitors.Remove(monitor);
    return Acad::eOk;
}

Acad::ErrorStatus InputPointManager::turnOnForcedPick()
{
    ++m_forcedPicks;
    return Acad::eOk;
}

Acad::ErrorStatus InputPointManager::turnOffForcedPick()
{
    if (m_forcedPicks == 0)
    {
        return Acad::eInvalidInput;
    }
    --m_forcedPicks;
    return Acad::eOk;
}

void InputPointManager::Tell(const AcEdInputPoint& input) const
{
    AcEdInputPointMonitorResult result;
    m_monitors.Tell([&](AcEdInputPointMonitor& monitor) { monitor.monitorInputPoint(input, result); });
}

} // namespace arxed
