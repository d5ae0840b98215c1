// How the texts of a column compare.
#include "list/SortText.h"

#include "CommaLocale.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

struct NumericCase
{
    const char* name;
    const wchar_t* text;
    bool numeric;
};

class NumericText : public testing::TestWithParam<NumericCase>
{
};

std::string NameOf(const testing::TestParamInfo<NumericCase>& info)
{
    return info.param.name;
}

} // namespace

TEST_P(NumericText, IsToldFromOtherText)
{
    EXPECT_EQ(GetParam().numeric, IsNumericText(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(
    All, NumericText,
    testing::Values(NumericCase{"Null", NULL, false}, NumericCase{"Empty", L"", false},
                    NumericCase{"OnlyBlanks", L" \t\r\n", false}, NumericCase{"Digits", L"0123456789", true},
                    NumericCase{"LeadingBlank", L" 1", false}, NumericCase{"TrailingBlanks", L"1 \t\n", true},
                    NumericCase{"Minus", L"-1", true}, NumericCase{"Plus", L"+1", true},
                    NumericCase{"LoneMinus", L"-", true}, NumericCase{"LonePlus", L"+", true},
                    NumericCase{"LoneSignAndBlank", L"- ", true}, NumericCase{"TwoSigns", L"--1", false},
                    NumericCase{"SignBehind", L"1-", false}, NumericCase{"SignBeforeBlank", L"- 1", false},
                    NumericCase{"Fraction", L"1.5", true}, NumericCase{"LeadingPoint", L".5", true},
                    NumericCase{"TrailingPoint", L"5.", true}, NumericCase{"LonePoint", L".", true},
                    NumericCase{"TwoPoints", L"1.2.3", false}, NumericCase{"Exponent", L"1e5", false},
                    NumericCase{"Thousands", L"1,000", false}, NumericCase{"BlankInside", L"1 2", false},
                    NumericCase{"Hexadecimal", L"0x1", false}, NumericCase{"Letters", L"abc", false},
                    NumericCase{"FullWidthDigit", L"\xFF11", false}),
    NameOf);

TEST(NumericTextLength, HundredThousandDigitsAreANumber)
{
    std::wstring text(100000, L'7');
    EXPECT_TRUE(IsNumericText(text.c_str()));
    text.back() = L'x';
    EXPECT_FALSE(IsNumericText(text.c_str()));
}

TEST(NumberOfText, ReadsWhatStandsAtTheBeginning)
{
    EXPECT_EQ(-2.5, NumberOfText(L" -2.5 mm"));
    EXPECT_EQ(1000, NumberOfText(L"1e3"));
    EXPECT_EQ(0, NumberOfText(L""));
    EXPECT_EQ(0, NumberOfText(L"-"));
    EXPECT_EQ(0, NumberOfText(L"abc"));
}

TEST(NumberOfText, WordsOfNewerRuntimesHaveNoValue)
{
    EXPECT_EQ(0, NumberOfText(L"inf"));
    EXPECT_EQ(0, NumberOfText(L"-INFINITY"));
    EXPECT_EQ(0, NumberOfText(L"nan"));
    EXPECT_EQ(0, NumberOfText(L"0x10"));
}

TEST(NumberOfText, HasAPointWhereOthersHaveAComma)
{
    const CommaLocale comma;
    EXPECT_EQ(1.5, NumberOfText(L"1.5"));
    EXPECT_EQ(1, NumberOfText(L"1,5"));
    EXPECT_EQ(1, CompareSortTexts(SORT_NUMBER_ASCENDING, L"1.5", L"1.25"));
}

TEST(CompareSortTexts, TextsIgnoreLetterCaseInBothDirections)
{
    EXPECT_LT(CompareSortTexts(SORT_TEXT_ASCENDING, L"abc", L"ABD"), 0);
    EXPECT_GT(CompareSortTexts(SORT_TEXT_ASCENDING, L"ABD", L"abc"), 0);
    EXPECT_EQ(CompareSortTexts(SORT_TEXT_ASCENDING, L"abc", L"ABC"), 0);
    EXPECT_GT(CompareSortTexts(SORT_TEXT_DESCENDING, L"abc", L"ABD"), 0);
    EXPECT_LT(CompareSortTexts(SORT_TEXT_DESCENDING, L"ABD", L"abc"), 0);
}

TEST(CompareSortTexts, NumbersAnswerOneOrZeroAndNeverLess)
{
    EXPECT_EQ(1, CompareSortTexts(SORT_NUMBER_ASCENDING, L"10", L"9"));
    EXPECT_EQ(0, CompareSortTexts(SORT_NUMBER_ASCENDING, L"9", L"10"));
    EXPECT_EQ(0, CompareSortTexts(SORT_NUMBER_ASCENDING, L"9", L"9.0"));
    EXPECT_EQ(1, CompareSortTexts(SORT_NUMBER_DESCENDING, L"9", L"10"));
    EXPECT_EQ(0, CompareSortTexts(SORT_NUMBER_DESCENDING, L"10", L"9"));
}

TEST(CompareSortTexts, AnUnknownModeFindsEverythingEqual)
{
    EXPECT_EQ(0, CompareSortTexts(4, L"b", L"a"));
    EXPECT_EQ(0, CompareSortTexts(-1, L"a", L"b"));
}
