// Attaches the module to the process as an extension DLL of the framework.
#include <afxwin.h>
#include <afxdllx.h>
#include <AcExtensionModule.h>
#include <acui.h>

#include "base/ModuleInstance.h"

HINSTANCE _hdllInstance = NULL;

AC_IMPLEMENT_EXTENSION_MODULE(ZNKTControlsDLL)

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH)
    {
        _hdllInstance = instance;
        ZNKTControlsDLL.AttachInstance(instance);
        InitAcUiDLL();
    }
    else if (reason == DLL_PROCESS_DETACH)
    {
        ZNKTControlsDLL.DetachInstance();
    }
    return TRUE;
}
