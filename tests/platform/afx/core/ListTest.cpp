// CList and the lists of fixed types.
#include <afxtempl.h>

#include <gtest/gtest.h>

namespace
{
template<class LIST>
CString Forward(LIST& list)
{
    CString all;
    for (POSITION at = list.GetHeadPosition(); at != NULL;)
        all.AppendFormat(L"%d,", list.GetNext(at));
    return all;
}

template<class LIST>
CString Backward(LIST& list)
{
    CString all;
    for (POSITION at = list.GetTailPosition(); at != NULL;)
        all.AppendFormat(L"%d,", list.GetPrev(at));
    return all;
}

void Fill(CList<int, int>& list, int count)
{
    for (int i = 0; i < count; ++i)
        list.AddTail(i);
}
} // namespace

TEST(List, GrowsAtBothEnds)
{
    CList<int, int> list;
    list.AddTail(2);
    list.AddHead(1);
    list.AddTail(3);
    EXPECT_STREQ(L"1,2,3,", Forward(list));
    EXPECT_STREQ(L"3,2,1,", Backward(list));
    EXPECT_EQ(1, list.GetHead());
    EXPECT_EQ(3, list.GetTail());
    EXPECT_EQ(1, list.RemoveHead());
    EXPECT_EQ(3, list.RemoveTail());
    EXPECT_EQ(1, list.GetCount());
}

TEST(List, AnEmptyListHasNoEnds)
{
    CList<int, int> list;
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(NULL, list.GetHeadPosition());
    EXPECT_THROW(list.GetHead(), CInvalidArgException*);
    EXPECT_THROW(list.GetTail(), CInvalidArgException*);
    EXPECT_THROW(list.RemoveHead(), CInvalidArgException*);
    EXPECT_THROW(list.RemoveTail(), CInvalidArgException*);
    POSITION none = NULL;
    EXPECT_THROW(list.GetNext(none), CInvalidArgException*);
    EXPECT_THROW(list.RemoveAt(NULL), CInvalidArgException*);
    EXPECT_THROW(list.GetAt(NULL), CInvalidArgException*);
}

TEST(List, InsertsAroundAPosition)
{
    CList<int, int> list;
    const POSITION middle = list.AddTail(5);
    list.InsertBefore(middle, 4);
    list.InsertAfter(middle, 6);
    list.InsertBefore(NULL, 1);
    list.InsertAfter(NULL, 9);
    EXPECT_STREQ(L"1,4,5,6,9,", Forward(list));
    EXPECT_STREQ(L"9,6,5,4,1,", Backward(list));
}

TEST(List, ElementsMayBeRemovedWhileWalking)
{
    CList<int, int> list;
    Fill(list, 6);
    for (POSITION at = list.GetHeadPosition(); at != NULL;)
    {
        const POSITION current = at;
        if (list.GetNext(at) % 2 == 0)
            list.RemoveAt(current);
    }
    EXPECT_STREQ(L"1,3,5,", Forward(list));
    EXPECT_STREQ(L"5,3,1,", Backward(list));
}

TEST(List, FindsByValueAndIndex)
{
    CList<int, int> list;
    list.AddTail(7);
    list.AddTail(8);
    list.AddTail(7);
    const POSITION first = list.Find(7);
    EXPECT_EQ(list.GetHeadPosition(), first);
    EXPECT_EQ(list.GetTailPosition(), list.Find(7, first));
    EXPECT_EQ(NULL, list.Find(9));
    EXPECT_EQ(8, list.GetAt(list.FindIndex(1)));
    EXPECT_EQ(NULL, list.FindIndex(3));
    EXPECT_EQ(NULL, list.FindIndex(-1));
}

TEST(List, AddsAnotherListInItsOrder)
{
    CList<int, int> list;
    CList<int, int> more;
    Fill(more, 3);
    list.AddTail(9);
    list.AddHead(&more);
    list.AddTail(&more);
    EXPECT_STREQ(L"0,1,2,9,0,1,2,", Forward(list));
}

TEST(List, ElementsChangeInPlace)
{
    CList<int, int> list;
    Fill(list, 3);
    POSITION at = list.GetHeadPosition();
    list.GetNext(at) = 10;
    list.SetAt(at, 11);
    EXPECT_STREQ(L"10,11,2,", Forward(list));
    list.RemoveAll();
    EXPECT_EQ(0, list.GetCount());
}

TEST(StringList, FindsEqualText)
{
    CStringList list;
    list.AddTail(L"one");
    list.AddTail(CString(L"two"));
    EXPECT_EQ(list.GetTailPosition(), list.Find(L"two"));
    EXPECT_STREQ(L"one", list.RemoveHead());
}

TEST(TypedPtrList, CastsItsElements)
{
    CStringArray array;
    CTypedPtrList<CObList, CStringArray*> list;
    list.AddTail(&array);
    list.GetHead()->Add(L"x");
    POSITION at = list.GetHeadPosition();
    EXPECT_EQ(1, list.GetNext(at)->GetSize());
    EXPECT_EQ(&array, list.RemoveTail());
}
