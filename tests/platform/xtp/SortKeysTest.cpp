// Keys and order of the list sort helper, without a list.
#include "xtp/list/SortKeys.h"

#include <gtest/gtest.h>

using xtp::MakeSortKey;
using xtp::ReadDate;

namespace
{
constexpr double kNoDate = -1e6;
constexpr double kFirstOfMarch2024 = 45352;

std::vector<size_t> Order(const std::vector<const wchar_t*>& texts, bool ascending, XTSortType type)
{
    std::vector<xtp::SortKey> keys;
    for (const wchar_t* text : texts)
        keys.push_back(MakeSortKey(text, type));
    return xtp::SortOrder(keys, ascending, type);
}

typedef std::vector<size_t> Rows;
} // namespace

TEST(SortKeys, StringsCompareByCharacterCode)
{
    EXPECT_EQ((Rows{2, 1, 4, 0, 3}), Order({L"b", L"B", L"10", L"信息", L"a"}, true, xtSortString));
}

TEST(SortKeys, IntegersCompareByValueNotByText)
{
    EXPECT_EQ((Rows{3, 1, 0, 2}), Order({L"10", L"9", L"100", L"-5"}, true, xtSortInt));
}

TEST(SortKeys, TextThatIsNoNumberCountsAsZero)
{
    EXPECT_EQ((Rows{2, 0, 3, 1}), Order({L"abc", L"1", L"-1", L""}, true, xtSortInt));
    EXPECT_EQ((Rows{2, 0, 3, 1}), Order({L"abc", L"0.5", L"-0.5", L"nan"}, true, xtSortFloat));
}

TEST(SortKeys, LargeIntegersKeepEveryDigit)
{
    EXPECT_EQ((Rows{1, 0}), Order({L"9007199254740993", L"9007199254740992"}, true, xtSortInt));
}

TEST(SortKeys, FloatsCompareByValue)
{
    EXPECT_EQ((Rows{1, 2, 0}), Order({L"1e3", L"-2.5", L"999.9"}, true, xtSortFloat));
}

TEST(SortKeys, EqualKeysKeepTheirOrderInBothDirections)
{
    EXPECT_EQ((Rows{1, 3, 0, 2}), Order({L"7", L"1", L"7", L"1"}, true, xtSortInt));
    EXPECT_EQ((Rows{0, 2, 1, 3}), Order({L"7", L"1", L"7", L"1"}, false, xtSortInt));
}

TEST(SortKeys, NoKeysGiveNoOrder)
{
    EXPECT_TRUE(Order({}, true, xtSortString).empty());
}

struct DateRow
{
    const char* name;
    const wchar_t* text;
    double date;
};

TEST(SortKeys, DatesAreReadYearFirst)
{
    const DateRow rows[] = {
        {"dashes", L"2024-03-01", kFirstOfMarch2024},
        {"slashes", L"2024/3/1", kFirstOfMarch2024},
        {"dots", L"2024.03.01", kFirstOfMarch2024},
        {"blanks around", L"  2024-03-01 ", kFirstOfMarch2024},
        {"with time", L"2024-03-01 06:00", kFirstOfMarch2024 + 0.25},
        {"with seconds", L"2024-03-01 18:00:00", kFirstOfMarch2024 + 0.75},
        {"time alone", L"12:00:00", 0.5},
    };
    for (const DateRow& row : rows)
        EXPECT_NEAR(row.date, ReadDate(row.text, kNoDate), 1e-9) << row.name;
}

TEST(SortKeys, TextThatIsNoDateGivesTheFallback)
{
    const DateRow rows[] = {
        {"empty", L"", kNoDate},
        {"word", L"abc", kNoDate},
        {"day that the month lacks", L"2024-02-30", kNoDate},
        {"month 13", L"2024-13-01", kNoDate},
        {"hour 24", L"2024-03-01 24:00", kNoDate},
        {"text behind", L"2024-03-01x", kNoDate},
    };
    for (const DateRow& row : rows)
        EXPECT_EQ(row.date, ReadDate(row.text, kNoDate)) << row.name;
}

TEST(SortKeys, UnreadableDatesComeBeforeEveryDate)
{
    EXPECT_EQ((Rows{1, 2, 0}), Order({L"2024-03-01", L"unknown", L"1999-12-31"}, true, xtSortDateTime));
}
