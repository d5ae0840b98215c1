// The open selection sets of the C interface.
#pragma once

#include "ObjectSet.h"
#include "adsdef.h"

#include <map>

namespace arxed
{

class SelectionSets
{
public:
    static SelectionSets& Instance();

    // A new empty set whose name is written to `name`; null when the greatest number of sets is open.
    ObjectSet* New(ads_name name);
    // Null for a name that is no open set's.
    ObjectSet* Find(const ads_name name);
    bool Free(const ads_name name);
    void Clear() { m_sets.clear(); }

private:
    SelectionSets() = default;

    std::map<intptr_t, ObjectSet> m_sets;
    // Counted up, so that the name of a freed set stays unknown.
    intptr_t m_lastKey = 0;
};

} // namespace arxed
