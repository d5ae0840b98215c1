// An icon of one colour that covers its whole square.
#pragma once

#include <afxwin.h>

#include <vector>

class TestIcon
{
public:
    explicit TestIcon(COLORREF color, int size = 16)
    {
        const uint32_t opaque = 0xFF000000u;
        const uint32_t point = opaque | RGB(GetBValue(color), GetGValue(color), GetRValue(color));
        std::vector<uint32_t> points(static_cast<size_t>(size) * size, point);
        std::vector<BYTE> mask(static_cast<size_t>(size) * size / 8, 0);
        m_icon = ::CreateIcon(nullptr, size, size, 1, 32, mask.data(), reinterpret_cast<const BYTE*>(points.data()));
    }
    ~TestIcon() { ::DestroyIcon(m_icon); }
    TestIcon(const TestIcon&) = delete;
    TestIcon& operator=(const TestIcon&) = delete;

    operator HICON() const { return m_icon; }

private:
    HICON m_icon;
};
