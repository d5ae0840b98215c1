// CCmdTarget: an object that takes part in command routing through a message map.
#pragma once

#include "afx/wnd/MessageMap.h"

class CCmdUI;

// Codes of OnCmdMsg besides the notification codes of controls.
#define CN_COMMAND 0                      // a menu or accelerator command
#define CN_UPDATE_COMMAND_UI ((UINT)(-1)) // extra: CCmdUI*
#define CN_EVENT ((UINT)(-2))

// Filled instead of a call when the caller of OnCmdMsg only asks who would handle the command.
struct AFX_CMDHANDLERINFO
{
    CCmdTarget* pTarget;
    void (CCmdTarget::*pmf)();
};

// Argument of OnCmdMsg for WM_NOTIFY.
struct AFX_NOTIFY
{
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

class AFX_API CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)

public:
    CCmdTarget();
    ~CCmdTarget() override;

    // Hourglass cursor until the matching EndWaitCursor(); the calls nest. RestoreWaitCursor() shows it again after a
    // message box changed the cursor.
    void BeginWaitCursor();
    void EndWaitCursor();
    void RestoreWaitCursor();

    // Offers a command or notification to the handlers of this object. TRUE: handled.
    // code: low word the notification code, high word the message (0 stands for WM_COMMAND, WM_NOTIFY for
    // notifications, WM_REFLECT_BASE + message for reflected ones); or CN_UPDATE_COMMAND_UI.
    // extra: AFX_NOTIFY* or CCmdUI* according to the code. handlerInfo: not null asks for the handler without calling
    // it.
    virtual BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo);

    // Called once when the object ends its life in the framework (COM clients override it); deletes the object.
    virtual void OnFinalRelease();

    DECLARE_MESSAGE_MAP()
};

// Hourglass for the life of the object.
class AFX_API CWaitCursor
{
public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;

    void Restore();
};
