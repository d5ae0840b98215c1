// Messages between the host and a module's entry point.
#pragma once

#include "adesk.h"

struct AcRx
{
    enum AppMsgCode
    {
        kNullMsg = 0,
        kInitAppMsg = 1,
        kUnloadAppMsg = 2,
        kLoadDwgMsg = 3,
        kUnloadDwgMsg = 4,
        kInvkSubrMsg = 5,
        kCfgMsg = 6,
        kEndMsg = 7,
        kQuitMsg = 8,
        kSaveMsg = 9,
        kDependencyMsg = 10,
        kNoDependencyMsg = 11,
        kOleUnloadAppMsg = 12,
        kPreQuitMsg = 13,
        kInitDialogMsg = 14,
        kEndDialogMsg = 15,
        kSuspendMsg = 16,
        kInitTabGroupMsg = 17,
        kEndTabGroupMsg = 18
    };

    // kRetError as the answer to kInitAppMsg unloads the module at once; as the answer to kUnloadAppMsg it means
    // "do not unload me".
    enum AppRetCode
    {
        kRetOK = 0,
        kRetError = 3
    };
};

extern "C"
{
    typedef AcRx::AppRetCode (*AcRxAppEntryPoint)(AcRx::AppMsgCode msg, void* pkt);
    typedef int (*AcRxApiVersionQuery)();
    typedef void (*AcRxFunctionPtr)();
}
