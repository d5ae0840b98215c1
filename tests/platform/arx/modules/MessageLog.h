// What a test module was told, written to the command line where the test reads it: "<module>:<message> ".
#pragma once

#include "acutads.h"
#include "rxdefs.h"

inline void LogMessage(const ACHAR* module, AcRx::AppMsgCode message)
{
    acutPrintf(ACRX_T("%s:%d "), module, static_cast<int>(message));
}
