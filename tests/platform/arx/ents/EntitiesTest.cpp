#include "acutads.h"
#include "dbents.h"
#include "dbhatch.h"
#include "dbmtext.h"

#include "arx/ents/EntityPaths.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{

constexpr double kPi = 3.14159265358979323846;

} // namespace

TEST(Entities, LineTellsItsEnds)
{
    AcDbLine line(AcGePoint3d(1, 2, 3), AcGePoint3d(4, 5, 6));
    EXPECT_EQ(line.startPoint(), AcGePoint3d(1, 2, 3));
    EXPECT_EQ(line.setEndPoint(AcGePoint3d(7, 8, 9)), Acad::eOk);
    AcGePoint3d end;
    EXPECT_EQ(line.getEndPoint(end), Acad::eOk);
    EXPECT_EQ(end, AcGePoint3d(7, 8, 9));
    EXPECT_FALSE(line.isClosed());
}

TEST(Entities, RunTimeTypesFormTheDocumentedTree)
{
    AcDbLine line;
    EXPECT_EQ(line.isA(), AcDbLine::desc());
    EXPECT_TRUE(line.isKindOf(AcDbCurve::desc()));
    EXPECT_TRUE(line.isKindOf(AcDbEntity::desc()));
    EXPECT_EQ(AcDbArc::cast(&line), nullptr);
    EXPECT_EQ(AcDbCurve::cast(&line), &line);
    EXPECT_STREQ(AcDbPolyline::desc()->dxfName(), L"LWPOLYLINE");
    EXPECT_TRUE(AcDbMInsertBlock::desc()->isDerivedFrom(AcDbBlockReference::desc()));
}

TEST(Entities, CircleRefusesANegativeRadius)
{
    AcDbCircle circle(AcGePoint3d(0, 0, 0), AcGeVector3d::kZAxis, 2);
    EXPECT_EQ(circle.setRadius(-1), Acad::eInvalidInput);
    EXPECT_EQ(circle.radius(), 2);
    EXPECT_EQ(circle.setNormal(AcGeVector3d(0, 0, 0)), Acad::eInvalidInput);
    EXPECT_TRUE(circle.isClosed());
}

TEST(Entities, ArcEndsAndLength)
{
    const AcDbArc arc(AcGePoint3d(1, 1, 0), 2, 0, kPi / 2);
    AcGePoint3d start, end;
    arc.getStartPoint(start);
    arc.getEndPoint(end);
    EXPECT_TRUE(start.isEqualTo(AcGePoint3d(3, 1, 0)));
    EXPECT_TRUE(end.isEqualTo(AcGePoint3d(1, 3, 0)));
    EXPECT_NEAR(arc.length(), kPi, 1e-12);
}

TEST(Entities, EllipseRefusesBadAxes)
{
    AcDbEllipse ellipse;
    const AcGePoint3d center(0, 0, 0);
    EXPECT_EQ(ellipse.set(center, AcGeVector3d::kZAxis, AcGeVector3d(0, 0, 0), 1), Acad::eInvalidInput);
    EXPECT_EQ(ellipse.set(center, AcGeVector3d::kZAxis, AcGeVector3d(1, 0, 0), 0), Acad::eInvalidInput);
    EXPECT_EQ(ellipse.set(center, AcGeVector3d::kZAxis, AcGeVector3d(1, 0, 0), 1.5), Acad::eInvalidInput);
    EXPECT_EQ(ellipse.set(center, AcGeVector3d::kZAxis, AcGeVector3d(2, 0, 0), 0.5, 0, kPi), Acad::eOk);
    EXPECT_FALSE(ellipse.isClosed());
    EXPECT_TRUE(ellipse.minorAxis().isEqualTo(AcGeVector3d(0, 1, 0)));
}

TEST(Entities, PolylineChecksItsIndices)
{
    AcDbPolyline polyline;
    AcGePoint3d point;
    AcGePoint2d flat;
    double bulge = 0;
    EXPECT_EQ(polyline.getStartPoint(point), Acad::eDegenerateGeometry);
    EXPECT_EQ(polyline.getPointAt(0, point), Acad::eInvalidIndex);
    EXPECT_EQ(polyline.getPointAt(0, flat), Acad::eInvalidIndex);
    EXPECT_EQ(polyline.getBulgeAt(0, bulge), Acad::eInvalidIndex);
    EXPECT_EQ(polyline.addVertexAt(1, AcGePoint2d(0, 0)), Acad::eInvalidIndex);
    EXPECT_EQ(polyline.addVertexAt(0, AcGePoint2d(1, 1)), Acad::eOk);
    EXPECT_EQ(polyline.addVertexAt(0, AcGePoint2d(0, 0)), Acad::eOk);
    EXPECT_EQ(polyline.getPointAt(1, flat), Acad::eOk);
    EXPECT_EQ(flat, AcGePoint2d(1, 1));
    EXPECT_EQ(polyline.removeVertexAt(2), Acad::eInvalidIndex);
    EXPECT_EQ(polyline.removeVertexAt(0), Acad::eOk);
    EXPECT_EQ(polyline.numVerts(), 1u);
}

