// The arrow in the heading of a sorted column: how it looks, and what a heading remembers. No window is needed.
#pragma once

#include <afxwin.h>

// What the lParam of a header item holds: the index of its arrow in the header's image list.
enum ESortState
{
    SORT_STATE_NONE = -1,
    SORT_STATE_ASCENDING = 0, // the arrow up
    SORT_STATE_DESCENDING = 1,
    SORT_STATE_REVERSE = -2 // asks for the opposite of the state that is stored
};

const int kSortArrowPixels = 16;
const COLORREF kSortArrowMask = 0xFF0000;

// Draws the arrow on the mask colour, in the square of kSortArrowPixels at (0, 0).
void DrawSortArrow(CDC& dc, bool up);

// The state that a heading gets: what is asked for, or for anything but the three states the reverse of the stored one,
// where none and descending become ascending.
int NextSortState(LPARAM stored, int asked);
