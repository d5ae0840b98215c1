// The records of one symbol table: order and look-up by name.
#pragma once

#include "dbid.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace arxdb
{

class NameTable
{
public:
    // The newest record of this name, erased or not; null when there is none.
    AcDbObjectId Find(const ACHAR* name) const;
    // A name that an erased record has is taken over by the new one.
    void Add(const ACHAR* name, AcDbObjectId id);
    void Rename(const ACHAR* oldName, const ACHAR* newName, AcDbObjectId id);

    const std::vector<AcDbObjectId>& Ids() const { return m_ids; }

private:
    std::vector<AcDbObjectId> m_ids;
    std::unordered_map<std::wstring, AcDbObjectId> m_names;
};

} // namespace arxdb
