// How many messages each group has in each document, so that counting is a look-up and not a walk of the store.
//
// Group names are the same when they differ in letter case only. The index also hands out the texts of the names, so
// that all messages of a group share one.
#pragma once

#include <afxwin.h>
#include <acdocman.h>

#include <map>

#include "msg/GroupName.h"

class CMsgGroupIndex
{
public:
    // Counts one more message. Answers the name as it is spelled here, in a text that is shared where possible.
    CString Add(const wchar_t* group, AcApDocument* document);

    // Counts one message less; it must have been added with the same name and document.
    void Remove(const CString& group, AcApDocument* document);

    void Clear();

    bool Contains(const wchar_t* group) const;

    // The messages of the group that belong to `current` or to no document.
    int CountVisible(const wchar_t* group, AcApDocument* current) const;

private:
    typedef std::map<AcApDocument*, int> Counts;

    struct Group
    {
        CString name;     // the key's text: as in the group's first message
        CString spelling; // as in the newest message
        Counts counts;
    };

    // Keyed by the text of Group::name, so that a look-up needs no text of its own on the heap.
    typedef std::map<const wchar_t*, Group, GroupNameLess> Groups;

    Group& GroupNamed(const wchar_t* group);

    Groups m_groups;
};
