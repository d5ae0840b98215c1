// Formatting.
#include <afx.h>

#include <gtest/gtest.h>

namespace
{
template<class... Args>
CString Formatted(LPCWSTR format, Args... args)
{
    CString text;
    text.Format(format, args...);
    return text;
}
} // namespace

TEST(StringFormat, FormatsAsTheRuntimeDoes)
{
    EXPECT_STREQ(L"plain", Formatted(L"plain"));
    EXPECT_STREQ(L"", Formatted(L""));
    EXPECT_STREQ(L"50%", Formatted(L"%d%%", 50));
    EXPECT_STREQ(L"[   7]", Formatted(L"[%4d]", 7));
    EXPECT_STREQ(L"[0007]", Formatted(L"[%04d]", 7));
    EXPECT_STREQ(L"[7   ]", Formatted(L"[%-4d]", 7));
    EXPECT_STREQ(L"0xBEEF", Formatted(L"0x%X", 0xBEEF));
    EXPECT_STREQ(L"1.50", Formatted(L"%.2f", 1.5));
    EXPECT_STREQ(L"a", Formatted(L"%c", L'a'));
    EXPECT_STREQ(L"9000000000", Formatted(L"%I64d", 9000000000LL));
    EXPECT_STREQ(L"4294967295", Formatted(L"%u", 0xFFFFFFFFu));
    EXPECT_STREQ(L"  ab", Formatted(L"%*s", 4, L"ab"));
    EXPECT_STREQ(L"ab", Formatted(L"%.2s", L"abcd"));
}

TEST(StringFormat, TakesWideAndNarrowText)
{
    EXPECT_STREQ(L"宽 narrow", Formatted(L"%s %S", L"宽", "narrow"));
    EXPECT_STREQ(L"宽", Formatted(L"%ls", L"宽"));
    EXPECT_STREQ(L"narrow", Formatted(L"%hs", "narrow"));
}

TEST(StringFormat, TakesStringsAsTheyAre)
{
    const CString name(L"图层");
    EXPECT_STREQ(L"图层=3", Formatted(L"%s=%d", name, 3));
    CString text;
    text.Format(CString(L"<%s>"), name);
    EXPECT_STREQ(L"<图层>", text);
}

TEST(StringFormat, AcceptsItselfAsArgument)
{
    CString text(L"ab");
    text.Format(L"%s-%s", text, text.GetString());
    EXPECT_STREQ(L"ab-ab", text);
    text.AppendFormat(L"+%s", text);
    EXPECT_STREQ(L"ab-ab+ab-ab", text);
}

TEST(StringFormat, AcceptsItselfAsFormat)
{
    CString text(L"<%d>");
    text.Format(text, 5);
    EXPECT_STREQ(L"<5>", text);
}

TEST(StringFormat, LeavesCopiesAlone)
{
    CString text(L"old");
    const CString copy(text);
    text.Format(L"%d", 1);
    EXPECT_STREQ(L"old", copy);
}

TEST(StringFormat, WritesLongText)
{
    const CString longText(L'x', 100000);
    EXPECT_EQ(100002, Formatted(L"[%s]", longText).GetLength());
}

TEST(StringFormat, RefusesANullFormat)
{
    CString text(L"kept");
    EXPECT_THROW(text.Format(static_cast<LPCWSTR>(NULL)), CInvalidArgException*);
    EXPECT_STREQ(L"kept", text);
}

TEST(StringFormat, FormatsNumberedInsertions)
{
    CString text;
    text.FormatMessage(L"%2 of %1!d!", 7, L"three");
    EXPECT_STREQ(L"three of 7", text);
    const CString name(L"a");
    text.FormatMessage(L"%1%1", name);
    EXPECT_STREQ(L"aa", text);
}
