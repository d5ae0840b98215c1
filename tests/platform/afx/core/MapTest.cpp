// CMap and the maps of fixed types.
#include <afxtempl.h>

#include <gtest/gtest.h>

#include <set>

namespace
{
// A key whose hashes all collide.
struct Clashing
{
    int value;
    bool operator==(const Clashing& other) const { return value == other.value; }
};
} // namespace

template<>
UINT AFXAPI HashKey<Clashing>(Clashing)
{
    return 1;
}

TEST(Map, StoresAndFinds)
{
    CMap<int, int, CString, LPCWSTR> map;
    map.SetAt(1, L"one");
    map[2] = L"two";
    map.SetAt(1, L"uno");
    EXPECT_EQ(2, map.GetCount());
    CString value(L"kept");
    EXPECT_TRUE(map.Lookup(1, value));
    EXPECT_STREQ(L"uno", value);
    EXPECT_FALSE(map.Lookup(3, value));
    EXPECT_STREQ(L"uno", value);
    EXPECT_EQ(NULL, map.PLookup(3));
    EXPECT_STREQ(L"two", map.PLookup(2)->value);
}

TEST(Map, SubscriptAddsAnEmptyValue)
{
    CMap<int, int, int, int> map;
    EXPECT_EQ(0, map[5]);
    EXPECT_EQ(1, map.GetCount());
    ++map[5];
    EXPECT_EQ(1, map[5]);
}

TEST(Map, TakesTextKeysInEveryForm)
{
    CMap<CString, LPCWSTR, int, int> byPointer;
    byPointer[L"图层"] = 1;
    const CString key(L"图层");
    EXPECT_EQ(1, byPointer[key]);
    CMap<CString, const CString&, int, int> byReference;
    byReference[L"图层"] = 2;
    EXPECT_EQ(2, byReference[key]);
    CMap<CString, CString, int, int> byValue;
    byValue[key] = 3;
    EXPECT_EQ(3, byValue[L"图层"]);
    EXPECT_EQ(1, byPointer.GetCount());
}

TEST(Map, KeepsCollidingKeysApart)
{
    CMap<Clashing, Clashing, int, int> map;
    const int count = 200;
    for (int i = 0; i < count; ++i)
        map[Clashing{i}] = i;
    for (int i = 0; i < count; i += 2)
        EXPECT_TRUE(map.RemoveKey(Clashing{i}));
    EXPECT_EQ(count / 2, map.GetCount());
    int value = 0;
    for (int i = 0; i < count; ++i)
    {
        EXPECT_EQ(i % 2 != 0, map.Lookup(Clashing{i}, value) != FALSE) << i;
        EXPECT_TRUE(i % 2 == 0 || value == i);
    }
    EXPECT_FALSE(map.RemoveKey(Clashing{0}));
}

TEST(Map, WalksEveryEntryOnce)
{
    CMap<int, int, int, int> map;
    const int count = 1000;
    for (int i = 0; i < count; ++i)
        map[i * 16] = i;
    std::set<int> seen;
    for (POSITION at = map.GetStartPosition(); at != NULL;)
    {
        int key = 0;
        int value = 0;
        map.GetNextAssoc(at, key, value);
        EXPECT_EQ(key, value * 16);
        EXPECT_TRUE(seen.insert(value).second) << value;
    }
    EXPECT_EQ(static_cast<size_t>(count), seen.size());
    int pairs = 0;
    for (const CMap<int, int, int, int>::CPair* pair = map.PGetFirstAssoc(); pair != NULL;
         pair = map.PGetNextAssoc(pair))
        ++pairs;
    EXPECT_EQ(count, pairs);
}

TEST(Map, EntriesMayBeRemovedWhileWalking)
{
    CMap<int, int, int, int> map;
    for (int i = 0; i < 100; ++i)
        map[i] = i;
    for (POSITION at = map.GetStartPosition(); at != NULL;)
    {
        int key = 0;
        int value = 0;
        map.GetNextAssoc(at, key, value);
        if (key % 3 != 0)
        {
            EXPECT_TRUE(map.RemoveKey(key));
        }
    }
    EXPECT_EQ(34, map.GetCount());
    int value = 0;
    EXPECT_TRUE(map.Lookup(99, value));
    EXPECT_FALSE(map.Lookup(98, value));
}

TEST(Map, IsUsableAfterRemoveAll)
{
    CMap<int, int, int, int> map;
    map[1] = 1;
    map.RemoveAll();
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_EQ(NULL, map.GetStartPosition());
    map[2] = 3;
    EXPECT_EQ(3, map[2]);
}

TEST(Map, TableSizeIsSetOnlyWhileEmpty)
{
    CMap<int, int, int, int> map;
    EXPECT_EQ(17u, map.GetHashTableSize());
    map.InitHashTable(257);
    EXPECT_EQ(257u, map.GetHashTableSize());
    map[1] = 1;
    EXPECT_THROW(map.InitHashTable(11), CInvalidArgException*);
    EXPECT_EQ(1, map[1]);
}

TEST(Map, ANullPositionThrows)
{
    CMap<int, int, int, int> map;
    POSITION none = NULL;
    int key = 0;
    int value = 0;
    EXPECT_THROW(map.GetNextAssoc(none, key, value), CInvalidArgException*);
    EXPECT_THROW(map.PGetNextAssoc(NULL), CInvalidArgException*);
}

TEST(MapPtrToPtr, FindsPointers)
{
    int a = 0;
    int b = 0;
    CMapPtrToPtr map;
    map[&a] = &b;
    EXPECT_EQ(&b, map.GetValueAt(&a));
    EXPECT_EQ(NULL, map.GetValueAt(&b));
    void* value = NULL;
    EXPECT_TRUE(map.Lookup(&a, value));
    EXPECT_EQ(&b, value);
}

TEST(MapStringToString, GivesItsOwnKey)
{
    CMapStringToString map;
    map[L"key"] = L"value";
    map.SetAt(L"other", CString(L"2"));
    LPCWSTR stored = NULL;
    const CString key(L"key");
    EXPECT_TRUE(map.LookupKey(key, stored));
    EXPECT_STREQ(L"key", stored);
    EXPECT_NE(key.GetString(), stored);
    EXPECT_FALSE(map.LookupKey(L"none", stored));
    CString value;
    EXPECT_TRUE(map.Lookup(L"other", value));
    EXPECT_STREQ(L"2", value);
}

TEST(MapWordToPtr, KeepsNumbersApart)
{
    int a = 0;
    CMapWordToPtr map;
    map[0xFFFF] = &a;
    void* value = NULL;
    EXPECT_FALSE(map.Lookup(0, value));
    EXPECT_TRUE(map.Lookup(0xFFFF, value));
    EXPECT_EQ(&a, value);
}

TEST(TypedPtrMap, CastsItsValues)
{
    int one = 1;
    CTypedPtrMap<CMapStringToPtr, CString, int*> map;
    map.SetAt(L"one", &one);
    int* value = NULL;
    EXPECT_TRUE(map.Lookup(L"one", value));
    EXPECT_EQ(1, *value);
    EXPECT_EQ(&one, map[L"one"]);
    POSITION at = map.GetStartPosition();
    CString key;
    map.GetNextAssoc(at, key, value);
    EXPECT_STREQ(L"one", key);
    EXPECT_TRUE(map.RemoveKey(L"one"));
    EXPECT_FALSE(map.Lookup(L"one", value));
}
