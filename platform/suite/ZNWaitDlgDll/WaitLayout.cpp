#include "suite/ZNWaitDlgDll/WaitLayout.h"

#include <algorithm>

namespace wait
{
namespace
{
// Pixels at 96 DPI.
const int kWidth = 420;
const int kMargin = 18;
const int kStrip = 4; // of the accent colour along the upper edge
const int kGap = 10;
const int kBarHeight = 6;
const int kFooterHeight = 46;
const int kButtonWidth = 88;
const int kButtonHeight = 28;

const int kMoveMilliseconds = 1800;
const int kPartOfTrack = 3; // the moving part is a third

const int kUsualDpi = 96;
} // namespace

int Scaled(int pixels, int dpi)
{
    return MulDiv(pixels, dpi, kUsualDpi);
}

Layout LayOut(const Metrics& metrics, int lineCount)
{
    const auto scaled = [&metrics](int pixels) { return Scaled(pixels, metrics.dpi); };
    const int width = scaled(kWidth);
    const int left = scaled(kMargin);
    const int right = width - left;
    Layout layout;
    int y = scaled(kStrip + kMargin - kGap / 2);
    layout.heading = {left, y, right, y + metrics.headingHeight};
    y = layout.heading.bottom + scaled(kGap);
    // Room for one line from the start, so that the first text does not make the window jump.
    layout.lines = {left, y, right, y + std::max(lineCount, 1) * metrics.lineHeight};
    y = layout.lines.bottom + scaled(kGap);
    layout.bar = {left, y, right, y + scaled(kBarHeight)};
    y = layout.bar.bottom + scaled(kMargin);
    layout.footer = {0, y, width, y + scaled(kFooterHeight)};
    const int buttonTop = y + (scaled(kFooterHeight) - scaled(kButtonHeight)) / 2;
    layout.cancel = {right - scaled(kButtonWidth), buttonTop, right, buttonTop + scaled(kButtonHeight)};
    const int timeTop = y + (scaled(kFooterHeight) - metrics.lineHeight) / 2;
    layout.elapsed = {left, timeTop, layout.cancel.left - scaled(kGap), timeTop + metrics.lineHeight};
    layout.size = {width, static_cast<LONG>(layout.footer.bottom)};
    return layout;
}

POINT CentredOver(const RECT& over, SIZE size, const RECT& screen)
{
    const LONG x = (over.left + over.right - size.cx) / 2;
    const LONG y = (over.top + over.bottom - size.cy) / 2;
    return {std::max(std::min(x, screen.right - size.cx), screen.left),
            std::max(std::min(y, screen.bottom - size.cy), screen.top)};
}

Span MovingPart(int width, unsigned long long milliseconds)
{
    const int part = width / kPartOfTrack;
    const int phase = static_cast<int>(milliseconds % kMoveMilliseconds);
    const int front = MulDiv(width + part, phase, kMoveMilliseconds);
    return {std::max(front - part, 0), std::min(front, width)};
}
} // namespace wait
