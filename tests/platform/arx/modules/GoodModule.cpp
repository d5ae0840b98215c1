// Unlocks itself and tells every message.
#include "MessageLog.h"
#include "rxregsvc.h"

extern "C" __declspec(dllexport) AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode msg, void* pkt)
{
    LogMessage(ACRX_T("Good"), msg);
    if (msg == AcRx::kInitAppMsg)
    {
        acrxUnlockApplication(pkt);
        acrxRegisterAppMDIAware(pkt);
    }
    return AcRx::kRetOK;
}
