#include "DrawingFixture.h"

#include "arx/gi/DisplayList.h"
#include "arx/gi/PickMath.h"

#include <cmath>

using arxgi::Box2;
using arxgi::DisplayList;
using arxgi::Point2;
using Ids = std::vector<AcDbObjectId>;

class PickTest : public DrawingFixture
{
protected:
    AcDbObjectId Pick(double x, double y, double distance)
    {
        DisplayList list;
        list.Build(m_database, 0.01);
        return list.Pick({x, y}, distance);
    }

    Ids Inside(const Box2& window)
    {
        DisplayList list;
        list.Build(m_database, 0.01);
        return list.Inside(window);
    }

    Ids Crossing(const Box2& window)
    {
        DisplayList list;
        list.Build(m_database, 0.01);
        return list.Crossing(window);
    }
};

TEST_F(PickTest, NearestWithinTheDistance)
{
    const AcDbObjectId low = AddLine(0, 0, 10, 0);
    const AcDbObjectId high = AddLine(0, 3, 10, 3);
    EXPECT_EQ(Pick(5, 1, 2), low);
    EXPECT_EQ(Pick(5, 2, 2), high);
    EXPECT_EQ(Pick(5, -1.5, 1), AcDbObjectId());
    EXPECT_EQ(Pick(11, 0, 1), low);
    EXPECT_EQ(Pick(11.1, 0, 1), AcDbObjectId());
}

TEST_F(PickTest, AmongEquallyNearTheLastDrawnWins)
{
    AddLine(0, 0, 10, 0);
    const AcDbObjectId upper = AddLine(0, 0, 10, 0);
    EXPECT_EQ(Pick(5, 0, 1), upper);
}

TEST_F(PickTest, InsideOfACircleIsNotTheCircle)
{
    const AcDbObjectId circle = Add(new AcDbCircle(AcGePoint3d(0, 0, 0), AcGeVector3d::kZAxis, 10));
    EXPECT_EQ(Pick(0, 0, 1), AcDbObjectId());
    EXPECT_EQ(Pick(9.5, 0, 1), circle);
    EXPECT_EQ(Pick(10 * std::sqrt(0.5), 10 * std::sqrt(0.5), 0.1), circle);
}

TEST_F(PickTest, InsideOfAFilledAreaAndOfATextCounts)
{
    const AcDbObjectId solid = Add(new AcDbSolid(AcGePoint3d(0, 0, 0), AcGePoint3d(10, 0, 0), AcGePoint3d(0, 10, 0)));
    const AcDbObjectId text = Add(new AcDbText(AcGePoint3d(100, 100, 0), L"text", 10));
    EXPECT_EQ(Pick(3, 3, 0.1), solid);
    EXPECT_EQ(Pick(8, 8, 0.1), AcDbObjectId());
    EXPECT_EQ(Pick(110, 105, 0.1), text);
}

TEST_F(PickTest, PointsArePicked)
{
    const AcDbObjectId point = Add(new AcDbPoint(AcGePoint3d(5, 5, 0)));
    EXPECT_EQ(Pick(5.5, 5, 1), point);
    EXPECT_EQ(Crossing(Box2(4, 4, 6, 6)), Ids{point});
    EXPECT_TRUE(Crossing(Box2(6, 6, 7, 7)).empty());
}

TEST_F(PickTest, EntityInABlockPicksTheReference)
{
    const AcDbObjectId block = AddBlock(L"Block");
    AddTo(block, new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(10, 0, 0)));
    const AcDbObjectId reference = Add(new AcDbBlockReference(AcGePoint3d(100, 0, 0), block));
    EXPECT_EQ(Pick(105, 0, 1), reference);
}

TEST_F(PickTest, WindowTakesWhatIsWhollyInsideAndCrossingWhatItTouches)
{
    const AcDbObjectId inside = AddLine(1, 1, 2, 2);
    const AcDbObjectId through = AddLine(-5, 5, 15, 5);
    const AcDbObjectId partly = AddLine(9, 9, 20, 20);
    AddLine(20, 0, 20, 10);
    const Box2 window(0, 0, 10, 10);
    EXPECT_EQ(Inside(window), Ids{inside});
    EXPECT_EQ(Crossing(window), (Ids{inside, through, partly}));
}

