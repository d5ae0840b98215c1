#include "edit/CharTable.h"

namespace
{

const UINT kLowBits = 0xFF;
const UINT kFirstPrintable = 32;
const UINT kLastFiltered = 255;

UINT LowBitsOf(UINT character)
{
    return character & kLowBits;
}

} // namespace

void ClearChars(CharTable& table)
{
    for (int code = 0; code < CHAR_TABLE_SIZE; ++code)
        table[code] = 0;
}

void MarkChars(CharTable& table, const wchar_t* chars)
{
    if (chars == NULL)
        return;
    for (; *chars != 0; ++chars)
    {
        const UINT code = LowBitsOf(*chars);
        if (code < CHAR_TABLE_SIZE)
            table[code] = 1;
    }
}

CString MarkedChars(const CharTable& table)
{
    CString chars;
    for (int code = 0; code < CHAR_TABLE_SIZE; ++code)
    {
        if (table[code] != 0)
            chars.AppendChar(static_cast<wchar_t>(code));
    }
    return chars;
}

bool IsMarked(const CharTable& table, wchar_t character)
{
    const UINT code = LowBitsOf(character);
    return code < CHAR_TABLE_SIZE && table[code] != 0;
}

const wchar_t* CharsOfSet(VVEset set)
{
    switch (set)
    {
    case VVE_ALPHANUM:
        return L" abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    case VVE_ALPHA:
        return L" abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
    case VVE_DECIMAL:
        return L"0123456789";
    case VVE_SIGNED:
        return L"-+0123456789";
    case VVE_HEX:
        return L"abcdefABCDEF0123456789";
    case VVE_OCTAL:
        return L"01234567";
    case VVE_BINARY:
        return L"01";
    case VVE_FLOAT:
        return L"0123456789+-.Ee";
    default:
        return NULL;
    }
}

bool IsNumericSet(VVEset set)
{
    return set >= VVE_DECIMAL && set <= VVE_FLOAT;
}

bool IsKeyTaken(const CharTable& table, UINT character)
{
    if (character < kFirstPrintable || character > kLastFiltered)
        return true;
    return IsMarked(table, static_cast<wchar_t>(character));
}
