// Basic types of the host interface.
#pragma once

#include "AdAChar.h"

#include <stdint.h>

struct Adesk
{
    typedef int8_t Int8;
    typedef int16_t Int16;
    typedef int32_t Int32;
    typedef int64_t Int64;
    typedef uint8_t UInt8;
    typedef uint16_t UInt16;
    typedef uint32_t UInt32;
    typedef uint64_t UInt64;
    typedef intptr_t IntPtr;
    typedef uintptr_t UIntPtr;

    // Large enough for the value behind an AcDbObjectId.
    typedef intptr_t IntDbId;

    // Selects a part of an entity; 0 is the whole.
    typedef intptr_t GsMarker;

    typedef bool Boolean;
    static const bool kTrue = true;
    static const bool kFalse = false;
};
