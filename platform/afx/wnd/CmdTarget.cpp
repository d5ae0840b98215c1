#include <afxwin.h>

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

namespace
{
const AFX_MSGMAP_ENTRY NoEntries[] = {{0, 0, 0, 0, AfxSig_end, nullptr}};
const AFX_MSGMAP CmdTargetMap = {nullptr, NoEntries};

template<class HANDLER>
HANDLER As(const AFX_MSGMAP_ENTRY& entry)
{
    return AfxRestoreHandler<HANDLER>(entry.pfn);
}

BOOL CallUpdate(CCmdTarget& target, const AFX_MSGMAP_ENTRY& entry, CCmdUI& state)
{
    state.m_bContinueRouting = FALSE;
    (target.*As<void (CCmdTarget::*)(CCmdUI*)>(entry))(&state);
    const BOOL handled = !state.m_bContinueRouting;
    state.m_bContinueRouting = FALSE;
    return handled;
}

BOOL CallNotify(CCmdTarget& target, const AFX_MSGMAP_ENTRY& entry, UINT id, const AFX_NOTIFY& notify)
{
    switch (entry.nSig)
    {
    case AfxSigNotify_v:
        (target.*As<void (CCmdTarget::*)(NMHDR*, LRESULT*)>(entry))(notify.pNMHDR, notify.pResult);
        return TRUE;
    case AfxSigNotify_b:
        return (target.*As<BOOL (CCmdTarget::*)(NMHDR*, LRESULT*)>(entry))(notify.pNMHDR, notify.pResult);
    case AfxSigNotify_RANGE:
        (target.*As<void (CCmdTarget::*)(UINT, NMHDR*, LRESULT*)>(entry))(id, notify.pNMHDR, notify.pResult);
        return TRUE;
    default:
        return (target.*As<BOOL (CCmdTarget::*)(UINT, NMHDR*, LRESULT*)>(entry))(id, notify.pNMHDR, notify.pResult);
    }
}

BOOL CallCommand(CCmdTarget& target, const AFX_MSGMAP_ENTRY& entry, UINT id)
{
    switch (entry.nSig)
    {
    case AfxSigCmd_v:
        (target.*As<void (CCmdTarget::*)()>(entry))();
        return TRUE;
    case AfxSigCmd_b:
        return (target.*As<BOOL (CCmdTarget::*)()>(entry))();
    case AfxSigCmd_RANGE:
        (target.*As<void (CCmdTarget::*)(UINT)>(entry))(id);
        return TRUE;
    default:
        return (target.*As<BOOL (CCmdTarget::*)(UINT)>(entry))(id);
    }
}

BOOL CallHandler(CCmdTarget& target, const AFX_MSGMAP_ENTRY& entry, UINT id, void* extra)
{
    switch (entry.nSig)
    {
    case AfxSigCmdUI:
        return CallUpdate(target, entry, *static_cast<CCmdUI*>(extra));
    case AfxSigNotify_v:
    case AfxSigNotify_b:
    case AfxSigNotify_RANGE:
    case AfxSigNotify_EX:
        return CallNotify(target, entry, id, *static_cast<AFX_NOTIFY*>(extra));
    default:
        return CallCommand(target, entry, id);
    }
}

void WaitCursor(int code)
{
    CWinApp* const app = AfxGetApp();
    if (app != nullptr)
        app->DoWaitCursor(code);
}
} // namespace

CCmdTarget::CCmdTarget() {}

CCmdTarget::~CCmdTarget() {}

const AFX_MSGMAP* PASCAL CCmdTarget::GetThisMessageMap()
{
    return &CmdTargetMap;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

BOOL CCmdTarget::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    // Only the update code has no message in its high word: it is -1 as a whole.
    const UINT packed = static_cast<UINT>(code);
    const bool plain = packed == CN_UPDATE_COMMAND_UI || HIWORD(packed) == 0;
    const UINT message = plain ? WM_COMMAND : HIWORD(packed);

    const AFX_MSGMAP_ENTRY* const entry = AfxFindMessageEntry(GetMessageMap(), message, LOWORD(packed), id);
    if (entry == nullptr)
        return FALSE;
    if (handlerInfo != nullptr)
    {
        handlerInfo->pTarget = this;
        handlerInfo->pmf = entry->pfn;
        return TRUE;
    }
    return CallHandler(*this, *entry, id, extra);
}

void CCmdTarget::OnFinalRelease()
{
    delete this;
}

void CCmdTarget::BeginWaitCursor()
{
    WaitCursor(1);
}

void CCmdTarget::EndWaitCursor()
{
    WaitCursor(-1);
}

void CCmdTarget::RestoreWaitCursor()
{
    WaitCursor(0);
}

CWaitCursor::CWaitCursor()
{
    WaitCursor(1);
}

CWaitCursor::~CWaitCursor()
{
    WaitCursor(-1);
}

void CWaitCursor::Restore()
{
    WaitCursor(0);
}
