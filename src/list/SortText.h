// How the texts of a column compare. No window is needed.
#pragma once

#include <afxwin.h>

// Direction, plus 2 for numbers.
enum ESortMode
{
    SORT_TEXT_DESCENDING = 0,
    SORT_TEXT_ASCENDING = 1,
    SORT_NUMBER_DESCENDING = 2,
    SORT_NUMBER_ASCENDING = 3
};

// Whether a text is a plain number: a sign, digits, one decimal point; blanks may follow. A sign alone passes, so that
// a column that marks missing values by "-" sorts as numbers. Exponents and separators of thousands do not pass, nor
// do leading blanks, an empty text and null.
bool IsNumericText(const wchar_t* text);

// The value at the beginning of a text, 0 when there is none.
double NumberOfText(const wchar_t* text);

// Texts: below 0, 0, above 0 without regard to letter case. Numbers: 1 when they stand in the wrong order, else 0,
// never below 0. Unknown modes find everything equal.
int CompareSortTexts(int mode, const wchar_t* first, const wchar_t* second);
