// Values of texts and texts of values, in every radix.
#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "edit/ValueText.h"

namespace
{

const VVEset kUnknown = static_cast<VVEset>(10);

ValueRules Checked(VVEset set)
{
    return {set, true, true};
}

template<class VALUE>
struct Row
{
    const char* name;
    VVEset set;
    const wchar_t* text;
    int result;
    VALUE value;
};

template<class VALUE, int COUNT>
void Check(const Row<VALUE> (&rows)[COUNT])
{
    for (const Row<VALUE>& row : rows)
    {
        SCOPED_TRACE(row.name);
        VALUE value = 99;
        EXPECT_EQ(row.result, ReadValue(Checked(row.set), row.text, value));
        EXPECT_EQ(row.value, value);
    }
}

const Row<long> kLongs[] = {
    {"own characters", VVE_CUSTOM, L"12", 1, 12},
    {"any character", VVE_ALL, L"12", 1, 12},
    {"letters and digits", VVE_ALPHANUM, L"12", 1, 12},
    {"letters have no value", VVE_ALPHA, L"abc", 1, 0},
    {"decimal", VVE_DECIMAL, L"2147483647", 1, LONG_MAX},
    {"decimal above long wraps", VVE_DECIMAL, L"4294967295", 1, -1},
    {"decimal out of range", VVE_DECIMAL, L"4294967296", 0, -1},
    {"signed", VVE_SIGNED, L"+5", 1, 5},
    {"signed negative fails by the unsigned range", VVE_SIGNED, L"-5", 0, -5},
    {"hex", VVE_HEX, L"7fFF", 1, 0x7FFF},
    {"hex out of range", VVE_HEX, L"100000000", 0, -1},
    {"octal", VVE_OCTAL, L"17", 1, 15},
    {"octal out of range", VVE_OCTAL, L"40000000000", 0, -1},
    {"binary", VVE_BINARY, L"101", 1, 5},
    {"binary out of range", VVE_BINARY, L"100000000000000000000000000000000", 0, -1},
    {"float is cut off", VVE_FLOAT, L"-12.9", 1, -12},
    {"float largest", VVE_FLOAT, L"2147483647", 1, LONG_MAX},
    {"float above", VVE_FLOAT, L"2147483647.5", 0, LONG_MAX},
    {"float below", VVE_FLOAT, L"-2147483649", 0, LONG_MIN},
    {"float overflow", VVE_FLOAT, L"1e400", 0, LONG_MIN},
    {"unknown set stores nothing", kUnknown, L"12", 1, 99},
    {"empty", VVE_DECIMAL, L"", 1, 0},
    {"null", VVE_DECIMAL, NULL, 1, 0},
};

const Row<unsigned long> kUnsigneds[] = {
    {"own characters", VVE_CUSTOM, L"12", 1, 12},
    {"any character", VVE_ALL, L"4294967295", 1, ULONG_MAX},
    {"letters and digits", VVE_ALPHANUM, L"12", 1, 12},
    {"letters have no value", VVE_ALPHA, L"abc", 1, 0},
    {"decimal largest", VVE_DECIMAL, L"4294967295", 1, ULONG_MAX},
    {"decimal out of range", VVE_DECIMAL, L"4294967296", 0, ULONG_MAX},
    {"signed negative", VVE_SIGNED, L"-5", 0, 4294967291u},
    {"signed", VVE_SIGNED, L"+5", 1, 5},
    {"hex", VVE_HEX, L"FFFFFFFF", 1, ULONG_MAX},
    {"hex out of range", VVE_HEX, L"100000000", 0, ULONG_MAX},
    {"octal", VVE_OCTAL, L"37777777777", 1, ULONG_MAX},
    {"octal out of range", VVE_OCTAL, L"40000000000", 0, ULONG_MAX},
    {"binary", VVE_BINARY, L"11111111111111111111111111111111", 1, ULONG_MAX},
    {"binary out of range", VVE_BINARY, L"111111111111111111111111111111111", 0, ULONG_MAX},
    {"float largest", VVE_FLOAT, L"4294967295", 1, ULONG_MAX},
    {"float above", VVE_FLOAT, L"4294967295.5", 0, ULONG_MAX},
    {"float negative wraps", VVE_FLOAT, L"-1", 1, ULONG_MAX},
    {"unknown set fails while the range is checked", kUnknown, L"12", 0, 99},
};

const Row<double> kDoubles[] = {
    {"float", VVE_FLOAT, L"1.5e-3", 1, 1.5e-3},
    {"float comma ends the number", VVE_FLOAT, L"1,5", 1, 1},
    {"float underflow fails", VVE_FLOAT, L"1e-400", 0, 0},
    {"float behind a line feed", VVE_FLOAT, L"\r\n2", 1, 2},
    {"decimal above long does not wrap", VVE_DECIMAL, L"4294967295", 1, 4294967295.0},
    {"hex", VVE_HEX, L"ff", 1, 255},
    {"octal", VVE_OCTAL, L"17", 1, 15},
    {"binary", VVE_BINARY, L"11", 1, 3},
    {"signed negative keeps its sign", VVE_SIGNED, L"-5", 0, -5},
    {"any character", VVE_ALL, L"7", 1, 7},
    {"unknown set stores nothing", kUnknown, L"7", 1, 99},
};

std::wstring Long(VVEset set, long value)
{
    CString text(L"kept");
    return TextOfInteger(set, value, text) ? text.GetString() : L"(none)";
}

std::wstring Unsigned(VVEset set, unsigned long value)
{
    CString text(L"kept");
    return TextOfInteger(set, value, text) ? text.GetString() : L"(none)";
}

std::wstring Double(VVEset set, double value)
{
    return TextOfValue(set, value).GetString();
}

} // namespace

