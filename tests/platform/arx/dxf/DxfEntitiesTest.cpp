#include "DxfSource.h"
#include "Entities.h"

#include "dbhatch.h"
#include "dbmtext.h"

#include <cmath>

namespace
{

constexpr double kPi = 3.14159265358979323846;

DxfSource Entities()
{
    DxfSource source;
    source.Section("ENTITIES");
    return source;
}

// Reads a section ENTITIES with one entity and hands it to `check` as a T.
template<class T, class Check>
void WithOnly(DxfSource source, Check check)
{
    ReadDrawing drawing(source.End().Whole());
    ASSERT_EQ(drawing.result.error, L"");
    EXPECT_TRUE(drawing.result.warnings.empty());
    ASSERT_EQ(ModelSpaceOf(drawing.database).size(), 1u);
    WithEntity<T>(drawing.database, 0, check);
}

std::wstring MTextOf(const AcDbMText& text)
{
    ACHAR* contents = text.contents();
    const std::wstring copy = contents;
    acutDelString(contents);
    return copy;
}

} // namespace

TEST(DxfEntities, Line)
{
    WithOnly<AcDbLine>(Entities().Line(1, 2, 3, 4).Real(30, 5).Real(31, 6), [](const AcDbLine& line) {
        EXPECT_EQ(line.startPoint(), AcGePoint3d(1, 2, 5));
        EXPECT_EQ(line.endPoint(), AcGePoint3d(3, 4, 6));
    });
}

TEST(DxfEntities, CircleInMirroredObjectCoordinates)
{
    DxfSource source = Entities().Entity("CIRCLE").Point(10, 5, 2).Real(40, 3);
    source.Real(210, 0).Real(220, 0).Real(230, -1);
    WithOnly<AcDbCircle>(source, [](const AcDbCircle& circle) {
        EXPECT_EQ(circle.center(), AcGePoint3d(-5, 2, 0));
        EXPECT_EQ(circle.radius(), 3);
        EXPECT_EQ(circle.normal(), AcGeVector3d(0, 0, -1));
    });
}

TEST(DxfEntities, ArcAnglesAreDegreesInTheFile)
{
    WithOnly<AcDbArc>(Entities().Entity("ARC").Point(10, 0, 0).Real(40, 2).Real(50, 270).Real(51, 90),
                      [](const AcDbArc& arc) {
                          EXPECT_NEAR(arc.startAngle(), 1.5 * kPi, 1e-12);
                          EXPECT_NEAR(arc.totalAngle(), kPi, 1e-12);
                      });
}

TEST(DxfEntities, EllipseWithTheAxesTheOtherWayRound)
{
    WithOnly<AcDbEllipse>(Entities().Entity("ELLIPSE").Point(10, 0, 0).Point(11, 2, 0).Real(40, 3),
                          [](const AcDbEllipse& ellipse) {
                              EXPECT_TRUE(ellipse.majorAxis().isEqualTo(AcGeVector3d(0, 6, 0)));
                              EXPECT_NEAR(ellipse.radiusRatio(), 1.0 / 3, 1e-12);
                              EXPECT_TRUE(ellipse.isClosed());
                              AcGePoint3d start;
                              ellipse.getStartPoint(start);
                              EXPECT_TRUE(start.isEqualTo(AcGePoint3d(2, 0, 0)));
                          });
}

TEST(DxfEntities, LightPolylineWithBulgesAndElevation)
{
    DxfSource source = Entities().Entity("LWPOLYLINE").Group(90, "3").Group(70, "1").Real(38, 7);
    source.Point(10, 0, 0).Point(10, 4, 0).Real(42, 1).Point(10, 4, 4);
    WithOnly<AcDbPolyline>(source, [](const AcDbPolyline& polyline) {
        ASSERT_EQ(polyline.numVerts(), 3u);
        EXPECT_TRUE(polyline.isClosed());
        AcGePoint3d point;
        EXPECT_EQ(polyline.getPointAt(1, point), Acad::eOk);
        EXPECT_EQ(point, AcGePoint3d(4, 0, 7));
        double bulge = 0;
        polyline.getBulgeAt(1, bulge);
        EXPECT_EQ(bulge, 1);
        EXPECT_EQ(polyline.segType(0), AcDbPolyline::kLine);
        EXPECT_EQ(polyline.segType(1), AcDbPolyline::kArc);
    });
}

