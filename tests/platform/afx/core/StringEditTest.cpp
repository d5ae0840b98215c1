// Searching, cutting and changing text.
#include <afx.h>

#include <gtest/gtest.h>

namespace
{
struct FindRow
{
    LPCWSTR text;
    LPCWSTR piece;
    int start;
    int found;
};

const FindRow kFindRows[] = {
    {L"abcabc", L"bc", 0, 1},   {L"abcabc", L"bc", 2, 4}, {L"abcabc", L"x", 0, -1}, {L"abc", L"", 0, 0},
    {L"abc", L"abcd", 0, -1},   {L"abc", L"a", 3, -1},    {L"abc", L"a", 4, -1},    {L"abc", L"a", -1, -1},
    {L"图层图层", L"层", 2, 3}, {L"", L"", 0, 0},         {L"", L"a", 0, -1},
};

struct PartRow
{
    LPCWSTR text;
    int first;
    int count;
    LPCWSTR part;
};

const PartRow kPartRows[] = {
    {L"abcdef", 0, 3, L"abc"}, {L"abcdef", 2, 2, L"cd"},  {L"abcdef", 4, 9, L"ef"}, {L"abcdef", 6, 1, L""},
    {L"abcdef", 9, 1, L""},    {L"abcdef", -2, 2, L"ab"}, {L"abcdef", 1, -1, L""},  {L"abcdef", 0, 6, L"abcdef"},
};

struct TrimRow
{
    LPCWSTR text;
    LPCWSTR left;
    LPCWSTR right;
    LPCWSTR both;
};

const TrimRow kTrimRows[] = {{L"  a b\t\n", L"a b\t\n", L"  a b", L"a b"},
                             {L"ab", L"ab", L"ab", L"ab"},
                             {L" \t ", L"", L"", L""},
                             {L"", L"", L"", L""}};

struct ReplaceRow
{
    LPCWSTR text;
    LPCWSTR from;
    LPCWSTR to;
    int count;
    LPCWSTR result;
};

const ReplaceRow kReplaceRows[] = {
    {L"a-b-c", L"-", L"--", 2, L"a--b--c"},
    {L"aaaa", L"aa", L"b", 2, L"bb"},
    {L"abc", L"x", L"y", 0, L"abc"},
    {L"abc", L"", L"y", 0, L"abc"},
    {L"abcb", L"b", NULL, 2, L"ac"},
    {L"", L"a", L"b", 0, L""},
    {L"甲乙甲", L"甲", L"丙丁", 2, L"丙丁乙丙丁"},
    {L"ab", L"ab", L"", 1, L""},
};

CString Tokens(LPCWSTR text, LPCWSTR separators)
{
    const CString source(text);
    CString all;
    int start = 0;
    for (CString token = source.Tokenize(separators, start); start != -1; token = source.Tokenize(separators, start))
        all += L"<" + token + L">";
    return all;
}
} // namespace

TEST(StringEdit, FindsPieces)
{
    for (const FindRow& row : kFindRows)
        EXPECT_EQ(row.found, CString(row.text).Find(row.piece, row.start))
            << CStringA(row.piece) << " at " << row.start;
}

TEST(StringEdit, FindsCharacters)
{
    const CString text(L"a.b.c");
    EXPECT_EQ(1, text.Find(L'.'));
    EXPECT_EQ(3, text.Find(L'.', 2));
    EXPECT_EQ(-1, text.Find(L'.', 4));
    EXPECT_EQ(3, text.ReverseFind(L'.'));
    EXPECT_EQ(-1, text.ReverseFind(L'x'));
    EXPECT_EQ(2, text.FindOneOf(L"cb"));
    EXPECT_EQ(-1, text.FindOneOf(L"xy"));
}

TEST(StringEdit, ClipsParts)
{
    for (const PartRow& row : kPartRows)
        EXPECT_STREQ(row.part, CString(row.text).Mid(row.first, row.count)) << row.first << ',' << row.count;
    const CString text(L"abc");
    EXPECT_STREQ(L"bc", text.Mid(1));
    EXPECT_STREQ(L"", text.Left(-1));
    EXPECT_STREQ(L"ab", text.Left(2));
    EXPECT_STREQ(L"bc", text.Right(2));
    EXPECT_STREQ(L"abc", text.Right(7));
    EXPECT_STREQ(L"", text.Right(0));
}

TEST(StringEdit, SpansByASet)
{
    const CString text(L"123abc");
    EXPECT_STREQ(L"123", text.SpanIncluding(L"0123456789"));
    EXPECT_STREQ(L"123", text.SpanExcluding(L"abc"));
    EXPECT_STREQ(L"", text.SpanIncluding(L"abc"));
    EXPECT_STREQ(L"123abc", text.SpanExcluding(L"x"));
}

