#include "rxdict.h"

#include "Names.h"

#include <map>
#include <string>

namespace arxrx
{

class DictionaryImpl
{
public:
    DictionaryImpl(bool deletes, bool ignoresCase) : deletesObjects(deletes), ignoreCase(ignoresCase) {}

    std::wstring Key(const ACHAR* key) const
    {
        return ignoreCase ? Folded(key) : std::wstring(key == NULL ? ACRX_T("") : key);
    }

    const bool deletesObjects;
    const bool ignoreCase;
    std::map<std::wstring, AcRxObject*> entries;
};

} // namespace arxrx

ACRX_NO_CONS_DEFINE_MEMBERS(AcRxDictionary, AcRxObject)

AcRxDictionary::AcRxDictionary(bool deleteObjects, bool ignoreCase)
    : m_impl(new arxrx::DictionaryImpl(deleteObjects, ignoreCase))
{
}

AcRxDictionary::~AcRxDictionary()
{
    if (m_impl->deletesObjects)
    {
        for (const auto& entry : m_impl->entries)
        {
            delete entry.second;
        }
    }
    delete m_impl;
}

AcRxObject* AcRxDictionary::at(const ACHAR* key) const
{
    const auto found = m_impl->entries.find(m_impl->Key(key));
    return found == m_impl->entries.end() ? NULL : found->second;
}

AcRxObject* AcRxDictionary::atPut(const ACHAR* key, AcRxObject* object)
{
    AcRxObject*& place = m_impl->entries[m_impl->Key(key)];
    AcRxObject* previous = place;
    place = object;
    if (m_impl->deletesObjects && previous != object)
    {
        delete previous;
        previous = NULL;
    }
    return previous;
}

bool AcRxDictionary::has(const ACHAR* key) const
{
    return m_impl->entries.count(m_impl->Key(key)) != 0;
}

AcRxObject* AcRxDictionary::remove(const ACHAR* key)
{
    const auto found = m_impl->entries.find(m_impl->Key(key));
    if (found == m_impl->entries.end())
    {
        return NULL;
    }
    AcRxObject* object = found->second;
    m_impl->entries.erase(found);
    return object;
}

bool AcRxDictionary::erase(const ACHAR* key)
{
    if (!has(key))
    {
        return false;
    }
    AcRxObject* object = remove(key);
    if (m_impl->deletesObjects)
    {
        delete object;
    }
    return true;
}

unsigned int AcRxDictionary::numEntries() const
{
    return static_cast<unsigned int>(m_impl->entries.size());
}

bool AcRxDictionary::deletesObjects() const
{
    return m_impl->deletesObjects;
}