TEST(DxfEntities, OldPolylineTakesItsVerticesButNoFramePoints)
{
    DxfSource source = Entities().Entity("POLYLINE").Group(66, "1").Group(70, "5").Point(10, 0, 0).Real(30, 3);
    source.Entity("VERTEX").Point(10, 0, 0).Real(42, 0.5);
    source.Entity("VERTEX").Point(10, 9, 9).Group(70, "16");
    source.Entity("VERTEX").Point(10, 4, 0).Group(0, "SEQEND");
    WithOnly<AcDb2dPolyline>(source, [](const AcDb2dPolyline& polyline) {
        EXPECT_EQ(polyline.numVerts(), 2u);
        EXPECT_TRUE(polyline.isClosed());
        EXPECT_EQ(polyline.elevation(), 3);
        EXPECT_EQ(polyline.polyType(), AcDb::k2dCubicSplinePoly);
        double bulge = 0;
        polyline.getBulgeAt(0, bulge);
        EXPECT_EQ(bulge, 0.5);
    });
}

TEST(DxfEntities, OldPolylineInSpace)
{
    DxfSource source = Entities().Entity("POLYLINE").Group(70, "8");
    source.Entity("VERTEX").Point(10, 1, 2).Real(30, 3).Entity("VERTEX").Point(10, 4, 5).Real(30, 6);
    WithOnly<AcDb3dPolyline>(source.Group(0, "SEQEND"), [](const AcDb3dPolyline& polyline) {
        AcGePoint3d point;
        EXPECT_EQ(polyline.getPointAt(1, point), Acad::eOk);
        EXPECT_EQ(point, AcGePoint3d(4, 5, 6));
        EXPECT_FALSE(polyline.isClosed());
    });
}

TEST(DxfEntities, MeshIsCountedAsNotDrawable)
{
    DxfSource source = Entities().Entity("POLYLINE").Group(70, "64").Entity("VERTEX").Point(10, 1, 2);
    ReadDrawing drawing(source.Group(0, "SEQEND").End().Whole());
    EXPECT_TRUE(drawing.succeeded);
    EXPECT_EQ(drawing.result.skipped[L"POLYLINE"], 1);
    EXPECT_EQ(drawing.result.SkippedCount(), 1);
}

TEST(DxfEntities, SplineByControlPoints)
{
    DxfSource source = Entities().Entity("SPLINE").Group(71, "2").Group(72, "6").Group(73, "3");
    for (double knot : {0, 0, 0, 1, 1, 1})
    {
        source.Real(40, knot);
    }
    source.Point(10, 0, 0).Point(10, 2, 4).Point(10, 4, 0);
    WithOnly<AcDbSpline>(source, [](const AcDbSpline& spline) {
        EXPECT_EQ(spline.degree(), 2);
        EXPECT_EQ(spline.numControlPoints(), 3);
        AcGePoint3d end;
        EXPECT_EQ(spline.getEndPoint(end), Acad::eOk);
        EXPECT_EQ(end, AcGePoint3d(4, 0, 0));
    });
}

TEST(DxfEntities, SplineByFitPointsAlone)
{
    DxfSource source = Entities().Entity("SPLINE").Group(71, "3").Group(74, "3");
    source.Point(11, 0, 0).Point(11, 2, 2).Point(11, 4, 0);
    WithOnly<AcDbSpline>(source, [](const AcDbSpline& spline) {
        EXPECT_EQ(spline.numFitPoints(), 3);
        AcGePoint3d start, end;
        spline.getStartPoint(start);
        spline.getEndPoint(end);
        EXPECT_TRUE(start.isEqualTo(AcGePoint3d(0, 0, 0)));
        EXPECT_TRUE(end.isEqualTo(AcGePoint3d(4, 0, 0)));
    });
}

