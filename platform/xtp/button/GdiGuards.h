// Owners of the GDI objects and selections that drawing a button needs.
#pragma once

#include "afx/core/Api.h"

namespace xtp
{
// Deletes the object.
template<class Handle>
class GdiOwner
{
public:
    explicit GdiOwner(Handle handle) : m_handle(handle) {}
    ~GdiOwner() { ::DeleteObject(m_handle); }
    GdiOwner(const GdiOwner&) = delete;
    GdiOwner& operator=(const GdiOwner&) = delete;

    operator Handle() const { return m_handle; }

private:
    Handle m_handle;
};

// Puts every setting and selection of the device context back.
class SavedDC
{
public:
    explicit SavedDC(HDC dc) : m_dc(dc), m_state(::SaveDC(dc)) {}
    ~SavedDC() { ::RestoreDC(m_dc, m_state); }
    SavedDC(const SavedDC&) = delete;
    SavedDC& operator=(const SavedDC&) = delete;

private:
    HDC m_dc;
    int m_state;
};

// A picture in memory, drawn through dc(), whose points can be read and written: top row first, blue in the low byte.
class MemoryImage
{
public:
    MemoryImage(int width, int height) : m_size{width, height}, m_dc(::CreateCompatibleDC(nullptr))
    {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof(info.bmiHeader);
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        m_bitmap = ::CreateDIBSection(m_dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_pixels = static_cast<uint32_t*>(bits);
        m_previous = ::SelectObject(m_dc, m_bitmap);
    }
    ~MemoryImage()
    {
        ::SelectObject(m_dc, m_previous);
        ::DeleteObject(m_bitmap);
        ::DeleteDC(m_dc);
    }
    MemoryImage(const MemoryImage&) = delete;
    MemoryImage& operator=(const MemoryImage&) = delete;

    // False when the system had no memory for it; nothing can be drawn then.
    bool IsValid() const { return m_pixels != nullptr; }
    HDC dc() const { return m_dc; }
    SIZE size() const { return m_size; }
    uint32_t* pixels() const { return m_pixels; }

private:
    SIZE m_size;
    HDC m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_previous;
    uint32_t* m_pixels;
};
} // namespace xtp
