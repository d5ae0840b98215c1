// A rectangle that goes over from one colour to another.
#include "base/Gradient.h"

#include <gtest/gtest.h>

#include "DibCanvas.h"

namespace
{

constexpr COLORREF kPaper = RGB(255, 0, 255);
constexpr COLORREF kFrom = RGB(0, 40, 200);
constexpr COLORREF kTo = RGB(200, 140, 0);
constexpr COLORREF kHalf = RGB(100, 90, 100);
constexpr int kLength = 100;
constexpr int kOther = 10;
// A pixel stands for a stretch of the way, so neither end is met quite.
constexpr int kTolerance = 10;

class GradientPixel : public testing::Test
{
protected:
    void Fill(const CRect& rect, GradientDirection direction)
    {
        CDC dc;
        dc.Attach(m_canvas.Dc());
        FillGradient(dc, rect, kFrom, kTo, direction);
        dc.Detach();
    }

    void ExpectPixel(CPoint point, COLORREF color) const
    {
        EXPECT_TRUE(m_canvas.Near(point.x, point.y, color, kTolerance)) << point.x << "," << point.y;
    }

    DibCanvas m_canvas{kLength + 20, kLength + 20, kPaper};
};

} // namespace

TEST_F(GradientPixel, GoesToTheRight)
{
    Fill(CRect(CPoint(5, 6), CSize(kLength, kOther)), GRADIENT_RIGHT);
    for (const int y : {6, 6 + kOther - 1})
    {
        ExpectPixel(CPoint(5, y), kFrom);
        ExpectPixel(CPoint(5 + kLength / 2, y), kHalf);
        ExpectPixel(CPoint(5 + kLength - 1, y), kTo);
    }
}

TEST_F(GradientPixel, GoesDown)
{
    Fill(CRect(CPoint(5, 6), CSize(kOther, kLength)), GRADIENT_DOWN);
    for (const int x : {5, 5 + kOther - 1})
    {
        ExpectPixel(CPoint(x, 6), kFrom);
        ExpectPixel(CPoint(x, 6 + kLength / 2), kHalf);
        ExpectPixel(CPoint(x, 6 + kLength - 1), kTo);
    }
}

TEST_F(GradientPixel, StaysInsideTheRectangle)
{
    const CRect rect(CPoint(5, 6), CSize(kLength, kOther));
    Fill(rect, GRADIENT_RIGHT);
    for (const CPoint& outside : {CPoint(4, 8), CPoint(rect.right, 8), CPoint(20, 5), CPoint(20, rect.bottom)})
        EXPECT_EQ(kPaper, m_canvas.Pixel(outside.x, outside.y)) << outside.x << "," << outside.y;
}

TEST_F(GradientPixel, AnEmptyRectangleIsLeftAlone)
{
    for (const CRect& empty : {CRect(5, 6, 5, 50), CRect(5, 6, 50, 6), CRect(50, 6, 5, 50), CRect(5, 50, 50, 6)})
    {
        for (const GradientDirection direction : {GRADIENT_RIGHT, GRADIENT_DOWN})
            Fill(empty, direction);
    }
    for (int at = 0; at < 60; ++at)
        EXPECT_EQ(kPaper, m_canvas.Pixel(at, at)) << at;
}
