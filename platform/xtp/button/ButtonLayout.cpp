#include "xtp/button/ButtonLayout.h"

namespace
{
const int kGap = 4;

bool HasArea(SIZE size)
{
    return size.cx > 0 && size.cy > 0;
}

RECT CentredRect(int centreX, int centreY, SIZE size)
{
    const int left = centreX - size.cx / 2;
    const int top = centreY - size.cy / 2;
    return RECT{left, top, left + size.cx, top + size.cy};
}

LONG Limited(LONG value, LONG limit)
{
    return value < limit ? value : (limit > 0 ? limit : 0);
}

int BlendChannel(int from, int to, int percent)
{
    const int all = 100;
    return from + (to - from) * percent / all;
}
} // namespace

namespace xtp
{
ButtonLayout LayOutButton(const RECT& rect, SIZE icon, SIZE text, bool stacked)
{
    const int gap = HasArea(icon) && HasArea(text) ? kGap : 0;
    const int width = rect.right - rect.left;
    const int centreX = (rect.left + rect.right) / 2;
    const int centreY = (rect.top + rect.bottom) / 2;
    if (stacked)
    {
        text.cx = Limited(text.cx, width);
        const int top = centreY - (icon.cy + gap + text.cy) / 2;
        return ButtonLayout{CentredRect(centreX, top + icon.cy / 2, icon),
                            CentredRect(centreX, top + icon.cy + gap + text.cy / 2, text)};
    }
    text.cx = Limited(text.cx, width - icon.cx - gap);
    const int left = centreX - (icon.cx + gap + text.cx) / 2;
    return ButtonLayout{CentredRect(left + icon.cx / 2, centreY, icon),
                        CentredRect(left + icon.cx + gap + text.cx / 2, centreY, text)};
}

COLORREF BlendColors(COLORREF from, COLORREF to, int percent)
{
    return RGB(BlendChannel(GetRValue(from), GetRValue(to), percent),
               BlendChannel(GetGValue(from), GetGValue(to), percent),
               BlendChannel(GetBValue(from), GetBValue(to), percent));
}

int Luminance(COLORREF color)
{
    const int redWeight = 299;
    const int greenWeight = 587;
    const int blueWeight = 114;
    const int allWeights = 1000;
    return (GetRValue(color) * redWeight + GetGValue(color) * greenWeight + GetBValue(color) * blueWeight) / allWeights;
}
} // namespace xtp
