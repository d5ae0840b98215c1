// A slide: the vectors and filled areas of an AutoCAD slide file (.sld), level 1 and 2, either byte order. No window.
//
//     Tevrin::Slide slide;
//     if (slide.Read(L"plan.sld") == Tevrin::kSlideGood)
//         Tevrin::PaintSlide(dc, client, slide, RGB(0, 0, 0));
//
// Coordinates are dots of the screen that the slide was made on, from the lower left corner.
#pragma once

#include "ZnQFCBaseU.h"

#include <stddef.h>
#include <vector>

namespace Tevrin
{
enum SlideResult
{
    kSlideGood,
    kSlideNotOpened,     // no such file, or it can't be read
    kSlideTooLarge,      // more than kLargestSlide bytes
    kSlideEmpty,         // a file of no bytes
    kSlideForeign,       // not a slide
    kSlideUnknownLevel,  // a slide, of another level or byte order than those known
    kSlideCutOff,        // the file ends inside the header or a record, or without an end record
    kSlideUnknownRecord, // a record of a type that is not defined
    kSlideBadArea        // an area that isn't closed, or has fewer than 3 or more than 10 corners
};

// What is wrong, for the user; an empty text for kSlideGood.
ZNQFC_API const wchar_t* DescribeSlideResult(SlideResult result);

struct SlidePoint
{
    int x;
    int y;
};

// Points of one kind and colour that follow each other in drawing order.
struct SlideRun
{
    enum Kind
    {
        kLines, // two points a line
        kArea   // the corners of one filled polygon
    };

    Kind kind;
    int color; // an index of the palette; 0 is the background
    size_t first;
    size_t count;
};

class ZNQFC_API Slide
{
public:
    static const size_t kLargestSlide = 16 * 1024 * 1024;

    Slide();

    // Each replaces the contents; any result but kSlideGood leaves the slide empty. Bytes behind the end record do not
    // count.
    SlideResult Read(const wchar_t* path);
    SlideResult Parse(const unsigned char* bytes, size_t count);
    void Clear();

    bool IsEmpty() const { return m_runs.empty(); }
    int Level() const { return m_level; }
    // In dots, 1 to 65536; 0 for a slide that was not read.
    int Width() const { return m_width; }
    int Height() const { return m_height; }
    // Width of the picture on paper divided by its height: what the header says, or the dots' where that is absurd.
    double Aspect() const { return m_aspect; }

    const std::vector<SlideRun>& Runs() const { return m_runs; }
    const std::vector<SlidePoint>& Points() const { return m_points; }

private:
    friend class SlideParser;

    int m_level;
    int m_width;
    int m_height;
    double m_aspect;
    std::vector<SlideRun> m_runs;
    std::vector<SlidePoint> m_points;
};
} // namespace Tevrin
