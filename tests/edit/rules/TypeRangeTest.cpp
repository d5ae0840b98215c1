// What fits into the types behind the sets: texts and numbers.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "edit/TypeRange.h"

namespace
{

struct TextRow
{
    const char* name;
    VVEset set;
    const wchar_t* text;
    int result;
};

const TextRow kTexts[] = {
    {"decimal empty", VVE_DECIMAL, L"", 0},
    {"decimal null", VVE_DECIMAL, NULL, 0},
    {"decimal largest", VVE_DECIMAL, L"4294967295", 0},
    {"decimal one above", VVE_DECIMAL, L"4294967296", 1},
    {"decimal run of eleven is read up to the sign", VVE_DECIMAL, L"12-34567890", 0},
    {"decimal run of twelve is not read", VVE_DECIMAL, L"12-345678901", 1},
    {"decimal eleven digits are still read", VVE_DECIMAL, L"99999999999", 1},
    {"decimal twelve digits", VVE_DECIMAL, L"999999999999", 1},
    {"decimal negative", VVE_DECIMAL, L"-1", -1},
    {"decimal negative run too long", VVE_DECIMAL, L"-999999999999", 1},
    {"decimal leading zeros do not count", VVE_DECIMAL, L"00000000000000000007", 0},
    {"decimal leading blanks do not count", VVE_DECIMAL, L"              7", 0},
    {"decimal signs inside count to the run", VVE_DECIMAL, L"1+-+-+-+-+-+", 1},
    {"decimal letters are not its business", VVE_DECIMAL, L"abc", 0},
    {"decimal beyond 64 bits behind a line feed", VVE_DECIMAL, L"\n99999999999999999999999", 1},
    {"hex eight digits", VVE_HEX, L"FFFFFFFF", 0},
    {"hex nine digits", VVE_HEX, L"1FFFFFFFF", 1},
    {"hex leading zeros do not count", VVE_HEX, L"0000ffffffff", 0},
    {"hex leading blanks do not count", VVE_HEX, L"  0 0ffffffff", 0},
    {"hex run ends at another letter", VVE_HEX, L"12345678g9", 0},
    {"octal largest", VVE_OCTAL, L"37777777777", 0},
    {"octal one above", VVE_OCTAL, L"40000000000", 1},
    {"octal ten digits", VVE_OCTAL, L"7777777777", 0},
    {"octal twelve digits that sort before", VVE_OCTAL, L"100000000000", 0},
    {"octal twelve digits that begin with 2", VVE_OCTAL, L"277777777777", 0},
    {"octal twelve digits just before the largest", VVE_OCTAL, L"377777777767", 0},
    {"octal twelve digits that sort after", VVE_OCTAL, L"377777777770", 1},
    {"octal leading zeros do not count", VVE_OCTAL, L"00037777777777", 0},
    {"octal leading blanks stay and end the run", VVE_OCTAL, L" 77777777777", 0},
    {"binary 32 digits", VVE_BINARY, L"11111111111111111111111111111111", 0},
    {"binary 33 digits", VVE_BINARY, L"111111111111111111111111111111111", 1},
    {"binary leading zeros and blanks do not count", VVE_BINARY, L" 0 0011111111111111111111111111111111", 0},
    {"float", VVE_FLOAT, L"-1.5e300", 0},
    {"float empty", VVE_FLOAT, L"", 0},
    {"float zero", VVE_FLOAT, L"0.000", 0},
    {"float overflow", VVE_FLOAT, L"1e400", 1},
    {"float negative overflow", VVE_FLOAT, L"-1e400", 1},
    {"float underflow", VVE_FLOAT, L"1e-400", -1},
    {"float infinity by name", VVE_FLOAT, L"INF", 1},
    {"float infinity behind a number", VVE_FLOAT, L"1#INF", 1},
    {"float small letters are no infinity behind a number", VVE_FLOAT, L"1#inf", 0},
    {"float digits that are not read", VVE_FLOAT, L"x1", -1},
    {"signed largest", VVE_SIGNED, L"2147483647", 0},
    {"signed one above", VVE_SIGNED, L"2147483648", 1},
    {"signed least", VVE_SIGNED, L"-2147483648", 0},
    {"signed one below", VVE_SIGNED, L"-2147483649", -1},
    {"signed run too long", VVE_SIGNED, L"-999999999999", 1},
    {"any character is held against signed", VVE_ALL, L"2147483648", 1},
    {"own characters are held against signed", VVE_CUSTOM, L"-2147483649", -1},
    {"letters and digits are held against signed", VVE_ALPHANUM, L"2147483648", 1},
    {"letters are in", VVE_ALPHA, L"abc", 0},
    {"unknown set is held against signed", static_cast<VVEset>(12), L"2147483648", 1},
};

struct NumberRow
{
    const char* name;
    VVEset set;
    double value;
    int result;
};

const double kInfinity = std::numeric_limits<double>::infinity();
const double kNoNumber = std::numeric_limits<double>::quiet_NaN();

const NumberRow kNumbers[] = {
    {"unsigned zero", VVE_DECIMAL, 0, 0},
    {"unsigned below", VVE_DECIMAL, -0.5, -1},
    {"unsigned largest", VVE_DECIMAL, 4294967295.0, 0},
    {"unsigned above", VVE_DECIMAL, 4294967295.5, 1},
    {"hex above", VVE_HEX, 4294967296.0, 1},
    {"hex below", VVE_HEX, -1, -1},
    {"octal above", VVE_OCTAL, 4294967296.0, 1},
    {"octal below", VVE_OCTAL, -1, -1},
    {"binary above", VVE_BINARY, 4294967296.0, 1},
    {"binary below", VVE_BINARY, -1, -1},
    {"float huge", VVE_FLOAT, 1e300, 0},
    {"float infinity", VVE_FLOAT, kInfinity, 1},
    {"float negative infinity", VVE_FLOAT, -kInfinity, 1},
    {"float no number", VVE_FLOAT, kNoNumber, 1},
    {"decimal no number", VVE_DECIMAL, kNoNumber, 1},
    {"signed least", VVE_SIGNED, -2147483648.0, 0},
    {"signed below", VVE_SIGNED, -2147483648.5, -1},
    {"signed largest", VVE_SIGNED, 2147483647.0, 0},
    {"signed above", VVE_SIGNED, 2147483647.5, 1},
    {"any character is held against signed", VVE_ALL, 2147483648.0, 1},
    {"own characters are held against signed", VVE_CUSTOM, -2147483649.0, -1},
};

} // namespace

TEST(TypeRange, JudgesTexts)
{
    for (const TextRow& row : kTexts)
        EXPECT_EQ(row.result, CheckTypeRange(row.set, row.text)) << row.name;
}

TEST(TypeRange, JudgesNumbers)
{
    for (const NumberRow& row : kNumbers)
        EXPECT_EQ(row.result, CheckTypeRange(row.set, row.value)) << row.name;
}

TEST(TypeRange, JudgesTextsOfAnyLength)
{
    const std::wstring ones(70000, L'1');
    const std::wstring zeros(70000, L'0');
    for (const VVEset set : {VVE_DECIMAL, VVE_HEX, VVE_BINARY, VVE_SIGNED, VVE_FLOAT})
    {
        EXPECT_EQ(1, CheckTypeRange(set, ones.c_str())) << set;
        EXPECT_EQ(0, CheckTypeRange(set, zeros.c_str())) << set;
    }
    EXPECT_EQ(0, CheckTypeRange(VVE_OCTAL, ones.c_str())) << "sorts before the largest";
}
