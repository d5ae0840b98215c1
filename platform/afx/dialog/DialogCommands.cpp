#include "afx/dialog/DialogCommands.h"

#include "afx/app/WinThread.h"

namespace
{
const UINT FirstCommandId = 0x8000; // lower ids belong to controls
const UINT FirstSystemCommand = 0xF000;
} // namespace

BOOL OfferToOwnerAndThread(const CWnd& dialog, UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    const bool isCommand = code == CN_COMMAND || code == static_cast<int>(CN_UPDATE_COMMAND_UI);
    if (!isCommand || id < FirstCommandId || id >= FirstSystemCommand)
        return FALSE;
    CWnd* const owner = dialog.GetParent();
    if (owner != nullptr && owner->OnCmdMsg(id, code, extra, handlerInfo))
        return TRUE;
    CWinThread* const thread = AfxGetThread();
    return thread != nullptr && thread->OnCmdMsg(id, code, extra, handlerInfo);
}
