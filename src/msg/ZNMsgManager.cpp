#include "msg/ZNMsgManager.h"

#include <algorithm>
#include <set>

#include "msg/GroupName.h"

namespace
{

const INT_PTR kLeastGrowth = 64;

// Rules that RemoveWhere asks about each record.
class CIdIn
{
public:
    explicit CIdIn(const std::vector<int>& sorted) : m_sorted(sorted) {}
    bool operator()(const CZNMsgData& data) const
    {
        return std::binary_search(m_sorted.begin(), m_sorted.end(), data.id);
    }

private:
    const std::vector<int>& m_sorted;
};

class CGroupIs
{
public:
    CGroupIs(const wchar_t* group, bool allDocuments, AcApDocument* current)
        : m_group(group), m_allDocuments(allDocuments), m_current(current)
    {
    }

    // Records bound to no document stay unless all documents are meant, even while no document is current.
    bool operator()(const CZNMsgData& data) const
    {
        const bool meant = m_allDocuments || (data.document != NULL && data.document == m_current);
        return meant && CompareGroupNames(data.group, m_group) == 0;
    }

private:
    const wchar_t* m_group;
    bool m_allDocuments;
    AcApDocument* m_current;
};

class CDocumentIs
{
public:
    CDocumentIs(AcApDocument* document, bool withUnbound) : m_document(document), m_withUnbound(withUnbound) {}
    bool operator()(const CZNMsgData& data) const
    {
        return data.document == m_document || (m_withUnbound && data.document == NULL);
    }

private:
    AcApDocument* m_document;
    bool m_withUnbound;
};

bool IsVisible(const CZNMsgData& data, AcApDocument* current)
{
    return data.document == NULL || data.document == current;
}

} // namespace

CZNMsgManager* CZNMsgManager::s_instance = NULL;

CZNMsgManager& CZNMsgManager::Instance()
{
    if (s_instance == NULL)
        s_instance = new CZNMsgManager;
    return *s_instance;
}

void CZNMsgManager::DestroyInstance()
{
    delete s_instance;
    s_instance = NULL;
}

AcApDocument* CZNMsgManager::CurrentDocument()
{
    return acDocManagerPtr()->curDocument();
}

CZNMsgManager::CZNMsgManager() : m_nextId(1), m_removals(0), m_stampedSecond(-1) {}

bool CZNMsgManager::Add(KTMsgWnd::EMsgType type, const wchar_t* group, const wchar_t* text, bool bindToDocument,
                        const AcArray<AcDbObjectId>* objectIds, const AcDbExtents* extents)
{
    if (text == NULL || *text == L'\0')
        return false;

    CZNMsgData data;
    data.id = m_nextId++;
    data.type = type;
    data.text = text;
    data.time = TimeNow();
    data.document = bindToDocument ? CurrentDocument() : NULL;
    if (objectIds != NULL && !objectIds->isEmpty())
        data.objectIds = *objectIds;
    data.hasExtents = extents != NULL;
    if (data.hasExtents)
        data.extents = *extents;

    data.group = m_groups.Add(group == NULL ? L"" : group, data.document);
    Append(data);
    return true;
}

int CZNMsgManager::GetCount() const
{
    return static_cast<int>(GetSize());
}

bool CZNMsgManager::Find(int id, CZNMsgData& data) const
{
    const CZNMsgData* found = Peek(id);
    if (found != NULL)
        data = *found;
    return found != NULL;
}

const CZNMsgData* CZNMsgManager::Peek(int id) const
{
    const int index = IndexOf(id);
    return index < 0 ? NULL : GetData() + index;
}

unsigned int CZNMsgManager::GetRemovals() const
{
    return m_removals;
}

bool CZNMsgManager::Remove(int id)
{
    const int index = IndexOf(id);
    if (index < 0)
        return false;
    const CZNMsgData& data = GetData()[index];
    m_groups.Remove(data.group, data.document);
    RemoveAt(index);
    ++m_removals;
    return true;
}

void CZNMsgManager::Remove(const std::vector<int>& ids)
{
    std::vector<int> sorted(ids);
    std::sort(sorted.begin(), sorted.end());
    RemoveWhere(CIdIn(sorted));
}

