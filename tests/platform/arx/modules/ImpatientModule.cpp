// Asks for its own end while it starts, and tells whether that was granted.
#include "MessageLog.h"
#include "rxregsvc.h"

extern "C" __declspec(dllexport) AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode msg, void* pkt)
{
    LogMessage(ACRX_T("Impatient"), msg);
    if (msg == AcRx::kInitAppMsg)
    {
        acrxUnlockApplication(pkt);
        acutPrintf(acrxUnloadModule(ACRX_T("LoaderImpatient.arx")) ? ACRX_T("granted ") : ACRX_T("refused "));
    }
    return AcRx::kRetOK;
}
