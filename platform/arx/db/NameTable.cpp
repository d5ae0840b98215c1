#include "NameTable.h"

#include "arx/rx/Names.h"

namespace arxdb
{

AcDbObjectId NameTable::Find(const ACHAR* name) const
{
    const auto found = m_names.find(arxrx::Folded(name));
    return found == m_names.end() ? AcDbObjectId() : found->second;
}

void NameTable::Add(const ACHAR* name, AcDbObjectId id)
{
    m_ids.push_back(id);
    m_names[arxrx::Folded(name)] = id;
}

void NameTable::Rename(const ACHAR* oldName, const ACHAR* newName, AcDbObjectId id)
{
    const auto old = m_names.find(arxrx::Folded(oldName));
    if (old != m_names.end() && old->second == id)
    {
        m_names.erase(old);
    }
    m_names[arxrx::Folded(newName)] = id;
}

} // namespace arxdb
