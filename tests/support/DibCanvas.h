// A 32-bit picture in memory to draw into and to read pixels from, independent of the screen.
//
//   DibCanvas canvas(32, 16, RGB(255, 255, 255));
//   button.DrawItem(canvas.Dc(), ...);
//   EXPECT_TRUE(canvas.Near(3, 4, RGB(0, 0, 128)));
#pragma once

#include <windows.h>

#include <cstdlib>

class DibCanvas
{
public:
    DibCanvas(int width, int height, COLORREF background) : m_width(width), m_height(height)
    {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof(info.bmiHeader);
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        m_dc = ::CreateCompatibleDC(NULL);
        m_bitmap = ::CreateDIBSection(m_dc, &info, DIB_RGB_COLORS, reinterpret_cast<void**>(&m_bits), NULL, 0);
        m_previous = ::SelectObject(m_dc, m_bitmap);
        Clear(background);
    }

    ~DibCanvas()
    {
        ::SelectObject(m_dc, m_previous);
        ::DeleteObject(m_bitmap);
        ::DeleteDC(m_dc);
    }

    DibCanvas(const DibCanvas&) = delete;
    DibCanvas& operator=(const DibCanvas&) = delete;

    HDC Dc() const { return m_dc; }
    int Width() const { return m_width; }
    int Height() const { return m_height; }

    void Clear(COLORREF color)
    {
        const RECT all = {0, 0, m_width, m_height};
        const HBRUSH brush = ::CreateSolidBrush(color);
        ::FillRect(m_dc, &all, brush);
        ::DeleteObject(brush);
    }

    COLORREF Pixel(int x, int y) const
    {
        ::GdiFlush();
        const DWORD value = m_bits[y * m_width + x];
        return RGB(GetBValue(value), GetGValue(value), GetRValue(value));
    }

    // Whether each channel differs by no more than the tolerance.
    bool Near(int x, int y, COLORREF color, int tolerance = 8) const
    {
        const COLORREF pixel = Pixel(x, y);
        return std::abs(GetRValue(pixel) - GetRValue(color)) <= tolerance &&
               std::abs(GetGValue(pixel) - GetGValue(color)) <= tolerance &&
               std::abs(GetBValue(pixel) - GetBValue(color)) <= tolerance;
    }

    // Pixels of the rectangle that are near the color.
    int Count(const RECT& area, COLORREF color, int tolerance = 8) const
    {
        int count = 0;
        for (int y = area.top; y < area.bottom; ++y)
        {
            for (int x = area.left; x < area.right; ++x)
                count += Near(x, y, color, tolerance);
        }
        return count;
    }

private:
    int m_width;
    int m_height;
    HDC m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_previous;
    DWORD* m_bits;
};
