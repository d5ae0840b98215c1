// CList: a doubly linked list. A POSITION is good until its own element is removed; NULL means "no element". A position
// that is NULL where an element is needed, and the head or tail of an empty list, throw CInvalidArgException.
#pragma once

#include "afx/core/Elements.h"

template<class TYPE, class ARG_TYPE = const TYPE&>
class CList : public CObject
{
public:
    typedef TYPE BASE_TYPE;
    typedef ARG_TYPE BASE_ARG_TYPE;

    // The block size of the documented interface has no effect: elements are allocated one by one.
    explicit CList(INT_PTR = 10) : m_pNodeHead(NULL), m_pNodeTail(NULL), m_nCount(0) {}
    ~CList() { RemoveAll(); }

    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    TYPE& GetHead() { return Checked(m_pNodeHead)->data; }
    const TYPE& GetHead() const { return Checked(m_pNodeHead)->data; }
    TYPE& GetTail() { return Checked(m_pNodeTail)->data; }
    const TYPE& GetTail() const { return Checked(m_pNodeTail)->data; }
    TYPE RemoveHead() { return Take(Checked(m_pNodeHead)); }
    TYPE RemoveTail() { return Take(Checked(m_pNodeTail)); }

    POSITION AddHead(ARG_TYPE element) { return ToPosition(Link(NULL, element, m_pNodeHead)); }
    POSITION AddTail(ARG_TYPE element) { return ToPosition(Link(m_pNodeTail, element, NULL)); }
    // The other list's elements in their order.
    void AddHead(CList* source)
    {
        for (POSITION at = source->GetTailPosition(); at != NULL;)
            AddHead(source->GetPrev(at));
    }
    void AddTail(CList* source)
    {
        for (POSITION at = source->GetHeadPosition(); at != NULL;)
            AddTail(source->GetNext(at));
    }
    void RemoveAll()
    {
        while (m_pNodeHead != NULL)
            Unlink(m_pNodeHead);
    }

    POSITION GetHeadPosition() const { return ToPosition(m_pNodeHead); }
    POSITION GetTailPosition() const { return ToPosition(m_pNodeTail); }
    // The element at the position, which moves on (NULL behind the last).
    TYPE& GetNext(POSITION& position) { return Step(position, &CNode::next); }
    const TYPE& GetNext(POSITION& position) const { return Step(position, &CNode::next); }
    TYPE& GetPrev(POSITION& position) { return Step(position, &CNode::prev); }
    const TYPE& GetPrev(POSITION& position) const { return Step(position, &CNode::prev); }

    TYPE& GetAt(POSITION position) { return ToNode(position)->data; }
    const TYPE& GetAt(POSITION position) const { return ToNode(position)->data; }
    void SetAt(POSITION position, ARG_TYPE element) { ToNode(position)->data = element; }
    void RemoveAt(POSITION position) { Unlink(ToNode(position)); }

    // At NULL: before the head, behind the tail.
    POSITION InsertBefore(POSITION position, ARG_TYPE element)
    {
        if (position == NULL)
            return AddHead(element);
        CNode* next = ToNode(position);
        return ToPosition(Link(next->prev, element, next));
    }
    POSITION InsertAfter(POSITION position, ARG_TYPE element)
    {
        if (position == NULL)
            return AddTail(element);
        CNode* prev = ToNode(position);
        return ToPosition(Link(prev, element, prev->next));
    }

    // First equal element behind the position, or from the head; NULL when there is none.
    POSITION Find(ARG_TYPE element, POSITION startAfter = NULL) const
    {
        CNode* node = startAfter == NULL ? m_pNodeHead : ToNode(startAfter)->next;
        while (node != NULL && !CompareElements(&node->data, &element))
            node = node->next;
        return ToPosition(node);
    }
    POSITION FindIndex(INT_PTR index) const
    {
        if (index < 0 || index >= m_nCount)
            return NULL;
        CNode* node = m_pNodeHead;
        for (; index > 0; --index)
            node = node->next;
        return ToPosition(node);
    }

private:
    struct CNode
    {
        CNode(CNode* before, ARG_TYPE element, CNode* after) : next(after), prev(before), data(element) {}

        CNode* next;
        CNode* prev;
        TYPE data;
    };

    static CNode* Checked(CNode* node)
    {
        if (node == NULL)
            AfxThrowInvalidArgException();
        return node;
    }
    static CNode* ToNode(POSITION position) { return Checked(reinterpret_cast<CNode*>(position)); }
    static POSITION ToPosition(CNode* node) { return reinterpret_cast<POSITION>(node); }

    static TYPE& Step(POSITION& position, CNode* CNode::*link)
    {
        CNode* node = ToNode(position);
        position = ToPosition(node->*link);
        return node->data;
    }
    CNode* Link(CNode* prev, ARG_TYPE element, CNode* next)
    {
        CNode* node = new CNode(prev, element, next);
        (prev == NULL ? m_pNodeHead : prev->next) = node;
        (next == NULL ? m_pNodeTail : next->prev) = node;
        ++m_nCount;
        return node;
    }
    void Unlink(CNode* node)
    {
        (node->prev == NULL ? m_pNodeHead : node->prev->next) = node->next;
        (node->next == NULL ? m_pNodeTail : node->next->prev) = node->prev;
        --m_nCount;
        delete node;
    }
    TYPE Take(CNode* node)
    {
        TYPE data(node->data);
        Unlink(node);
        return data;
    }

    CNode* m_pNodeHead;
    CNode* m_pNodeTail;
    INT_PTR m_nCount;
};
