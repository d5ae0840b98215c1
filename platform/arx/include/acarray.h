// AcArray: the host's growable array.
//
// logicalLength() elements are in use, physicalLength() fit without a new buffer. The buffer grows by at least
// growLength() elements at a time. Copies are deep. Assignment keeps the target's buffer when it is large enough and
// otherwise takes a new one of exactly the source's length.
//
// The second parameter says how elements move to another place: AcArrayMemCopyReallocator (the default) moves their
// bytes, which suits everything that does not point into itself; AcArrayObjectCopyReallocator copies and destroys
// them one by one. Indices are not checked.
#pragma once

#include "adesk.h"

#include <new>
#include <stddef.h>
#include <string.h>

template<class T>
class AcArrayMemCopyReallocator
{
public:
    static const bool kMovesBytes = true;
};

template<class T>
class AcArrayObjectCopyReallocator
{
public:
    static const bool kMovesBytes = false;
};

template<class T, class R = AcArrayMemCopyReallocator<T>>
class AcArray
{
public:
    AcArray(int initPhysicalLength = 0, int initGrowLength = 8);
    AcArray(const AcArray& other);
    ~AcArray();
    AcArray& operator=(const AcArray& other);
    bool operator==(const AcArray& other) const;
    bool operator!=(const AcArray& other) const { return !(*this == other); }

    // Sizes. Shrinking the physical length below the logical one drops elements; new elements are value-initialised.
    int length() const { return m_logicalLength; }
    int logicalLength() const { return m_logicalLength; }
    int physicalLength() const { return m_physicalLength; }
    int growLength() const { return m_growLength; }
    bool isEmpty() const { return m_logicalLength == 0; }
    AcArray& setLogicalLength(int length);
    AcArray& setPhysicalLength(int length);
    AcArray& setGrowLength(int length);

    // Elements
    T& operator[](int index) { return m_buffer[index]; }
    const T& operator[](int index) const { return m_buffer[index]; }
    T& at(int index) { return m_buffer[index]; }
    const T& at(int index) const { return m_buffer[index]; }
    T& first() { return m_buffer[0]; }
    const T& first() const { return m_buffer[0]; }
    T& last() { return m_buffer[m_logicalLength - 1]; }
    const T& last() const { return m_buffer[m_logicalLength - 1]; }
    AcArray& setAt(int index, const T& value);
    AcArray& setAll(const T& value);
    T* asArrayPtr() { return m_buffer; }
    const T* asArrayPtr() const { return m_buffer; }

    // Adding. append(value) returns the new element's index; a value that lies in this array may be passed.
    int append(const T& value);
    AcArray& append(const AcArray& other);
    AcArray& insertAt(int index, const T& value);

    // Removing keeps the buffer.
    AcArray& removeAt(int index);
    bool remove(const T& value, int start = 0);
    AcArray& removeFirst() { return removeAt(0); }
    AcArray& removeLast() { return removeAt(m_logicalLength - 1); }
    AcArray& removeAll() { return setLogicalLength(0); }
    AcArray& removeSubArray(int startIndex, int endIndex);

    // Searching by ==. find() answers -1 when nothing matches.
    bool contains(const T& value, int start = 0) const { return find(value, start) >= 0; }
    bool find(const T& value, int& foundAt, int start) const;
    int find(const T& value) const { return find(value, 0); }
    int find(const T& value, int start) const;

    AcArray& reverse();
    AcArray& swap(int first, int second);

private:
    static T* Allocate(int length);
    static void Release(T* buffer) { ::operator delete(buffer); }
    static void Construct(T* place, const T* source, int count);
    static void Destroy(T* first, int count);
    static void Relocate(T* place, T* source, int count);
    void GrowFor(int length);
    void CloseGap(int from, int count);

    T* m_buffer;
    int m_physicalLength;
    int m_logicalLength;
    int m_growLength;
};

template<class T, class R>
AcArray<T, R>::AcArray(int initPhysicalLength, int initGrowLength)
    : m_buffer(NULL), m_physicalLength(0), m_logicalLength(0), m_growLength(initGrowLength < 1 ? 1 : initGrowLength)
{
    if (initPhysicalLength > 0)
    {
        m_buffer = Allocate(initPhysicalLength);
        m_physicalLength = initPhysicalLength;
    }
}

