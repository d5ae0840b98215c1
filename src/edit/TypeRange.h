// The range of the types behind the character sets: what fits into an unsigned or a signed 32-bit number.
//
// Results: -1 below the range, 0 inside, 1 above.
#pragma once

#include "edit/SuperEditTypes.h"

// The range of a text. Null is the empty text, which is inside.
// Octal numbers of more than ten digits are compared as texts, so that twelve digits that begin with 1, 2 or 3 count as
// inside. Sets without a type of their own are held against the signed range.
int CheckTypeRange(VVEset set, const wchar_t* text);

// The range of a number. No number at all counts as above.
int CheckTypeRange(VVEset set, double value);
