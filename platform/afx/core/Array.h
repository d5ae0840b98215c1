// CArray: elements in one block, counted from zero.
//
// TYPE is what is stored, ARG_TYPE how values are passed. A bad index throws CInvalidArgException. Growth keeps a
// reserve (SetSize's growBy elements, or half as much again), which GetSize does not count; pointers to elements are
// good until the array grows.
#pragma once

#include "afx/core/Elements.h"

#include <new>
#include <utility>

template<class TYPE, class ARG_TYPE = const TYPE&>
class CArray : public CObject
{
public:
    typedef TYPE BASE_TYPE;
    typedef ARG_TYPE BASE_ARG_TYPE;

    CArray() : m_pData(NULL), m_nSize(0), m_nMaxSize(0), m_nGrowBy(0) {}
    ~CArray() { RemoveAll(); }

    INT_PTR GetSize() const { return m_nSize; }
    INT_PTR GetCount() const { return m_nSize; }
    bool IsEmpty() const { return m_nSize == 0; }
    INT_PTR GetUpperBound() const { return m_nSize - 1; }

    // New elements are zero or default-constructed; growBy -1 leaves the reserve as it was set before.
    void SetSize(INT_PTR newSize, INT_PTR growBy = -1)
    {
        Check(newSize >= 0);
        if (growBy >= 0)
            m_nGrowBy = growBy;
        if (newSize < m_nSize)
            Truncate(newSize);
        else
            Grow(newSize);
    }
    void FreeExtra()
    {
        if (m_nSize != m_nMaxSize)
            Reallocate(m_nSize);
    }
    void RemoveAll()
    {
        DestructElements(m_pData, m_nSize);
        ::operator delete(static_cast<void*>(m_pData));
        m_pData = NULL;
        m_nSize = m_nMaxSize = 0;
    }

    const TYPE& GetAt(INT_PTR index) const { return m_pData[Checked(index)]; }
    TYPE& GetAt(INT_PTR index) { return m_pData[Checked(index)]; }
    void SetAt(INT_PTR index, ARG_TYPE element) { m_pData[Checked(index)] = element; }
    const TYPE& ElementAt(INT_PTR index) const { return m_pData[Checked(index)]; }
    TYPE& ElementAt(INT_PTR index) { return m_pData[Checked(index)]; }
    const TYPE& operator[](INT_PTR index) const { return m_pData[Checked(index)]; }
    TYPE& operator[](INT_PTR index) { return m_pData[Checked(index)]; }
    // NULL when the array is empty.
    const TYPE* GetData() const { return m_pData; }
    TYPE* GetData() { return m_pData; }

    // The element may lie in this array itself: it is copied before the block moves.
    void SetAtGrow(INT_PTR index, ARG_TYPE element)
    {
        Check(index >= 0);
        if (index < m_nSize)
        {
            m_pData[index] = element;
            return;
        }
        TYPE copy(element);
        Grow(index + 1);
        m_pData[index] = std::move(copy);
    }
    // Index of the new element.
    INT_PTR Add(ARG_TYPE element)
    {
        const INT_PTR index = m_nSize;
        SetAtGrow(index, element);
        return index;
    }
    // Index of the first appended element.
    INT_PTR Append(const CArray& source)
    {
        Check(this != &source);
        const INT_PTR oldSize = m_nSize;
        Grow(oldSize + source.m_nSize);
        CopyElements<TYPE>(m_pData + oldSize, source.m_pData, source.m_nSize);
        return oldSize;
    }
    void Copy(const CArray& source)
    {
        if (this == &source)
            return;
        SetSize(source.m_nSize);
        CopyElements<TYPE>(m_pData, source.m_pData, source.m_nSize);
    }

    void InsertAt(INT_PTR index, ARG_TYPE element, INT_PTR count = 1)
    {
        Check(index >= 0 && count > 0);
        TYPE copy(element);
        MakeGap(index, count);
        for (; count > 0; --count)
            m_pData[index++] = copy;
    }
    void InsertAt(INT_PTR start, CArray* source)
    {
        Check(start >= 0 && source != NULL && source != this);
        if (source->m_nSize == 0)
            return;
        MakeGap(start, source->m_nSize);
        CopyElements<TYPE>(m_pData + start, source->m_pData, source->m_nSize);
    }
    void RemoveAt(INT_PTR index, INT_PTR count = 1)
    {
        Check(index >= 0 && count >= 0 && count <= m_nSize && index <= m_nSize - count);
        for (INT_PTR from = index + count; from < m_nSize; ++from)
            m_pData[from - count] = std::move(m_pData[from]);
        DestructElements(m_pData + m_nSize - count, count);
        m_nSize -= count;
    }

private:
    static const INT_PTR kMinReserve = 4;

    static void Check(bool good)
    {
        if (!good)
            AfxThrowInvalidArgException();
    }
    INT_PTR Checked(INT_PTR index) const
    {
        Check(index >= 0 && index < m_nSize);
        return index;
    }

    INT_PTR GrownCapacity(INT_PTR needed) const
    {
        if (m_nMaxSize == 0)
            return needed > m_nGrowBy ? needed : m_nGrowBy;
        INT_PTR reserve = m_nGrowBy;
        if (reserve == 0)
            reserve = m_nSize / 2 > kMinReserve ? m_nSize / 2 : kMinReserve;
        return needed > m_nMaxSize + reserve ? needed : m_nMaxSize + reserve;
    }
    void Grow(INT_PTR newSize)
    {
        if (newSize > m_nMaxSize)
            Reallocate(GrownCapacity(newSize));
        ConstructElements(m_pData + m_nSize, newSize - m_nSize);
        m_nSize = newSize;
    }
    void Truncate(INT_PTR newSize)
    {
        DestructElements(m_pData + newSize, m_nSize - newSize);
        m_nSize = newSize;
        FreeExtra();
    }
    static TYPE* Allocate(INT_PTR capacity)
    {
        const size_t most = PTRDIFF_MAX / sizeof(TYPE);
        if (static_cast<size_t>(capacity) > most)
            AfxThrowMemoryException();
        return capacity == 0 ? NULL : static_cast<TYPE*>(::operator new(capacity * sizeof(TYPE)));
    }
    void Reallocate(INT_PTR capacity)
    {
        TYPE* moved = Allocate(capacity);
        for (INT_PTR i = 0; i < m_nSize; ++i)
            ::new (static_cast<void*>(moved + i)) TYPE(std::move(m_pData[i]));
        DestructElements(m_pData, m_nSize);
        ::operator delete(static_cast<void*>(m_pData));
        m_pData = moved;
        m_nMaxSize = capacity;
    }
    void MakeGap(INT_PTR index, INT_PTR count)
    {
        const INT_PTR oldSize = m_nSize;
        Grow((index > oldSize ? index : oldSize) + count);
        for (INT_PTR from = oldSize - 1; from >= index; --from)
            m_pData[from + count] = std::move(m_pData[from]);
    }

    TYPE* m_pData;
    INT_PTR m_nSize;
    INT_PTR m_nMaxSize;
    INT_PTR m_nGrowBy;
};
