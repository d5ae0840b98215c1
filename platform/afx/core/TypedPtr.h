// CTypedPtrArray, CTypedPtrList, CTypedPtrMap: the pointer and object collections with a typed interface.
//
//   CTypedPtrArray<CPtrArray, CThing*> things;
//   CTypedPtrMap<CMapStringToPtr, CString, CThing*> byName;
#pragma once

#include "afx/core/Collections.h"

template<class BASE_CLASS, class TYPE>
class CTypedPtrArray : public BASE_CLASS
{
public:
    TYPE GetAt(INT_PTR index) const { return static_cast<TYPE>(BASE_CLASS::GetAt(index)); }
    TYPE& ElementAt(INT_PTR index) { return reinterpret_cast<TYPE&>(BASE_CLASS::ElementAt(index)); }
    void SetAt(INT_PTR index, TYPE pointer) { BASE_CLASS::SetAt(index, pointer); }
    void SetAtGrow(INT_PTR index, TYPE pointer) { BASE_CLASS::SetAtGrow(index, pointer); }
    INT_PTR Add(TYPE pointer) { return BASE_CLASS::Add(pointer); }
    INT_PTR Append(const CTypedPtrArray& source) { return BASE_CLASS::Append(source); }
    void Copy(const CTypedPtrArray& source) { BASE_CLASS::Copy(source); }
    void InsertAt(INT_PTR index, TYPE pointer, INT_PTR count = 1) { BASE_CLASS::InsertAt(index, pointer, count); }
    void InsertAt(INT_PTR start, CTypedPtrArray* source) { BASE_CLASS::InsertAt(start, source); }
    TYPE operator[](INT_PTR index) const { return GetAt(index); }
    TYPE& operator[](INT_PTR index) { return ElementAt(index); }
};

template<class BASE_CLASS, class TYPE>
class CTypedPtrList : public BASE_CLASS
{
public:
    explicit CTypedPtrList(INT_PTR blockSize = 10) : BASE_CLASS(blockSize) {}

    TYPE& GetHead() { return Typed(BASE_CLASS::GetHead()); }
    TYPE GetHead() const { return static_cast<TYPE>(BASE_CLASS::GetHead()); }
    TYPE& GetTail() { return Typed(BASE_CLASS::GetTail()); }
    TYPE GetTail() const { return static_cast<TYPE>(BASE_CLASS::GetTail()); }
    TYPE RemoveHead() { return static_cast<TYPE>(BASE_CLASS::RemoveHead()); }
    TYPE RemoveTail() { return static_cast<TYPE>(BASE_CLASS::RemoveTail()); }
    POSITION AddHead(TYPE pointer) { return BASE_CLASS::AddHead(pointer); }
    POSITION AddTail(TYPE pointer) { return BASE_CLASS::AddTail(pointer); }
    void AddHead(CTypedPtrList* source) { BASE_CLASS::AddHead(source); }
    void AddTail(CTypedPtrList* source) { BASE_CLASS::AddTail(source); }
    TYPE& GetNext(POSITION& position) { return Typed(BASE_CLASS::GetNext(position)); }
    TYPE GetNext(POSITION& position) const { return static_cast<TYPE>(BASE_CLASS::GetNext(position)); }
    TYPE& GetPrev(POSITION& position) { return Typed(BASE_CLASS::GetPrev(position)); }
    TYPE GetPrev(POSITION& position) const { return static_cast<TYPE>(BASE_CLASS::GetPrev(position)); }
    TYPE& GetAt(POSITION position) { return Typed(BASE_CLASS::GetAt(position)); }
    TYPE GetAt(POSITION position) const { return static_cast<TYPE>(BASE_CLASS::GetAt(position)); }
    void SetAt(POSITION position, TYPE pointer) { BASE_CLASS::SetAt(position, pointer); }

private:
    template<class STORED>
    static TYPE& Typed(STORED& stored)
    {
        return reinterpret_cast<TYPE&>(stored);
    }
};

template<class BASE_CLASS, class KEY, class VALUE>
class CTypedPtrMap : public BASE_CLASS
{
public:
    explicit CTypedPtrMap(INT_PTR blockSize = 10) : BASE_CLASS(blockSize) {}

    BOOL Lookup(typename BASE_CLASS::BASE_ARG_KEY key, VALUE& value) const
    {
        typename BASE_CLASS::BASE_VALUE stored = typename BASE_CLASS::BASE_VALUE();
        if (!BASE_CLASS::Lookup(key, stored))
            return FALSE;
        value = (VALUE)(stored);
        return TRUE;
    }
    VALUE& operator[](typename BASE_CLASS::BASE_ARG_KEY key)
    {
        return reinterpret_cast<VALUE&>(BASE_CLASS::operator[](key));
    }
    void SetAt(KEY key, VALUE value)
    {
        BASE_CLASS::SetAt((typename BASE_CLASS::BASE_ARG_KEY)(key), (typename BASE_CLASS::BASE_ARG_VALUE)(value));
    }
    BOOL RemoveKey(KEY key) { return BASE_CLASS::RemoveKey((typename BASE_CLASS::BASE_ARG_KEY)(key)); }
    void GetNextAssoc(POSITION& position, KEY& key, VALUE& value) const
    {
        typename BASE_CLASS::BASE_KEY storedKey = typename BASE_CLASS::BASE_KEY();
        typename BASE_CLASS::BASE_VALUE storedValue = typename BASE_CLASS::BASE_VALUE();
        BASE_CLASS::GetNextAssoc(position, storedKey, storedValue);
        key = (KEY)(storedKey);
        value = (VALUE)(storedValue);
    }
};
