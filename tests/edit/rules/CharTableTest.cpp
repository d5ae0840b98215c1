// Which characters go in: the sets, the table by the low 8 bits, the keys that always pass.
#include <gtest/gtest.h>

#include <string>

#include "edit/CharTable.h"

namespace
{

std::wstring CharsIn(const wchar_t* chars)
{
    CharTable table;
    ClearChars(table);
    MarkChars(table, chars);
    return MarkedChars(table).GetString();
}

struct SetRow
{
    VVEset set;
    int count;
    const wchar_t* inside;
    const wchar_t* outside;
    bool isNumeric;
};

const SetRow kSets[] = {
    {VVE_ALPHANUM, 63, L" aZ09", L"-.\t_", false}, {VVE_ALPHA, 53, L" aZ", L"09-", false},
    {VVE_DECIMAL, 10, L"09", L"-+a .", true},      {VVE_SIGNED, 12, L"-+09", L" .e", true},
    {VVE_HEX, 22, L"afAF09", L"gGx-", true},       {VVE_OCTAL, 8, L"07", L"89-", true},
    {VVE_BINARY, 2, L"01", L"2-", true},           {VVE_FLOAT, 15, L"09+-.Ee", L" ,dxf", true},
};

} // namespace

TEST(CharTable, EverySetMarksItsOwnCharactersAndNoOthers)
{
    for (const SetRow& row : kSets)
    {
        SCOPED_TRACE(row.set);
        CharTable table;
        ClearChars(table);
        MarkChars(table, CharsOfSet(row.set));
        EXPECT_EQ(row.count, MarkedChars(table).GetLength());
        for (const wchar_t* c = row.inside; *c != 0; ++c)
            EXPECT_TRUE(IsMarked(table, *c)) << static_cast<int>(*c);
        for (const wchar_t* c = row.outside; *c != 0; ++c)
            EXPECT_FALSE(IsMarked(table, *c)) << static_cast<int>(*c);
        EXPECT_EQ(row.isNumeric, IsNumericSet(row.set));
    }
}

TEST(CharTable, SetsOfAnyOrOwnCharactersNameNone)
{
    for (const int set : {0, 1, 10, 15})
    {
        EXPECT_TRUE(CharsOfSet(static_cast<VVEset>(set)) == NULL) << set;
        EXPECT_FALSE(IsNumericSet(static_cast<VVEset>(set))) << set;
    }
}

TEST(CharTable, GivesTheMarkedCharactersInRisingOrder)
{
    EXPECT_EQ(L"ABz", CharsIn(L"zBAB"));
}

TEST(CharTable, EmptyAndNullMarkNothing)
{
    EXPECT_EQ(L"", CharsIn(L""));
    EXPECT_EQ(L"", CharsIn(NULL));
}

TEST(CharTable, CharactersAbove255AreMarkedAndFoundByTheirLowBits)
{
    CharTable table;
    ClearChars(table);
    MarkChars(table, L"\x4E31"); // low bits: '1'
    EXPECT_TRUE(IsMarked(table, L'1'));
    EXPECT_TRUE(IsMarked(table, L'\x5F31'));
    EXPECT_FALSE(IsMarked(table, L'\x4E32'));
}

TEST(CharTable, HalfOfASurrogatePairIsLookedUpLikeAnyOther)
{
    CharTable table;
    ClearChars(table);
    MarkChars(table, L"\xD83D"); // low bits: '='
    EXPECT_TRUE(IsMarked(table, L'='));
}

TEST(CharTable, Code255HasNoFlag)
{
    CharTable table;
    ClearChars(table);
    MarkChars(table, L"\x00FF\x4EFF");
    EXPECT_TRUE(MarkedChars(table).IsEmpty());
    EXPECT_FALSE(IsMarked(table, L'\x00FF'));
    EXPECT_FALSE(IsKeyTaken(table, 255));
}

TEST(CharTable, Code254IsTheLastWithAFlag)
{
    CharTable table;
    ClearChars(table);
    MarkChars(table, L"\x00FE");
    EXPECT_TRUE(IsMarked(table, L'\x00FE'));
    EXPECT_TRUE(IsKeyTaken(table, 254));
}

TEST(CharTable, OnlyKeysFrom32To255AreFiltered)
{
    CharTable table;
    ClearChars(table);
    MarkChars(table, L"1");
    EXPECT_TRUE(IsKeyTaken(table, L'1'));
    EXPECT_TRUE(IsKeyTaken(table, 8)) << "backspace";
    EXPECT_TRUE(IsKeyTaken(table, 31));
    EXPECT_FALSE(IsKeyTaken(table, 32));
    EXPECT_FALSE(IsKeyTaken(table, L'a'));
    EXPECT_FALSE(IsKeyTaken(table, 255));
    EXPECT_TRUE(IsKeyTaken(table, 256));
    EXPECT_TRUE(IsKeyTaken(table, 0x4E2D)) << "Chinese text";
}

TEST(CharTable, ClearingForgetsEverything)
{
    CharTable table;
    ClearChars(table);
    MarkChars(table, L"abc");
    ClearChars(table);
    EXPECT_TRUE(MarkedChars(table).IsEmpty());
}
