// What the collection templates need to know about their elements: how to hash, compare and copy. A client may
// specialise each for its own type.
#pragma once

#include "afx/core/Exceptions.h"

namespace afx
{
// FNV-1a over the bytes.
inline UINT HashBytes(const void* data, size_t size)
{
    const UINT kOffset = 2166136261u;
    const UINT kPrime = 16777619u;
    UINT hash = kOffset;
    for (const BYTE* at = static_cast<const BYTE*>(data); size > 0; ++at, --size)
        hash = (hash ^ *at) * kPrime;
    return hash;
}
} // namespace afx

// Numbers and pointers.
template<class ARG_KEY>
inline UINT AFXAPI HashKey(ARG_KEY key)
{
    const DWORD_PTR value = (DWORD_PTR)(key);
    return afx::HashBytes(&value, sizeof(value));
}

template<>
inline UINT AFXAPI HashKey<LPCWSTR>(LPCWSTR key)
{
    return afx::HashBytes(key, CString::StringLength(key) * sizeof(wchar_t));
}

template<>
inline UINT AFXAPI HashKey<LPWSTR>(LPWSTR key)
{
    return HashKey<LPCWSTR>(key);
}

template<>
inline UINT AFXAPI HashKey<LPCSTR>(LPCSTR key)
{
    return afx::HashBytes(key, key == NULL ? 0 : lstrlenA(key));
}

template<>
inline UINT AFXAPI HashKey<CString>(CString key)
{
    return HashKey<LPCWSTR>(key);
}

template<>
inline UINT AFXAPI HashKey<CString&>(CString& key)
{
    return HashKey<LPCWSTR>(key);
}

template<>
inline UINT AFXAPI HashKey<const CString&>(const CString& key)
{
    return HashKey<LPCWSTR>(key);
}

template<class TYPE, class ARG_TYPE>
inline BOOL AFXAPI CompareElements(const TYPE* first, const ARG_TYPE* second)
{
    return *first == *second;
}

template<class TYPE>
inline void AFXAPI CopyElements(TYPE* target, const TYPE* source, INT_PTR count)
{
    for (; count > 0; --count)
        *target++ = *source++;
}

// Makes elements in raw memory; plain types become zero.
template<class TYPE>
inline void AFXAPI ConstructElements(TYPE* elements, INT_PTR count)
{
    memset(static_cast<void*>(elements), 0, count * sizeof(TYPE));
    for (; count > 0; --count, ++elements)
        ::new (static_cast<void*>(elements)) TYPE();
}

template<class TYPE>
inline void AFXAPI DestructElements(TYPE* elements, INT_PTR count)
{
    for (; count > 0; --count, ++elements)
        elements->~TYPE();
}
