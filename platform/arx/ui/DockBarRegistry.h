// Every dock bar that has a window.
#pragma once

#include "arx/Api.h"

#include <vector>

class CAdUiDockControlBar;

namespace arxui
{

// In the order of their creation.
ARX_API std::vector<CAdUiDockControlBar*> DockBars();
void AddDockBar(CAdUiDockControlBar* bar);
void RemoveDockBar(CAdUiDockControlBar* bar);

} // namespace arxui
