// Where the controls of the message viewer stand: arithmetic only, no window. Pixels, client coordinates.
#pragma once

#include <afxwin.h>

// The controls whose place follows the size of the viewer.
struct CMsgViewRects
{
    CRect list;
    CRect count;
    CRect tab;
    CRect tree;
};

// The places for a client area of cx by cy; what does not follow the size stays as it is.
CMsgViewRects LayOutMsgView(const CMsgViewRects& before, int cx, int cy);

// How far list, count and buttons move when the tree is hidden (to the left) or shown again (to the right).
int ShiftThatHidesTree(const CMsgViewRects& rects);
int ShiftThatShowsTree(const CMsgViewRects& rects);

// The width of the description column: what the other columns leave.
int DescriptionWidth(int listClientWidth, int scrollBarWidth);
