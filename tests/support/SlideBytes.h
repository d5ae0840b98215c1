// Slide files put together byte by byte, right and wrong ones, so that what reads them is not tested by what writes
// them.
//
//   SlideBytes slide(100, 60);
//   slide.Color(1).Vector(0, 0, 99, 59).End();
//   slide.Save(path);
#pragma once

#include <windows.h>

#include <cstring>
#include <string>
#include <utility>
#include <vector>

class SlideBytes
{
public:
    enum Order
    {
        LowFirst,
        HighFirst
    };

    typedef std::vector<std::pair<int, int>> Corners;

    static constexpr double kUnitOfAspect = 1e7;

    // A header of level 2. The aspect ratio is the one of square dots unless it is given.
    SlideBytes(int width, int height, double aspect = 0, Order order = LowFirst) : m_order(order)
    {
        Signature(2);
        Word(width - 1).Word(height - 1);
        AspectNumber(static_cast<unsigned>((aspect == 0 ? 1.0 * width / height : aspect) * kUnitOfAspect));
        Word(2).Word(0x1234);
    }

    // A header of level 1.
    static SlideBytes Old(int width, int height, double aspect)
    {
        SlideBytes slide;
        slide.Signature(1);
        slide.Word(width - 1).Word(height - 1);
        unsigned char bytes[sizeof(aspect)];
        std::memcpy(bytes, &aspect, sizeof(aspect));
        for (unsigned char byte : bytes)
            slide.Byte(byte);
        slide.Word(2).Byte(0);
        return slide;
    }

    // The record types.
    SlideBytes& Color(int index) { return Field(0xff, index); }
    SlideBytes& Vector(int fromX, int fromY, int toX, int toY) { return Word(fromX).Word(fromY).Word(toX).Word(toY); }
    SlideBytes& Offset(int fromX, int fromY, int toX, int toY)
    {
        return Field(0xfb, fromX).Byte(fromY).Byte(toX).Byte(toY);
    }
    SlideBytes& CommonEnd(int fromX, int fromY) { return Field(0xfe, fromX).Byte(fromY); }
    SlideBytes& Area(const Corners& corners)
    {
        AreaMark(static_cast<int>(corners.size()), -2);
        for (const auto& corner : corners)
            AreaMark(corner.first, corner.second);
        return AreaMark(static_cast<int>(corners.size()), -1);
    }
    SlideBytes& AreaMark(int x, int y) { return Field(0xfd, 0).Word(x).Word(y); }
    SlideBytes& End() { return Field(0xfc, 0); }

    // For wrong ones.
    SlideBytes& Field(int high, int low) { return Word((high & 0xff) << 8 | (low & 0xff)); }
    SlideBytes& Word(int value)
    {
        const int low = value & 0xff;
        const int high = value >> 8 & 0xff;
        return m_order == LowFirst ? Byte(low).Byte(high) : Byte(high).Byte(low);
    }
    SlideBytes& Byte(int value)
    {
        m_bytes.push_back(static_cast<unsigned char>(value));
        return *this;
    }
    SlideBytes& Set(size_t at, int value)
    {
        m_bytes.at(at) = static_cast<unsigned char>(value);
        return *this;
    }
    SlideBytes& CutTo(size_t size)
    {
        m_bytes.resize(size);
        return *this;
    }

    const std::vector<unsigned char>& Bytes() const { return m_bytes; }

    bool Save(const std::wstring& path) const
    {
        const HANDLE file = ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, NULL, CREATE_ALWAYS, 0, NULL);
        DWORD written = 0;
        const bool saved = file != INVALID_HANDLE_VALUE &&
                           ::WriteFile(file, m_bytes.data(), static_cast<DWORD>(m_bytes.size()), &written, NULL) &&
                           written == m_bytes.size();
        if (file != INVALID_HANDLE_VALUE)
            ::CloseHandle(file);
        return saved;
    }

private:
    SlideBytes() : m_order(LowFirst) {}

    void Signature(int level)
    {
        const char signature[] = "AutoCAD Slide\r\n\x1a"; // its terminating zero counts
        m_bytes.assign(signature, signature + sizeof(signature));
        Byte(0x56).Byte(level);
    }

    // Low byte first in every slide.
    void AspectNumber(unsigned value)
    {
        for (int i = 0; i < 4; ++i)
            Byte(static_cast<int>(value >> 8 * i & 0xff));
    }

    Order m_order;
    std::vector<unsigned char> m_bytes;
};
