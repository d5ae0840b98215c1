// Which parts a combo button shows, and where they stand. No window is needed.
#pragma once

#include <afxwin.h>

// What a button looks like depends on.
struct ComboButtonState
{
    UINT style; // CBTS_ flags
    INT_PTR itemCount;
    bool pressed;
    bool focused;
    bool disabled; // the window, whatever the default item says
    bool hot;
    bool menuShown;
    bool pushDefault; // the window has the bit BS_DEFPUSHBUTTON
};

enum ComboButtonBorder
{
    BORDER_NONE,
    BORDER_ROUND,
    BORDER_RAISED,
    BORDER_SUNKEN
};

// The place of image and caption; what is not shown has no place.
struct ComboButtonContent
{
    bool showsImage;
    bool showsCaption;
    CPoint image;
    CPoint caption;
};

struct ComboButtonArrow
{
    POINT corners[3];
};

bool HasDropZone(INT_PTR itemCount);

// The part of a button's rectangle that opens the menu, and the part that its drop zone, if there is one, leaves.
CRect DropZone(const CRect& button);
CRect ContentArea(const CRect& button, INT_PTR itemCount);

bool ShowsHotFrame(const ComboButtonState& state);
ComboButtonBorder BorderOf(const ComboButtonState& state);

// The raised or sunken border of a button with the focus stands within a black frame.
bool ShowsBlackFrame(const ComboButtonState& state);

bool ShowsSeparator(const ComboButtonState& state);
bool IsDropZonePressed(const ComboButtonState& state);

// `image` is null where the default item has none.
ComboButtonContent LayOutContent(const CRect& area, UINT style, const CSize* image, CSize caption, bool pressed);

ComboButtonArrow ArrowOf(const CRect& button);
