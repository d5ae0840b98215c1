#include "arx/ents/EntityPaths.h"
#include "dbents.h"
#include "dbhatch.h"
#include "dbmtext.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{

constexpr double kPi = 3.14159265358979323846;
constexpr double kExact = 1e-9;

AcDbExtents BoxOf(const AcDbEntity& entity)
{
    AcDbExtents box;
    EXPECT_EQ(entity.getGeomExtents(box), Acad::eOk);
    return box;
}

void ExpectBox(const AcDbEntity& entity, double x1, double y1, double x2, double y2, const char* name,
               double tolerance = kExact)
{
    const AcDbExtents box = BoxOf(entity);
    EXPECT_NEAR(box.minPoint().x, x1, tolerance) << name;
    EXPECT_NEAR(box.minPoint().y, y1, tolerance) << name;
    EXPECT_NEAR(box.maxPoint().x, x2, tolerance) << name;
    EXPECT_NEAR(box.maxPoint().y, y2, tolerance) << name;
}

double Radians(double degrees)
{
    return degrees * kPi / 180;
}

struct ArcRow
{
    const char* name;
    double start;
    double end;
    double x1, y1, x2, y2;
};

} // namespace

TEST(Extents, LineAndPoint)
{
    ExpectBox(AcDbLine(AcGePoint3d(3, 1, 0), AcGePoint3d(-1, 2, 0)), -1, 1, 3, 2, "line");
    ExpectBox(AcDbPoint(AcGePoint3d(5, 6, 7)), 5, 6, 5, 6, "point");
    EXPECT_EQ(BoxOf(AcDbPoint(AcGePoint3d(5, 6, 7))).maxPoint().z, 7);
}

TEST(Extents, CircleReachesItsRadiusInEveryDirection)
{
    ExpectBox(AcDbCircle(AcGePoint3d(1, 2, 0), AcGeVector3d::kZAxis, 3), -2, -1, 4, 5, "circle");
}

TEST(Extents, CircleSeenFromTheSideIsALine)
{
    const AcDbExtents box = BoxOf(AcDbCircle(AcGePoint3d(0, 0, 0), AcGeVector3d::kXAxis, 2));
    EXPECT_NEAR(box.minPoint().x, 0, kExact);
    EXPECT_NEAR(box.maxPoint().x, 0, kExact);
    EXPECT_NEAR(box.maxPoint().y, 2, kExact);
    EXPECT_NEAR(box.maxPoint().z, 2, kExact);
}

TEST(Extents, ArcsReachTheAxesTheyCross)
{
    const double h = std::sqrt(0.5);
    const ArcRow rows[] = {
        {"first quadrant", 0, 90, 0, 0, 1, 1},
        {"within one quadrant", 30, 60, 0.5, 0.5, std::sqrt(0.75), std::sqrt(0.75)},
        {"over the top", 45, 135, -h, h, h, 1},
        {"over the left", 135, 225, -1, -h, -h, h},
        {"over the bottom", 225, 315, -h, -1, h, -h},
        {"over zero degrees", 315, 45, h, -h, 1, h},
        {"three quadrants", 0, 270, -1, -1, 1, 1},
        {"nearly full", 1, 0, -1, -1, 1, 1},
        {"equal angles are full", 30, 30, -1, -1, 1, 1},
        {"negative start", -45, 45, h, -h, 1, h},
        {"more than a turn", 405, 495, -h, h, h, 1},
    };
    for (const ArcRow& row : rows)
    {
        const AcDbArc arc(AcGePoint3d(0, 0, 0), 1, Radians(row.start), Radians(row.end));
        ExpectBox(arc, row.x1, row.y1, row.x2, row.y2, row.name);
    }
}

TEST(Extents, MirroredArcTurnsTheOtherWay)
{
    const AcDbArc arc(AcGePoint3d(0, 0, 0), AcGeVector3d(0, 0, -1), 1, 0, kPi / 2);
    ExpectBox(arc, -1, 0, 0, 1, "mirrored");
}

TEST(Extents, TurnedEllipse)
{
    const double a = 2, b = 1, h = std::sqrt((a * a + b * b) / 2);
    const AcGeVector3d major(a * std::sqrt(0.5), a * std::sqrt(0.5), 0);
    ExpectBox(AcDbEllipse(AcGePoint3d(0, 0, 0), AcGeVector3d::kZAxis, major, b / a), -h, -h, h, h, "by 45 degrees");
}

TEST(Extents, HalfEllipse)
{
    const AcDbEllipse half(AcGePoint3d(1, 1, 0), AcGeVector3d::kZAxis, AcGeVector3d(4, 0, 0), 0.5, 0, kPi);
    ExpectBox(half, -3, 1, 5, 3, "upper half");
}

TEST(Extents, PolylineWithBulges)
{
    AcDbPolyline polyline;
    polyline.addVertexAt(0, AcGePoint2d(0, 0), 1); // a half circle below the chord
    polyline.addVertexAt(1, AcGePoint2d(4, 0));
    polyline.addVertexAt(2, AcGePoint2d(4, 3));
    ExpectBox(polyline, 0, -2, 4, 3, "open");
    polyline.setBulgeAt(0, -1);
    ExpectBox(polyline, 0, 0, 4, 3, "clockwise");
    polyline.setBulgeAt(0, 0);
    polyline.setBulgeAt(2, 1); // counts only once the polyline is closed
    ExpectBox(polyline, 0, 0, 4, 3, "bulge at the open end");
    polyline.setClosed(true);
    ExpectBox(polyline, -0.5, 0, 4, 4, "bulge of the closing segment");
}

