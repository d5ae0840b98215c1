// The picture of slides.
#include "suite/ZnQFCBaseU/SlidePainter.h"

#include "DibCanvas.h"
#include "GdiCount.h"
#include "SlideBytes.h"

#include <gtest/gtest.h>

using namespace Tevrin;

namespace
{

constexpr int kWidth = 100;
constexpr int kHeight = 60;
const COLORREF kPaper = RGB(10, 20, 30);
const COLORREF kRed = RGB(255, 0, 0);
const COLORREF kGreen = RGB(0, 255, 0);
const COLORREF kUntouched = RGB(9, 9, 9);

Slide Made(const SlideBytes& bytes)
{
    Slide slide;
    EXPECT_EQ(kSlideGood, slide.Parse(bytes.Bytes().data(), bytes.Bytes().size()));
    return slide;
}

// A picture in the middle of a larger canvas, so that what is drawn outside of its area shows.
class SlidePicture : public testing::Test
{
protected:
    SlidePicture() : m_canvas(300, 300, kUntouched) {}

    void Paint(const Slide& slide, int width = kWidth, int height = kHeight, COLORREF background = kPaper)
    {
        m_canvas.Clear(kUntouched);
        m_area = RECT{kLeft, kTop, kLeft + width, kTop + height};
        PaintSlide(m_canvas.Dc(), m_area, slide, background);
    }

    // In the area.
    COLORREF At(int x, int y) const { return m_canvas.Pixel(kLeft + x, kTop + y); }
    int Count(COLORREF color) const { return m_canvas.Count(RECT{0, 0, 300, 300}, color, 0); }

    static constexpr int kLeft = 40;
    static constexpr int kTop = 30;
    DibCanvas m_canvas;
    RECT m_area = {};
};

} // namespace

TEST_F(SlidePicture, ALineRunsFromTheLowerLeftCornerToTheUpperRightOne)
{
    Paint(Made(SlideBytes(kWidth, kHeight).Color(1).Vector(0, 0, 99, 59).End()));
    EXPECT_EQ(kRed, At(0, 59));
    EXPECT_EQ(kRed, At(99, 0)) << "the last pixel belongs to the line";
    EXPECT_EQ(kPaper, At(0, 0));
    EXPECT_EQ(kPaper, At(99, 59));
    EXPECT_EQ(kWidth, Count(kRed)) << "one pixel a column";
}

TEST_F(SlidePicture, NothingIsDrawnOutsideOfTheArea)
{
    Paint(Made(SlideBytes(kWidth, kHeight).Color(1).Vector(50, 30, -400, 500).Vector(50, 30, 32767, -32768).End()));
    EXPECT_EQ(300 * 300 - kWidth * kHeight, Count(kUntouched));
}

TEST_F(SlidePicture, ADotIsAPixel)
{
    Paint(Made(SlideBytes(kWidth, kHeight).Color(1).Vector(7, 9, 7, 9).End()));
    EXPECT_EQ(kRed, At(7, 59 - 9));
    EXPECT_EQ(1, Count(kRed));
}

TEST_F(SlidePicture, LinesThatMeetAreDrawnWhole)
{
    Paint(Made(
        SlideBytes(kWidth, kHeight).Color(1).Vector(10, 10, 20, 10).Vector(20, 10, 20, 20).Vector(5, 5, 6, 5).End()));
    EXPECT_EQ(11 + 10 + 2, Count(kRed));
    EXPECT_EQ(kRed, At(20, 59 - 10));
    EXPECT_EQ(kRed, At(20, 59 - 20));
    EXPECT_EQ(kPaper, At(21, 59 - 20));
}

TEST_F(SlidePicture, AnAreaIsFilledToItsCorners)
{
    Paint(Made(SlideBytes(kWidth, kHeight).Color(3).Area({{60, 5}, {90, 5}, {90, 25}, {60, 25}}).End()));
    EXPECT_EQ(31 * 21, Count(kGreen));
    EXPECT_EQ(kGreen, At(60, 59 - 5));
    EXPECT_EQ(kGreen, At(90, 59 - 25));
    EXPECT_EQ(kPaper, At(91, 59 - 25));
}

TEST_F(SlidePicture, WhatComesLaterLiesOnTop)
{
    const SlideBytes::Corners square = {{60, 5}, {90, 5}, {90, 25}, {60, 25}};
    Paint(Made(SlideBytes(kWidth, kHeight).Color(1).Vector(50, 10, 99, 10).Color(3).Area(square).End()));
    EXPECT_EQ(kGreen, At(70, 59 - 10));
    Paint(Made(SlideBytes(kWidth, kHeight).Color(3).Area(square).Color(1).Vector(50, 10, 99, 10).End()));
    EXPECT_EQ(kRed, At(70, 59 - 10));
}

