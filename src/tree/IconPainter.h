// Draws an icon in its own size on a white ground.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>

// Both answer the width in pixels that was drawn over; 0 where there is no such icon, and then nothing is drawn. The
// icon and the list stay the caller's.
int PaintIcon(CDC& dc, HICON icon, CPoint place);
int PaintImage(CDC& dc, const CImageList* images, int index, CPoint place);
