#include "afx/core/Collections.h"

IMPLEMENT_DYNAMIC(CByteArray, CObject)
IMPLEMENT_DYNAMIC(CWordArray, CObject)
IMPLEMENT_DYNAMIC(CDWordArray, CObject)
IMPLEMENT_DYNAMIC(CUIntArray, CObject)
IMPLEMENT_DYNAMIC(CPtrArray, CObject)
IMPLEMENT_DYNAMIC(CObArray, CObject)
IMPLEMENT_DYNAMIC(CStringArray, CObject)
IMPLEMENT_DYNAMIC(CPtrList, CObject)
IMPLEMENT_DYNAMIC(CObList, CObject)
IMPLEMENT_DYNAMIC(CStringList, CObject)
IMPLEMENT_DYNAMIC(CMapPtrToPtr, CObject)
IMPLEMENT_DYNAMIC(CMapPtrToWord, CObject)
IMPLEMENT_DYNAMIC(CMapWordToPtr, CObject)
IMPLEMENT_DYNAMIC(CMapWordToOb, CObject)
IMPLEMENT_DYNAMIC(CMapStringToPtr, CObject)
IMPLEMENT_DYNAMIC(CMapStringToOb, CObject)
IMPLEMENT_DYNAMIC(CMapStringToString, CObject)

namespace
{
template<class MAP>
BOOL FindStoredKey(const MAP& map, LPCWSTR key, LPCWSTR& stored)
{
    const typename MAP::CPair* pair = map.PLookup(key);
    if (pair == NULL)
        return FALSE;
    stored = pair->key;
    return TRUE;
}
} // namespace

void* CMapPtrToPtr::GetValueAt(void* key) const
{
    const CPair* pair = PLookup(key);
    return pair == NULL ? NULL : pair->value;
}

BOOL CMapStringToPtr::LookupKey(LPCWSTR key, LPCWSTR& stored) const
{
    return FindStoredKey(*this, key, stored);
}

BOOL CMapStringToOb::LookupKey(LPCWSTR key, LPCWSTR& stored) const
{
    return FindStoredKey(*this, key, stored);
}

BOOL CMapStringToString::LookupKey(LPCWSTR key, LPCWSTR& stored) const
{
    return FindStoredKey(*this, key, stored);
}