template<class T, class R>
AcArray<T, R>::AcArray(const AcArray& other)
    : m_buffer(Allocate(other.m_logicalLength)), m_physicalLength(other.m_logicalLength),
      m_logicalLength(other.m_logicalLength), m_growLength(other.m_growLength)
{
    Construct(m_buffer, other.m_buffer, other.m_logicalLength);
}

template<class T, class R>
AcArray<T, R>::~AcArray()
{
    Destroy(m_buffer, m_logicalLength);
    Release(m_buffer);
}

template<class T, class R>
AcArray<T, R>& AcArray<T, R>::operator=(const AcArray& other)
{
    if (this == &other)
    {
        return *this;
    }
    Destroy(m_buffer, m_logicalLength);
    m_logicalLength = 0;
    if (m_physicalLength < other.m_logicalLength)
    {
        T* buffer = Allocate(other.m_logicalLength);
        Release(m_buffer);
        m_buffer = buffer;
        m_physicalLength = other.m_logicalLength;
    }
    Construct(m_buffer, other.m_buffer, other.m_logicalLength);
    m_logicalLength = other.m_logicalLength;
    return *this;
}

template<class T, class R>
bool AcArray<T, R>::operator==(const AcArray& other) const
{
    if (m_logicalLength != other.m_logicalLength)
    {
        return false;
    }
    for (int i = 0; i < m_logicalLength; ++i)
    {
        if (!(m_buffer[i] == other.m_buffer[i]))
        {
            return false;
        }
    }
    return true;
}

template<class T, class R>
AcArray<T, R>& AcArray<T, R>::setLogicalLength(int length)
{
    if (length < m_logicalLength)
    {
        const int kept = length < 0 ? 0 : length;
        Destroy(m_buffer + kept, m_logicalLength - kept);
        m_logicalLength = kept;
        return *this;
    }
    GrowFor(length);
    for (; m_logicalLength < length; ++m_logicalLength)
    {
        new (static_cast<void*>(m_buffer + m_logicalLength)) T();
    }
    return *this;
}

template<class T, class R>
AcArray<T, R>& AcArray<T, R>::setPhysicalLength(int length)
{
    if (length < 0 || length == m_physicalLength)
    {
        return *this;
    }
    if (length < m_logicalLength)
    {
        setLogicalLength(length);
    }
    T* buffer = Allocate(length);
    Relocate(buffer, m_buffer, m_logicalLength);
    Release(m_buffer);
    m_buffer = buffer;
    m_physicalLength = length;
    return *this;
}

template<class T, class R>
AcArray<T, R>& AcArray<T, R>::setGrowLength(int length)
{
    if (length > 0)
    {
        m_growLength = length;
    }
    return *this;
}

template<class T, class R>
AcArray<T, R>& AcArray<T, R>::setAt(int index, const T& value)
{
    m_buffer[index] = value;
    return *this;
}

template<class T, class R>
AcArray<T, R>& AcArray<T, R>::setAll(const T& value)
{
    const T copy(value);
    for (int i = 0; i < m_logicalLength; ++i)
    {
        m_buffer[i] = copy;
    }
    return *this;
}

template<class T, class R>
int AcArray<T, R>::append(const T& value)
{
    insertAt(m_logicalLength, value);
    return m_logicalLength - 1;
}

template<class T, class R>
AcArray<T, R>& AcArray<T, R>::append(const AcArray& other)
{
    const int added = other.m_logicalLength;
    GrowFor(m_logicalLength + added);
    Construct(m_buffer + m_logicalLength, other.m_buffer, added);
    m_logicalLength += added;
    return *this;
}

