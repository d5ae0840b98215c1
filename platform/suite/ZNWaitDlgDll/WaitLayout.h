// Sizes and places of the wait dialog. No window; pixels throughout.
#pragma once

#include <windows.h>

namespace wait
{
struct Metrics
{
    int dpi = 96;
    int headingHeight = 0; // of the heading's font
    int lineHeight = 0;    // of one line of text
};

struct Layout
{
    SIZE size = {};
    RECT heading = {};
    RECT lines = {};
    RECT bar = {};
    RECT footer = {};
    RECT elapsed = {};
    RECT cancel = {};
};

// A pixel count of a 96-DPI screen on a screen of `dpi`.
int Scaled(int pixels, int dpi);

// The client area for that many lines of text.
Layout LayOut(const Metrics& metrics, int lineCount);

// The upper left corner of a window of `size` centred over `over`, kept inside `screen` where it fits.
POINT CentredOver(const RECT& over, SIZE size, const RECT& screen);

// The moving part of the bar after that time, within a track from 0 to `width`: it enters at the left, leaves at the
// right and comes again.
struct Span
{
    int left;
    int right;
};
Span MovingPart(int width, unsigned long long milliseconds);
} // namespace wait