TEST_F(PickTest, BoxThatOverlapsIsNotYetATouch)
{
    AddLine(0, 10, 10, 0); // passes the window's corner at a distance
    EXPECT_TRUE(Crossing(Box2(0, 0, 4, 4)).empty());
    Add(new AcDbCircle(AcGePoint3d(50, 50, 0), AcGeVector3d::kZAxis, 10));
    EXPECT_TRUE(Crossing(Box2(49, 49, 51, 51)).empty());
}

TEST_F(PickTest, WindowInsideAFilledAreaTouchesIt)
{
    const AcDbObjectId solid =
        Add(new AcDbSolid(AcGePoint3d(0, 0, 0), AcGePoint3d(10, 0, 0), AcGePoint3d(0, 10, 0), AcGePoint3d(10, 10, 0)));
    const AcDbObjectId text = Add(new AcDbText(AcGePoint3d(100, 100, 0), L"text", 10));
    EXPECT_EQ(Crossing(Box2(4, 4, 5, 5)), Ids{solid});
    EXPECT_EQ(Crossing(Box2(104, 104, 105, 105)), Ids{text});
    EXPECT_EQ(Crossing(Box2(99, 104, 101, 105)), Ids{text});
    EXPECT_TRUE(Inside(Box2(4, 4, 5, 5)).empty());
}

TEST(PickMath, DistanceToAChain)
{
    const Point2 chain[] = {{0, 0}, {10, 0}, {10, 10}};
    EXPECT_DOUBLE_EQ(arxgi::DistanceToChain(chain, 3, {5, 2}), 2);
    EXPECT_DOUBLE_EQ(arxgi::DistanceToChain(chain, 3, {13, 14}), 5);
    EXPECT_DOUBLE_EQ(arxgi::DistanceToChain(chain, 1, {3, 4}), 5);
    EXPECT_TRUE(std::isinf(arxgi::DistanceToChain(chain, 0, {3, 4})));
}

TEST(PickMath, ChainTouchesAWindow)
{
    struct Row
    {
        const char* name;
        Point2 a, b;
        bool touches;
    };
    const Row rows[] = {
        {"inside", {1, 1}, {2, 2}, true},
        {"through", {-5, 5}, {15, 5}, true},
        {"along an edge", {0, -5}, {0, 5}, true},
        {"corner", {-1, 1}, {1, -1}, true},
        {"past the corner", {-2, 1}, {1, -2}, false},
        {"beside", {11, 0}, {11, 10}, false},
        {"towards but too short", {-5, 5}, {-1, 5}, false},
        {"a point inside", {3, 3}, {3, 3}, true},
    };
    const Box2 window(0, 0, 10, 10);
    for (const Row& row : rows)
    {
        const Point2 chain[] = {row.a, row.b};
        EXPECT_EQ(arxgi::ChainTouches(chain, 2, window), row.touches) << row.name;
    }
}

TEST(PickMath, EvenOddInside)
{
    const Point2 square[] = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};
    EXPECT_TRUE(arxgi::IsInsidePolygon(square, 4, {5, 5}));
    EXPECT_FALSE(arxgi::IsInsidePolygon(square, 4, {15, 5}));
    EXPECT_FALSE(arxgi::IsInsidePolygon(square, 4, {5, -1}));
}

TEST(Box2, EmptyUntilSomethingIsAdded)
{
    Box2 box;
    EXPECT_TRUE(box.IsEmpty());
    EXPECT_FALSE(box.Overlaps(Box2(0, 0, 1, 1)));
    EXPECT_TRUE(std::isinf(box.DistanceTo({0, 0})));
    box.Add(Point2{3, 4});
    EXPECT_FALSE(box.IsEmpty());
    EXPECT_DOUBLE_EQ(box.DistanceTo({0, 0}), 5);
    EXPECT_TRUE(Box2(5, 5, 1, 1).Contains(box));
}
