// Needs a DLL that is not there.
#include "rxdefs.h"

extern "C" __declspec(dllimport) int Gone();

extern "C" __declspec(dllexport) AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode, void*)
{
    return Gone() != 0 ? AcRx::kRetOK : AcRx::kRetError;
}
