#include "suite/ZNKTPub/MsgTracker.h"

#include <utility>

namespace ZNKTPub
{
CZNMsgTracker* CZNMsgTracker::GetInstance()
{
    static CZNMsgTracker tracker;
    return &tracker;
}

CZNMsgTracker::CZNMsgTracker() : m_nextId(1) {}

CZNMsgTracker::~CZNMsgTracker() {}

int CZNMsgTracker::PushMSGCLCT()
{
    m_stack.emplace_back();
    return GetCount() - 1;
}

CZNMsgTracker::Collection CZNMsgTracker::PopMSGCLCT()
{
    Collection top;
    if (!m_stack.empty())
    {
        top.swap(m_stack.back());
        m_stack.pop_back();
    }
    return top;
}

CZNMsgTracker::Collection* CZNMsgTracker::GetMSGCLCT(int index)
{
    return index < 0 || index >= GetCount() ? nullptr : &m_stack[static_cast<size_t>(index)];
}

int CZNMsgTracker::GetCount() const
{
    return static_cast<int>(m_stack.size());
}

bool CZNMsgTracker::AddMsg(EMsgType type, const wchar_t* group, const wchar_t* text, bool bindToDocument,
                           const AcArray<AcDbObjectId>* objectIds, const AcDbExtents* extents)
{
    if (m_stack.empty() || text == nullptr || *text == L'\0')
        return false;
    MSGDATA data;
    data.id = m_nextId++;
    data.type = type;
    data.group = group;
    data.text = text;
    data.time = CTime::GetCurrentTime().Format(L"%H:%M:%S");
    if (objectIds != nullptr)
        data.objectIds = *objectIds;
    data.hasExtents = extents != nullptr;
    if (data.hasExtents)
        data.extents = *extents;
    data.document = bindToDocument ? acDocManagerPtr()->curDocument() : nullptr;
    m_stack.back().push_back(std::move(data));
    return true;
}

bool ReportMsg(EMsgType type, const wchar_t* group, const wchar_t* text, bool bindToDocument,
               const AcArray<AcDbObjectId>* objectIds, const AcDbExtents* extents)
{
    return CZNMsgTracker::GetInstance()->AddMsg(type, group, text, bindToDocument, objectIds, extents);
}
} // namespace ZNKTPub
