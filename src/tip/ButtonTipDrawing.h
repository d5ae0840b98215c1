// Draws the tip of a button: a framed area with a text in its middle, broken into lines. No window is needed; what is
// selected into the device context stays as it was.
#pragma once

#include <afxwin.h>

struct ButtonTipLook
{
    CString text;
    CFont* font;
    COLORREF background;
    COLORREF textColor;
};

// The place of a text of that size in the middle of the tip; it may be larger than the tip.
CRect ButtonTipTextRect(const CRect& client, CSize text);

void DrawButtonTip(CDC& dc, const CRect& client, const ButtonTipLook& look);
