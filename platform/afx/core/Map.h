// CMap: a hash table from keys to values.
//
// Walk: for (POSITION at = map.GetStartPosition(); at != NULL;) { map.GetNextAssoc(at, key, value); ... }
// Clients must not rely on the order. The entry just returned may be removed on the way, and new ones may be added.
// A NULL position where an entry is needed throws CInvalidArgException.
#pragma once

#include "afx/core/Elements.h"

#include <memory>

template<class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class CMap : public CObject
{
public:
    typedef KEY BASE_KEY;
    typedef ARG_KEY BASE_ARG_KEY;
    typedef VALUE BASE_VALUE;
    typedef ARG_VALUE BASE_ARG_VALUE;

    struct CPair
    {
        const KEY key;
        VALUE value;

    protected:
        explicit CPair(ARG_KEY keyValue) : key(keyValue), value() {}
    };

    // The block size of the documented interface has no effect: entries are allocated one by one.
    explicit CMap(INT_PTR = 10) : m_nHashTableSize(kDefaultTableSize), m_nCount(0), m_pFirst(NULL), m_pLast(NULL) {}
    ~CMap() { RemoveAll(); }

    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }
    UINT GetHashTableSize() const { return m_nHashTableSize; }
    // For an empty map; best a prime number some 20 % above the expected count. A full table grows by itself.
    void InitHashTable(UINT hashSize, BOOL allocateNow = TRUE)
    {
        if (m_nCount != 0 || hashSize == 0)
            AfxThrowInvalidArgException();
        m_nHashTableSize = hashSize;
        m_table.reset(allocateNow ? NewTable(hashSize) : NULL);
    }

    // FALSE leaves the value as it was.
    BOOL Lookup(ARG_KEY key, VALUE& value) const
    {
        CAssoc* assoc = FindAssoc(key, HashKey<ARG_KEY>(key));
        if (assoc == NULL)
            return FALSE;
        value = assoc->value;
        return TRUE;
    }
    const CPair* PLookup(ARG_KEY key) const { return FindAssoc(key, HashKey<ARG_KEY>(key)); }
    CPair* PLookup(ARG_KEY key) { return FindAssoc(key, HashKey<ARG_KEY>(key)); }

    // Adds an entry with an empty value when the key is new.
    VALUE& operator[](ARG_KEY key)
    {
        const UINT hash = HashKey<ARG_KEY>(key);
        CAssoc* assoc = FindAssoc(key, hash);
        return (assoc == NULL ? NewAssoc(key, hash) : assoc)->value;
    }
    void SetAt(ARG_KEY key, ARG_VALUE value) { (*this)[key] = value; }
    // FALSE when there is no such key.
    BOOL RemoveKey(ARG_KEY key)
    {
        CAssoc* assoc = FindAssoc(key, HashKey<ARG_KEY>(key));
        if (assoc == NULL)
            return FALSE;
        CAssoc** link = &m_table[assoc->hash % m_nHashTableSize];
        while (*link != assoc)
            link = &(*link)->chain;
        *link = assoc->chain;
        Unlink(assoc);
        return TRUE;
    }
    void RemoveAll()
    {
        while (m_pFirst != NULL)
            Unlink(m_pFirst);
        m_table.reset();
    }

    POSITION GetStartPosition() const { return reinterpret_cast<POSITION>(m_pFirst); }
    // The entry at the position, which moves on (NULL behind the last).
    void GetNextAssoc(POSITION& position, KEY& key, VALUE& value) const
    {
        const CAssoc* assoc = ToAssoc(position);
        position = reinterpret_cast<POSITION>(assoc->next);
        key = assoc->key;
        value = assoc->value;
    }
    const CPair* PGetFirstAssoc() const { return m_pFirst; }
    CPair* PGetFirstAssoc() { return m_pFirst; }
    // The entry behind the given one; NULL behind the last.
    const CPair* PGetNextAssoc(const CPair* pair) const { return Checked(static_cast<const CAssoc*>(pair))->next; }
    CPair* PGetNextAssoc(const CPair* pair) { return Checked(static_cast<const CAssoc*>(pair))->next; }

protected:
    // Entries stand in the chain of their hash and in one list of all.
    struct CAssoc : public CPair
    {
        CAssoc(ARG_KEY keyValue, UINT hashValue) : CPair(keyValue), hash(hashValue), chain(NULL), prev(NULL), next(NULL)
        {
        }

        UINT hash;
        CAssoc* chain;
        CAssoc* prev;
        CAssoc* next;
    };

    CAssoc* FindAssoc(ARG_KEY key, UINT hash) const
    {
        CAssoc* assoc = m_table ? m_table[hash % m_nHashTableSize] : NULL;
        while (assoc != NULL && (assoc->hash != hash || !CompareElements(&assoc->key, &key)))
            assoc = assoc->chain;
        return assoc;
    }

private:
    static const UINT kDefaultTableSize = 17;
    static const UINT kMaxLoad = 4; // entries per chain before the table grows

    static CAssoc** NewTable(UINT size) { return new CAssoc*[size](); }

    template<class ASSOC>
    static ASSOC* Checked(ASSOC* assoc)
    {
        if (assoc == NULL)
            AfxThrowInvalidArgException();
        return assoc;
    }
    // BEFORE_START_POSITION stands for the first entry, as older code has it.
    CAssoc* ToAssoc(POSITION position) const
    {
        return Checked(position == BEFORE_START_POSITION ? m_pFirst : reinterpret_cast<CAssoc*>(position));
    }

    CAssoc* NewAssoc(ARG_KEY key, UINT hash)
    {
        CAssoc* assoc = new CAssoc(key, hash);
        assoc->prev = m_pLast;
        (m_pLast == NULL ? m_pFirst : m_pLast->next) = assoc;
        m_pLast = assoc;
        ++m_nCount;
        if (!m_table || static_cast<UINT>(m_nCount) / kMaxLoad > m_nHashTableSize)
            BuildTable();
        else
            Chain(assoc);
        return assoc;
    }
    void Chain(CAssoc* assoc)
    {
        CAssoc*& head = m_table[assoc->hash % m_nHashTableSize];
        assoc->chain = head;
        head = assoc;
    }
    void BuildTable()
    {
        if (m_table)
            m_nHashTableSize = m_nHashTableSize * kMaxLoad + 1;
        m_table.reset(NewTable(m_nHashTableSize));
        for (CAssoc* assoc = m_pFirst; assoc != NULL; assoc = assoc->next)
            Chain(assoc);
    }
    void Unlink(CAssoc* assoc)
    {
        (assoc->prev == NULL ? m_pFirst : assoc->prev->next) = assoc->next;
        (assoc->next == NULL ? m_pLast : assoc->next->prev) = assoc->prev;
        --m_nCount;
        delete assoc;
    }

    std::unique_ptr<CAssoc*[]> m_table;
    UINT m_nHashTableSize;
    INT_PTR m_nCount;
    CAssoc* m_pFirst;
    CAssoc* m_pLast;
};
