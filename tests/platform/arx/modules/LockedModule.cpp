// Stays locked, as modules are at first.
#include "MessageLog.h"

extern "C" __declspec(dllexport) AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode msg, void*)
{
    LogMessage(ACRX_T("Locked"), msg);
    return AcRx::kRetOK;
}
