// The monitors of one document.
#pragma once

#include "acedinpt.h"
#include "arx/rx/ReactorList.h"

namespace arxed
{

class InputPointManager : public AcEdInputPointManager
{
public:
    Acad::ErrorStatus addPointMonitor(AcEdInputPointMonitor* monitor) override;
    Acad::ErrorStatus removePointMonitor(AcEdInputPointMonitor* monitor) override;

    Acad::ErrorStatus turnOnForcedPick() override;
    Acad::ErrorStatus turnOffForcedPick() override;

    bool IsPickForced() const { return m_forcedPicks > 0; }
    void Tell(const AcEdInputPoint& input) const;
    void Clear() { m_monitors.Clear(); }

private:
    arxrx::ReactorList<AcEdInputPointMonitor> m_monitors;
    int m_forcedPicks = 0;
};

} // namespace arxed
