#include "dbcolor.h"

#include <cmath>

namespace
{

const int kMethodShift = 24;
const Adesk::UInt32 kValueMask = 0x00FFFFFF;
const Adesk::UInt32 kIndexMask = 0xFFFF;
const int kRedShift = 16;
const int kGreenShift = 8;
const Adesk::UInt32 kByteMask = 0xFF;

Adesk::UInt32 Rgb(int red, int green, int blue)
{
    return static_cast<Adesk::UInt32>((red << kRedShift) | (green << kGreenShift) | blue);
}

Adesk::UInt32 Packed(AcCmEntityColor::ColorMethod method, Adesk::UInt32 value)
{
    return (static_cast<Adesk::UInt32>(method) << kMethodShift) | value;
}

bool IsMethod(Adesk::UInt32 method)
{
    return method >= AcCmEntityColor::kByLayer && method <= AcCmEntityColor::kNone;
}

const int kFirstHue = 10;
const int kFirstGrey = 250;
const int kShadesOfHue = 10;

// Indices 10 to 249: 24 hues in steps of 15 degrees, five brightnesses each, full and half saturated by turns.
Adesk::UInt32 HueColor(int index)
{
    const int brightness[] = {255, 204, 153, 127, 76};
    const double degreesOfHue = 15;
    const double degreesOfSector = 60;
    const double hue = (index / kShadesOfHue - 1) * degreesOfHue / degreesOfSector;
    const double top = brightness[index % kShadesOfHue / 2];
    const double bottom = index % 2 == 0 ? 0 : top / 2;
    const int sector = static_cast<int>(hue);
    const double part = hue - sector;
    const int high = static_cast<int>(top);
    const int low = static_cast<int>(bottom);
    const int rising = static_cast<int>(bottom + (top - bottom) * part);
    const int falling = static_cast<int>(bottom + (top - bottom) * (1 - part));
    switch (sector)
    {
    case 0:
        return Rgb(high, rising, low);
    case 1:
        return Rgb(falling, high, low);
    case 2:
        return Rgb(low, high, rising);
    case 3:
        return Rgb(low, falling, high);
    case 4:
        return Rgb(rising, low, high);
    default:
        return Rgb(high, low, falling);
    }
}

} // namespace

AcCmEntityColor::AcCmEntityColor() : m_packed(Packed(kByLayer, 0)) {}

AcCmEntityColor::AcCmEntityColor(ColorMethod method) : m_packed(Packed(method, 0)) {}

AcCmEntityColor::AcCmEntityColor(Adesk::UInt8 red, Adesk::UInt8 green, Adesk::UInt8 blue)
    : m_packed(Packed(kByColor, Rgb(red, green, blue)))
{
}

Acad::ErrorStatus AcCmEntityColor::setColor(Adesk::UInt32 packed)
{
    if (!IsMethod(packed >> kMethodShift))
    {
        return Acad::eInvalidInput;
    }
    m_packed = packed;
    return Acad::eOk;
}

Acad::ErrorStatus AcCmEntityColor::setColorMethod(ColorMethod method)
{
    if (!IsMethod(static_cast<Adesk::UInt32>(method)))
    {
        return Acad::eInvalidInput;
    }
    m_packed = Packed(method, m_packed & kValueMask);
    return Acad::eOk;
}

Adesk::Int16 AcCmEntityColor::colorIndex() const
{
    switch (colorMethod())
    {
    case kByBlock:
        return kACIbyBlock;
    case kByLayer:
        return kACIbyLayer;
    case kNone:
        return kACInone;
    case kByACI:
    case kLayerOff:
    case kLayerFrozen:
        return static_cast<Adesk::Int16>(m_packed & kIndexMask);
    default:
        return kACIforeground;
    }
}

Acad::ErrorStatus AcCmEntityColor::setColorIndex(Adesk::Int16 index)
{
    if (index < 0 || index > kACInone)
    {
        return Acad::eInvalidInput;
    }
    switch (index)
    {
    case kACIbyBlock:
        m_packed = Packed(kByBlock, 0);
        break;
    case kACIbyLayer:
        m_packed = Packed(kByLayer, 0);
        break;
    case kACInone:
        m_packed = Packed(kNone, 0);
        break;
    default:
        m_packed = Packed(kByACI, static_cast<Adesk::UInt32>(index));
        break;
    }
    return Acad::eOk;
}

Adesk::UInt32 AcCmEntityColor::Rgb24() const
{
    if (isByColor())
    {
        return m_packed & kValueMask;
    }
    return isByACI() ? lookUpRGB(static_cast<Adesk::UInt8>(m_packed)) : 0;
}

Adesk::UInt8 AcCmEntityColor::red() const
{
    return static_cast<Adesk::UInt8>((Rgb24() >> kRedShift) & kByteMask);
}

Adesk::UInt8 AcCmEntityColor::green() const
{
    return static_cast<Adesk::UInt8>((Rgb24() >> kGreenShift) & kByteMask);
}

Adesk::UInt8 AcCmEntityColor::blue() const
{
    return static_cast<Adesk::UInt8>(Rgb24() & kByteMask);
}

Acad::ErrorStatus AcCmEntityColor::setRGB(Adesk::UInt8 red, Adesk::UInt8 green, Adesk::UInt8 blue)
{
    m_packed = Packed(kByColor, Rgb(red, green, blue));
    return Acad::eOk;
}

Adesk::UInt32 AcCmEntityColor::lookUpRGB(Adesk::UInt8 index)
{
    static const Adesk::UInt32 basic[kFirstHue] = {0,        0xFF0000, 0xFFFF00, 0x00FF00, 0x00FFFF,
                                                   0x0000FF, 0xFF00FF, 0xFFFFFF, 0x808080, 0xC0C0C0};
    static const int greys[] = {51, 91, 132, 173, 214, 255};
    if (index < kFirstHue)
    {
        return basic[index];
    }
    if (index < kFirstGrey)
    {
        return HueColor(index);
    }
    const int grey = greys[index - kFirstGrey];
    return Rgb(grey, grey, grey);
}

Acad::ErrorStatus AcCmColor::setColorIndex(Adesk::UInt16 index)
{
    return index > AcCmEntityColor::kACInone ? Acad::eInvalidInput
                                             : m_color.setColorIndex(static_cast<Adesk::Int16>(index));
}

Acad::ErrorStatus AcCmColor::setRGB(Adesk::UInt8 red, Adesk::UInt8 green, Adesk::UInt8 blue)
{
    return m_color.setRGB(red, green, blue);
}
