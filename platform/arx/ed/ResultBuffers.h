// How the values of the C interface are laid out.
#pragma once

#include "acutads.h"

#include <cstdarg>

namespace arxed
{

enum class ValueKind
{
    Unknown,
    Mark,
    Real,
    Point,
    Short,
    Long,
    Long64,
    Text,
    Name
};

// Of an RT... type or of a DXF group code.
ValueKind KindOf(int type);

// The variable arguments of a call; a struct, because a bare va_list can't be handed on by reference everywhere.
struct ValueSource
{
    va_list arguments;
};

// One value taken from the arguments; null for an unknown type.
resbuf* NewItem(int type, ValueSource& values);
// Values in pairs until RTNONE or 0; null for an empty list and for unknown types.
resbuf* BuildList(int type, ValueSource& values);

} // namespace arxed
