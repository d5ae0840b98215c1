// Floating-point numbers while they are typed.
#include <gtest/gtest.h>

#include <string>

#include "edit/FloatScanner.h"

namespace
{

const int kStatusBefore = 77;

struct Row
{
    const char* name;
    const wchar_t* text;
    EditBrush brush;
    int status;
};

const Row kRows[] = {
    // Start.
    {"empty keeps the status", L"", BRUSH_EMPTY, kStatusBefore},
    {"blanks alone keep the status", L" \t ", BRUSH_EMPTY, kStatusBefore},
    {"leading blanks", L"  5", BRUSH_VALID, VVB_VALID},
    {"leading tab", L"\t5", BRUSH_VALID, VVB_VALID},
    {"one digit", L"7", BRUSH_VALID, VVB_VALID},
    {"plus alone", L"+", BRUSH_WARNING, VVB_INCOMPLETE},
    {"minus alone", L"-", BRUSH_WARNING, VVB_INCOMPLETE},
    {"point alone", L".", BRUSH_WARNING, VVB_INCOMPLETE},
    {"exponent letter alone", L"E", BRUSH_WARNING, VVB_INCOMPLETE},
    {"exponent opens the text", L"E5", BRUSH_VALID, VVB_VALID},
    {"letter first", L"x", BRUSH_ERROR, VVB_INVALID},
    // Mantissa.
    {"signed digits", L"-42", BRUSH_VALID, VVB_VALID},
    {"two signs", L"+-", BRUSH_ERROR, VVB_INVALID},
    {"sign after a digit", L"4-", BRUSH_ERROR, VVB_INVALID},
    {"blank after a digit", L"5 ", BRUSH_ERROR, VVB_INVALID},
    {"blank after a sign", L"- 5", BRUSH_ERROR, VVB_INVALID},
    {"tab after a digit", L"5\t", BRUSH_ERROR, VVB_INVALID},
    {"point after digits", L"1.", BRUSH_VALID, VVB_VALID},
    {"point after a lone sign keeps the status", L"-.", BRUSH_VALID, VVB_INCOMPLETE},
    {"exponent letter after digits", L"1e", BRUSH_WARNING, VVB_INCOMPLETE},
    {"exponent letter after a sign", L"-e", BRUSH_WARNING, VVB_INCOMPLETE},
    {"letter after digits", L"1x", BRUSH_ERROR, VVB_INVALID},
    // Fraction.
    {"fraction", L"1.5", BRUSH_VALID, VVB_VALID},
    {"fraction without whole part", L".5", BRUSH_VALID, VVB_VALID},
    {"two points", L"1.2.3", BRUSH_ERROR, VVB_INVALID},
    {"sign in the fraction", L"1.+", BRUSH_ERROR, VVB_INVALID},
    {"blank in the fraction", L"1. 5", BRUSH_ERROR, VVB_INVALID},
    {"exponent letter after the fraction", L"1.5E", BRUSH_WARNING, VVB_INCOMPLETE},
    {"letter in the fraction", L"1.x", BRUSH_ERROR, VVB_INVALID},
    // After the exponent letter.
    {"exponent sign waits", L"1e-", BRUSH_WARNING, VVB_INCOMPLETE},
    {"exponent plus waits", L"1e+", BRUSH_WARNING, VVB_INCOMPLETE},
    {"exponent digits", L"1e5", BRUSH_VALID, VVB_VALID},
    {"point after the exponent letter", L"1e.", BRUSH_ERROR, VVB_INVALID},
    {"two exponent letters", L"1eE", BRUSH_ERROR, VVB_INVALID},
    {"blank after the exponent letter", L"1e 5", BRUSH_ERROR, VVB_INVALID},
    {"letter after the exponent letter", L"1ex", BRUSH_ERROR, VVB_INVALID},
    // In the exponent.
    {"signed exponent", L"1.5e-3", BRUSH_VALID, VVB_VALID},
    {"sign after exponent digits", L"1e5-", BRUSH_ERROR, VVB_INVALID},
    {"second exponent sign", L"1e--", BRUSH_ERROR, VVB_INVALID},
    {"point in the exponent", L"1e5.", BRUSH_ERROR, VVB_INVALID},
    {"exponent letter in the exponent", L"1e5e", BRUSH_ERROR, VVB_INVALID},
    {"blank in the exponent", L"1e5 ", BRUSH_ERROR, VVB_INVALID},
    {"letter in the exponent", L"1e5x", BRUSH_ERROR, VVB_INVALID},
    // What comes from elsewhere.
    {"wrong character ends the scan", L"x5", BRUSH_ERROR, VVB_INVALID},
    {"decimal comma", L"1,5", BRUSH_ERROR, VVB_INVALID},
    {"pasted line feed", L"1\n", BRUSH_ERROR, VVB_INVALID},
    {"line feed first", L"\r\n1", BRUSH_ERROR, VVB_INVALID},
    {"not a number", L"NaN", BRUSH_ERROR, VVB_INVALID},
    {"infinity", L"INF", BRUSH_ERROR, VVB_INVALID},
    {"full-width digit", L"\xFF11", BRUSH_ERROR, VVB_INVALID},
    {"character that only ends like a digit", L"\x4E31", BRUSH_ERROR, VVB_INVALID},
    {"half of a surrogate pair", L"\xD83D", BRUSH_ERROR, VVB_INVALID},
    {"null", NULL, BRUSH_EMPTY, kStatusBefore},
};

} // namespace

TEST(FloatScanner, JudgesEveryStateAndCharacter)
{
    for (const Row& row : kRows)
    {
        SCOPED_TRACE(row.name);
        const FloatSyntax syntax = ScanFloat(row.text, kStatusBefore);
        EXPECT_EQ(row.brush, syntax.brush);
        EXPECT_EQ(row.status, syntax.status);
    }
}

TEST(FloatScanner, ReadsTextsOfAnyLength)
{
    std::wstring digits(70000, L'1');
    EXPECT_EQ(BRUSH_VALID, ScanFloat(digits.c_str(), 0).brush);
    digits += L'x';
    EXPECT_EQ(BRUSH_ERROR, ScanFloat(digits.c_str(), 0).brush);
}
