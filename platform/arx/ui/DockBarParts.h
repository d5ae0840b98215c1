// What a dock bar keeps behind its public interface.
#pragma once

#include "adui.h"

#include "arx/ui/BarDrag.h"
#include "arx/ui/CaptionStrip.h"
#include "arx/ui/FloatingFrame.h"
#include "arx/ui/PaletteLayout.h"
#include "arx/ui/RollUpState.h"

#include <memory>

namespace arxui
{

struct DockBarParts
{
    CString name;
    CLSID toolId{};
    bool hasToolId = false;
    DWORD allowedSides = 0; // CBRS_ALIGN_ bits
    CFrameWnd* frame = nullptr;
    std::unique_ptr<FloatingFrame> floating;

    PaletteLayout layout;
    DockSide lastDocked = DockSide::Left;
    RollUpState roll;

    CaptionStrip caption;
    CaptionPart hot = CaptionPart::None;
    CaptionPart pressed = CaptionPart::None;
    bool drawnActive = false;
    std::unique_ptr<BarDrag> drag;

    // True while the bar itself moves its window: such a move is no wish of its owner.
    bool layingOut = false;
    // True while the window changes its parent, which hides and shows it.
    bool reparenting = false;
    // True while DestroyWindow() runs, which has saved the layout already.
    bool ending = false;
};

// The layout of a tool in the application's profile.
void WriteLayout(const CLSID& toolId, const PaletteLayout& layout);
bool ReadLayout(const CLSID& toolId, PaletteLayout& layout);

} // namespace arxui
