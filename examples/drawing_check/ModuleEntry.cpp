// The module's entry: registers the commands while the module is loaded.
#include "CheckCommand.h"
#include "PickPointCommand.h"

#include <accmd.h>
#include <aced.h>
#include <arxEntryPoint.h>

namespace
{
const wchar_t* const kGroup = L"DRAWING_CHECK";

struct Command
{
    const wchar_t* name;
    const wchar_t* localName;
    void (*run)();
};

const Command kCommands[] = {
    {L"CHECKDRAWING", L"检查图形", &drawing_check::CheckDrawing},
    {L"CHECKSUMMARYBOX", L"检查摘要框", &drawing_check::SummaryInBox},
    {L"CHECKSUMMARYLINE", L"检查摘要行", &drawing_check::SummaryOnCommandLine},
    {L"CHECKSUMMARYPANEL", L"检查摘要面板", &drawing_check::SummaryInPanel},
    {L"PICKPOINT", L"拾取点", &drawing_check::PickPoint},
};
} // namespace

class CDrawingCheckApp : public AcRxArxApp
{
public:
    virtual AcRx::AppRetCode On_kInitAppMsg(void* packet)
    {
        const AcRx::AppRetCode result = AcRxArxApp::On_kInitAppMsg(packet);
        for (const Command& command : kCommands)
            acedRegCmds->addCommand(kGroup, command.name, command.localName, ACRX_CMD_MODAL, command.run);
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
