// Collects what the code called by a command reports, and presents it when the work is done: in a message box, on the
// command line or in the message palette.
//
//     ZNKTPub::CZNMsgObject messages;
//     DoTheWork();                        // calls ZNKTPub::ReportMsg
//     if (messages.HasMsg())
//         messages.ShowMsgPanel();
//
// Make it on the stack frame of the command: message objects are destroyed in the reverse order of construction, since
// the top collection of the suite's tracker is always the newest object's. Presenting empties the collection; without
// messages it does nothing.
//
// Call on the host's user-interface thread only.
#pragma once

#include <afxwin.h>
#include <ZNKTPub.h>

#include <vector>

#include "base/ZnktApi.h"

namespace ZNKTPub
{

class ZNKT_API CZNMsgObject
{
public:
    // Opens a collection: what is reported from now on goes there.
    CZNMsgObject();

    // Ends the top collection and destroys what is in it.
    ~CZNMsgObject();

    // Both then refer to the collection of `other`, and each still ends one when it is destroyed: the object assigned
    // to must not outlive the scope in which both were made.
    CZNMsgObject& operator=(const CZNMsgObject& other);

    // The collection, oldest report first. It is the tracker's, and good as long as this object lives; null if the
    // tracker gave none.
    const std::vector<MSGDATA>* Messages() const;

    // Whether there is anything to present.
    bool HasMsg() const;

    // A message box with the caption "Tevrin提示" and an OK button, which belongs to `parent`; null: to nobody. It says
    // the last message, with "信息:", "警告:" or "错误:" before it, and behind it the texts of messages of no known
    // type, if those come last. The text goes through the printf-style MFCUtils::ShowMsg, so %% shows one per cent
    // sign.
    void ShowMessageBox(HWND parent);

    // The same text through acutPrintf, without a line end before or behind it.
    void ShowCommandLine();

    // Adds every message to the message palette and shows it. A message of a drawing then belongs to the drawing that
    // is current now; time and identifier are new.
    void ShowMsgPanel();

private:
    CZNMsgObject(const CZNMsgObject&);

    CString BuildText() const;

    std::vector<MSGDATA>* m_messages; // owned by the tracker; null when there is none
};

} // namespace ZNKTPub
