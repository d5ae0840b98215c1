#include "xtp/button/ButtonDrawing.h"

#include "xtp/button/ButtonLayout.h"
#include "xtp/button/GdiGuards.h"

namespace
{
// How much of a disabled icon is left over its background.
const int kDisabledPercent = 45;

TRIVERTEX MakeVertex(LONG x, LONG y, COLORREF color)
{
    const int toSixteenBits = 8;
    TRIVERTEX vertex = {};
    vertex.x = x;
    vertex.y = y;
    vertex.Red = static_cast<COLOR16>(GetRValue(color) << toSixteenBits);
    vertex.Green = static_cast<COLOR16>(GetGValue(color) << toSixteenBits);
    vertex.Blue = static_cast<COLOR16>(GetBValue(color) << toSixteenBits);
    return vertex;
}

// Points of a memory image have red and blue the other way round than COLORREF.
COLORREF Swapped(uint32_t point)
{
    return RGB(GetBValue(point), GetGValue(point), GetRValue(point));
}

uint32_t FadedPoint(uint32_t background, uint32_t point)
{
    if (background == point)
        return background;
    const int grey = xtp::Luminance(Swapped(point));
    return xtp::BlendColors(background, RGB(grey, grey, grey), kDisabledPercent);
}
} // namespace

namespace xtp
{
void Fill(HDC dc, const RECT& rect, COLORREF color)
{
    const GdiOwner<HBRUSH> brush(::CreateSolidBrush(color));
    ::FillRect(dc, &rect, brush);
}

void Frame(HDC dc, const RECT& rect, COLORREF topLeft, COLORREF bottomRight)
{
    Fill(dc, RECT{rect.left, rect.top, rect.right - 1, rect.top + 1}, topLeft);
    Fill(dc, RECT{rect.left, rect.top, rect.left + 1, rect.bottom - 1}, topLeft);
    Fill(dc, RECT{rect.left, rect.bottom - 1, rect.right, rect.bottom}, bottomRight);
    Fill(dc, RECT{rect.right - 1, rect.top, rect.right, rect.bottom}, bottomRight);
}

void FillGradient(HDC dc, const RECT& rect, COLORREF top, COLORREF bottom)
{
    TRIVERTEX corners[] = {MakeVertex(rect.left, rect.top, top), MakeVertex(rect.right, rect.bottom, bottom)};
    GRADIENT_RECT mesh = {0, 1};
    ::GradientFill(dc, corners, 2, &mesh, 1, GRADIENT_FILL_RECT_V);
}

void DrawIcon(HDC dc, const RECT& rect, HICON icon)
{
    ::DrawIconEx(dc, rect.left, rect.top, icon, rect.right - rect.left, rect.bottom - rect.top, 0, nullptr, DI_NORMAL);
}

void DrawDisabledIcon(HDC dc, const RECT& rect, HICON icon)
{
    const int width = rect.right - rect.left;
    const int height = rect.bottom - rect.top;
    const MemoryImage background(width, height);
    const MemoryImage picture(width, height);
    if (!background.IsValid() || !picture.IsValid())
        return;
    ::BitBlt(background.dc(), 0, 0, width, height, dc, rect.left, rect.top, SRCCOPY);
    ::BitBlt(picture.dc(), 0, 0, width, height, dc, rect.left, rect.top, SRCCOPY);
    DrawIcon(picture.dc(), RECT{0, 0, width, height}, icon);
    ::GdiFlush();
    const uint32_t colorBits = 0x00FFFFFF; // GDI leaves the fourth byte undefined
    for (int i = 0; i < width * height; ++i)
        picture.pixels()[i] = FadedPoint(background.pixels()[i] & colorBits, picture.pixels()[i] & colorBits);
    ::BitBlt(dc, rect.left, rect.top, width, height, picture.dc(), 0, 0, SRCCOPY);
}
} // namespace xtp
