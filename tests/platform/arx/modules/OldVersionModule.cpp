// A module of an older generation of the interface.
#include "MessageLog.h"

extern "C" __declspec(dllexport) int acrxGetApiVersion()
{
    return 17;
}

extern "C" __declspec(dllexport) AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode msg, void*)
{
    LogMessage(ACRX_T("OldVersion"), msg);
    return AcRx::kRetOK;
}
