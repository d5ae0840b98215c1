// CArray and the arrays of fixed types.
#include <afxtempl.h>

#include <gtest/gtest.h>

namespace
{
// Counts the living objects, so that a lost or doubled destructor shows.
struct Counted
{
    Counted() : value(0) { ++alive; }
    Counted(int v) : value(v) { ++alive; }
    Counted(const Counted& source) : value(source.value) { ++alive; }
    Counted& operator=(const Counted& source) = default;
    ~Counted() { --alive; }

    int value;
    static int alive;
};

int Counted::alive = 0;

CString Joined(const CStringArray& array)
{
    CString all;
    for (INT_PTR i = 0; i < array.GetSize(); ++i)
        all += array[i] + L",";
    return all;
}

template<class ARRAY>
CString JoinedNumbers(const ARRAY& array)
{
    CString all;
    for (INT_PTR i = 0; i < array.GetSize(); ++i)
        all.AppendFormat(L"%d,", static_cast<int>(array[i]));
    return all;
}
} // namespace

TEST(Array, AddGivesTheIndex)
{
    CArray<int, int> array;
    EXPECT_TRUE(array.IsEmpty());
    EXPECT_EQ(-1, array.GetUpperBound());
    EXPECT_EQ(0, array.Add(5));
    EXPECT_EQ(1, array.Add(6));
    EXPECT_EQ(2, array.GetSize());
    EXPECT_EQ(6, array[1]);
}

TEST(Array, ABadIndexThrows)
{
    CArray<int, int> array;
    array.Add(1);
    EXPECT_THROW(array[1], CInvalidArgException*);
    EXPECT_THROW(array[-1], CInvalidArgException*);
    EXPECT_THROW(array.GetAt(1), CInvalidArgException*);
    EXPECT_THROW(array.ElementAt(7), CInvalidArgException*);
    EXPECT_THROW(array.SetAt(1, 0), CInvalidArgException*);
    EXPECT_THROW(array.RemoveAt(0, 2), CInvalidArgException*);
    EXPECT_THROW(array.RemoveAt(1), CInvalidArgException*);
    EXPECT_THROW(array.InsertAt(-1, 0), CInvalidArgException*);
    EXPECT_THROW(array.InsertAt(0, 0, 0), CInvalidArgException*);
    EXPECT_THROW(array.SetSize(-1), CInvalidArgException*);
    EXPECT_THROW(array.SetAtGrow(-1, 0), CInvalidArgException*);
    EXPECT_EQ(1, array.GetSize());
}

TEST(Array, NewElementsAreZero)
{
    CArray<int, int> array;
    array.SetSize(3);
    EXPECT_STREQ(L"0,0,0,", JoinedNumbers(array));
    array.SetAtGrow(4, 9);
    EXPECT_STREQ(L"0,0,0,0,9,", JoinedNumbers(array));
}

TEST(Array, GrowthMovesRarelyAndIsNotCounted)
{
    CArray<int, int> array;
    int moves = 0;
    const int* last = NULL;
    const int count = 100000;
    for (int i = 0; i < count; ++i)
    {
        array.Add(i);
        moves += array.GetData() != last;
        last = array.GetData();
    }
    EXPECT_EQ(count, array.GetSize());
    EXPECT_LT(moves, 100);
    EXPECT_EQ(count - 1, array[count - 1]);
}

TEST(Array, GrowByReservesThatMany)
{
    CArray<int, int> array;
    array.SetSize(0, 100);
    array.Add(1);
    const int* data = array.GetData();
    for (int i = 1; i < 100; ++i)
        array.Add(i);
    EXPECT_EQ(data, array.GetData());
}

TEST(Array, AddsItsOwnElementWhileGrowing)
{
    CArray<CString> array;
    array.Add(L"first element");
    for (int i = 0; i < 100; ++i)
        array.Add(array[0]);
    for (INT_PTR i = 0; i < array.GetSize(); ++i)
        EXPECT_STREQ(L"first element", array[i]) << i;
    array.InsertAt(0, array[100]);
    EXPECT_STREQ(L"first element", array[0]);
}

TEST(Array, InsertsInTheMiddleAndBehindTheEnd)
{
    CArray<int, int> array;
    array.Add(1);
    array.Add(4);
    array.InsertAt(1, 2, 2);
    EXPECT_STREQ(L"1,2,2,4,", JoinedNumbers(array));
    array.InsertAt(6, 7);
    EXPECT_STREQ(L"1,2,2,4,0,0,7,", JoinedNumbers(array));
    CArray<int, int> more;
    more.Add(8);
    more.Add(9);
    array.InsertAt(0, &more);
    EXPECT_STREQ(L"8,9,1,2,2,4,0,0,7,", JoinedNumbers(array));
}

TEST(Array, RemovesRanges)
{
    CArray<int, int> array;
    for (int i = 0; i < 6; ++i)
        array.Add(i);
    array.RemoveAt(1, 2);
    EXPECT_STREQ(L"0,3,4,5,", JoinedNumbers(array));
    array.RemoveAt(3);
    EXPECT_STREQ(L"0,3,4,", JoinedNumbers(array));
    array.RemoveAll();
    EXPECT_EQ(NULL, array.GetData());
}

TEST(Array, AppendsAndCopies)
{
    CArray<int, int> a;
    CArray<int, int> b;
    a.Add(1);
    b.Add(2);
    b.Add(3);
    EXPECT_EQ(1, a.Append(b));
    EXPECT_STREQ(L"1,2,3,", JoinedNumbers(a));
    b.Copy(a);
    EXPECT_STREQ(L"1,2,3,", JoinedNumbers(b));
    b.Copy(b);
    EXPECT_EQ(3, b.GetSize());
    EXPECT_THROW(a.Append(a), CInvalidArgException*);
}

TEST(Array, EveryElementIsDestroyedOnce)
{
    {
        CArray<Counted> array;
        for (int i = 0; i < 50; ++i)
            array.Add(Counted(i));
        array.InsertAt(3, Counted(99), 4);
        array.RemoveAt(0, 10);
        array.SetSize(60);
        array.SetSize(20);
        array.FreeExtra();
        EXPECT_EQ(20, Counted::alive);
        EXPECT_EQ(6, array[0].value) << "the first ten of 0 1 2 99 99 99 99 3 4 5 are gone";
    }
    EXPECT_EQ(0, Counted::alive);
}

TEST(StringArray, TakesTextOfEveryKind)
{
    CStringArray array;
    array.Add(L"wide");
    array.Add(CString(L"string"));
    array.SetAtGrow(3, L"late");
    array.InsertAt(0, L"first");
    EXPECT_STREQ(L"first,wide,string,,late,", Joined(array));
    array.SetAt(0, L"1");
    array[1] = L"2";
    EXPECT_STREQ(L"1,2,string,,late,", Joined(array));
    EXPECT_THROW(array[5], CInvalidArgException*);
}

TEST(TypedPtrArray, CastsItsElements)
{
    int one = 1;
    int two = 2;
    CTypedPtrArray<CPtrArray, int*> array;
    array.Add(&one);
    array.InsertAt(0, &two);
    EXPECT_EQ(2, *array[0]);
    array[0] = &one;
    EXPECT_EQ(&one, array.GetAt(0));
    const CTypedPtrArray<CPtrArray, int*>& constant = array;
    EXPECT_EQ(&one, constant[1]);
}