TEST(ValueText, ReadsLongs)
{
    Check(kLongs);
}

TEST(ValueText, ReadsUnsignedLongs)
{
    Check(kUnsigneds);
}

TEST(ValueText, ReadsDoubles)
{
    Check(kDoubles);
}

TEST(ValueText, ReadsOutOfRangeWhileTheRangeIsNotChecked)
{
    const ValueRules rules = {VVE_SIGNED, false, true};
    long value = 0;
    EXPECT_EQ(1, ReadValue(rules, L"-5", value));
    EXPECT_EQ(-5, value);
    const ValueRules real = {VVE_FLOAT, false, true};
    double number = 1;
    EXPECT_EQ(1, ReadValue(real, L"1e-400", number));
    EXPECT_EQ(0, number);
}

TEST(ValueText, FailsButStoresWhileTheSyntaxIsWrong)
{
    for (const VVEset set : {VVE_ALL, VVE_DECIMAL, VVE_SIGNED, VVE_HEX, VVE_OCTAL, VVE_BINARY, VVE_FLOAT})
    {
        SCOPED_TRACE(set);
        const ValueRules rules = {set, true, false};
        long integer = 0;
        unsigned long natural = 0;
        double number = 0;
        EXPECT_EQ(0, ReadValue(rules, L"1", integer));
        EXPECT_EQ(0, ReadValue(rules, L"1", natural));
        EXPECT_EQ(0, ReadValue(rules, L"1", number));
        EXPECT_EQ(1, integer);
        EXPECT_EQ(1u, natural);
        EXPECT_EQ(1, number);
    }
}

TEST(ValueText, UnknownSetsAnswerOnlyWhetherTheSyntaxIsRight)
{
    long integer = 0;
    unsigned long natural = 0;
    EXPECT_EQ(0, ReadValue({kUnknown, false, false}, L"1", integer));
    EXPECT_EQ(1, ReadValue({kUnknown, false, true}, L"1", natural));
    EXPECT_EQ(0, ReadValue({kUnknown, false, false}, L"1", natural));
}

TEST(ValueText, WritesNumbersInTheRadixOfTheSet)
{
    EXPECT_EQ(L"12", Double(VVE_DECIMAL, 12.9));
    EXPECT_EQ(L"4294967295", Double(VVE_DECIMAL, 4294967295.0));
    EXPECT_EQ(L"4294967295", Double(VVE_DECIMAL, -1));
    EXPECT_EQ(L"ff", Double(VVE_HEX, 255));
    EXPECT_EQ(L"17", Double(VVE_OCTAL, 15));
    EXPECT_EQ(L"1010", Double(VVE_BINARY, 10.5));
    EXPECT_EQ(L"0", Double(VVE_BINARY, 0));
    EXPECT_EQ(L"3.1415927", Double(VVE_FLOAT, 3.14159265358979));
    EXPECT_EQ(L"-12", Double(VVE_SIGNED, -12.9));
    EXPECT_EQ(L"-12", Double(VVE_ALL, -12.9));
    EXPECT_EQ(L"7", Double(kUnknown, 7));
}

TEST(ValueText, WritesLongsInTheRadixOfTheSet)
{
    for (const VVEset set : {VVE_CUSTOM, VVE_ALL, VVE_ALPHANUM, VVE_ALPHA, VVE_SIGNED})
        EXPECT_EQ(L"-5", Long(set, -5)) << set;
    EXPECT_EQ(L"4294967291", Long(VVE_DECIMAL, -5));
    EXPECT_EQ(L"fffffffb", Long(VVE_HEX, -5));
    EXPECT_EQ(L"37777777773", Long(VVE_OCTAL, -5));
    EXPECT_EQ(L"11111111111111111111111111111011", Long(VVE_BINARY, -5));
    EXPECT_EQ(L"(none)", Long(VVE_FLOAT, 5));
    EXPECT_EQ(L"(none)", Long(kUnknown, 5));
}

TEST(ValueText, WritesUnsignedLongsInTheRadixOfTheSet)
{
    for (const VVEset set : {VVE_CUSTOM, VVE_ALL, VVE_ALPHANUM, VVE_ALPHA, VVE_DECIMAL})
        EXPECT_EQ(L"4294967295", Unsigned(set, ULONG_MAX)) << set;
    EXPECT_EQ(L"-1", Unsigned(VVE_SIGNED, ULONG_MAX));
    EXPECT_EQ(L"ffffffff", Unsigned(VVE_HEX, ULONG_MAX));
    EXPECT_EQ(L"37777777777", Unsigned(VVE_OCTAL, ULONG_MAX));
    EXPECT_EQ(std::wstring(32, L'1'), Unsigned(VVE_BINARY, ULONG_MAX));
    EXPECT_EQ(L"(none)", Unsigned(VVE_FLOAT, 5));
    EXPECT_EQ(L"(none)", Unsigned(kUnknown, 5));
}

TEST(ValueText, NumbersThatFitNowhereDoNoHarm)
{
    EXPECT_FALSE(Double(VVE_DECIMAL, 1e300).empty());
    EXPECT_FALSE(Double(VVE_SIGNED, -1e300).empty());
    EXPECT_FALSE(Double(VVE_FLOAT, 1e300).empty());
}

TEST(ValueText, PrecisionWidensTheLimits)
{
    EXPECT_EQ(0, CompareWithLimits(10.00005, 0, 10, 0.0001));
    EXPECT_EQ(2, CompareWithLimits(10.001, 0, 10, 0.0001));
    EXPECT_EQ(0, CompareWithLimits(-0.00005, 0, 10, 0.0001));
    EXPECT_EQ(-1, CompareWithLimits(-0.001, 0, 10, 0.0001));
}
