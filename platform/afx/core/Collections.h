// Collections of fixed types. Interface and errors as the templates say (Array.h, List.h, Map.h). The pointer and
// object collections do not own what they point to.
#pragma once

#include "afx/core/Array.h"
#include "afx/core/List.h"
#include "afx/core/Map.h"

class AFX_API CByteArray : public CArray<BYTE, BYTE>
{
    DECLARE_DYNAMIC(CByteArray)
};

class AFX_API CWordArray : public CArray<WORD, WORD>
{
    DECLARE_DYNAMIC(CWordArray)
};

class AFX_API CDWordArray : public CArray<DWORD, DWORD>
{
    DECLARE_DYNAMIC(CDWordArray)
};

class AFX_API CUIntArray : public CArray<UINT, UINT>
{
    DECLARE_DYNAMIC(CUIntArray)
};

class AFX_API CPtrArray : public CArray<void*, void*>
{
    DECLARE_DYNAMIC(CPtrArray)
};

class AFX_API CObArray : public CArray<CObject*, CObject*>
{
    DECLARE_DYNAMIC(CObArray)
};

class AFX_API CStringArray : public CArray<CString, const CString&>
{
    DECLARE_DYNAMIC(CStringArray)
};

class AFX_API CPtrList : public CList<void*, void*>
{
    DECLARE_DYNAMIC(CPtrList)

public:
    explicit CPtrList(INT_PTR blockSize = 10) : CList<void*, void*>(blockSize) {}
};

class AFX_API CObList : public CList<CObject*, CObject*>
{
    DECLARE_DYNAMIC(CObList)

public:
    explicit CObList(INT_PTR blockSize = 10) : CList<CObject*, CObject*>(blockSize) {}
};

class AFX_API CStringList : public CList<CString, const CString&>
{
    DECLARE_DYNAMIC(CStringList)

public:
    explicit CStringList(INT_PTR blockSize = 10) : CList<CString, const CString&>(blockSize) {}
};

class AFX_API CMapPtrToPtr : public CMap<void*, void*, void*, void*>
{
    DECLARE_DYNAMIC(CMapPtrToPtr)

public:
    explicit CMapPtrToPtr(INT_PTR blockSize = 10) : CMap<void*, void*, void*, void*>(blockSize) {}
    // The value, or NULL when there is no such key.
    void* GetValueAt(void* key) const;
};

class AFX_API CMapPtrToWord : public CMap<void*, void*, WORD, WORD>
{
    DECLARE_DYNAMIC(CMapPtrToWord)

public:
    explicit CMapPtrToWord(INT_PTR blockSize = 10) : CMap<void*, void*, WORD, WORD>(blockSize) {}
};

class AFX_API CMapWordToPtr : public CMap<WORD, WORD, void*, void*>
{
    DECLARE_DYNAMIC(CMapWordToPtr)

public:
    explicit CMapWordToPtr(INT_PTR blockSize = 10) : CMap<WORD, WORD, void*, void*>(blockSize) {}
};

class AFX_API CMapWordToOb : public CMap<WORD, WORD, CObject*, CObject*>
{
    DECLARE_DYNAMIC(CMapWordToOb)

public:
    explicit CMapWordToOb(INT_PTR blockSize = 10) : CMap<WORD, WORD, CObject*, CObject*>(blockSize) {}
};

class AFX_API CMapStringToPtr : public CMap<CString, LPCWSTR, void*, void*>
{
    DECLARE_DYNAMIC(CMapStringToPtr)

public:
    explicit CMapStringToPtr(INT_PTR blockSize = 10) : CMap<CString, LPCWSTR, void*, void*>(blockSize) {}
    // The map's own copy of the key.
    BOOL LookupKey(LPCWSTR key, LPCWSTR& stored) const;
};

class AFX_API CMapStringToOb : public CMap<CString, LPCWSTR, CObject*, CObject*>
{
    DECLARE_DYNAMIC(CMapStringToOb)

public:
    explicit CMapStringToOb(INT_PTR blockSize = 10) : CMap<CString, LPCWSTR, CObject*, CObject*>(blockSize) {}
    BOOL LookupKey(LPCWSTR key, LPCWSTR& stored) const;
};

class AFX_API CMapStringToString : public CMap<CString, LPCWSTR, CString, LPCWSTR>
{
    DECLARE_DYNAMIC(CMapStringToString)

public:
    explicit CMapStringToString(INT_PTR blockSize = 10) : CMap<CString, LPCWSTR, CString, LPCWSTR>(blockSize) {}
    BOOL LookupKey(LPCWSTR key, LPCWSTR& stored) const;
};