TEST(Extents, PolylineInMirroredCoordinates)
{
    AcDbPolyline polyline;
    polyline.addVertexAt(0, AcGePoint2d(1, 1));
    polyline.addVertexAt(1, AcGePoint2d(4, 2));
    polyline.setNormal(AcGeVector3d(0, 0, -1));
    polyline.setElevation(5);
    ExpectBox(polyline, -4, 1, -1, 2, "mirrored");
    EXPECT_NEAR(BoxOf(polyline).minPoint().z, -5, kExact);
}

TEST(Extents, SplineStaysInsideItsControlPoints)
{
    arxents::Spline data;
    data.degree = 2;
    data.knots = {0, 0, 0, 1, 1, 1};
    data.points = {AcGePoint3d(0, 0, 0), AcGePoint3d(2, 4, 0), AcGePoint3d(4, 0, 0)};
    AcDbSpline spline;
    ASSERT_EQ(spline.setNurbsData(data), Acad::eOk);
    ExpectBox(spline, 0, 0, 4, 2, "parabola");
}

TEST(Extents, SolidAndOldPolylines)
{
    ExpectBox(AcDbSolid(AcGePoint3d(0, 0, 0), AcGePoint3d(2, 0, 0), AcGePoint3d(0, 3, 0)), 0, 0, 2, 3, "solid");
    AcDb2dPolyline flat;
    flat.appendVertex(AcGePoint2d(0, 0), -1);
    flat.appendVertex(AcGePoint2d(0, 2));
    ExpectBox(flat, -1, 0, 0, 2, "2d polyline");
    AcDb3dPolyline space;
    space.appendVertex(AcGePoint3d(1, 2, 3));
    space.appendVertex(AcGePoint3d(-1, 5, 9));
    ExpectBox(space, -1, 2, 1, 5, "3d polyline");
}

TEST(Extents, HatchOfEdges)
{
    arxents::HatchLoop loop;
    arxents::HatchEdge line;
    line.start = AcGePoint2d(-1, 0);
    line.end = AcGePoint2d(1, 0);
    arxents::HatchEdge arc;
    arc.kind = arxents::HatchEdge::kArc;
    arc.majorAxis = AcGeVector2d(1, 0);
    arc.endAngle = kPi;
    loop.edges = {line, arc};
    AcDbHatch hatch;
    hatch.appendLoop(loop);
    ExpectBox(hatch, -1, 0, 1, 1, "counter-clockwise");

    // The angles of a clockwise edge are counted clockwise.
    AcDbHatch below;
    loop.edges[1].counterClockwise = false;
    below.appendLoop(loop);
    ExpectBox(below, -1, -1, 1, 0, "clockwise");
}

TEST(Extents, TextByFixedWidths)
{
    AcDbText text(AcGePoint3d(10, 20, 0), L"abcd", 5);
    ExpectBox(text, 10, 20, 10 + 4 * 3, 25, "narrow characters");
    text.setTextString(L"中文");
    ExpectBox(text, 10, 20, 20, 25, "ideographs");
    text.setWidthFactor(0.5);
    ExpectBox(text, 10, 20, 15, 25, "width factor");
    text.setRotation(kPi / 2);
    ExpectBox(text, 5, 20, 10, 25, "turned");
    text.setTextString(L"%%u%%c%%u");
    ExpectBox(text, 5, 20, 10, 21.5, "control codes are resolved");
}

TEST(Extents, TextWithAlignment)
{
    AcDbText text(AcGePoint3d(0, 0, 0), L"abcde", 2);
    text.setAlignmentPoint(AcGePoint3d(100, 50, 0));
    text.setHorizontalMode(AcDb::kTextCenter);
    ExpectBox(text, 97, 50, 103, 52, "centre");
    text.setHorizontalMode(AcDb::kTextRight);
    ExpectBox(text, 94, 50, 100, 52, "right");
    text.setVerticalMode(AcDb::kTextTop);
    ExpectBox(text, 94, 48, 100, 50, "top right");
    text.setHorizontalMode(AcDb::kTextMid);
    text.setVerticalMode(AcDb::kTextBase);
    ExpectBox(text, 97, 49, 103, 51, "middle");
    text.setHorizontalMode(AcDb::kTextFit);
    text.setAlignmentPoint(AcGePoint3d(7, 0, 0));
    ExpectBox(text, 0, 0, 7, 2, "fitted between two points");
}

TEST(Extents, ParagraphByAttachment)
{
    AcDbMText text;
    text.setContents(L"ab\\Pabcd");
    text.setTextHeight(3);
    text.setLocation(AcGePoint3d(0, 0, 0));
    ExpectBox(text, 0, -8, 7.2, 0, "top left");
    text.setAttachment(AcDbMText::kBottomRight);
    ExpectBox(text, -7.2, 0, 0, 8, "bottom right");
    text.setAttachment(AcDbMText::kMiddleCenter);
    ExpectBox(text, -3.6, -4, 3.6, 4, "middle centre");
}

TEST(Extents, NothingToSeeIsNoBox)
{
    AcDbExtents box;
    EXPECT_EQ(AcDbText(AcGePoint3d(1, 1, 0), L"", 5).getGeomExtents(box), Acad::eNullExtents);
    EXPECT_EQ(AcDbPolyline().getGeomExtents(box), Acad::eNullExtents);
    EXPECT_EQ(AcDbHatch().getGeomExtents(box), Acad::eNullExtents);
    EXPECT_EQ(AcDbSpline().getGeomExtents(box), Acad::eNullExtents);
    EXPECT_EQ(box, AcDbExtents());
}
