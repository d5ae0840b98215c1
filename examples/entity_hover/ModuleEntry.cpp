// The module's entry: shows properties as soon as it is loaded, and registers the command that turns them on and off.
#include "EntityHover.h"

#include <accmd.h>
#include <aced.h>
#include <acutads.h>
#include <arxEntryPoint.h>

namespace
{

const wchar_t* const kGroup = L"ENTITY_HOVER";

// While the module is loaded. No object of its own: one would end in the loader's hands, where no thread can be waited
// for.
entity_hover::CEntityHover* g_hover = nullptr;

void ToggleHover()
{
    if (g_hover->IsOn())
        g_hover->Stop();
    else
        g_hover->Start();
    acutPrintf(g_hover->IsOn() ? L"\n悬停显示实体特性：开\n" : L"\n悬停显示实体特性：关\n");
}

} // namespace

class CEntityHoverApp : public AcRxArxApp
{
public:
    virtual AcRx::AppRetCode On_kInitAppMsg(void* packet)
    {
        const AcRx::AppRetCode result = AcRxArxApp::On_kInitAppMsg(packet);
        acedRegCmds->addCommand(kGroup, L"ENTITYHOVER", L"实体悬停", ACRX_CMD_MODAL, &ToggleHover);
        g_hover = new entity_hover::CEntityHover;
        g_hover->Start();
        return result;
    }

    virtual AcRx::AppRetCode On_kUnloadAppMsg(void* packet)
    {
        acedRegCmds->removeGroup(kGroup);
        delete g_hover;
        g_hover = nullptr;
        return AcRxArxApp::On_kUnloadAppMsg(packet);
    }

    virtual void RegisterServerComponents() {}
};

IMPLEMENT_ARX_ENTRYPOINT(CEntityHoverApp)
