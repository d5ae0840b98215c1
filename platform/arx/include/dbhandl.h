// AcDbHandle: the number of an object that stays the same when its drawing is stored and opened again. 0 is null.
#pragma once

#include "adesk.h"
#include "arx/Api.h"
#include <stddef.h>

class ARX_API AcDbHandle
{
public:
    // Room for 16 hexadecimal digits and the end mark.
    enum
    {
        kStrSiz = 17
    };

    AcDbHandle() : m_value(0) {}
    AcDbHandle(Adesk::UInt64 value) : m_value(value) {}
    AcDbHandle(Adesk::UInt32 low, Adesk::UInt32 high) : m_value((static_cast<Adesk::UInt64>(high) << 32) | low) {}
    // Hexadecimal digits; anything else gives the null handle.
    explicit AcDbHandle(const ACHAR* text);

    bool isNull() const { return m_value == 0; }
    void setNull() { m_value = 0; }
    Adesk::UInt32 low() const { return static_cast<Adesk::UInt32>(m_value); }
    Adesk::UInt32 high() const { return static_cast<Adesk::UInt32>(m_value >> 32); }
    Adesk::UInt64 value() const { return m_value; }

    // Upper-case hexadecimal digits without leading zeros; false when `size` characters are too few.
    bool getIntoAsciiBuffer(ACHAR* buffer, size_t size) const;

    bool operator==(const AcDbHandle& other) const { return m_value == other.m_value; }
    bool operator!=(const AcDbHandle& other) const { return m_value != other.m_value; }
    bool operator<(const AcDbHandle& other) const { return m_value < other.m_value; }
    bool operator>(const AcDbHandle& other) const { return m_value > other.m_value; }

private:
    Adesk::UInt64 m_value;
};
