#include "ObjectSet.h"

#include <algorithm>
#include <iterator>

namespace arxed
{

bool ObjectSet::Add(AcDbObjectId id)
{
    const bool added = m_members.insert(id).second;
    if (added)
    {
        m_order.push_back(id);
    }
    return added;
}

bool ObjectSet::Remove(AcDbObjectId id)
{
    if (m_members.erase(id) == 0)
    {
        return false;
    }
    m_order.erase(std::find(m_order.begin(), m_order.end(), id));
    return true;
}

void ObjectSet::Clear()
{
    m_order.clear();
    m_members.clear();
}

std::vector<AcDbObjectId> ObjectSet::LivingIds() const
{
    std::vector<AcDbObjectId> living;
    std::copy_if(m_order.begin(), m_order.end(), std::back_inserter(living),
                 [](AcDbObjectId id) { return id.isValid() && !id.isErased(); });
    return living;
}

} // namespace arxed