TEST(Entities, PolylineKnowsItsSegments)
{
    AcDbPolyline polyline;
    EXPECT_EQ(polyline.segType(0), AcDbPolyline::kEmpty);
    polyline.addVertexAt(0, AcGePoint2d(0, 0));
    EXPECT_EQ(polyline.segType(0), AcDbPolyline::kPoint);
    polyline.addVertexAt(1, AcGePoint2d(1, 0), 0.5);
    polyline.addVertexAt(2, AcGePoint2d(2, 0));
    polyline.addVertexAt(3, AcGePoint2d(2, 0));
    EXPECT_EQ(polyline.segType(0), AcDbPolyline::kLine);
    EXPECT_EQ(polyline.segType(1), AcDbPolyline::kArc);
    EXPECT_EQ(polyline.segType(2), AcDbPolyline::kCoincident);
    EXPECT_EQ(polyline.segType(3), AcDbPolyline::kPoint);
    polyline.setClosed(true);
    EXPECT_EQ(polyline.segType(3), AcDbPolyline::kLine);
    EXPECT_TRUE(polyline.hasBulges());
}

TEST(Entities, ClosedPolylineEndsWhereItStarts)
{
    AcDbPolyline polyline;
    polyline.addVertexAt(0, AcGePoint2d(0, 0));
    polyline.addVertexAt(1, AcGePoint2d(5, 0));
    AcGePoint3d end;
    polyline.getEndPoint(end);
    EXPECT_EQ(end, AcGePoint3d(5, 0, 0));
    polyline.setClosed(true);
    polyline.getEndPoint(end);
    EXPECT_EQ(end, AcGePoint3d(0, 0, 0));
}

TEST(Entities, BulgeArcRunsFromVertexToVertex)
{
    const AcGePoint2d from(1, 2), to(4, -3);
    for (double bulge : {0.1, 0.5, 1.0, 2.0, -0.3, -1.0, -5.0})
    {
        arxgi::Arc arc;
        ASSERT_TRUE(arxents::BulgeArc(from, to, bulge, arc));
        EXPECT_TRUE(arc.At(arc.start).isEqualTo(AcGePoint3d(1, 2, 0), AcGeTol())) << bulge;
        EXPECT_TRUE(arc.At(arc.start + arc.sweep).isEqualTo(AcGePoint3d(4, -3, 0), AcGeTol())) << bulge;
        EXPECT_NEAR(std::tan(arc.sweep / 4), bulge, 1e-9);
    }
    arxgi::Arc arc;
    EXPECT_FALSE(arxents::BulgeArc(from, to, 0, arc));
    EXPECT_FALSE(arxents::BulgeArc(from, from, 1, arc));
}

TEST(Entities, TextGivesACopyOfItsString)
{
    AcDbText text(AcGePoint3d(0, 0, 0), L"%%c50", 2.5);
    ACHAR* copy = text.textString();
    EXPECT_STREQ(copy, L"%%c50");
    acutDelString(copy);
    EXPECT_EQ(text.setTextString(NULL), Acad::eInvalidInput);
}

TEST(Entities, ParagraphRefusesUnknownAttachments)
{
    AcDbMText text;
    EXPECT_EQ(text.setAttachment(static_cast<AcDbMText::AttachmentPoint>(0)), Acad::eInvalidInput);
    EXPECT_EQ(text.setDirection(AcGeVector3d(0, 3, 0)), Acad::eOk);
    EXPECT_EQ(text.direction(), AcGeVector3d(0, 1, 0));
}

TEST(Entities, SolidChecksItsIndices)
{
    AcDbSolid solid;
    AcGePoint3d point;
    EXPECT_EQ(solid.getPointAt(4, point), Acad::eInvalidIndex);
    EXPECT_EQ(solid.setPointAt(3, AcGePoint3d(1, 2, 0)), Acad::eOk);
    EXPECT_EQ(solid.getPointAt(3, point), Acad::eOk);
    EXPECT_EQ(point, AcGePoint3d(1, 2, 0));
}

TEST(Entities, BlockReferenceRefusesAFlatteningScale)
{
    AcDbBlockReference reference;
    EXPECT_EQ(reference.setScaleFactors(AcGeScale3d(1, 0, 1)), Acad::eInvalidInput);
    EXPECT_EQ(reference.scaleFactors(), AcGeScale3d());
    EXPECT_TRUE(AcGeScale3d(2, -2, 2).isProportional());
    EXPECT_FALSE(AcGeScale3d(2, 1, 2).isProportional());
    AcDbMInsertBlock rows;
    EXPECT_EQ(rows.setRows(0), Acad::eInvalidInput);
}

TEST(Entities, SplineRefusesWhatDoesNotFit)
{
    AcDbSpline spline;
    AcGePoint3d point;
    EXPECT_EQ(spline.setNurbsData(arxents::Spline()), Acad::eInvalidInput);
    EXPECT_EQ(spline.getStartPoint(point), Acad::eDegenerateGeometry);
    EXPECT_EQ(spline.getControlPointAt(0, point), Acad::eInvalidIndex);
    AcGePoint3dArray points;
    points.append(AcGePoint3d(0, 0, 0));
    points.append(AcGePoint3d(1, 1, 0));
    points.append(AcGePoint3d(2, 0, 0));
    points.append(AcGePoint3d(0, 0, 0));
    EXPECT_EQ(spline.setFitPoints(points), Acad::eOk);
    EXPECT_EQ(spline.numFitPoints(), 4);
    EXPECT_TRUE(spline.isClosed());
}
