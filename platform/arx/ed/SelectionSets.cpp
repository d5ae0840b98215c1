#include "SelectionSets.h"

namespace arxed
{

namespace
{

const size_t kMostSets = 128;
// In the second element of a name; entities have zero there.
const intptr_t kSetMark = 0x53534554;

} // namespace

SelectionSets& SelectionSets::Instance()
{
    static SelectionSets sets;
    return sets;
}

ObjectSet* SelectionSets::New(ads_name name)
{
    if (m_sets.size() >= kMostSets)
    {
        return nullptr;
    }
    name[0] = ++m_lastKey;
    name[1] = kSetMark;
    return &m_sets[m_lastKey];
}

ObjectSet* SelectionSets::Find(const ads_name name)
{
    if (name == nullptr || name[1] != kSetMark)
    {
        return nullptr;
    }
    const auto found = m_sets.find(name[0]);
    return found == m_sets.end() ? nullptr : &found->second;
}

bool SelectionSets::Free(const ads_name name)
{
    return Find(name) != nullptr && m_sets.erase(name[0]) != 0;
}

} // namespace arxed
