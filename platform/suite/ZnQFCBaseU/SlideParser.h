// The steps of reading a slide from bytes.
#pragma once

#include "Slide.h"

namespace Tevrin
{
class SlideParser
{
public:
    SlideParser(const unsigned char* bytes, size_t count, Slide& slide);

    SlideResult Run();

private:
    SlideResult ReadHeader();
    SlideResult ReadOldHeader();
    SlideResult ReadRecords();
    SlideResult ReadRecord(bool& ended);
    SlideResult ReadVector(int firstX);
    SlideResult ReadOffsetVector(int firstByte);
    SlideResult ReadCommonEndVector(int firstByte);
    SlideResult ReadArea();
    SlidePoint ReadCorner();

    void SetSize(int highestX, int highestY, double aspect);
    void AddLine(SlidePoint from, SlidePoint to);
    bool Has(size_t count) const { return m_count - m_at >= count; }
    int Word();
    int SignedWord();
    int SignedByte();

    const unsigned char* m_bytes;
    size_t m_count;
    size_t m_at;
    bool m_highFirst;
    int m_color;
    SlidePoint m_last; // start of the last vector, which short records count from
    Slide& m_slide;
};
} // namespace Tevrin
