// The characters that a validating edit takes: a table of flags, one for each code from 0 to 254.
//
// Characters are looked up by the low 8 bits of their code, so that characters above 255 share the flags of those
// below. Code 255 has no flag and is never taken.
#pragma once

#include <afxwin.h>

#include "edit/SuperEditTypes.h"

enum
{
    CHAR_TABLE_SIZE = 255
};

typedef int CharTable[CHAR_TABLE_SIZE];

void ClearChars(CharTable& table);

// Marks further characters; null marks none.
void MarkChars(CharTable& table, const wchar_t* chars);

// The marked codes in rising order.
CString MarkedChars(const CharTable& table);

bool IsMarked(const CharTable& table, wchar_t character);

// The characters of a set; null for those that take any character or bring their own.
const wchar_t* CharsOfSet(VVEset set);

// Whether a text of the set is a number with a range.
bool IsNumericSet(VVEset set);

// Whether a key that is typed goes into the text. Control characters and those above 255 always do: they are editing
// keys and Chinese text, which the validation of the whole text judges.
bool IsKeyTaken(const CharTable& table, UINT character);
