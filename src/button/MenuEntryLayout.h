// How an entry of an owner-drawn popup menu is measured and where its parts stand: an image column, a mark, the text.
// No window is needed.
#pragma once

#include <afxwin.h>

// The key that chooses an entry: the character after the first "&" without the bit that makes a letter small. 0 where
// there is none. MenuKeyOf gives the same form of a character that was typed.
UINT MnemonicOf(const wchar_t* text);
UINT MenuKeyOf(UINT character);

// What a menu makes of an image's size: 16 to 160 pixels each way.
CSize MenuImageSize(const CSize& image);

enum
{
    MENU_MARK_STROKES = 7
};

struct MenuEntryLayout
{
    CRect imageColumn;
    CRect textArea; // all that is right of the image column
    CPoint image;
    CPoint mark[MENU_MARK_STROKES]; // upper ends of the vertical strokes of the check mark
    CPoint text;
};

// Size of an entry with these sizes of image and text, and the places in an entry's rectangle.
CSize MeasureMenuEntry(const CSize& image, const CSize& text);
MenuEntryLayout LayOutMenuEntry(const CRect& entry, const CSize& image, const CSize& text);

// What is drawn anew when the system asks by `action` (ODA_ bits) for an entry in `state` (ODS_ bits).
struct MenuEntryLook
{
    bool fillsEntry;
    bool fillsTextArea; // takes a former highlight away
    bool highlighted;
    bool disabled;
};

MenuEntryLook LookOfMenuEntry(UINT action, UINT state);
