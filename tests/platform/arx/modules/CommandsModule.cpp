// One command by the declaration macro, one that the module forgets to remove.
#include "acutads.h"
#include "arxEntryPoint.h"

class CommandsApp : public AcRxArxApp
{
public:
    virtual AcRx::AppRetCode On_kInitAppMsg(void* pkt)
    {
        acedRegCmds->addCommand(ACRX_T("LOADER_FORGOTTEN"), ACRX_T("LOADERFORGOTTEN"), ACRX_T("LOADERFORGOTTEN"),
                                ACRX_CMD_SESSION, &CommandsApp::Forgotten);
        return AcRxArxApp::On_kInitAppMsg(pkt);
    }
    virtual void RegisterServerComponents() {}

    static void Forgotten() { acutPrintf(ACRX_T("forgotten ")); }
    static void LoaderGroup_LOADERDECLARED() { acutPrintf(ACRX_T("declared ")); }
};

ACED_ARXCOMMAND_ENTRY_AUTO(CommandsApp, LoaderGroup, _LOADERDECLARED, LOADERLOCAL, ACRX_CMD_SESSION, NULL)

IMPLEMENT_ARX_ENTRYPOINT(CommandsApp)
