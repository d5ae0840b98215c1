#include "msg/MsgGroupIndex.h"

namespace
{

int CountIn(const std::map<AcApDocument*, int>& counts, AcApDocument* document)
{
    const std::map<AcApDocument*, int>::const_iterator found = counts.find(document);
    return found == counts.end() ? 0 : found->second;
}

} // namespace

CString CMsgGroupIndex::Add(const wchar_t* group, AcApDocument* document)
{
    Group& entry = GroupNamed(group);
    if (entry.spelling != group)
        entry.spelling = group;
    ++entry.counts[document];
    return entry.spelling;
}

void CMsgGroupIndex::Remove(const CString& group, AcApDocument* document)
{
    const Groups::iterator found = m_groups.find(group);
    if (found == m_groups.end())
        return;
    Counts& counts = found->second.counts;
    const Counts::iterator count = counts.find(document);
    if (count != counts.end() && --count->second == 0)
        counts.erase(count);
    if (counts.empty())
        m_groups.erase(found);
}

void CMsgGroupIndex::Clear()
{
    m_groups.clear();
}

bool CMsgGroupIndex::Contains(const wchar_t* group) const
{
    return m_groups.find(group) != m_groups.end();
}

int CMsgGroupIndex::CountVisible(const wchar_t* group, AcApDocument* current) const
{
    const Groups::const_iterator found = m_groups.find(group);
    if (found == m_groups.end())
        return 0;
    const int bound = current == NULL ? 0 : CountIn(found->second.counts, current);
    return bound + CountIn(found->second.counts, NULL);
}

CMsgGroupIndex::Group& CMsgGroupIndex::GroupNamed(const wchar_t* group)
{
    const Groups::iterator found = m_groups.find(group);
    if (found != m_groups.end())
        return found->second;
    Group entry;
    entry.name = group;
    entry.spelling = entry.name;
    // The copy in the map shares the text with this one, so the key lives as long as the copy.
    return m_groups.insert(Groups::value_type(entry.name.GetString(), entry)).first->second;
}
