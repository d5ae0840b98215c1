// Identifiers in the order in which they came, each once.
#pragma once

#include "dbid.h"

#include <set>
#include <vector>

namespace arxed
{

class ObjectSet
{
public:
    // False when it was in already, or was not.
    bool Add(AcDbObjectId id);
    bool Remove(AcDbObjectId id);
    void Clear();

    bool Has(AcDbObjectId id) const { return m_members.count(id) != 0; }
    bool IsEmpty() const { return m_members.empty(); }
    const std::vector<AcDbObjectId>& Ids() const { return m_order; }
    // Without erased objects and those of closed drawings.
    std::vector<AcDbObjectId> LivingIds() const;

private:
    std::vector<AcDbObjectId> m_order;
    std::set<AcDbObjectId> m_members;
};

} // namespace arxed
