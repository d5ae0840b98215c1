// The markup of a label: "{B" begins a lowered run and "{U" a raised one, "}" ends it. Both are smaller than the rest.
// No window is needed.
#pragma once

#include <vector>

enum LabelRunKind
{
    LABEL_NORMAL,
    LABEL_LOWERED,
    LABEL_RAISED,
    LABEL_GAP // an unknown letter behind the brace: as wide as its text, but not drawn
};

// A part of the text that was parsed.
struct LabelRun
{
    LabelRunKind kind;
    int begin;
    int length;
    bool smallFont; // what its width is measured in; a gap takes the font of the run before
};

// The runs from left to right, none of them empty. Any text is accepted: a run that is not ended reaches up to the end,
// a brace without letter and content at the end is left out.
std::vector<LabelRun> ParseLabel(const wchar_t* text);

// How far below the upper edge lowered runs stand, from the height of the normal font. Odd heights round differently
// than even ones, deliberately.
int LabelLowering(int height);
