// What a long operation reports through: progress lines and a Cancel button while it runs, messages for afterwards.
// An operation asks CMsgCallbackManager for the current callback; who starts the operation decides which that is.
//
// Call from the host's user-interface thread only.
#pragma once

#include "afx.h"
#include "acarray.h"
#include "dbid.h"

#include "suite/ZNKTPub/Api.h"

class AcDbExtents;

class ZNKTPUB_API CMsgCallback
{
public:
    enum EMsgType : int
    {
        eInfo = 0,
        eWarning = 1,
        eError = 2
    };

    CMsgCallback();
    CMsgCallback(const CMsgCallback& other);
    CMsgCallback& operator=(const CMsgCallback& other);

    // The order of the virtual functions is that of the slots that compiled modules call: never change it.
    virtual ~CMsgCallback();

    // The wait dialog: one at a time, showing a stack of lines. Without it the line operations do nothing.
    virtual void CreateWaitDlg(bool enableCancel) = 0;
    virtual void CloseWaitDlg() = 0;
    virtual void WaitDlgPushMsg(const wchar_t* text) = 0;
    virtual CString WaitDlgPopMsg() = 0;
    virtual CString WaitDlgGetLastMsg() const = 0;
    virtual void WaitDlgModiLastMsg(const wchar_t* text) = 0;
    virtual bool IsCanceled() const = 0;

    // The message palette.
    virtual bool MsgWndShow(bool show) = 0;
    virtual void MsgWndAddMsg(EMsgType type, const wchar_t* group, const wchar_t* text, bool bindToDocument,
                              const AcArray<AcDbObjectId>* objectIds, const AcDbExtents* extents) = 0;
    virtual bool RemoveMsg(const wchar_t* group, bool allDocuments) = 0;
    virtual void RemoveAllMsg() = 0;
    virtual void MsgWndUpdate() = 0;
    virtual int GetMsgCount(const wchar_t* group) = 0;

    // Whether the user may cancel.
    virtual bool EnableCancel() const = 0;
};