bool CZNMsgManager::RemoveGroup(const wchar_t* group, bool allDocuments)
{
    if (group == NULL || !m_groups.Contains(group))
        return false;
    return RemoveWhere(CGroupIs(group, allDocuments, CurrentDocument()));
}

bool CZNMsgManager::RemoveDocument(AcApDocument* document, bool withUnbound)
{
    return RemoveWhere(CDocumentIs(document, withUnbound));
}

void CZNMsgManager::RemoveAll()
{
    Records::RemoveAll();
    m_groups.Clear();
    ++m_removals;
}

void CZNMsgManager::CollectVisible(CZNMsgArray& messages) const
{
    AcApDocument* const current = CurrentDocument();
    INT_PTR count = 0;
    messages.SetSize(GetSize());
    for (INT_PTR i = 0; i < GetSize(); ++i)
    {
        if (IsVisible(GetData()[i], current))
            messages[count++] = GetData()[i];
    }
    messages.SetSize(count);
}

bool CZNMsgManager::CollectVisible(const wchar_t* group, CZNMsgArray& messages) const
{
    messages.RemoveAll();
    const int count = CountVisible(group);
    if (count == 0)
        return false;

    AcApDocument* const current = CurrentDocument();
    messages.SetSize(count);
    INT_PTR filled = 0;
    for (INT_PTR i = 0; i < GetSize() && filled < count; ++i)
    {
        const CZNMsgData& data = GetData()[i];
        if (IsVisible(data, current) && CompareGroupNames(data.group, group) == 0)
            messages[filled++] = data;
    }
    return true;
}

int CZNMsgManager::CountVisible(const wchar_t* group) const
{
    return group == NULL ? 0 : m_groups.CountVisible(group, CurrentDocument());
}

void CZNMsgManager::CollectVisibleGroups(CStringArray& groups) const
{
    AcApDocument* const current = CurrentDocument();
    std::set<const wchar_t*, GroupNameLess> seen;
    const wchar_t* latest = NULL;
    groups.RemoveAll();
    for (INT_PTR i = GetSize(); i-- > 0;)
    {
        const CZNMsgData& data = GetData()[i];
        // Neighbours share one text mostly, and then need no comparison.
        if (!IsVisible(data, current) || static_cast<LPCTSTR>(data.group) == latest)
            continue;
        latest = data.group;
        if (seen.insert(latest).second)
            groups.Add(data.group);
    }
}

void CZNMsgManager::Append(const CZNMsgData& data)
{
    try
    {
        // The framework's array grows by 1024 elements at most on its own, which makes a million additions quadratic.
        SetSize(GetSize(), (std::max)(GetSize() / 2, kLeastGrowth));
        Records::Add(data);
    }
    catch (...)
    {
        m_groups.Remove(data.group, data.document);
        throw;
    }
}

// Messages come in thousands within one second: they share one text.
CString CZNMsgManager::TimeNow()
{
    const CTime now = CTime::GetCurrentTime();
    if (now.GetTime() != m_stampedSecond)
    {
        m_stamp = now.Format(L"%H:%M:%S");
        m_stampedSecond = now.GetTime();
    }
    return m_stamp;
}

int CZNMsgManager::IndexOf(int id) const
{
    int low = 0;
    int high = GetCount();
    while (low < high)
    {
        const int middle = low + (high - low) / 2;
        if (GetData()[middle].id < id)
            low = middle + 1;
        else
            high = middle;
    }
    return low < GetCount() && GetData()[low].id == id ? low : -1;
}

// Moves the records that stay over those that go, in one pass and in order.
template<class Matches>
bool CZNMsgManager::RemoveWhere(const Matches& matches)
{
    const INT_PTR before = GetSize();
    INT_PTR kept = 0;
    for (INT_PTR i = 0; i < before; ++i)
    {
        const CZNMsgData& data = GetData()[i];
        if (matches(data))
            m_groups.Remove(data.group, data.document);
        else if (kept++ != i)
            GetData()[kept - 1] = data;
    }
    if (kept == before)
        return false;
    SetSize(kept);
    if (kept < before / 2)
        FreeExtra();
    ++m_removals;
    return true;
}
