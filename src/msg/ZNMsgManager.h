// The one store of all messages: records in the order in which they were added. It knows no window.
//
// Created on first use, destroyed when the module is unloaded. Used on the user-interface thread only.
// Cost: adding is amortised constant, counting a group is a look-up, finding by identifier is a binary search (records
// are never reordered, so identifiers rise), every removal of many records is one pass.
#pragma once

#include <vector>

#include "msg/MsgData.h"
#include "msg/MsgGroupIndex.h"

class CZNMsgManager : private CArray<CZNMsgData, const CZNMsgData&>
{
public:
    typedef CZNMsgData MSGDATA;

    // The store of the module, made when there is none.
    static CZNMsgManager& Instance();

    // Frees the store and every record. The next Instance() is empty and gives identifiers from 1 again.
    static void DestroyInstance();

    // What the host's document manager answers now; null when no drawing is open.
    static AcApDocument* CurrentDocument();

    CZNMsgManager();

    // See KTMsgWnd::AddMsg.
    bool Add(KTMsgWnd::EMsgType type, const wchar_t* group, const wchar_t* text, bool bindToDocument,
             const AcArray<AcDbObjectId>* objectIds, const AcDbExtents* extents);

    int GetCount() const;

    // Copies the record with the identifier out; false when there is none.
    bool Find(int id, CZNMsgData& data) const;

    // The record itself, or null. Valid until the store changes.
    const CZNMsgData* Peek(int id) const;

    // A number that changes whenever records are removed: whoever remembers something about records asks again then.
    unsigned int GetRemovals() const;

    // Removes one record; true if it was there.
    bool Remove(int id);

    // Removes the records of all these identifiers (in any order, unknown ones are skipped) in one pass.
    void Remove(const std::vector<int>& ids);

    // See KTMsgWnd::RemoveMsg.
    bool RemoveGroup(const wchar_t* group, bool allDocuments);

    // Removes the records of a document, and with `withUnbound` those that belong to no document; true if there were
    // any.
    bool RemoveDocument(AcApDocument* document, bool withUnbound);

    void RemoveAll();

    // Copies every record visible in the current document, oldest first, in place of what `messages` holds.
    void CollectVisible(CZNMsgArray& messages) const;

    // The same for one group; true if there were any. A null name copies nothing.
    bool CollectVisible(const wchar_t* group, CZNMsgArray& messages) const;

    // See KTMsgWnd::GetMsgCount.
    int CountVisible(const wchar_t* group) const;

    // The groups of the visible records, each once, spelled as in its newest record, newest group first.
    void CollectVisibleGroups(CStringArray& groups) const;

private:
    typedef CArray<CZNMsgData, const CZNMsgData&> Records;

    void Append(const CZNMsgData& data);
    CString TimeNow();
    int IndexOf(int id) const;

    template<class Matches>
    bool RemoveWhere(const Matches& matches);

    static CZNMsgManager* s_instance;

    CMsgGroupIndex m_groups;
    int m_nextId;
    unsigned int m_removals;
    __time64_t m_stampedSecond; // the second that m_stamp tells
    CString m_stamp;
};
