// GDI+ itself, whose header was written for the macros min and max, and its time of use in this process.
#pragma once

#include "afx/core/Api.h"

#include <algorithm>
#include <objidl.h>

namespace Gdiplus
{
using std::max;
using std::min;
} // namespace Gdiplus
#include <gdiplus.h>

// Counts those who may use GDI+: it is started on demand and shut down when the last of them leaves. All threads share
// it.
class CGdiPlusSession
{
public:
    static void Join();
    static void Leave();
    // False when the system refuses.
    static bool Start();
    static void Stop();
    static bool IsStarted();
};
