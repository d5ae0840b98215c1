// Answers kRetError to kInitAppMsg, having registered a command.
#include "MessageLog.h"
#include "accmd.h"

namespace
{

void Nothing() {}

} // namespace

extern "C" __declspec(dllexport) AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode msg, void*)
{
    LogMessage(ACRX_T("Refusing"), msg);
    if (msg == AcRx::kInitAppMsg)
    {
        acedRegCmds->addCommand(ACRX_T("REFUSING"), ACRX_T("REFUSINGCMD"), ACRX_T("REFUSINGCMD"), 0, &Nothing);
    }
    return AcRx::kRetError;
}