TEST(DxfEntities, SolidOfThreeCorners)
{
    WithOnly<AcDbSolid>(Entities().Entity("SOLID").Point(10, 0, 0).Point(11, 2, 0).Point(12, 0, 2),
                        [](const AcDbSolid& solid) {
                            AcGePoint3d third, fourth;
                            EXPECT_EQ(solid.getPointAt(2, third), Acad::eOk);
                            EXPECT_EQ(solid.getPointAt(3, fourth), Acad::eOk);
                            EXPECT_EQ(third, AcGePoint3d(0, 2, 0));
                            EXPECT_EQ(fourth, third);
                        });
}

TEST(DxfEntities, TextWithAlignment)
{
    DxfSource source = Entities().Entity("TEXT").Point(10, 1, 2).Point(11, 5, 6).Real(40, 2.5).Group(1, " A B ");
    source.Real(50, 90).Group(72, "1").Group(73, "3").Real(41, 0.8);
    WithOnly<AcDbText>(source, [](const AcDbText& text) {
        EXPECT_STREQ(text.textStringConst(), L" A B ");
        EXPECT_EQ(text.position(), AcGePoint3d(1, 2, 0));
        EXPECT_EQ(text.alignmentPoint(), AcGePoint3d(5, 6, 0));
        EXPECT_EQ(text.height(), 2.5);
        EXPECT_NEAR(text.rotation(), kPi / 2, 1e-12);
        EXPECT_EQ(text.horizontalMode(), AcDb::kTextCenter);
        EXPECT_EQ(text.verticalMode(), AcDb::kTextTop);
        EXPECT_EQ(text.widthFactor(), 0.8);
    });
}

TEST(DxfEntities, ParagraphTextIsJoinedBeforeItIsDecoded)
{
    DxfSource source;
    source.Header("AC1021").Section("ENTITIES").Entity("MTEXT").Point(10, 0, 0).Real(40, 2).Group(71, "5");
    source.Group(3, "A\xE4\xB8").Group(1, "\xAD\\PB").Real(50, 90);
    ReadDrawing drawing(source.End().Whole());
    ASSERT_EQ(drawing.result.error, L"");
    WithEntity<AcDbMText>(drawing.database, 0, [](const AcDbMText& text) {
        EXPECT_EQ(MTextOf(text), L"A中\\PB");
        EXPECT_EQ(text.attachment(), AcDbMText::kMiddleCenter);
        EXPECT_EQ(text.textHeight(), 2);
        EXPECT_TRUE(text.direction().isEqualTo(AcGeVector3d(0, 1, 0)));
    });
}

TEST(DxfEntities, GroupsOfAnEmbeddedObjectAreNotTheEntitys)
{
    DxfSource source = Entities().Entity("MTEXT").Point(10, 1, 1).Real(40, 2).Group(1, "text");
    source.Group(101, "Embedded Object").Group(70, "1").Point(10, 8, 8).Group(1, "other");
    WithOnly<AcDbMText>(source, [](const AcDbMText& text) { EXPECT_EQ(MTextOf(text), L"text"); });
}

TEST(DxfEntities, HatchWithAPolylineLoopAndEdges)
{
    DxfSource source = Entities().Entity("HATCH").Point(10, 0, 0).Real(30, 0).Group(2, "SOLID").Group(70, "1");
    source.Group(91, "2");
    source.Group(92, "3").Group(72, "1").Group(73, "1").Group(93, "3");
    source.Point(10, 0, 0).Real(42, 0).Point(10, 9, 0).Real(42, 1).Point(10, 9, 9).Real(42, 0).Group(97, "0");
    source.Group(92, "16").Group(93, "4");
    source.Group(72, "1").Point(10, 1, 1).Point(11, 5, 1);
    source.Group(72, "2").Point(10, 3, 1).Real(40, 2).Real(50, 0).Real(51, 180).Group(73, "1");
    source.Group(72, "3").Point(10, 3, 1).Point(11, 2, 0).Real(40, 0.5).Real(50, 0).Real(51, 90).Group(73, "0");
    source.Group(72, "4").Group(94, "1").Group(73, "0").Group(74, "0").Group(95, "4").Group(96, "2");
    source.Real(40, 0).Real(40, 0).Real(40, 1).Real(40, 1).Point(10, 1, 1).Point(10, 2, 2).Group(97, "0");
    source.Group(97, "0").Group(75, "1").Group(76, "1").Group(98, "0");
    WithOnly<AcDbHatch>(source, [](const AcDbHatch& hatch) {
        EXPECT_STREQ(hatch.patternName(), L"SOLID");
        EXPECT_TRUE(hatch.isSolidFill());
        ASSERT_EQ(hatch.numLoops(), 2);
        EXPECT_EQ(hatch.loopTypeAt(0), AcDbHatch::kExternal | AcDbHatch::kPolyline);
        EXPECT_EQ(hatch.numEdgesAt(0), 1);
        EXPECT_EQ(hatch.loopTypeAt(1), AcDbHatch::kOutermost);
        EXPECT_EQ(hatch.numEdgesAt(1), 4);
    });
}

