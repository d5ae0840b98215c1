// A rectangle that goes over from one colour to another.
#pragma once

#include <afxwin.h>

enum GradientDirection
{
    GRADIENT_RIGHT, // `from` at the left edge
    GRADIENT_DOWN   // `from` at the top edge
};

// Fills the rectangle; an empty one is left alone.
void FillGradient(CDC& dc, const CRect& rect, COLORREF from, COLORREF to, GradientDirection direction);
