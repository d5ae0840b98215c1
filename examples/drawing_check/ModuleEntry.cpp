// The module's entry: registers the command while the module is loaded.
#include "CheckCommand.h"

#include <accmd.h>
#include <aced.h>
#include <arxEntryPoint.h>

namespace
{
const wchar_t* const kGroup = L"DRAWING_CHECK";
}

class CDrawingCheckApp : public AcRxArxApp
{
public:
    virtual AcRx::AppRetCode On_kInitAppMsg(void* packet)
    {
        const AcRx::AppRetCode result = AcRxArxApp::On_kInitAppMsg(packet);
        acedRegCmds->addCommand(kGroup, L"CHECKDRAWING", L"检查图形", ACRX_CMD_MODAL, &drawing_check::CheckDrawing);
        return result;
    }

    virtual AcRx::AppRetCode On_kUnloadAppMsg(void* packet)
    {
        acedRegCmds->removeGroup(kGroup);
        return AcRxArxApp::On_kUnloadAppMsg(packet);
    }

    virtual void RegisterServerComponents() {}
};

IMPLEMENT_ARX_ENTRYPOINT(CDrawingCheckApp)