template<class T, class R>
AcArray<T, R>& AcArray<T, R>::insertAt(int index, const T& value)
{
    const T copy(value);
    GrowFor(m_logicalLength + 1);
    for (int i = m_logicalLength; i > index && !R::kMovesBytes; --i)
    {
        Relocate(m_buffer + i, m_buffer + i - 1, 1);
    }
    if (R::kMovesBytes && index < m_logicalLength)
    {
        Relocate(m_buffer + index + 1, m_buffer + index, m_logicalLength - index);
    }
    Construct(m_buffer + index, &copy, 1);
    ++m_logicalLength;
    return *this;
}

template<class T, class R>
AcArray<T, R>& AcArray<T, R>::removeAt(int index)
{
    return removeSubArray(index, index);
}

template<class T, class R>
bool AcArray<T, R>::remove(const T& value, int start)
{
    const int index = find(value, start);
    if (index < 0)
    {
        return false;
    }
    removeAt(index);
    return true;
}

template<class T, class R>
AcArray<T, R>& AcArray<T, R>::removeSubArray(int startIndex, int endIndex)
{
    if (startIndex < 0 || endIndex >= m_logicalLength || startIndex > endIndex)
    {
        return *this;
    }
    const int count = endIndex - startIndex + 1;
    Destroy(m_buffer + startIndex, count);
    CloseGap(startIndex, count);
    m_logicalLength -= count;
    return *this;
}

template<class T, class R>
bool AcArray<T, R>::find(const T& value, int& foundAt, int start) const
{
    const int index = find(value, start);
    if (index >= 0)
    {
        foundAt = index;
    }
    return index >= 0;
}

template<class T, class R>
int AcArray<T, R>::find(const T& value, int start) const
{
    for (int i = start < 0 ? 0 : start; i < m_logicalLength; ++i)
    {
        if (m_buffer[i] == value)
        {
            return i;
        }
    }
    return -1;
}

template<class T, class R>
AcArray<T, R>& AcArray<T, R>::reverse()
{
    for (int i = 0; i < m_logicalLength / 2; ++i)
    {
        swap(i, m_logicalLength - 1 - i);
    }
    return *this;
}

template<class T, class R>
AcArray<T, R>& AcArray<T, R>::swap(int first, int second)
{
    const T kept(m_buffer[first]);
    m_buffer[first] = m_buffer[second];
    m_buffer[second] = kept;
    return *this;
}

template<class T, class R>
T* AcArray<T, R>::Allocate(int length)
{
    return length <= 0 ? NULL : static_cast<T*>(::operator new(sizeof(T) * static_cast<size_t>(length)));
}

template<class T, class R>
void AcArray<T, R>::Construct(T* place, const T* source, int count)
{
    for (int i = 0; i < count; ++i)
    {
        new (static_cast<void*>(place + i)) T(source[i]);
    }
}

template<class T, class R>
void AcArray<T, R>::Destroy(T* first, int count)
{
    for (int i = 0; i < count; ++i)
    {
        first[i].~T();
    }
}

template<class T, class R>
void AcArray<T, R>::Relocate(T* place, T* source, int count)
{
    if (count <= 0)
    {
        return;
    }
    if (R::kMovesBytes)
    {
        memmove(static_cast<void*>(place), static_cast<const void*>(source), sizeof(T) * static_cast<size_t>(count));
        return;
    }
    for (int i = 0; i < count; ++i)
    {
        Construct(place + i, source + i, 1);
        Destroy(source + i, 1);
    }
}

template<class T, class R>
void AcArray<T, R>::GrowFor(int length)
{
    if (length <= m_physicalLength)
    {
        return;
    }
    // Half as much again keeps long series of append() linear; the grow length is only the least growth.
    int growth = m_physicalLength / 2;
    growth = growth < m_growLength ? m_growLength : growth;
    growth = growth < length - m_physicalLength ? length - m_physicalLength : growth;
    setPhysicalLength(m_physicalLength + growth);
}

template<class T, class R>
void AcArray<T, R>::CloseGap(int from, int count)
{
    const int behind = m_logicalLength - from - count;
    if (R::kMovesBytes)
    {
        Relocate(m_buffer + from, m_buffer + from + count, behind);
        return;
    }
    for (int i = 0; i < behind; ++i)
    {
        Relocate(m_buffer + from + i, m_buffer + from + count + i, 1);
    }
}
