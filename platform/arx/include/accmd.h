// AcEdCommandStack: the commands that modules offer to the command line.
#pragma once

#include "rxobject.h"

#define ACRX_CMD_MODAL 0x00000000
#define ACRX_CMD_TRANSPARENT 0x00000001
#define ACRX_CMD_USEPICKSET 0x00000002
#define ACRX_CMD_REDRAW 0x00000004
#define ACRX_CMD_SESSION 0x00200000

#define ACED_COMMAND_STACK ACRX_T("ACAD_REGISTERED_COMMANDS")

class AcEdCommandStack;
class AcEdUIContext;

// Commands are looked up without regard to case; groups too. A name is unique within its group; across groups the
// command that was added last wins. "_NAME" finds the global name only.
class ARX_API AcEdCommandStack : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcEdCommandStack);

    virtual ~AcEdCommandStack();

    // eDuplicateKey when the group has the global or the local name already, eInvalidInput for missing names or a
    // missing function.
    virtual Acad::ErrorStatus addCommand(const ACHAR* cmdGroupName, const ACHAR* cmdGlobalName,
                                         const ACHAR* cmdLocalName, Adesk::Int32 commandFlags,
                                         AcRxFunctionPtr functionAddr, AcEdUIContext* uiContext = NULL, int fcode = -1,
                                         void* hResourceHandle = NULL) = 0;
    // eKeyNotFound when there is no such command or group.
    virtual Acad::ErrorStatus removeCmd(const ACHAR* cmdGroupName, const ACHAR* cmdGlobalName) = 0;
    virtual Acad::ErrorStatus removeGroup(const ACHAR* groupName) = 0;

protected:
    AcEdCommandStack();
};

ARX_API AcEdCommandStack* acedRegCmdsPtr();
#define acedRegCmds acedRegCmdsPtr()
