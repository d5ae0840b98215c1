// Unlocked, but refuses the first kUnloadAppMsg.
#include "MessageLog.h"
#include "rxregsvc.h"

namespace
{

bool theFirstTime = true;

} // namespace

extern "C" __declspec(dllexport) AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode msg, void* pkt)
{
    LogMessage(ACRX_T("Clinging"), msg);
    if (msg == AcRx::kInitAppMsg)
    {
        acrxUnlockApplication(pkt);
    }
    if (msg == AcRx::kUnloadAppMsg && theFirstTime)
    {
        theFirstTime = false;
        return AcRx::kRetError;
    }
    return AcRx::kRetOK;
}