TEST(DxfEntities, InsertWithScaleAndRotation)
{
    DxfSource source;
    source.Section("BLOCKS").BeginBlock("A").EndBlock().End().Section("ENTITIES");
    source.Insert("a", 3, 4).Real(41, 2).Real(42, -2).Real(43, 0).Real(50, 180);
    WithOnly<AcDbBlockReference>(source, [](const AcDbBlockReference& reference) {
        EXPECT_EQ(reference.position(), AcGePoint3d(3, 4, 0));
        EXPECT_EQ(reference.scaleFactors(), AcGeScale3d(2, -2, 1));
        EXPECT_NEAR(reference.rotation(), kPi, 1e-12);
        AcDbObjectPointer<AcDbBlockTableRecord> block(reference.blockTableRecord());
        const ACHAR* name = NULL;
        block->getName(name);
        EXPECT_STREQ(name, L"A");
        EXPECT_TRUE(block->isResolved());
    });
}

TEST(DxfEntities, InsertOfRowsAndColumns)
{
    DxfSource source;
    source.Section("BLOCKS").BeginBlock("A").EndBlock().End().Section("ENTITIES");
    source.Insert("A").Group(70, "3").Group(71, "2").Real(44, 10).Real(45, 20);
    WithOnly<AcDbMInsertBlock>(source, [](const AcDbMInsertBlock& reference) {
        EXPECT_EQ(reference.columns(), 3);
        EXPECT_EQ(reference.rows(), 2);
        EXPECT_EQ(reference.columnSpacing(), 10);
        EXPECT_EQ(reference.rowSpacing(), 20);
    });
}

TEST(DxfEntities, ColorLayerVisibilityAndHandle)
{
    DxfSource source;
    source.LayerTable().Layer("L", 3).EndLayerTable().Section("ENTITIES");
    source.Line(0, 0, 1, 1, "l").Group(5, "ABC").Group(62, "5").Group(60, "1");
    WithOnly<AcDbLine>(source, [](const AcDbLine& line) {
        EXPECT_EQ(LayerOf(line), L"L");
        EXPECT_EQ(line.colorIndex(), 5);
        EXPECT_EQ(line.visibility(), AcDb::kInvisible);
        AcDbHandle handle;
        line.getAcDbHandle(handle);
        EXPECT_EQ(handle, AcDbHandle(Adesk::UInt64(0xABC)));
    });
}

TEST(DxfEntities, TrueColor)
{
    WithOnly<AcDbLine>(Entities().Line(0, 0, 1, 1).Group(62, "5").Group(420, "1193046"), [](const AcDbLine& line) {
        EXPECT_TRUE(line.color().isByColor());
        EXPECT_EQ(line.color().red(), 0x12);
        EXPECT_EQ(line.color().green(), 0x34);
        EXPECT_EQ(line.color().blue(), 0x56);
    });
}

TEST(DxfEntities, CountsByType)
{
    DxfSource source = Entities().Line(0, 0, 1, 1).Line(0, 0, 1, 1).Entity("VIEWPORT").Entity("3DSOLID");
    ReadDrawing drawing(source.Entity("3DSOLID").Entity("POINT").Point(10, 0, 0).End().Whole());
    EXPECT_EQ(drawing.result.read, (std::map<std::wstring, int>{{L"LINE", 2}, {L"POINT", 1}}));
    EXPECT_EQ(drawing.result.skipped, (std::map<std::wstring, int>{{L"3DSOLID", 2}, {L"VIEWPORT", 1}}));
    EXPECT_EQ(drawing.result.ReadCount(), 3);
    EXPECT_EQ(drawing.result.SkippedCount(), 3);
}
