// The format routine of everything that shows or logs a text: like printf with a valid format, harmless with any other.
#include "afx/core/TextFormat.h"

#include <afx.h>

#include <gtest/gtest.h>

#include <limits.h>
#include <string.h>
#include <string>

namespace
{

template<class... ARGUMENTS>
std::wstring Formatted(const wchar_t* format, ARGUMENTS... arguments)
{
    CString text(L"former");
    afx::FormatText(text, format, {arguments...});
    return text.GetString();
}

struct Row
{
    const char* name;
    const wchar_t* format;
    const wchar_t* expected;
};

enum Colour
{
    Green = 3
};

} // namespace

TEST(TextFormat, WithoutArgumentsEveryDirectiveComesOutAsItStands)
{
    const Row rows[] = {
        {"plain text", L"no directive", L"no directive"},
        {"empty", L"", L""},
        {"text directive", L"name %s!", L"name %s!"},
        {"number directive", L"%d%05u%#x%I64d%lld", L"%d%05u%#x%I64d%lld"},
        {"writing directive", L"a%nb%hnc%lln", L"a%nb%hnc%lln"},
        {"real directive", L"%.3f%e", L"%.3f%e"},
        {"width and precision as arguments", L"%*.*f", L"%*.*f"},
        {"doubled sign", L"100%%", L"100%"},
        {"four signs", L"%%%%", L"%%"},
        {"three signs", L"%%%", L"%%"},
        {"lone sign", L"%", L"%"},
        {"sign at the end", L"100%", L"100%"},
        {"sign before a line end", L"50%\nnext", L"50%\nnext"},
        {"sign before Chinese", L"完成 50%的图层", L"完成 50%的图层"},
        {"unknown directive", L"%q%y%5k", L"%q%y%5k"},
        {"flags without a type", L"%-+ #0", L"%-+ #0"},
        {"width without a type", L"%123456789012345678901234567890", L"%123456789012345678901234567890"},
        {"number and blank", L"50% done", L"50% done"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(row.expected, Formatted(row.format)) << row.name;
}

TEST(TextFormat, FormatsLikeTheRuntime)
{
    EXPECT_EQ(L"layer 7 1.50", Formatted(L"%s %d %.2f", L"layer", 7, 1.5));
    EXPECT_EQ(L"narrow wide narrow", Formatted(L"%S %ls %hs", "narrow", L"wide", "narrow"));
    EXPECT_EQ(L"   ab|ab   |  a", Formatted(L"%5s|%-5s|%3.1s", L"ab", L"ab", L"ab"));
    EXPECT_EQ(L"-1 4294967295 ffffffff FFFF 65535 37777777777",
              Formatted(L"%d %u %x %hX %hu %o", -1, -1, -1, -1, -1, -1));
    EXPECT_EQ(L"-9000000000 9000000000", Formatted(L"%I64d %llu", -9000000000LL, 9000000000ULL));
    EXPECT_EQ(L"+00005 0x1f", Formatted(L"%+06d %#x", 5, 31));
    EXPECT_EQ(L"A文B", Formatted(L"%c%c%C", 'A', L'文', 'B'));
    EXPECT_EQ(L"1.500000e+000", Formatted(L"%e", 1.5f));
    EXPECT_EQ(L"50% of 3", Formatted(L"%d%% of %d", 50, Green));
}

TEST(TextFormat, KnowsEveryTypeAndFlag)
{
    EXPECT_EQ(L"-5 5", Formatted(L"%i %u", -5, 5));
    EXPECT_EQ(L"1.5 1.5E-010 1.5 1.5", Formatted(L"%g %G %g %g", 1.5, 1.5e-10, 1.5f, 1.5));
    EXPECT_EQ(L"1.500000E+000", Formatted(L"%E", 1.5));
    EXPECT_EQ(Formatted(L"%A", 1.5).size(), Formatted(L"%a", 1.5).size());
    EXPECT_EQ(0u, Formatted(L"%a", 1.5).find(L"0x1.8"));
    EXPECT_EQ(0u, Formatted(L"%A", 1.5).find(L"0X1.8"));
    EXPECT_EQ(L"[ 5] [-5]", Formatted(L"[% d] [% d]", 5, -5)) << "a blank in place of a plus sign";
    EXPECT_EQ(L"2.", Formatted(L"%#.0f", 2.0));
}

TEST(TextFormat, KnowsEverySize)
{
    EXPECT_EQ(L"4294967295 -1", Formatted(L"%I32u %I32d", -1, -1));
    EXPECT_EQ(L"9000000000 12345678900", Formatted(L"%Id %Iu", 9000000000LL, 12345678900LL));
    EXPECT_EQ(L"-1 -32768 65535", Formatted(L"%hd %hi %hu", 65535, 32768, -1)) << "16 bits";
    EXPECT_EQ(L"-1 4294967295", Formatted(L"%ld %lu", 0xFFFFFFFFLL, -1LL)) << "32 bits";
    EXPECT_EQ(L"wide wide wide", Formatted(L"%ws %ls %lS", L"wide", L"wide", L"wide"));
    EXPECT_EQ(L"文文", Formatted(L"%lc%lC", L'文', L'文'));
    EXPECT_EQ(L"narrow A", Formatted(L"%hS %hc", "narrow", 'A'));
    EXPECT_EQ(L"1.50", Formatted(L"%.2Lf", 1.5));
}

TEST(TextFormat, APrecisionWithoutDigitsIsZero)
{
    EXPECT_EQ(L"2 []", Formatted(L"%.f [%.s]", 1.7, L"text"));
}

TEST(TextFormat, CharactersHaveAWidthButNoPrecision)
{
    EXPECT_EQ(L"[  A] [B  ]", Formatted(L"[%3c] [%-3c]", 'A', 'B'));
    EXPECT_EQ(L"A", Formatted(L"%.0c", 'A'));
}

TEST(TextFormat, TakesWidthAndPrecisionFromArguments)
{
    EXPECT_EQ(L"[    7]", Formatted(L"[%*d]", 5, 7));
    EXPECT_EQ(L"[7    ]", Formatted(L"[%*d]", -5, 7));
    EXPECT_EQ(L"[ 1.50]", Formatted(L"[%*.*f]", 5, 2, 1.5));
    EXPECT_EQ(L"[abc] [abc]", Formatted(L"[%.*s] [%.*S]", -1, L"abc", -1, "abc"));
    EXPECT_EQ(L"[%*d]", Formatted(L"[%*d]", L"no number", 7)) << "a text is no width";
}

TEST(TextFormat, DirectivesBehindTheLastArgumentComeOutAsTheyStand)
{
    EXPECT_EQ(L"1 %s %d", Formatted(L"%d %s %d", 1));
    EXPECT_EQ(L"x %*d", Formatted(L"%s %*d", L"x"));
    EXPECT_EQ(L"x %*d", Formatted(L"%s %*d", L"x", 5)) << "a width without a number";
}

TEST(TextFormat, ArgumentsOfAnotherKindComeOutAsTheDirectiveStands)
{
    EXPECT_EQ(L"%s 2", Formatted(L"%s %d", 1, 2)) << "each directive takes its argument all the same";
    EXPECT_EQ(L"%f %d %c", Formatted(L"%f %d %c", 1, 1.5, L"text"));
    EXPECT_EQ(L"%s %S", Formatted(L"%s %S", "narrow", L"wide"));
    int number = 0;
    EXPECT_EQ(L"%s %f", Formatted(L"%s %f", &number, &number));
    EXPECT_EQ(L"%s %S %p", Formatted(L"%s %S %p", 0.0, 0.0, 1.5)) << "a real number is no text and no pointer";
}

TEST(TextFormat, NeverWritesThroughAnArgument)
{
    int written = 41;
    EXPECT_EQ(L"before %n after 5", Formatted(L"before %n after %d", &written, 5));
    EXPECT_EQ(41, written);
}

TEST(TextFormat, NullTextsAreNamed)
{
    const wchar_t* const wide = nullptr;
    const char* const narrow = nullptr;
    EXPECT_EQ(L"(null) (null) (null)", Formatted(L"%s %S %s", wide, narrow, nullptr));
    EXPECT_EQ(L"(null)", Formatted(L"%s", 0)) << "zero is how older code writes null";
}

TEST(TextFormat, AnArgumentIsOnlyText)
{
    EXPECT_EQ(L"100%s %n %%", Formatted(L"%s", L"100%s %n %%"));
}

TEST(TextFormat, StringObjectsAreTexts)
{
    CString text(L"abc");
    EXPECT_EQ(L"abc", Formatted(L"%s", text));
    afx::FormatText(text, L"<%s>", {text.GetString()});
    EXPECT_STREQ(L"<abc>", text) << "the result may be an argument";
}

TEST(TextFormat, ANullFormatGivesAnEmptyText)
{
    EXPECT_EQ(L"", Formatted(nullptr));
    EXPECT_EQ(L"", Formatted(nullptr, 1, L"text"));
}

TEST(TextFormat, HugeWidthsAreNoDirectives)
{
    EXPECT_EQ(L"%999999999d", Formatted(L"%999999999d", 1));
    EXPECT_EQ(L"%.99999999999999999999f", Formatted(L"%.99999999999999999999f", 1.0));
    EXPECT_EQ(L"%999999999.2f", Formatted(L"%999999999.2f", 1.0)) << "whatever the precision is";
    EXPECT_EQ(L"%4294967297d", Formatted(L"%4294967297d", 1)) << "one in 32 bits";
    EXPECT_EQ(32767u, Formatted(L"%32767d", 1).size());
    EXPECT_EQ(32767u, Formatted(L"%*d", INT_MAX, 1).size()) << "an argument is brought into bounds";
    EXPECT_EQ(L"1", Formatted(L"%.*d", INT_MIN, 1));
}

TEST(TextFormat, TakesTextsOfAnyLength)
{
    const std::wstring text(100000, L'长');
    EXPECT_EQ(text + L"!", Formatted(L"%s!", text.c_str()));
    EXPECT_EQ(text, Formatted(text.c_str()));
}

TEST(TextFormat, NarrowTextsNeedNoEndWithinTheirPrecision)
{
    // The text ends where the memory ends.
    const SIZE_T page = 4096;
    char* const memory = static_cast<char*>(::VirtualAlloc(NULL, 2 * page, MEM_RESERVE, PAGE_NOACCESS));
    ASSERT_TRUE(::VirtualAlloc(memory, page, MEM_COMMIT, PAGE_READWRITE) != NULL);
    char* const begin = memory + page - 3;
    memcpy(begin, "abc", 3);
    EXPECT_EQ(L"ab abc", Formatted(L"%.2S %.3S", begin, begin));
    ::VirtualFree(memory, 0, MEM_RELEASE);
}

TEST(TextFormat, BytesOutsideTheCodePageDoNoHarm)
{
    EXPECT_EQ(0u, Formatted(L"[%S]", "\x81\xFF\x80").find(L"["));
}

TEST(TextFormat, PointersAreWrittenAndCountAsNumbers)
{
    void* const pointer = reinterpret_cast<void*>(static_cast<uintptr_t>(0x1234));
    EXPECT_EQ(L"0000000000001234", Formatted(L"%p", pointer));
    EXPECT_EQ(L"1234", Formatted(L"%Ix", pointer));
}