TEST_F(SlidePicture, TheAspectOfTheHeaderIsKept)
{
    // Dots of 100 by 60, on paper twice as wide as high.
    const Slide slide = Made(SlideBytes(kWidth, kHeight, 2).Color(1).Vector(0, 0, 99, 59).End());
    const RECT wide = SlidePlace(RECT{0, 0, 300, 100}, slide);
    EXPECT_EQ(50, wide.left);
    EXPECT_EQ(250, wide.right);
    EXPECT_EQ(0, wide.top);
    EXPECT_EQ(100, wide.bottom);
    const RECT high = SlidePlace(RECT{10, 10, 110, 310}, slide);
    EXPECT_EQ(10, high.left);
    EXPECT_EQ(110, high.right);
    EXPECT_EQ(135, high.top);
    EXPECT_EQ(185, high.bottom);
    Paint(slide, 100, 100);
    EXPECT_EQ(kPaper, At(0, 24));
    EXPECT_EQ(kRed, At(99, 25));
    EXPECT_EQ(kRed, At(0, 74));
    EXPECT_EQ(kPaper, At(0, 75));
}

TEST_F(SlidePicture, TheLongEdgeIsFilledInEverySize)
{
    const Slide slide =
        Made(SlideBytes(kWidth, kHeight).Color(1).Vector(0, 0, 99, 0).Vector(0, 59, 99, 59).Vector(0, 0, 0, 59).End());
    for (int size = 1; size < 250; size += 7)
    {
        Paint(slide, size, size);
        const RECT place = SlidePlace(RECT{0, 0, size, size}, slide);
        EXPECT_EQ(kRed, At(place.left, place.top)) << size;
        EXPECT_EQ(kRed, At(place.right - 1, place.bottom - 1)) << size;
        EXPECT_EQ(300 * 300 - size * size, Count(kUntouched)) << size;
    }
}

TEST_F(SlidePicture, EmptyAreasAreNotDrawn)
{
    const Slide slide = Made(SlideBytes(kWidth, kHeight).Color(1).Vector(0, 0, 99, 59).End());
    Paint(slide, 0, 0);
    EXPECT_EQ(300 * 300, Count(kUntouched));
    Paint(slide, -20, 30);
    EXPECT_EQ(0, Count(kRed));
}

TEST_F(SlidePicture, ASlideOfOneDotHasOnePlace)
{
    Paint(Made(SlideBytes(1, 1).Color(1).Vector(0, 0, 0, 0).End()), 50, 50);
    EXPECT_EQ(kRed, At(0, 49));
    EXPECT_EQ(1, Count(kRed));
}

TEST_F(SlidePicture, ColoursAreThoseOfThePalette)
{
    for (int index = 1; index <= 255; ++index)
    {
        Paint(Made(SlideBytes(kWidth, kHeight).Color(index).Vector(0, 0, 99, 0).End()));
        ASSERT_EQ(GetRGBFromACI(index), At(50, 59)) << index;
    }
}

TEST_F(SlidePicture, ColourZeroIsTheBackground)
{
    Paint(Made(SlideBytes(kWidth, kHeight).Color(1).Vector(0, 9, 99, 9).Color(0).Vector(40, 9, 50, 9).End()));
    EXPECT_EQ(kWidth - 11, Count(kRed));
    EXPECT_EQ(kPaper, At(45, 59 - 9));
}

TEST_F(SlidePicture, TheForegroundStandsOutFromItsBackground)
{
    const Slide slide = Made(SlideBytes(kWidth, kHeight).Color(7).Vector(0, 0, 99, 0).End());
    Paint(slide, kWidth, kHeight, RGB(0, 0, 0));
    EXPECT_EQ(RGB(255, 255, 255), At(50, 59));
    Paint(slide, kWidth, kHeight, RGB(240, 240, 240));
    EXPECT_EQ(RGB(0, 0, 0), At(50, 59));
}

TEST_F(SlidePicture, AnUnreadSlideIsBackground)
{
    Paint(Slide());
    EXPECT_EQ(kWidth * kHeight, Count(kPaper));
}

TEST_F(SlidePicture, ManyLinesAreDrawnAllOfThem)
{
    SlideBytes bytes(20000, 20);
    bytes.Color(1);
    for (int x = 0; x < 20000; ++x)
        bytes.Vector(x, 3, x, 3);
    Paint(Made(bytes.End()), 200, 200);
    EXPECT_EQ(200, Count(kRed));
}

TEST_F(SlidePicture, TheDeviceContextIsLeftAsItWas)
{
    const Slide slide =
        Made(SlideBytes(kWidth, kHeight).Color(1).Vector(0, 0, 99, 59).Color(3).Area({{1, 1}, {9, 1}, {9, 9}}).End());
    Paint(slide);
    const HGDIOBJ pen = ::GetCurrentObject(m_canvas.Dc(), OBJ_PEN);
    const HGDIOBJ brush = ::GetCurrentObject(m_canvas.Dc(), OBJ_BRUSH);
    const size_t objects = CountGdiObjects();
    for (int i = 0; i < 20; ++i)
        Paint(slide);
    EXPECT_EQ(objects, CountGdiObjects());
    EXPECT_EQ(pen, ::GetCurrentObject(m_canvas.Dc(), OBJ_PEN));
    EXPECT_EQ(brush, ::GetCurrentObject(m_canvas.Dc(), OBJ_BRUSH));
    RECT clip = {};
    ::GetClipBox(m_canvas.Dc(), &clip);
    EXPECT_EQ(300, clip.right);
}
