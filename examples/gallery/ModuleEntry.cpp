// The module's entry: registers the commands while the module is loaded, closes the window when it leaves.
#include "GalleryCommands.h"
#include "GalleryDlg.h"

#include <AcExtensionModule.h>
#include <accmd.h>
#include <aced.h>
#include <afxdllx.h>
#include <arxEntryPoint.h>

namespace
{
const wchar_t* const kGroup = L"GALLERY";
}

AC_IMPLEMENT_EXTENSION_MODULE(GalleryDLL)

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH)
        GalleryDLL.AttachInstance(instance);
    else if (reason == DLL_PROCESS_DETACH)
        GalleryDLL.DetachInstance();
    return TRUE;
}

class CGalleryApp : public AcRxArxApp
{
public:
    virtual AcRx::AppRetCode On_kInitAppMsg(void* packet)
    {
        const AcRx::AppRetCode result = AcRxArxApp::On_kInitAppMsg(packet);
        acedRegCmds->addCommand(kGroup, L"GALLERY", L"控件库", ACRX_CMD_MODAL, &gallery::OpenGallery);
        acedRegCmds->addCommand(kGroup, L"GALLERYPAGE", L"控件页", ACRX_CMD_MODAL, &gallery::OpenGalleryPage);
        return result;
    }

    virtual AcRx::AppRetCode On_kUnloadAppMsg(void* packet)
    {
        CGalleryDlg::Close();
        acedRegCmds->removeGroup(kGroup);
        return AcRxArxApp::On_kUnloadAppMsg(packet);
    }

    virtual void RegisterServerComponents() {}
};

IMPLEMENT_ARX_ENTRYPOINT(CGalleryApp)
