// Collects the messages that the suite's code reports while somebody wants them: a stack of collections, of which the
// top one receives every report.
//
// Call from the host's user-interface thread only.
#pragma once

#include "afx.h"
#include "acarray.h"
#include "acdocman.h"
#include "dbid.h"
#include "dbmain.h"

#include <deque>
#include <vector>

#include "suite/ZNKTPub/Api.h"
#include "suite/ZNKTPub/MsgCallback.h"

namespace ZNKTPub
{
typedef CMsgCallback::EMsgType EMsgType;

struct MSGDATA
{
    MSGDATA() : id(0), type(CMsgCallback::eInfo), hasExtents(false), document(nullptr) {}

    int id; // 1 for the first report of the process, then rising
    EMsgType type;
    CString group;
    CString text;
    CString time;                    // local time of the report, "%H:%M:%S"
    AcArray<AcDbObjectId> objectIds; // what the message concerns
    AcDbExtents extents;             // means something only with hasExtents
    bool hasExtents;
    AcApDocument* document; // null: belongs to no document
};

class ZNKTPUB_API CZNMsgTracker
{
public:
    typedef std::vector<MSGDATA> Collection;

    // The one tracker of the suite.
    static CZNMsgTracker* GetInstance();

    CZNMsgTracker();
    ~CZNMsgTracker();

    // Pushes an empty collection and returns its index, 0 for the first.
    int PushMSGCLCT();

    // Removes the top collection and returns it; an empty one when there is none.
    Collection PopMSGCLCT();

    // The collection at an index, owned by the tracker; null outside. The address stays valid until that collection is
    // popped, however many are pushed above it.
    Collection* GetMSGCLCT(int index);

    int GetCount() const;

    // Adds one message to the top collection, stamped with the local time. Nothing happens, and the answer is false,
    // when no collection is open or the text is null or empty. With `bindToDocument` the message belongs to the
    // document that is current now. Group, identifiers and extents may be null; they are copied.
    bool AddMsg(EMsgType type, const wchar_t* group, const wchar_t* text, bool bindToDocument,
                const AcArray<AcDbObjectId>* objectIds, const AcDbExtents* extents);

private:
    CZNMsgTracker(const CZNMsgTracker&);
    void operator=(const CZNMsgTracker&);

    std::deque<Collection> m_stack; // elements keep their place when others come and go at the end
    int m_nextId;
};

// What the suite's code calls to report: CZNMsgTracker::AddMsg of the one tracker.
ZNKTPUB_API bool ReportMsg(EMsgType type, const wchar_t* group, const wchar_t* text, bool bindToDocument = false,
                           const AcArray<AcDbObjectId>* objectIds = nullptr, const AcDbExtents* extents = nullptr);
} // namespace ZNKTPub
