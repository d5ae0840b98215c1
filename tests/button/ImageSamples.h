// Icons and bitmaps of a size and a colour that a test can recognise.
#pragma once

#include <windows.h>

#include <vector>

// Guard: a bitmap filled with one colour, of 32 bits a pixel.
class SampleBitmap
{
public:
    SampleBitmap(int width, int height, COLORREF color)
    {
        const HDC screen = ::GetDC(NULL);
        m_bitmap = ::CreateCompatibleBitmap(screen, width, height);
        const HDC dc = ::CreateCompatibleDC(screen);
        const HGDIOBJ before = ::SelectObject(dc, m_bitmap);
        const HBRUSH brush = ::CreateSolidBrush(color);
        const RECT all = {0, 0, width, height};
        ::FillRect(dc, &all, brush);
        ::DeleteObject(brush);
        ::SelectObject(dc, before);
        ::DeleteDC(dc);
        ::ReleaseDC(NULL, screen);
    }
    ~SampleBitmap() { ::DeleteObject(m_bitmap); }
    SampleBitmap(const SampleBitmap&) = delete;
    SampleBitmap& operator=(const SampleBitmap&) = delete;

    operator HBITMAP() const { return m_bitmap; }

private:
    HBITMAP m_bitmap;
};

// Guard: an icon that is all of one colour.
class SampleIcon
{
public:
    SampleIcon(int width, int height, COLORREF color) : SampleIcon(width, height, SampleBitmap(width, height, color)) {}

    // One without a colour bitmap, which is black where its mask says so.
    static HICON CreateMonochrome(int size)
    {
        const size_t bytesInRow = static_cast<size_t>((size + 15) / 16 * 2);
        const std::vector<BYTE> opaque(bytesInRow * static_cast<size_t>(size), 0);
        return ::CreateIcon(NULL, size, size, 1, 1, opaque.data(), opaque.data());
    }

    ~SampleIcon() { ::DestroyIcon(m_icon); }
    SampleIcon(const SampleIcon&) = delete;
    SampleIcon& operator=(const SampleIcon&) = delete;

    operator HICON() const { return m_icon; }

private:
    SampleIcon(int width, int height, const SampleBitmap& color)
    {
        const size_t bytesInRow = static_cast<size_t>((width + 15) / 16 * 2);
        const std::vector<BYTE> opaque(bytesInRow * static_cast<size_t>(height), 0);
        const HBITMAP mask = ::CreateBitmap(width, height, 1, 1, opaque.data());
        ICONINFO info = {TRUE, 0, 0, mask, color};
        m_icon = ::CreateIconIndirect(&info);
        ::DeleteObject(mask);
    }

    HICON m_icon;
};
