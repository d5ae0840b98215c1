// What a flat button shows: frame and content, drawn without any state of a window.
#pragma once

#include <afxwin.h>

enum FlatButtonFrame
{
    FLAT_BUTTON_FLAT,   // no frame, the background filled
    FLAT_BUTTON_RAISED, // an edge over whatever face is there
    FLAT_BUTTON_SUNKEN  // the background filled, a sunken edge
};

// `client`: the button's client rectangle.
void DrawFlatButtonFrame(CDC& dc, const CRect& client, FlatButtonFrame frame, COLORREF background);

// Where the content lies: moved by a pixel to the right and down, clear of the frame.
CRect FlatButtonContentRect(const CRect& client);

// All of them draw on a transparent background, greyed when disabled. A handle that is no bitmap or icon draws nothing.
// The icon lies in the middle of the area inside the frame, in its upper left corner where it is larger.
void DrawFlatButtonBitmap(CDC& dc, const CRect& client, HBITMAP bitmap, bool disabled);
void DrawFlatButtonIcon(CDC& dc, const CRect& client, HICON icon, bool disabled);

// The caption, broken into lines at words, in the middle of the content. A null font draws in that of the device
// context.
void DrawFlatButtonCaption(CDC& dc, const CRect& client, const CString& caption, HFONT font, bool disabled);
