#include "dbmain.h"

#include <gtest/gtest.h>

namespace
{

void ExpectBox(const AcDbExtents& box, double left, double bottom, double right, double top)
{
    EXPECT_DOUBLE_EQ(box.minPoint().x, left);
    EXPECT_DOUBLE_EQ(box.minPoint().y, bottom);
    EXPECT_DOUBLE_EQ(box.maxPoint().x, right);
    EXPECT_DOUBLE_EQ(box.maxPoint().y, top);
}

AcDbExtents Box(double left, double bottom, double right, double top)
{
    return AcDbExtents(AcGePoint3d(left, bottom, 0), AcGePoint3d(right, top, 0));
}

TEST(Extents, StartInvalid)
{
    const AcDbExtents box;
    ExpectBox(box, 1e20, 1e20, -1e20, -1e20);
    EXPECT_DOUBLE_EQ(box.minPoint().z, 1e20);
    EXPECT_DOUBLE_EQ(box.maxPoint().z, -1e20);
}

TEST(Extents, CrossedCornersMakeAnInvalidBox)
{
    EXPECT_TRUE(Box(2, 0, 1, 1) == AcDbExtents());
    AcDbExtents box = Box(0, 0, 1, 1);
    EXPECT_EQ(box.set(AcGePoint3d(0, 0, 5), AcGePoint3d(1, 1, 4)), Acad::eInvalidInput);
    ExpectBox(box, 0, 0, 1, 1);
    EXPECT_EQ(box.set(AcGePoint3d(0, 0, 0), AcGePoint3d(0, 0, 0)), Acad::eOk);
}

TEST(Extents, FirstPointIsTheBox)
{
    AcDbExtents box;
    box.addPoint(AcGePoint3d(-3, 4, 5));
    ExpectBox(box, -3, 4, -3, 4);
    box.addPoint(AcGePoint3d(1, 2, 9));
    ExpectBox(box, -3, 2, 1, 4);
    EXPECT_DOUBLE_EQ(box.maxPoint().z, 9);
}

TEST(Extents, AddingABoxUnites)
{
    AcDbExtents box = Box(0, 0, 1, 1);
    box.addExt(Box(5, -5, 6, 0));
    ExpectBox(box, 0, -5, 6, 1);
    box.addExt(AcDbExtents());
    ExpectBox(box, 0, -5, 6, 1);
    box.addExt(box);
    ExpectBox(box, 0, -5, 6, 1);
}

TEST(Extents, ExpandingMovesTheSidesOfTheDirectionOnly)
{
    AcDbExtents box = Box(0, 0, 10, 10);
    box.expandBy(AcGeVector3d(-3, 2, 0));
    ExpectBox(box, -3, 0, 10, 12);
}

TEST(Extents, ExpandingBothWaysWidensEverySide)
{
    AcDbExtents box = Box(0, 0, 10, 20);
    box.expandBy(AcGeVector3d(-10, -10, 0));
    box.expandBy(AcGeVector3d(10, 10, 0));
    ExpectBox(box, -10, -10, 20, 30);
}

TEST(Extents, InvalidBoxStaysInvalid)
{
    AcDbExtents box;
    box.expandBy(AcGeVector3d(1, 1, 1));
    box.transformBy(AcGeMatrix3d::translation(AcGeVector3d(5, 5, 5)));
    EXPECT_TRUE(box == AcDbExtents());
}

TEST(Extents, TransformedBoxHoldsTheTurnedCorners)
{
    AcDbExtents box = Box(0, 0, 4, 2);
    box.transformBy(AcGeMatrix3d::rotation(1.5707963267948966, AcGeVector3d::kZAxis));
    EXPECT_NEAR(box.minPoint().x, -2, 1e-12);
    EXPECT_NEAR(box.minPoint().y, 0, 1e-12);
    EXPECT_NEAR(box.maxPoint().x, 0, 1e-12);
    EXPECT_NEAR(box.maxPoint().y, 4, 1e-12);
}

} // namespace
