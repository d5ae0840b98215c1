// What the mouse-following tip shows, how large it is, where it stands and how long it stays.
#include "tip/FollowTipRules.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

namespace
{

std::vector<std::wstring> Split(const wchar_t* text)
{
    std::vector<std::wstring> parts;
    CTipLines lines(text);
    for (TipLine line; lines.Next(line);)
        parts.push_back(std::wstring(line.text, static_cast<size_t>(line.length)));
    return parts;
}

typedef std::vector<std::wstring> Parts;

CSize SizeOf(const std::vector<CSize>& lines)
{
    CTipMeasure measure;
    for (const CSize& line : lines)
        measure.Add(line);
    return measure.Size();
}

} // namespace

TEST(FollowTipRules, DebugPrefixMustStandAtTheBeginning)
{
    const struct
    {
        const char* name;
        const wchar_t* text;
        bool isDebug;
    } rows[] = {
        {"prefix and text", L"Debug:x", true},
        {"prefix alone", L"Debug:", true},
        {"prefix cut off", L"Debug", false},
        {"small letter", L"debug:x", false},
        {"blank before", L" Debug:x", false},
        {"in the second line", L"a\nDebug:x", false},
        {"empty", L"", false},
        {"null", NULL, false},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.isDebug, IsDebugTip(row.text)) << row.name;
}

TEST(FollowTipRules, NoSecondsAreTwenty)
{
    EXPECT_EQ(20u, TipSeconds(0));
    EXPECT_EQ(1u, TipSeconds(1));
    EXPECT_EQ(ULONG_MAX, TipSeconds(ULONG_MAX));
}

TEST(FollowTipRules, DurationIsInMillisecondsAndNeverWrapsAround)
{
    EXPECT_EQ(0u, TipDuration(0));
    EXPECT_EQ(20000u, TipDuration(20));
    EXPECT_EQ(4294967000u, TipDuration(4294967));
    EXPECT_EQ(UINT_MAX, TipDuration(4294968));
    EXPECT_EQ(UINT_MAX, TipDuration(536870912)) << "would be 0 if it wrapped around";
    EXPECT_EQ(UINT_MAX, TipDuration(ULONG_MAX));
}

TEST(FollowTipRules, ATipIsOverWhenMoreThanItsDurationHasPassed)
{
    const struct
    {
        const char* name;
        DWORD now;
        DWORD shownAt;
        unsigned int duration;
        bool isOver;
    } rows[] = {
        {"just shown", 1000, 1000, 20000, false},
        {"to the millisecond", 21000, 1000, 20000, false},
        {"one millisecond later", 21001, 1000, 20000, true},
        {"the clock began again", 5, 0xFFFFFFF0, 21, false},
        {"the clock began again, over", 5, 0xFFFFFFF0, 20, true},
        {"no time at all", 1000, 1000, 0, false},
        {"no time at all, a millisecond later", 1001, 1000, 0, true},
        {"the longest time", 999, 1000, UINT_MAX, false},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.isOver, IsTipOver(row.now, row.shownAt, row.duration)) << row.name;
}

TEST(FollowTipRules, LinesAreSplitAtLineEnds)
{
    EXPECT_EQ((Parts{L"one"}), Split(L"one"));
    EXPECT_EQ((Parts{L"one", L"two"}), Split(L"one\ntwo"));
    EXPECT_EQ((Parts{L"", L""}), Split(L"\n"));
    EXPECT_EQ((Parts{L"one", L"", L"three", L""}), Split(L"one\n\nthree\n"));
    EXPECT_EQ((Parts{L"a\r", L"b"}), Split(L"a\r\nb")) << "only the line feed counts";
    EXPECT_EQ((Parts{L""}), Split(L""));
    EXPECT_EQ((Parts{L""}), Split(NULL));
}

TEST(FollowTipRules, SizeComesFromTheMeasuresOfTheLines)
{
    const struct
    {
        const char* name;
        std::vector<CSize> lines;
        CSize size;
    } rows[] = {
        {"one line", {{50, 12}}, {70, 22}},
        {"a line without width", {{0, 12}}, {20, 22}},
        {"two lines", {{50, 12}, {30, 12}}, {70, 40}},
        {"the widest is the last", {{50, 12}, {80, 12}}, {100, 40}},
        {"three lines", {{1, 10}, {1, 10}, {1, 10}}, {21, 50}},
        {"half pixels are cut off", {{1, 15}, {1, 15}}, {21, 47}},
        {"two halves are a whole", {{1, 15}, {1, 15}, {1, 15}}, {21, 70}},
        {"the last line gives the height", {{1, 20}, {1, 10}}, {21, 35}},
        {"no lines at all", {}, {20, 10}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.size, SizeOf(row.lines)) << row.name;
}

TEST(FollowTipRules, MoreLinesThanPixelsDoNotOverflow)
{
    CTipMeasure measure;
    measure.Add(CSize(1, INT_MAX));
    measure.Add(CSize(1, INT_MAX));
    EXPECT_EQ(CSize(21, INT_MAX), measure.Size());
    EXPECT_EQ(INT_MAX, TipLineRect(INT_MAX, 16, 100).top);
}

TEST(FollowTipRules, SmallDifferencesKeepTheSize)
{
    const CSize current(100, 50);
    const struct
    {
        const char* name;
        CSize wanted;
        bool keeps;
    } rows[] = {
        {"the same", {100, 50}, true},
        {"10 wider", {110, 50}, true},
        {"11 wider", {111, 50}, false},
        {"10 narrower", {90, 50}, true},
        {"11 narrower", {89, 50}, false},
        {"3 higher", {100, 53}, true},
        {"4 higher", {100, 54}, false},
        {"3 lower", {100, 47}, true},
        {"4 lower", {100, 46}, false},
        {"both at their limits", {110, 47}, true},
        {"width alone is too much", {111, 47}, false},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.keeps, KeepsTipSize(current, row.wanted)) << row.name;
}

TEST(FollowTipRules, TheTipStandsRightAboveThePointerAndIsNotKeptOnTheScreen)
{
    EXPECT_EQ(CPoint(115, 160), TipPlace(CPoint(100, 200), 30));
    EXPECT_EQ(CPoint(15, -40), TipPlace(CPoint(0, 0), 30)) << "left upper corner of the screen";
    EXPECT_EQ(CPoint(1294, 919), TipPlace(CPoint(1279, 959), 30)) << "right lower corner";
}

TEST(FollowTipRules, LinesStandOneAndAHalfLinesApart)
{
    EXPECT_EQ(CRect(3, 5, 90, 17), TipLineRect(0, 12, 90));
    EXPECT_EQ(CRect(3, 23, 90, 35), TipLineRect(1, 12, 90));
    EXPECT_EQ(CRect(3, 41, 90, 53), TipLineRect(2, 12, 90));
    EXPECT_EQ(CRect(3, 27, 90, 42), TipLineRect(1, 15, 90)) << "half a pixel is cut off";
    EXPECT_EQ(CRect(3, 50, 90, 65), TipLineRect(2, 15, 90));
}
