// AcRxDictionary: objects by name. acrxSysRegistry() is the one dictionary that the whole process shares: services such
// as the dynamic linker are found there.
#pragma once

#include "rxobject.h"

namespace arxrx
{
class DictionaryImpl;
} // namespace arxrx

class ARX_API AcRxDictionary : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcRxDictionary);

    // Keys are compared exactly unless `ignoreCase`. With `deleteObjects` the dictionary owns its values.
    explicit AcRxDictionary(bool deleteObjects = false, bool ignoreCase = false);
    virtual ~AcRxDictionary();

    // Null when there is no such key.
    AcRxObject* at(const ACHAR* key) const;
    // Puts `object` under `key` and returns what stood there before (null when nothing, or when it was deleted
    // because the dictionary owns it).
    AcRxObject* atPut(const ACHAR* key, AcRxObject* object);
    bool has(const ACHAR* key) const;
    // Takes the entry out and returns its value to the caller, null when there is none.
    AcRxObject* remove(const ACHAR* key);
    // Takes the entry out; an owned value is deleted. False when there is none.
    bool erase(const ACHAR* key);
    unsigned int numEntries() const;
    bool deletesObjects() const;

private:
    AcRxDictionary(const AcRxDictionary&);
    AcRxDictionary& operator=(const AcRxDictionary&);

    arxrx::DictionaryImpl* m_impl;
};

ARX_API AcRxDictionary* acrxSysRegistry();
