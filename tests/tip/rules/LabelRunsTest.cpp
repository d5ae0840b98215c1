// The markup of labels.
#include "tip/LabelRuns.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

// Runs as one text: n normal, b lowered, u raised, x gap; the font behind it, S small or N normal; then the content.
std::wstring Runs(const std::wstring& text)
{
    std::wstring shown;
    for (const LabelRun& run : ParseLabel(text.c_str()))
    {
        shown += L"nbux"[run.kind];
        shown += run.smallFont ? L'S' : L'N';
        shown += L'(' + text.substr(static_cast<size_t>(run.begin), static_cast<size_t>(run.length)) + L')';
    }
    return shown;
}

struct Row
{
    const char* name;
    const wchar_t* text;
    const wchar_t* runs;
};

void Check(const Row& row)
{
    EXPECT_EQ(row.runs, Runs(row.text)) << row.name;
}

} // namespace

TEST(LabelRuns, MarkupMakesLoweredAndRaisedRuns)
{
    const Row rows[] = {
        {"plain", L"abc", L"nN(abc)"},
        {"raised at the end", L"m{U2}", L"nN(m)uS(2)"},
        {"lowered in the middle", L"H{B2}O", L"nN(H)bS(2)nN(O)"},
        {"markup at the beginning", L"{U2}m", L"uS(2)nN(m)"},
        {"one after the other", L"x{B1}{U2}", L"nN(x)bS(1)uS(2)"},
        {"several characters", L"a{Bmax,i}b", L"nN(a)bS(max,i)nN(b)"},
        {"Chinese", L"\x9762\x79EF{U2}", L"nN(\x9762\x79EF)uS(2)"},
    };
    for (const Row& row : rows)
        Check(row);
}

TEST(LabelRuns, AnyOtherLetterLeavesAGapInTheFontOfTheRunBefore)
{
    const Row rows[] = {
        {"first", L"{X1}", L"xN(1)"},
        {"after a normal run", L"a{X1}b", L"nN(a)xN(1)nN(b)"},
        {"after a small run", L"a{U2}{X1}b", L"nN(a)uS(2)xS(1)nN(b)"},
        {"after a small run without content", L"{B}{X1}", L"xS(1)"},
        {"small letters are other letters", L"{b1}{u2}", L"xN(1)xN(2)"},
        {"a brace as the letter", L"{{1}", L"xN(1)"},
    };
    for (const Row& row : rows)
        Check(row);
}

TEST(LabelRuns, UnfinishedMarkup)
{
    const Row rows[] = {
        {"a brace at the end", L"ab{", L"nN(ab)"},
        {"a brace alone", L"{", L""},
        {"brace and letter alone", L"{B", L""},
        {"brace and letter at the end", L"ab{B", L"nN(ab)"},
        {"content without an end", L"a{B12", L"nN(a)bS(12)"},
        {"gap without an end", L"a{X12", L"nN(a)xN(12)"},
        {"a brace inside the content", L"{B1{U2}c", L"bS(1{U2)nN(c)"},
    };
    for (const Row& row : rows)
        Check(row);
}

TEST(LabelRuns, RunsWithoutContentAreLeftOut)
{
    const Row rows[] = {
        {"empty", L"", L""},
        {"empty raised run", L"a{U}b", L"nN(a)nN(b)"},
        {"no letter", L"a{}b", L"nN(a)nN(b)"},
        {"no letter at the end", L"a{}", L"nN(a)"},
        {"an end without a beginning", L"a}b", L"nN(a}b)"},
        {"ends only", L"}}", L"nN(}})"},
    };
    for (const Row& row : rows)
        Check(row);
}

TEST(LabelRuns, NullIsTheEmptyText)
{
    EXPECT_TRUE(ParseLabel(NULL).empty());
}

// Runs follow each other, lie inside the text and are never empty, wherever the text is cut off.
TEST(LabelRuns, EveryPrefixOfASampleGivesRunsInsideTheText)
{
    const std::wstring sample = L"Q{Bmax} = {X12}4 m{U3}/s{}{{U}{B1{U2}}}{";
    for (size_t length = 0; length <= sample.size(); ++length)
    {
        const std::wstring text = sample.substr(0, length);
        int end = 0;
        for (const LabelRun& run : ParseLabel(text.c_str()))
        {
            EXPECT_GE(run.begin, end) << length;
            EXPECT_GT(run.length, 0) << length;
            end = run.begin + run.length;
            EXPECT_LE(end, static_cast<int>(length)) << length;
        }
    }
}

TEST(LabelRuns, AMillionCharactersAreParsed)
{
    EXPECT_EQ(1u, ParseLabel(std::wstring(1000000, L'x').c_str()).size());
    EXPECT_EQ(0u, ParseLabel(std::wstring(1, L'{').c_str()).size());
    std::wstring many;
    for (int i = 0; i < 250000; ++i)
        many += L"{U2}";
    EXPECT_EQ(250000u, ParseLabel(many.c_str()).size());
    // No end anywhere: looking for it must not begin anew at every brace.
    EXPECT_EQ(1u, ParseLabel(std::wstring(1000000, L'{').c_str()).size());
}

TEST(LabelRuns, LoweringRoundsOddHeightsUpwards)
{
    const int heights[][2] = {{10, 4}, {11, 3}, {12, 5}, {13, 4}, {15, 5}, {16, 7}, {1, -2}, {0, -1}};
    for (const auto& row : heights)
        EXPECT_EQ(row[1], LabelLowering(row[0])) << row[0];
}
