// The callback through which a long operation shows its progress, asks whether the user cancelled, and reports
// messages. Construction makes it the current callback of its manager; destruction puts back the one before it and
// closes its wait dialog. The manager keeps no stack, so callbacks are destroyed in the reverse order of construction:
// make them on the stack frame of the command.
//
//     class CMyProgress : public CMsgCallbackImp
//     {
//     public:
//         CMyProgress() : CMsgCallbackImp(CMsgCallbackManager::GetInstance()) {}
//     };
//
//     CMyProgress progress;
//     progress.CreateWaitDlg(true);
//     progress.WaitDlgPushMsg(L"检查图形");
//     progress.WaitDlgPushMsg(L"");
//     for (int i = 0; i < count && !progress.IsCanceled(); ++i)
//     {
//         line.Format(L"图层 %d/%d", i + 1, count);
//         progress.WaitDlgModiLastMsg(line);
//         ... work ...
//     }
//
// Call on the host's user-interface thread only. A change of the lines costs that thread some microseconds, a question
// whether the user cancelled some nanoseconds; neither waits for the dialog, which lives on a thread of its own.
// Without a wait dialog every operation on it does nothing, and returns "" or false. Null texts count as "".
#pragma once

#include <afxwin.h>
#include <acarray.h>
#include <dbid.h>
#include <dbmain.h>
#include <ZNKTPub.h>

#include "base/ZnktApi.h"

class CWaitDlgHolder;

class ZNKT_API CMsgCallbackImp : public CMsgCallback
{
protected:
    // `manager` is borrowed; null: the callback is registered nowhere.
    explicit CMsgCallbackImp(CMsgCallbackManager* manager);

public:
    // Copies share one wait dialog: only one of them may close it, or be destroyed while it is open. A copy does not
    // register itself.
    CMsgCallbackImp(const CMsgCallbackImp& other);
    CMsgCallbackImp& operator=(const CMsgCallbackImp& other);

    virtual ~CMsgCallbackImp();

    // Opens the wait dialog over the host's main frame, without lines, with a Cancel button if EnableCancel() says so.
    // While one is open only what EnableCancel() answers changes; the open dialog keeps the button that it has.
    virtual void CreateWaitDlg(bool enableCancel);

    // Closes the wait dialog and forgets its lines and whether the user cancelled.
    virtual void CloseWaitDlg();

    // The dialog's stack of lines, shown the oldest first. Texts are copied; a line feed in one makes two rows of it.
    virtual void WaitDlgPushMsg(const wchar_t* text);

    // Takes the top line away and returns it.
    virtual CString WaitDlgPopMsg();

    // The top line, which stays.
    virtual CString WaitDlgGetLastMsg() const;

    // Replaces the top line; does not push one.
    virtual void WaitDlgModiLastMsg(const wchar_t* text);

    // Whether the user pressed Cancel since CreateWaitDlg.
    virtual bool IsCanceled() const;

    // The message palette: the functions of KTMsgWnd (msg/KTMsgWnd.h), with the same parameters and results.
    virtual bool MsgWndShow(bool show);
    virtual void MsgWndAddMsg(EMsgType type, const wchar_t* group, const wchar_t* text, bool bindToDocument,
                              const AcArray<AcDbObjectId>* objectIds, const AcDbExtents* extents);
    virtual bool RemoveMsg(const wchar_t* group, bool allDocuments);
    virtual void RemoveAllMsg();
    virtual void MsgWndUpdate();
    virtual int GetMsgCount(const wchar_t* group);

    // What CreateWaitDlg was given last; false at first. May be overridden.
    virtual bool EnableCancel() const;

private:
    CMsgCallbackManager* m_manager;
    CMsgCallback* m_previous;     // current before this one; not owned
    CWaitDlgHolder* m_waitDialog; // owned; null while no dialog is open
    bool m_cancelEnabled;
};
