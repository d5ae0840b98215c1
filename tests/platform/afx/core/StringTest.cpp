// Construction, sharing and buffers of CString.
#include <afx.h>

#include <gtest/gtest.h>

#include <utility>

TEST(String, IsEmptyFromNothingAndFromNull)
{
    const CString none;
    const CString fromNull(static_cast<LPCWSTR>(NULL));
    EXPECT_TRUE(none.IsEmpty());
    EXPECT_STREQ(L"", fromNull);
    EXPECT_EQ(none.GetString(), fromNull.GetString()) << "all empty strings share one text";
}

TEST(String, ConvertsNarrowTextByTheAnsiCodePage)
{
    EXPECT_STREQ(L"abc", CString("abc"));
    EXPECT_STREQ(L"ab", CString("abc", 2));
    CString text;
    text = "xyz";
    text += "!";
    EXPECT_STREQ(L"xyz!", text);
}

TEST(String, RepeatsACharacter)
{
    EXPECT_STREQ(L"----", CString(L'-', 4));
    EXPECT_STREQ(L"", CString(L'-', 0));
    EXPECT_STREQ(L"aaa", CString('a', 3));
}

TEST(String, TakesTextAndNumbersFromAVariant)
{
    VARIANT number;
    ::VariantInit(&number);
    number.vt = VT_I4;
    number.lVal = -12;
    EXPECT_STREQ(L"-12", CString(number));
    VARIANT text;
    ::VariantInit(&text);
    text.vt = VT_BSTR;
    text.bstrVal = ::SysAllocString(L"文字");
    EXPECT_STREQ(L"文字", CString(text));
    ::VariantClear(&text);
}

TEST(String, CopiesShareTheCharactersUntilOneChanges)
{
    CString first(L"shared");
    CString second(first);
    ASSERT_EQ(first.GetString(), second.GetString());
    second.SetAt(0, L'S');
    EXPECT_STREQ(L"shared", first);
    EXPECT_STREQ(L"Shared", second);
}

TEST(String, AWritableBufferIsNotShared)
{
    CString first(L"shared");
    const CString second(first);
    wcscpy(first.GetBuffer(10), L"other");
    first.ReleaseBuffer();
    EXPECT_STREQ(L"other", first);
    EXPECT_STREQ(L"shared", second);
}

TEST(String, SelfAssignmentKeepsTheText)
{
    CString text(L"same");
    const CString& alias = text;
    text = alias;
    EXPECT_STREQ(L"same", text);
    text = text.GetString() + 2;
    EXPECT_STREQ(L"me", text);
}

TEST(String, AppendsPartsOfItself)
{
    CString text(L"ab");
    text += text;
    EXPECT_STREQ(L"abab", text);
    text.Append(text.GetString() + 1, 2);
    EXPECT_STREQ(L"ababba", text);
}

TEST(String, MovesLeaveAValidString)
{
    CString source(L"moved");
    CString target(std::move(source));
    EXPECT_STREQ(L"moved", target);
    source = L"again";
    EXPECT_STREQ(L"again", source);
}

TEST(String, ReleaseBufferMeasuresOrTakesTheLength)
{
    CString text;
    wcscpy(text.GetBuffer(20), L"abcdef");
    text.ReleaseBuffer(3);
    EXPECT_STREQ(L"abc", text);
    wcscpy(text.GetBuffer(20), L"xy");
    text.ReleaseBuffer();
    EXPECT_EQ(2, text.GetLength());
}

TEST(String, ReleaseBufferBeyondTheRoomThrows)
{
    CString text;
    text.GetBuffer(4);
    EXPECT_THROW(text.ReleaseBuffer(text.GetAllocLength() + 1), CInvalidArgException*);
}

TEST(String, KeepsZeroCharactersInsideTheText)
{
    CString text(L"a\0b", 3);
    EXPECT_EQ(3, text.GetLength());
    text += L"c";
    EXPECT_EQ(4, text.GetLength());
    EXPECT_EQ(L'b', text[2]);
}

TEST(String, GrowsByMoreThanOneCharacter)
{
    CString text;
    int moves = 0;
    LPCWSTR last = text;
    const int count = 10000;
    for (int i = 0; i < count; ++i)
    {
        text += L'x';
        moves += text.GetString() != last;
        last = text;
    }
    EXPECT_EQ(count, text.GetLength());
    EXPECT_LT(moves, 100);
}

