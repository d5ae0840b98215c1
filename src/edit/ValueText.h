// The value of a text in the radix of its character set, and the text of a value.
#pragma once

#include <afxwin.h>

#include "edit/SuperEditTypes.h"

struct ValueRules
{
    VVEset set;
    bool checkRange; // a text outside its type's range has no value
    bool isAccepted; // the syntax is right, or nobody asks
};

// Each answers 1 on success and 0 on failure. The value is stored in both cases, but for sets above VVE_FLOAT, which
// have none. Null is the empty text.
// Negative texts of the sets up to VVE_SIGNED fail while the range is checked: integers are read unsigned and wrap.
int ReadValue(const ValueRules& rules, const wchar_t* text, double& value);
int ReadValue(const ValueRules& rules, const wchar_t* text, long& value);
int ReadValue(const ValueRules& rules, const wchar_t* text, unsigned long& value);

// The text of a number; fractions are cut off but for VVE_FLOAT, which shows eight significant digits.
CString TextOfValue(VVEset set, double value);

// The text of an integer. False for sets that cannot write it: VVE_FLOAT writes numbers only, those above nothing.
bool TextOfInteger(VVEset set, long value, CString& text);
bool TextOfInteger(VVEset set, unsigned long value, CString& text);

// -1 below, 0 inside, 2 above. `precision` is how far a value may lie outside.
int CompareWithLimits(double value, double least, double most, double precision);
