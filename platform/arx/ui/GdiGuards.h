// Guards for GDI objects and for what a device context has selected.
#pragma once

#include <windows.h>

namespace arxui
{

// Owns a brush, pen, font, bitmap or region.
template<class Handle>
class GdiObject
{
public:
    explicit GdiObject(Handle handle = nullptr) : m_handle(handle) {}
    ~GdiObject() { Reset(nullptr); }
    GdiObject(const GdiObject&) = delete;
    GdiObject& operator=(const GdiObject&) = delete;

    Handle Get() const { return m_handle; }
    explicit operator bool() const { return m_handle != nullptr; }

    void Reset(Handle handle)
    {
        if (m_handle != nullptr)
            DeleteObject(m_handle);
        m_handle = handle;
    }

private:
    Handle m_handle;
};

// Selects an object and puts the former one back.
class SelectGuard
{
public:
    SelectGuard(HDC dc, HGDIOBJ object) : m_dc(dc), m_former(SelectObject(dc, object)) {}
    ~SelectGuard() { SelectObject(m_dc, m_former); }
    SelectGuard(const SelectGuard&) = delete;
    SelectGuard& operator=(const SelectGuard&) = delete;

private:
    HDC m_dc;
    HGDIOBJ m_former;
};

// Saves everything of a device context and restores it.
class SaveDcGuard
{
public:
    explicit SaveDcGuard(HDC dc) : m_dc(dc), m_state(SaveDC(dc)) {}
    ~SaveDcGuard() { RestoreDC(m_dc, m_state); }
    SaveDcGuard(const SaveDcGuard&) = delete;
    SaveDcGuard& operator=(const SaveDcGuard&) = delete;

private:
    HDC m_dc;
    int m_state;
};

// A memory device context with a bitmap of its own: what is painted there appears at once by Show().
class BackBuffer
{
public:
    BackBuffer(HDC target, int width, int height)
        : m_target(target), m_width(width), m_height(height), m_dc(CreateCompatibleDC(target)),
          m_bitmap(CreateCompatibleBitmap(target, width > 0 ? width : 1, height > 0 ? height : 1)),
          m_former(SelectObject(m_dc, m_bitmap))
    {
    }
    ~BackBuffer()
    {
        SelectObject(m_dc, m_former);
        DeleteObject(m_bitmap);
        DeleteDC(m_dc);
    }
    BackBuffer(const BackBuffer&) = delete;
    BackBuffer& operator=(const BackBuffer&) = delete;

    HDC Get() const { return m_dc; }
    void Show() const { BitBlt(m_target, 0, 0, m_width, m_height, m_dc, 0, 0, SRCCOPY); }

private:
    HDC m_target;
    int m_width;
    int m_height;
    HDC m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_former;
};

// Fills a rectangle with a plain colour.
inline void FillColour(HDC dc, const RECT& rect, COLORREF colour)
{
    const COLORREF former = SetBkColor(dc, colour);
    ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &rect, nullptr, 0, nullptr);
    SetBkColor(dc, former);
}

} // namespace arxui
