#include "arx/ui/CaptionStrip.h"

#include "arx/ui/Colours.h"
#include "arx/ui/GdiGuards.h"

namespace arxui
{
namespace
{

const int buttonSize = 16;
const int buttonGap = 2;
const int titleMargin = 6;
const int glyphMargin = 4;

// A turned font measures its escapement in tenths of a degree; text of an upright strip reads downwards.
const LONG quarterTurn = 2700;

// Takes one button off the end of the free part of the strip.
RECT TakeButton(RECT& free, bool upright)
{
    RECT button = free;
    if (upright)
    {
        button.left += (free.right - free.left - buttonSize) / 2;
        button.right = button.left + buttonSize;
        button.top = free.top + buttonGap;
        button.bottom = button.top + buttonSize;
        free.top = button.bottom;
    }
    else
    {
        button.top += (free.bottom - free.top - buttonSize) / 2;
        button.bottom = button.top + buttonSize;
        button.right = free.right - buttonGap;
        button.left = button.right - buttonSize;
        free.right = button.left;
    }
    return button;
}

void DrawGlyphLine(HDC dc, int fromX, int fromY, int toX, int toY)
{
    MoveToEx(dc, fromX, fromY, nullptr);
    LineTo(dc, toX, toY);
}

void DrawCross(HDC dc, const RECT& box)
{
    for (int thick = 0; thick < 2; ++thick)
    {
        DrawGlyphLine(dc, box.left + thick, box.top, box.right - 1 + thick, box.bottom - 1);
        DrawGlyphLine(dc, box.right - 2 + thick, box.top, box.left - 1 + thick, box.bottom - 1);
    }
}

// Two bars with an arrow head between them: down to open, up to roll up.
void DrawRoll(HDC dc, const RECT& box, bool pointsDown)
{
    const int middle = (box.left + box.right) / 2;
    DrawGlyphLine(dc, box.left, pointsDown ? box.top : box.bottom - 1, box.right,
                  pointsDown ? box.top : box.bottom - 1);
    for (int row = 0; row < 4; ++row)
    {
        const int y = pointsDown ? box.bottom - 1 - row : box.top + row;
        DrawGlyphLine(dc, middle - row, y, middle + row + 1, y);
    }
}

COLORREF ButtonColour(const CaptionLook& look, CaptionPart part)
{
    return look.pressed == part ? colours::buttonPressed : colours::buttonHot;
}

void DrawButton(HDC dc, const RECT& button, const CaptionLook& look, CaptionPart part)
{
    if (IsRectEmpty(&button))
        return;
    const bool pushedIn = part == CaptionPart::RollUp && look.automatic;
    if (look.hot == part || look.pressed == part || pushedIn)
        FillColour(dc, button, ButtonColour(look, part));
    RECT box = button;
    InflateRect(&box, -glyphMargin, -glyphMargin);
    if (part == CaptionPart::Close)
        DrawCross(dc, box);
    else
        DrawRoll(dc, box, look.rolledUp);
}

void DrawTitle(HDC dc, const CaptionStrip& caption, const CaptionLook& look, HFONT font)
{
    RECT rect = caption.title;
    if (!caption.upright)
    {
        const SelectGuard selectFont(dc, font);
        rect.left += titleMargin;
        DrawTextW(dc, look.title.c_str(), -1, &rect, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
        return;
    }
    LOGFONTW turned{};
    GetObjectW(font, sizeof(turned), &turned);
    turned.lfEscapement = turned.lfOrientation = quarterTurn;
    const GdiObject<HFONT> turnedFont(CreateFontIndirectW(&turned));
    const SelectGuard selectFont(dc, turnedFont.Get());
    TEXTMETRICW metric{};
    GetTextMetricsW(dc, &metric);
    const int x = (rect.left + rect.right + metric.tmHeight) / 2;
    ExtTextOutW(dc, x, rect.top + titleMargin, ETO_CLIPPED, &rect, look.title.c_str(),
                static_cast<UINT>(look.title.size()), nullptr);
}

} // namespace

CaptionStrip LayOutCaption(const RECT& area, bool upright, bool hasRollUp, bool hasClose)
{
    CaptionStrip caption;
    caption.upright = upright;
    caption.strip = area;
    if (upright)
        caption.strip.right = area.left + captionHeight;
    else
        caption.strip.bottom = area.top + captionHeight;
    caption.title = caption.strip;
    if (hasClose)
        caption.close = TakeButton(caption.title, upright);
    if (hasRollUp)
        caption.rollUp = TakeButton(caption.title, upright);
    return caption;
}

CaptionPart CaptionPartAt(const CaptionStrip& caption, POINT point)
{
    if (PtInRect(&caption.close, point))
        return CaptionPart::Close;
    if (PtInRect(&caption.rollUp, point))
        return CaptionPart::RollUp;
    return PtInRect(&caption.strip, point) ? CaptionPart::Title : CaptionPart::None;
}

void DrawCaption(HDC dc, const CaptionStrip& caption, const CaptionLook& look, HFONT font)
{
    const SaveDcGuard saved(dc);
    const COLORREF ink = look.active ? colours::captionActiveText : colours::captionInactiveText;
    FillColour(dc, caption.strip, look.active ? colours::captionActive : colours::captionInactive);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, ink);
    DrawTitle(dc, caption, look, font);
    const GdiObject<HPEN> pen(CreatePen(PS_SOLID, 1, ink));
    const SelectGuard selectPen(dc, pen.Get());
    DrawButton(dc, caption.rollUp, look, CaptionPart::RollUp);
    DrawButton(dc, caption.close, look, CaptionPart::Close);
}

} // namespace arxui
