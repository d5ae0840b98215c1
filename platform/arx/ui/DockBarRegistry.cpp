#include "arx/ui/DockBarRegistry.h"

#include <algorithm>

namespace arxui
{
namespace
{

std::vector<CAdUiDockControlBar*>& Bars()
{
    static std::vector<CAdUiDockControlBar*> bars;
    return bars;
}

} // namespace

std::vector<CAdUiDockControlBar*> DockBars()
{
    return Bars();
}

void AddDockBar(CAdUiDockControlBar* bar)
{
    Bars().push_back(bar);
}

void RemoveDockBar(CAdUiDockControlBar* bar)
{
    std::vector<CAdUiDockControlBar*>& bars = Bars();
    bars.erase(std::remove(bars.begin(), bars.end(), bar), bars.end());
}

} // namespace arxui
