// Style bits of CXTButton, and what a theme needs to know to draw one.
#pragma once

#include "afx/core/Api.h"

// 0x1001 is the flat tool button, 0x1021 the same as a toggle.
#define BS_XT_FLAT 0x0001          // no frame until the mouse is over the button
#define BS_XT_SEMIFLAT 0x0002      // a thin frame, the full one while the mouse is over the button
#define BS_XT_TWOROWS 0x0004       // the icon above the caption instead of left of it
#define BS_XT_HILITEPRESSED 0x0008 // the hot look stays while pressed
#define BS_XT_SHOWFOCUS 0x0010     // a dotted rectangle while the button has the keyboard focus
#define BS_XT_TOGGLE 0x0020        // shown pressed in while checked
#define BS_XT_WINXP_COMPAT                                                                                             \
    0x1000 // without a theme of its own the button takes the default theme, else the classic look

struct XTButtonState
{
    bool enabled;
    bool hot; // the mouse is over it
    bool pressed;
    bool checked;   // checked, and the style shows it
    bool focused;   // has the focus, and the style or the keyboard cues show it
    bool isDefault; // Enter presses it
};

// Every colour that a theme uses; themes look none up themselves.
struct XTButtonColors
{
    COLORREF face;
    COLORREF light;
    COLORREF shadow;
    COLORREF darkShadow;
    COLORREF text;
    COLORREF disabledText;
    COLORREF highlight;
    COLORREF window;

    static XTButtonColors FromSystem();
};
