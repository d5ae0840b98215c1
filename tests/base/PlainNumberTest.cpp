// Numbers have a point whatever the process's language.
#include "base/PlainNumber.h"

#include "CommaLocale.h"

#include <cmath>
#include <string>

namespace
{

struct Row
{
    const char* name;
    const wchar_t* text;
    double value;
    const wchar_t* rest;
};

const Row kRows[] = {
    {"whole number", L"12", 12, L""},
    {"point", L"-1.5", -1.5, L""},
    {"exponent", L"2.5e3", 2500, L""},
    {"blanks in front", L" \t1.5", 1.5, L""},
    {"comma ends the number", L"1,5", 1, L",5"},
    {"comma behind the fraction", L"1.5,6.5", 1.5, L",6.5"},
    {"second point ends the number", L"1.2.3", 1.2, L".3"},
    {"letters behind", L"1.5 mm.", 1.5, L" mm."},
    {"empty", L"", 0, L""},
    {"no number", L"x1.5", 0, L"x1.5"},
    {"sign alone", L"-", 0, L"-"},
};

void ExpectRows()
{
    for (const Row& row : kRows)
    {
        SCOPED_TRACE(row.name);
        const wchar_t* rest = NULL;
        EXPECT_EQ(row.value, ReadPlainNumber(row.text, &rest));
        EXPECT_EQ(row.text + wcslen(row.text) - wcslen(row.rest), rest);
        EXPECT_EQ(row.value, ReadPlainNumber(row.text));
    }
}

void ExpectTexts()
{
    EXPECT_STREQ(L"3.1415927", PlainNumberText(L"%0.8g", 3.14159265358979));
    EXPECT_STREQ(L"-0.5", PlainNumberText(L"%g", -0.5));
    EXPECT_STREQ(L"12", PlainNumberText(L"%g", 12));
    EXPECT_STREQ(L"1e+030", PlainNumberText(L"%g", 1e30));
}

} // namespace

TEST(PlainNumber, IsReadAtTheBeginningOfAText)
{
    ExpectRows();
}

TEST(PlainNumber, IsReadTheSameWayWhereNumbersHaveAComma)
{
    const CommaLocale comma;
    ExpectRows();
}

TEST(PlainNumber, IsWrittenWithAPoint)
{
    ExpectTexts();
}

TEST(PlainNumber, IsWrittenTheSameWayWhereNumbersHaveAComma)
{
    const CommaLocale comma;
    ExpectTexts();
}

TEST(PlainNumber, IsInfiniteBeyondEveryType)
{
    EXPECT_TRUE(std::isinf(ReadPlainNumber(L"1e400")));
    EXPECT_EQ(0, ReadPlainNumber(L"1e-400"));
    EXPECT_TRUE(std::isinf(ReadPlainNumber(std::wstring(70000, L'9').c_str())));
}
