// A module that does not tell its interface version.
#include "MessageLog.h"

extern "C" __declspec(dllexport) AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode msg, void*)
{
    LogMessage(ACRX_T("NoVersion"), msg);
    return AcRx::kRetOK;
}
