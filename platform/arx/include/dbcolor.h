// Colours of entities: a method (by layer, by block, by index, by red/green/blue ...) with its value.
//
// Packed into 32 bits the highest byte is the method; by-colour uses the bytes red, green, blue below it, by-index the
// low 16 bits. Index 0 is "by block", 256 "by layer", 1 to 255 are colours of the index palette, 257 is "none".
#pragma once

#include "adesk.h"
#include "acadstrc.h"

#include <stddef.h>

class ARX_API AcCmEntityColor
{
public:
    enum ColorMethod
    {
        kByLayer = 0xC0,
        kByBlock = 0xC1,
        kByColor = 0xC2,
        kByACI = 0xC3,
        kByPen = 0xC4,
        kForeground = 0xC5,
        kLayerOff = 0xC6,
        kLayerFrozen = 0xC7,
        kNone = 0xC8
    };

    enum ACIcolorMethod
    {
        kACIbyBlock = 0,
        kACIforeground = 7,
        kACIbyLayer = 256,
        kACIclear = 0,
        kACIRed = 1,
        kACIYellow = 2,
        kACIGreen = 3,
        kACICyan = 4,
        kACIBlue = 5,
        kACIMagenta = 6,
        kACIWhite = 7,
        kACIstandard = 7,
        kACImaximum = 255,
        kACInone = 257,
        kACIminimum = -255
    };

    // By layer.
    AcCmEntityColor();
    explicit AcCmEntityColor(ColorMethod method);
    AcCmEntityColor(Adesk::UInt8 red, Adesk::UInt8 green, Adesk::UInt8 blue);

    Adesk::UInt32 color() const { return m_packed; }
    Acad::ErrorStatus setColor(Adesk::UInt32 packed);
    ColorMethod colorMethod() const { return static_cast<ColorMethod>(m_packed >> 24); }
    Acad::ErrorStatus setColorMethod(ColorMethod method);

    // The low 16 bits for an index, the documented index of the other methods (0, 256, 7 for foreground, 257), and the
    // foreground index for true colours, whose nearest index nobody needs here.
    Adesk::Int16 colorIndex() const;
    // 0 to 257; eInvalidInput otherwise, and nothing changes.
    Acad::ErrorStatus setColorIndex(Adesk::Int16 index);

    // The bytes of a true colour or of an index colour's palette entry; 0 for the other methods.
    Adesk::UInt8 red() const;
    Adesk::UInt8 green() const;
    Adesk::UInt8 blue() const;
    Acad::ErrorStatus setRGB(Adesk::UInt8 red, Adesk::UInt8 green, Adesk::UInt8 blue);

    bool isByLayer() const { return colorMethod() == kByLayer; }
    bool isByBlock() const { return colorMethod() == kByBlock; }
    bool isByColor() const { return colorMethod() == kByColor; }
    bool isByACI() const { return colorMethod() == kByACI; }
    bool isByPen() const { return colorMethod() == kByPen; }
    bool isForeground() const { return colorMethod() == kForeground; }
    bool isLayerOff() const { return colorMethod() == kLayerOff; }
    bool isLayerFrozen() const { return colorMethod() == kLayerFrozen; }
    bool isNone() const { return colorMethod() == kNone; }

    // 0x00RRGGBB of a palette index; 0 for indices that are no colours.
    static Adesk::UInt32 lookUpRGB(Adesk::UInt8 index);

    bool operator==(const AcCmEntityColor& other) const { return m_packed == other.m_packed; }
    bool operator!=(const AcCmEntityColor& other) const { return m_packed != other.m_packed; }

private:
    // 0x00RRGGBB, 0 for methods without a colour of their own.
    Adesk::UInt32 Rgb24() const;

    Adesk::UInt32 m_packed;
};

// A colour with room for a name: what dialogs and entities pass around.
class ARX_API AcCmColor
{
public:
    AcCmColor() {}

    Adesk::UInt32 color() const { return m_color.color(); }
    Acad::ErrorStatus setColor(Adesk::UInt32 packed) { return m_color.setColor(packed); }
    AcCmEntityColor::ColorMethod colorMethod() const { return m_color.colorMethod(); }
    Acad::ErrorStatus setColorMethod(AcCmEntityColor::ColorMethod method) { return m_color.setColorMethod(method); }
    Adesk::UInt16 colorIndex() const { return static_cast<Adesk::UInt16>(m_color.colorIndex()); }
    Acad::ErrorStatus setColorIndex(Adesk::UInt16 index);
    Adesk::UInt8 red() const { return m_color.red(); }
    Adesk::UInt8 green() const { return m_color.green(); }
    Adesk::UInt8 blue() const { return m_color.blue(); }
    Acad::ErrorStatus setRGB(Adesk::UInt8 red, Adesk::UInt8 green, Adesk::UInt8 blue);

    bool isByLayer() const { return m_color.isByLayer(); }
    bool isByBlock() const { return m_color.isByBlock(); }
    bool isByColor() const { return m_color.isByColor(); }
    bool isByACI() const { return m_color.isByACI(); }
    bool isByPen() const { return m_color.isByPen(); }
    bool isForeground() const { return m_color.isForeground(); }
    bool isLayerOff() const { return m_color.isLayerOff(); }
    bool isLayerFrozen() const { return m_color.isLayerFrozen(); }
    bool isNone() const { return m_color.isNone(); }

    const AcCmEntityColor& entityColor() const { return m_color; }

    bool operator==(const AcCmColor& other) const { return m_color == other.m_color; }
    bool operator!=(const AcCmColor& other) const { return m_color != other.m_color; }

private:
    AcCmEntityColor m_color;
};
