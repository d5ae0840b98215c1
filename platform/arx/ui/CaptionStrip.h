// The caption of a palette set: where its parts lie (window-free) and how it is drawn, both from one layout.
#pragma once

#include "arx/Api.h"

#include <windows.h>

#include <string>

namespace arxui
{

// Height of the strip (its width where it stands upright), pixels.
const int captionHeight = 22;

enum class CaptionPart
{
    None,
    Title,
    RollUp,
    Close
};

struct CaptionStrip
{
    RECT strip{};
    RECT title{};
    RECT rollUp{}; // empty when the set has no such button
    RECT close{};
    bool upright = false;
};

// Lays the strip out along the top of `area`, or, upright, along its left side (a set rolled up at the left or right
// edge).
ARX_API CaptionStrip LayOutCaption(const RECT& area, bool upright, bool hasRollUp, bool hasClose);

ARX_API CaptionPart CaptionPartAt(const CaptionStrip& caption, POINT point);

struct CaptionLook
{
    std::wstring title;
    bool active = false;
    bool rolledUp = false;  // the roll-up button shows "open"
    bool automatic = false; // the roll-up button shows its pushed-in state
    CaptionPart hot = CaptionPart::None;
    CaptionPart pressed = CaptionPart::None;
};

// Draws the whole strip. `font` is the font of the title; an upright strip draws it turned by a quarter.
ARX_API void DrawCaption(HDC dc, const CaptionStrip& caption, const CaptionLook& look, HFONT font);

} // namespace arxui