TEST(StringEdit, TrimsWhiteSpace)
{
    for (const TrimRow& row : kTrimRows)
    {
        EXPECT_STREQ(row.left, CString(row.text).TrimLeft());
        EXPECT_STREQ(row.right, CString(row.text).TrimRight());
        EXPECT_STREQ(row.both, CString(row.text).Trim());
    }
}

TEST(StringEdit, TrimsCharactersAndSets)
{
    EXPECT_STREQ(L"a", CString(L"--a--").Trim(L'-'));
    EXPECT_STREQ(L"a--", CString(L"--a--").TrimLeft(L'-'));
    EXPECT_STREQ(L"+-a", CString(L"+-a-+").TrimRight(L"+-"));
    EXPECT_STREQ(L"", CString(L"+-+").Trim(L"+-"));
}

TEST(StringEdit, TrimmingStopsAtAZeroCharacter)
{
    CString text(L"-\0-", 3);
    EXPECT_EQ(2, text.TrimLeft(L"-").GetLength());
    EXPECT_EQ(1, text.TrimRight(L"-").GetLength());
}

TEST(StringEdit, TrimmingACopyLeavesTheOriginal)
{
    const CString text(L" a ");
    EXPECT_STREQ(L"a", CString(text).Trim());
    EXPECT_STREQ(L" a ", text);
}

TEST(StringEdit, ReplacesPieces)
{
    for (const ReplaceRow& row : kReplaceRows)
    {
        CString text(row.text);
        EXPECT_EQ(row.count, text.Replace(row.from, row.to)) << CStringA(row.from);
        EXPECT_STREQ(row.result, text);
    }
}

TEST(StringEdit, ReplacesAndRemovesCharacters)
{
    CString text(L"a.b.c");
    const CString copy(text);
    EXPECT_EQ(2, text.Replace(L'.', L','));
    EXPECT_STREQ(L"a,b,c", text);
    EXPECT_EQ(2, text.Remove(L','));
    EXPECT_STREQ(L"abc", text);
    EXPECT_EQ(0, text.Remove(L'x'));
    EXPECT_STREQ(L"a.b.c", copy);
}

TEST(StringEdit, ReplacesByItsOwnText)
{
    CString text(L"ab");
    EXPECT_EQ(1, text.Replace(L"b", text));
    EXPECT_STREQ(L"aab", text);
}

TEST(StringEdit, InsertsAndDeletesWithClippedPositions)
{
    CString text(L"bd");
    EXPECT_EQ(3, text.Insert(1, L'c'));
    EXPECT_EQ(4, text.Insert(-5, L"a"));
    EXPECT_EQ(6, text.Insert(99, L"ef"));
    EXPECT_STREQ(L"abcdef", text);
    EXPECT_EQ(6, text.Insert(2, static_cast<LPCWSTR>(NULL)));
    EXPECT_EQ(5, text.Delete(0));
    EXPECT_EQ(2, text.Delete(2, 99));
    EXPECT_EQ(2, text.Delete(2, 1));
    EXPECT_STREQ(L"bc", text);
}

TEST(StringEdit, InsertsItself)
{
    CString text(L"ab");
    text.Insert(1, text);
    EXPECT_STREQ(L"aabb", text);
}

TEST(StringEdit, ChangesCaseAndOrder)
{
    CString text(L"aÄб1");
    EXPECT_STREQ(L"AÄБ1", text.MakeUpper());
    EXPECT_STREQ(L"aäб1", text.MakeLower());
    EXPECT_STREQ(L"1бäa", text.MakeReverse());
}

TEST(StringEdit, ComparesWithAndWithoutCase)
{
    const CString text(L"abc");
    EXPECT_EQ(0, text.Compare(L"abc"));
    EXPECT_LT(text.Compare(L"abd"), 0);
    EXPECT_GT(text.Compare(L"ABC"), 0);
    EXPECT_GT(text.Compare(NULL), 0);
    EXPECT_EQ(0, text.CompareNoCase(L"ABC"));
    EXPECT_LT(text.CompareNoCase(L"ABD"), 0);
    EXPECT_EQ(0, text.Collate(L"abc"));
    EXPECT_EQ(0, text.CollateNoCase(L"ABC"));
}

TEST(StringEdit, TokenizesWithoutEmptyParts)
{
    EXPECT_STREQ(L"<a><b><c>", Tokens(L"a,b;c", L",;"));
    EXPECT_STREQ(L"<a><b>", Tokens(L",,a,,b,,", L","));
    EXPECT_STREQ(L"<ab>", Tokens(L"ab", L","));
    EXPECT_STREQ(L"", Tokens(L"", L","));
    EXPECT_STREQ(L"", Tokens(L",,", L","));
    EXPECT_STREQ(L"<a,b>", Tokens(L"a,b", NULL)) << "without separators the rest is one token";
}

TEST(StringEdit, TokenizeRefusesANegativeStart)
{
    int start = -1;
    EXPECT_THROW(CString(L"a").Tokenize(L",", start), CInvalidArgException*);
}
