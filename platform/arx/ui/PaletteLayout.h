// The place of a palette set as it is kept from one run to the next, and its text form in the application's profile.
#pragma once

#include "arx/Api.h"
#include "arx/ui/DockMath.h"

#include <string>

namespace arxui
{

struct ARX_API PaletteLayout
{
    DockSide side = DockSide::Floating;
    int width = 0;   // thickness at the left or right edge, pixels; 0 when it never docked there
    int height = 0;  // thickness at the top or bottom edge, pixels
    RECT floating{}; // screen coordinates
    bool visible = false;
    bool rolledUp = false;
    bool autoRollUp = false;
    int activeTab = 0;

    // The thickness for `side`.
    int ThicknessAt(DockSide at) const;
    void SetThickness(DockSide at, int thickness);
};

// "side=left;width=300;height=0;float=200,200,840,390;visible=1;rolled=0;auto=0;tab=0"
ARX_API std::wstring LayoutToText(const PaletteLayout& layout);

// Reads the text form. False, and `layout` untouched, when the text is not one: an unknown side, a missing field, a
// rectangle without area, a negative thickness. Unknown fields are skipped, so that a later version's text still works.
ARX_API bool LayoutFromText(const std::wstring& text, PaletteLayout& layout);

} // namespace arxui
