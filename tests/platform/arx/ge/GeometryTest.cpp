#include "gemat3d.h"
#include "gevec2d.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{

const double kHalfTurn = 3.14159265358979323846;

TEST(Vector, MeasuresAnglesAroundAReference)
{
    const AcGeVector3d x = AcGeVector3d::kXAxis;
    const AcGeVector3d y = AcGeVector3d::kYAxis;
    EXPECT_NEAR(x.angleTo(y), kHalfTurn / 2, 1e-12);
    EXPECT_NEAR(x.angleTo(y, AcGeVector3d::kZAxis), kHalfTurn / 2, 1e-12);
    EXPECT_NEAR(y.angleTo(x, AcGeVector3d::kZAxis), kHalfTurn * 3 / 2, 1e-12);
    EXPECT_NEAR(x.angleTo(-x), kHalfTurn, 1e-12);
    EXPECT_NEAR(AcGeVector2d(0, -1).angle(), kHalfTurn * 3 / 2, 1e-12);
    EXPECT_EQ(AcGeVector2d().angle(), 0);
}

TEST(Vector, NullVectorStaysAsItIs)
{
    const AcGeVector3d null;
    EXPECT_TRUE(null.normal() == null);
    EXPECT_EQ(null.angleTo(AcGeVector3d::kXAxis), 0);
    EXPECT_TRUE(null.isZeroLength());
}

TEST(Vector, PerpendicularFollowsTheArbitraryAxisRule)
{
    EXPECT_TRUE(AcGeVector3d::kZAxis.perpVector() == AcGeVector3d::kXAxis);
    EXPECT_TRUE((-AcGeVector3d::kZAxis).perpVector() == -AcGeVector3d::kXAxis);
    EXPECT_TRUE(AcGeVector3d::kXAxis.perpVector() == AcGeVector3d::kYAxis);
}

TEST(Vector, TurnsCounterClockwise)
{
    AcGeVector3d vector(2, 0, 0);
    vector.rotateBy(kHalfTurn / 2, AcGeVector3d::kZAxis);
    EXPECT_TRUE(vector == AcGeVector3d(0, 2, 0));
}

TEST(Point, ComparesByTolerance)
{
    EXPECT_TRUE(AcGePoint3d(1, 2, 3) == AcGePoint3d(1, 2, 3 + 1e-11));
    EXPECT_TRUE(AcGePoint3d(1, 2, 3) != AcGePoint3d(1, 2, 3 + 1e-9));
    AcGeTol wide;
    wide.setEqualPoint(0.1);
    EXPECT_TRUE(AcGePoint3d(0, 0, 0).isEqualTo(AcGePoint3d(0.05, 0, 0), wide));
    EXPECT_DOUBLE_EQ(AcGePoint3d(0, 3, 0).distanceTo(AcGePoint3d(4, 0, 0)), 5);
    EXPECT_EQ(AcGePoint3d(7, 8, 9)[2], 9);
}

TEST(Matrix, ProductAppliesTheRightOneFirst)
{
    const AcGeMatrix3d move = AcGeMatrix3d::translation(AcGeVector3d(10, 0, 0));
    const AcGeMatrix3d turn = AcGeMatrix3d::rotation(kHalfTurn / 2, AcGeVector3d::kZAxis);
    EXPECT_TRUE(turn * move * AcGePoint3d::kOrigin == AcGePoint3d(0, 10, 0));
    EXPECT_TRUE(move * turn * AcGePoint3d::kOrigin == AcGePoint3d(10, 0, 0));
}

TEST(Matrix, MovesPointsButNotVectors)
{
    const AcGeMatrix3d move = AcGeMatrix3d::translation(AcGeVector3d(1, 2, 3));
    EXPECT_TRUE(move * AcGePoint3d::kOrigin == AcGePoint3d(1, 2, 3));
    EXPECT_TRUE(move * AcGeVector3d::kXAxis == AcGeVector3d::kXAxis);
}

TEST(Matrix, ScalesAndTurnsAboutACentre)
{
    const AcGePoint3d centre(1, 1, 0);
    EXPECT_TRUE(AcGeMatrix3d::scaling(3, centre) * centre == centre);
    EXPECT_TRUE(AcGeMatrix3d::scaling(3, centre) * AcGePoint3d(2, 1, 0) == AcGePoint3d(4, 1, 0));
    const AcGeMatrix3d turn = AcGeMatrix3d::rotation(kHalfTurn, AcGeVector3d::kZAxis, centre);
    EXPECT_TRUE(turn * AcGePoint3d::kOrigin == AcGePoint3d(2, 2, 0));
}

TEST(Matrix, InverseUndoes)
{
    const AcGeMatrix3d map = AcGeMatrix3d::translation(AcGeVector3d(3, -4, 5)) *
                             AcGeMatrix3d::rotation(0.7, AcGeVector3d(1, 2, 3)) * AcGeMatrix3d::scaling(2);
    EXPECT_TRUE(map * map.inverse() == AcGeMatrix3d::kIdentity);
    EXPECT_NEAR(map.det(), 8, 1e-12);
}

TEST(Matrix, SingularOneHasTheIdentityAsInverse)
{
    const AcGeMatrix3d flat = AcGeMatrix3d::scaling(0);
    EXPECT_TRUE(flat.isSingular());
    EXPECT_TRUE(flat.inverse() == AcGeMatrix3d::kIdentity);
}

TEST(Matrix, PlaneOfANegativeNormalMirrorsX)
{
    const AcGeMatrix3d plane = AcGeMatrix3d::planeToWorld(-AcGeVector3d::kZAxis);
    EXPECT_TRUE(plane * AcGePoint3d(5, 2, 0) == AcGePoint3d(-5, 2, 0));
    EXPECT_TRUE(AcGeMatrix3d::planeToWorld(AcGeVector3d::kZAxis) == AcGeMatrix3d::kIdentity);
}

} // namespace
