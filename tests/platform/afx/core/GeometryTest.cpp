// CPoint, CSize and CRect.
#include <atltypes.h>

#include <gtest/gtest.h>

TEST(Point, UnpacksSignedCoordinates)
{
    const CPoint point(static_cast<LPARAM>(MAKELPARAM(-3, 7)));
    EXPECT_EQ(-3, point.x);
    EXPECT_EQ(7, point.y);
}

TEST(Point, AddsAndSubtracts)
{
    CPoint point(10, 20);
    EXPECT_EQ(CPoint(11, 22), point + CSize(1, 2));
    EXPECT_EQ(CPoint(9, 18), point - CSize(1, 2));
    EXPECT_EQ(CSize(7, 16), point - CPoint(3, 4));
    EXPECT_EQ(CPoint(-10, -20), -point);
    point.Offset(-10, 5);
    point += CPoint(1, 1);
    point -= CSize(1, 1);
    EXPECT_EQ(CPoint(0, 25), point);
    EXPECT_EQ(CRect(1, 2, 4, 6), CPoint(1, 2) + CRect(0, 0, 3, 4));
}

TEST(Size, AddsAndSubtracts)
{
    CSize size(CPoint(3, 4));
    size += CSize(1, 1);
    EXPECT_EQ(CSize(4, 5), size);
    EXPECT_EQ(CSize(-4, -5), -size);
    EXPECT_EQ(CPoint(5, 7), size + CPoint(1, 2));
    EXPECT_EQ(CSize(-1, 2), CSize(static_cast<DWORD>(MAKELONG(-1, 2))));
}

TEST(Rect, MeasuresItself)
{
    const CRect rect(10, 20, 30, 60);
    EXPECT_EQ(20, rect.Width());
    EXPECT_EQ(40, rect.Height());
    EXPECT_EQ(CSize(20, 40), rect.Size());
    EXPECT_EQ(CPoint(20, 40), rect.CenterPoint());
    EXPECT_EQ(CPoint(10, 20), rect.TopLeft());
    EXPECT_EQ(CPoint(30, 60), rect.BottomRight());
}

TEST(Rect, EndsBeforeItsRightAndBottomEdge)
{
    const CRect rect(CPoint(0, 0), CSize(2, 2));
    EXPECT_TRUE(rect.PtInRect(CPoint(0, 1)));
    EXPECT_FALSE(rect.PtInRect(CPoint(2, 1)));
    EXPECT_FALSE(rect.PtInRect(CPoint(1, 2)));
}

TEST(Rect, KnowsEmptyAndNull)
{
    EXPECT_TRUE(CRect().IsRectNull());
    EXPECT_TRUE(CRect(5, 5, 5, 9).IsRectEmpty());
    EXPECT_FALSE(CRect(5, 5, 5, 9).IsRectNull());
    CRect rect(1, 2, 3, 4);
    EXPECT_FALSE(rect.IsRectEmpty());
    rect.SetRectEmpty();
    EXPECT_TRUE(rect.IsRectNull());
}

TEST(Rect, InflatesAndDeflates)
{
    CRect rect(10, 10, 20, 20);
    rect.InflateRect(1, 2);
    EXPECT_EQ(CRect(9, 8, 21, 22), rect);
    rect.DeflateRect(CSize(1, 2));
    EXPECT_EQ(CRect(10, 10, 20, 20), rect);
    rect.InflateRect(1, 2, 3, 4);
    EXPECT_EQ(CRect(9, 8, 23, 24), rect);
    const CRect borders(1, 2, 3, 4);
    rect.DeflateRect(&borders);
    EXPECT_EQ(CRect(10, 10, 20, 20), rect);
}

TEST(Rect, MovesWithoutChangingItsSize)
{
    CRect rect(1, 2, 11, 22);
    rect.OffsetRect(CPoint(1, 1));
    EXPECT_EQ(CRect(2, 3, 12, 23), rect);
    rect.MoveToXY(0, 0);
    EXPECT_EQ(CRect(0, 0, 10, 20), rect);
    rect.MoveToX(5);
    rect.MoveToY(6);
    EXPECT_EQ(CRect(5, 6, 15, 26), rect);
    EXPECT_EQ(CRect(6, 7, 16, 27), rect + CPoint(1, 1));
    EXPECT_EQ(CRect(4, 5, 14, 25), rect - CSize(1, 1));
    rect += CSize(1, 0);
    rect -= CPoint(0, 1);
    EXPECT_EQ(CRect(6, 5, 16, 25), rect);
}

TEST(Rect, NormalizesSwappedEdges)
{
    CRect rect(30, 60, 10, 20);
    rect.NormalizeRect();
    EXPECT_EQ(CRect(10, 20, 30, 60), rect);
    rect.SwapLeftRight();
    EXPECT_EQ(CRect(30, 20, 10, 60), rect);
}

TEST(Rect, IntersectsAndUnites)
{
    const CRect a(0, 0, 10, 10);
    const CRect b(5, 5, 15, 15);
    EXPECT_EQ(CRect(5, 5, 10, 10), a & b);
    EXPECT_EQ(CRect(0, 0, 15, 15), a | b);
    CRect rect;
    EXPECT_TRUE(rect.IntersectRect(a, b));
    EXPECT_FALSE(rect.IntersectRect(a, CRect(20, 20, 30, 30)));
    EXPECT_TRUE(rect.IsRectNull());
    EXPECT_TRUE(rect.UnionRect(a, b));
    rect &= b;
    EXPECT_EQ(b, rect);
    rect |= a;
    EXPECT_EQ(CRect(0, 0, 15, 15), rect);
}

TEST(Rect, SubtractsAndScales)
{
    CRect rect;
    EXPECT_TRUE(rect.SubtractRect(CRect(0, 0, 10, 10), CRect(0, 0, 10, 4)));
    EXPECT_EQ(CRect(0, 4, 10, 10), rect);
    EXPECT_EQ(CRect(0, 6, 15, 15), rect.MulDiv(3, 2));
}

TEST(Rect, GoesWhereTheSystemWantsAPointer)
{
    CRect rect(1, 2, 3, 4);
    ::OffsetRect(rect, 1, 1);
    EXPECT_EQ(CRect(2, 3, 4, 5), rect);
    EXPECT_TRUE(rect.EqualRect(CRect(2, 3, 4, 5)));
    const CRect copy(static_cast<LPCRECT>(rect));
    EXPECT_EQ(rect, copy);
    EXPECT_TRUE(rect != CRect());
}
