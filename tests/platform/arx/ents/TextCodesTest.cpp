#include "arx/ents/TextCodes.h"

#include <gtest/gtest.h>

using arxents::EstimatedWidth;
using arxents::MTextLines;
using arxents::ResolveControlCodes;

namespace
{

using Lines = std::vector<std::wstring>;

struct Row
{
    const wchar_t* text;
    const wchar_t* plain;
};

} // namespace

TEST(TextCodes, SingleLineCodes)
{
    const Row rows[] = {
        {L"%%c50", L"Ø50"},     {L"%%C50", L"Ø50"},
        {L"45%%d", L"45°"},     {L"%%p0.1", L"±0.1"},
        {L"%%uabc%%u", L"abc"}, {L"%%oa%%o%%kb%%k", L"ab"},
        {L"100%%%", L"100%"},   {L"%%065", L"A"},
        {L"50%", L"50%"},       {L"%%", L"%%"},
        {L"%%x", L"%%x"},       {L"%%06", L"%%06"},
        {L"%%000", L"%%000"},   {L"", L""},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(ResolveControlCodes(row.text), row.plain) << row.text;
    }
}

TEST(TextCodes, ParagraphFormattingVanishes)
{
    const Row rows[] = {
        {L"plain", L"plain"},
        {L"{\\fSimSun|b0|i0;中文}x", L"中文x"},
        {L"\\H2.5x;big\\C1;red\\W0.8;\\A1;", L"bigred"},
        {L"\\Lunder\\l \\Oover\\o", L"under over"},
        {L"\\S1/2; \\S+0.1^-0.1;", L"1/2 +0.1/-0.1"},
        {L"a\\~b", L"a b"},
        {L"\\\\ \\{ \\}", L"\\ { }"},
        {L"%%c10", L"Ø10"},
        {L"5^ 3", L"5^3"},
        {L"\\pi0,l2;indented", L"indented"},
        {L"\\fnever closed", L""},
        {L"end\\", L"end\\"},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(MTextLines(row.text, 0), Lines{row.plain}) << row.text;
    }
}

TEST(TextCodes, ParagraphEndsMakeLines)
{
    EXPECT_EQ(MTextLines(L"a\\Pb\\P\\Pc", 0), (Lines{L"a", L"b", L"", L"c"}));
    EXPECT_EQ(MTextLines(L"a^Jb", 0), (Lines{L"a", L"b"}));
}

TEST(TextCodes, LongLinesAreBrokenAtBlanks)
{
    EXPECT_EQ(MTextLines(L"aaa bbb ccc", 5), (Lines{L"aaa bbb ", L"ccc"}));
    EXPECT_EQ(MTextLines(L"aaaaaaaaaaaa", 2), Lines{L"aaaaaaaaaaaa"});
}

TEST(TextCodes, IdeographsBreakAnywhere)
{
    EXPECT_EQ(MTextLines(L"中文文字", 2), (Lines{L"中文", L"文字"}));
}

TEST(TextCodes, WidthsAreFixed)
{
    EXPECT_DOUBLE_EQ(EstimatedWidth(L""), 0);
    EXPECT_DOUBLE_EQ(EstimatedWidth(L"iW"), 1.2);
    EXPECT_DOUBLE_EQ(EstimatedWidth(L"中，"), 2);
    EXPECT_DOUBLE_EQ(EstimatedWidth(L"\xD840\xDC0B"), 1); // one character beyond the first plane
}