TEST(String, TruncateAndFreeExtraKeepTheFront)
{
    CString text(L"abcdef");
    text.Preallocate(100);
    EXPECT_GE(text.GetAllocLength(), 100);
    text.Truncate(2);
    text.FreeExtra();
    EXPECT_STREQ(L"ab", text);
    EXPECT_EQ(2, text.GetAllocLength());
    EXPECT_THROW(text.Truncate(3), CInvalidArgException*);
}

TEST(String, ABadIndexThrows)
{
    CString text(L"abc");
    EXPECT_EQ(0, text[3]) << "the terminator may be read";
    EXPECT_THROW(text.GetAt(-1), CInvalidArgException*);
    EXPECT_THROW(text.GetAt(4), CInvalidArgException*);
    EXPECT_THROW(text.SetAt(3, L'x'), CInvalidArgException*);
    EXPECT_THROW(text.GetBuffer(-1), CInvalidArgException*);
}

TEST(String, PlusJoinsEveryKindOfText)
{
    const CString text(L"b");
    EXPECT_STREQ(L"abc", L"a" + text + L"c");
    EXPECT_STREQ(L"abc", L'a' + text + L'c');
    EXPECT_STREQ(L"abc", "a" + text + "c");
    EXPECT_STREQ(L"bb", text + text);
    EXPECT_STREQ(L"b", text);
}

TEST(String, ComparesByOperators)
{
    const CString a(L"a");
    const CString b(L"b");
    EXPECT_TRUE(a == L"a" && L"a" == a && a == CString(L"a") && a == "a");
    EXPECT_TRUE(a != b && a != L"b" && L"b" != a);
    EXPECT_TRUE(a < b && a <= L"a" && b > a && b >= L"b" && L"a" < b);
    EXPECT_TRUE(a == static_cast<LPCWSTR>(a));
    EXPECT_FALSE(a == static_cast<LPCWSTR>(NULL));
    EXPECT_TRUE(CString() == static_cast<LPCWSTR>(NULL));
}

TEST(String, GivesSystemStrings)
{
    BSTR copy = CString(L"文字").AllocSysString();
    EXPECT_STREQ(L"文字", copy);
    CString(L"ab").SetSysString(&copy);
    EXPECT_STREQ(L"ab", copy);
    ::SysFreeString(copy);
}

TEST(String, ReadsTheEnvironment)
{
    ::SetEnvironmentVariableW(L"AFX_STRING_TEST", L"value");
    CString text;
    EXPECT_TRUE(text.GetEnvironmentVariable(L"AFX_STRING_TEST"));
    EXPECT_STREQ(L"value", text);
    ::SetEnvironmentVariableW(L"AFX_STRING_TEST", NULL);
    EXPECT_FALSE(text.GetEnvironmentVariable(L"AFX_STRING_TEST"));
    EXPECT_STREQ(L"", text);
}

namespace
{
DWORD WINAPI CopyManyTimes(void* source)
{
    const int copies = 1000000;
    const CString& text = *static_cast<const CString*>(source);
    for (int i = 0; i < copies; ++i)
    {
        CString copy(text);
        if (copy.GetLength() != text.GetLength())
            return 1;
    }
    return 0;
}
} // namespace

TEST(String, CopiesMayBeMadeByManyThreads)
{
    CString text(L"counted");
    HANDLE threads[4];
    for (HANDLE& thread : threads)
        thread = ::CreateThread(NULL, 0, &CopyManyTimes, &text, 0, NULL);
    for (HANDLE thread : threads)
    {
        DWORD failed = 1;
        ::WaitForSingleObject(thread, INFINITE);
        ::GetExitCodeThread(thread, &failed);
        ::CloseHandle(thread);
        EXPECT_EQ(0u, failed);
    }
    const LPCWSTR before = text;
    text.SetAt(0, L'C');
    EXPECT_EQ(before, text.GetString()) << "no owner is left but this one";
}

TEST(StringNarrow, ConvertsBothWays)
{
    EXPECT_STREQ("abc", CStringA(L"abc"));
    EXPECT_STREQ("\xE6\x96\x87", CStringA(L"文", CP_UTF8));
    EXPECT_STREQ("abc", CW2A(L"abc"));
    EXPECT_STREQ(L"文", CA2W("\xE6\x96\x87", CP_UTF8));
    EXPECT_EQ(NULL, static_cast<LPWSTR>(CA2W(NULL)));
    EXPECT_EQ(3, CStringA(CString(L"abc")).GetLength());
}
