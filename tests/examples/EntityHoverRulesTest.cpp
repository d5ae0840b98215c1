// What the hover window says about an entity, and when that is news.
#include "entity_hover/EntityProperties.h"
#include "entity_hover/HoverMemory.h"
#include "entity_hover/PropertyText.h"

#include <dbapserv.h>
#include <dbents.h>
#include <dbhatch.h>
#include <dbmtext.h>
#include <dbsymtb.h>

#include "arx/ed/HostServices.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

using namespace entity_hover;

namespace
{

const double kPi = 3.14159265358979323846;

template<class ROW>
std::string NameOf(const testing::TestParamInfo<ROW>& row)
{
    return row.param.name;
}

struct NumberRow
{
    const char* name;
    double number;
    const wchar_t* text;
};

class NumberTable : public testing::TestWithParam<NumberRow>
{
};

TEST_P(NumberTable, IsWrittenShort)
{
    EXPECT_EQ(GetParam().text, NumberText(GetParam().number));
}

const NumberRow kNumbers[] = {
    {"Whole", 25, L"25"},
    {"WholeWithZerosOfItsOwn", 100, L"100"},
    {"OneDecimal", 12.5, L"12.5"},
    {"FourDecimals", 0.1234, L"0.1234"},
    {"FifthDecimalIsRounded", 0.12346, L"0.1235"},
    {"Negative", -3.25, L"-3.25"},
    {"Zero", 0, L"0"},
    {"NegativeZero", -0.0, L"0"},
    {"TooSmallAndNegative", -0.00001, L"0"},
    {"Huge", 1e20, L"100000000000000000000"},
    {"NoNumber", NAN, L"nan"},
};

INSTANTIATE_TEST_SUITE_P(EntityHover, NumberTable, testing::ValuesIn(kNumbers), NameOf<NumberRow>);

struct AngleRow
{
    const char* name;
    double radians;
    const wchar_t* text;
};

class AngleTable : public testing::TestWithParam<AngleRow>
{
};

TEST_P(AngleTable, IsWrittenInDegreesOfOneTurn)
{
    EXPECT_EQ(GetParam().text, AngleText(GetParam().radians));
}

const AngleRow kAngles[] = {
    {"Zero", 0, L"0°"},
    {"Quarter", kPi / 2, L"90°"},
    {"Negative", -kPi / 2, L"270°"},
    {"WholeTurn", 2 * kPi, L"0°"},
    {"MoreThanATurn", 2.5 * kPi, L"90°"},
    {"NearlyAWholeTurn", 2 * kPi - 1e-9, L"0°"},
    {"NearlyNothingAndNegative", -1e-9, L"0°"},
    {"WithDecimals", kPi / 16, L"11.25°"},
};

INSTANTIATE_TEST_SUITE_P(EntityHover, AngleTable, testing::ValuesIn(kAngles), NameOf<AngleRow>);

struct ExcerptRow
{
    const char* name;
    std::wstring text;
    std::wstring excerpt;
};

class ExcerptTable : public testing::TestWithParam<ExcerptRow>
{
};

TEST_P(ExcerptTable, IsOneShortLine)
{
    EXPECT_EQ(GetParam().excerpt, Excerpt(GetParam().text));
}

const ExcerptRow kExcerpts[] = {
    {"Short", L"技术要求", L"技术要求"},
    {"Empty", L"", L"（空）"},
    {"Blanks", L"  \n ", L"（空）"},
    {"LineEnds", L"a\r\nb\tc", L"a  b c"},
    {"Paragraphs", L"a\\Pb\\Pc", L"a b c"},
    {"ThirtyCharacters", std::wstring(30, L'x'), std::wstring(30, L'x')},
    {"OneMoreIsCut", std::wstring(31, L'x'), std::wstring(30, L'x') + L"…"},
};

INSTANTIATE_TEST_SUITE_P(EntityHover, ExcerptTable, testing::ValuesIn(kExcerpts), NameOf<ExcerptRow>);

AcCmColor Indexed(Adesk::UInt16 index)
{
    AcCmColor color;
    color.setColorIndex(index);
    return color;
}

// Entities of a drawing with the layer "轴线" in red.
class EntityProperties : public testing::Test
{
protected:
    EntityProperties()
    {
        arxhost::Reset();
        arxhost::NewDocument();
        AddLayer(L"轴线", 1);
    }
    ~EntityProperties() override { arxhost::Reset(); }

    static AcDbDatabase& Database() { return *acdbHostApplicationServices()->workingDatabase(); }

    static void AddLayer(const wchar_t* name, Adesk::UInt16 color)
    {
        AcDbLayerTable* layers = nullptr;
        ASSERT_EQ(Acad::eOk, Database().getSymbolTable(layers, AcDb::kForWrite));
        AcDbLayerTableRecord* const layer = new AcDbLayerTableRecord;
        layer->setName(name);
        layer->setColor(Indexed(color));
        EXPECT_EQ(Acad::eOk, layers->add(layer));
        layer->close();
        layers->close();
    }

    static void Append(AcDbEntity* entity)
    {
        AcDbBlockTableRecord* space = nullptr;
        ASSERT_EQ(Acad::eOk, acdbOpenObject(space, Database().currentSpaceId(), AcDb::kForWrite));
        EXPECT_EQ(Acad::eOk, space->appendAcDbEntity(entity));
        space->close();
    }

    // Of an entity on the red layer, without the handle, which the drawing gives.
    static Lines Of(AcDbEntity* entity)
    {
        Append(entity);
        entity->setLayer(L"轴线");
        Lines lines = PropertiesOf(*entity);
        AcDbHandle handle;
        entity->getAcDbHandle(handle);
        wchar_t digits[AcDbHandle::kStrSiz] = L"";
        handle.getIntoAsciiBuffer(digits, AcDbHandle::kStrSiz);
        EXPECT_EQ(std::wstring(L"句柄: ") + digits, lines.back());
        EXPECT_GT(wcslen(digits), 0u);
        lines.pop_back();
        entity->close();
        return lines;
    }

    static Lines With(const wchar_t* kind, const Lines& geometry)
    {
        Lines lines = {std::wstring(L"类型: ") + kind, L"图层: 轴线", L"颜色: 随层（红）"};
        lines.insert(lines.end(), geometry.begin(), geometry.end());
        return lines;
    }
};

} // namespace

TEST(EntityHoverText, ThirdCoordinateIsShownWhereItIsNotZero)
{
    EXPECT_EQ(L"1.5, -2", PointText(AcGePoint3d(1.5, -2, 0)));
    EXPECT_EQ(L"1.5, -2", PointText(AcGePoint3d(1.5, -2, 1e-9)));
    EXPECT_EQ(L"1.5, -2, 3", PointText(AcGePoint3d(1.5, -2, 3)));
}

TEST(EntityHoverText, ColorsAreNamedWhereTheyHaveAName)
{
    AcCmColor trueColor;
    trueColor.setRGB(255, 128, 0);
    EXPECT_EQ(L"随层", ColorText(AcCmColor()));
    EXPECT_EQ(L"随块", ColorText(Indexed(0)));
    EXPECT_EQ(L"红", ColorText(Indexed(1)));
    EXPECT_EQ(L"白", ColorText(Indexed(7)));
    EXPECT_EQ(L"8 号", ColorText(Indexed(8)));
    EXPECT_EQ(L"255 号", ColorText(Indexed(255)));
    EXPECT_EQ(L"255,128,0", ColorText(trueColor));
}

TEST_F(EntityProperties, OfALine)
{
    EXPECT_EQ(With(L"直线", {L"起点: 1, 2", L"终点: 4, 6", L"长度: 5", L"角度: 53.1301°"}),
              Of(new AcDbLine(AcGePoint3d(1, 2, 0), AcGePoint3d(4, 6, 0))));
}

TEST_F(EntityProperties, OfACircle)
{
    EXPECT_EQ(With(L"圆", {L"圆心: 10, 20", L"半径: 25"}),
              Of(new AcDbCircle(AcGePoint3d(10, 20, 0), AcGeVector3d::kZAxis, 25)));
}

TEST_F(EntityProperties, OfAnArc)
{
    EXPECT_EQ(With(L"圆弧", {L"圆心: 1, 1", L"半径: 3", L"起始角: 0°", L"终止角: 90°"}),
              Of(new AcDbArc(AcGePoint3d(1, 1, 0), 3, 0, kPi / 2)));
}

TEST_F(EntityProperties, OfAClosedPolylineCountItsLastSideAsWell)
{
    AcDbPolyline* const square = new AcDbPolyline;
    for (const AcGePoint2d& corner : {AcGePoint2d(0, 0), AcGePoint2d(2, 0), AcGePoint2d(2, 2), AcGePoint2d(0, 2)})
        square->addVertexAt(square->numVerts(), corner);
    square->setClosed(true);
    EXPECT_EQ(With(L"多段线", {L"顶点数: 4", L"闭合: 是", L"长度: 8"}), Of(square));
}

TEST_F(EntityProperties, OfAPolylineWithAHalfCircle)
{
    AcDbPolyline* const polyline = new AcDbPolyline;
    polyline->addVertexAt(0, AcGePoint2d(0, 0), -1);
    polyline->addVertexAt(1, AcGePoint2d(2, 0));
    polyline->addVertexAt(2, AcGePoint2d(5, 0));
    EXPECT_EQ(With(L"多段线", {L"顶点数: 3", L"闭合: 否", L"长度: 6.1416"}), Of(polyline));
}

TEST_F(EntityProperties, OfAPolylineWithoutVertices)
{
    EXPECT_EQ(With(L"多段线", {L"顶点数: 0", L"闭合: 否", L"长度: 0"}), Of(new AcDbPolyline));
}

TEST_F(EntityProperties, OfAnEllipse)
{
    EXPECT_EQ(With(L"椭圆", {L"中心: 5, 6", L"长半轴: 10", L"短半轴: 4"}),
              Of(new AcDbEllipse(AcGePoint3d(5, 6, 0), AcGeVector3d::kZAxis, AcGeVector3d(10, 0, 0), 0.4)));
}

TEST_F(EntityProperties, OfAnotherCurveAreItsEnds)
{
    AcDb2dPolyline* const polyline = new AcDb2dPolyline;
    polyline->appendVertex(AcGePoint2d(1, 1));
    polyline->appendVertex(AcGePoint2d(3, 4));
    EXPECT_EQ(With(L"二维多段线", {L"起点: 1, 1", L"终点: 3, 4", L"闭合: 否"}), Of(polyline));
}

TEST_F(EntityProperties, OfAPoint)
{
    EXPECT_EQ(With(L"点", {L"位置: 1, 2, 3"}), Of(new AcDbPoint(AcGePoint3d(1, 2, 3))));
}

TEST_F(EntityProperties, OfTexts)
{
    EXPECT_EQ(With(L"单行文字", {L"内容: 技术要求", L"位置: 3, 4", L"字高: 5"}),
              Of(new AcDbText(AcGePoint3d(3, 4, 0), L"技术要求", 5)));
    AcDbMText* const paragraph = new AcDbMText;
    paragraph->setContents(L"去毛刺\\P发黑");
    paragraph->setLocation(AcGePoint3d(7, 8, 0));
    paragraph->setTextHeight(2.5);
    EXPECT_EQ(With(L"多行文字", {L"内容: 去毛刺 发黑", L"位置: 7, 8", L"字高: 2.5"}), Of(paragraph));
}

TEST_F(EntityProperties, OfABlock)
{
    AcDbBlockTable* blocks = nullptr;
    ASSERT_EQ(Acad::eOk, Database().getSymbolTable(blocks, AcDb::kForWrite));
    AcDbBlockTableRecord* const block = new AcDbBlockTableRecord;
    block->setName(L"M12 螺栓");
    EXPECT_EQ(Acad::eOk, blocks->add(block));
    const AcDbObjectId id = block->objectId();
    block->close();
    blocks->close();
    AcDbBlockReference* const reference = new AcDbBlockReference(AcGePoint3d(1, 2, 0), id);
    reference->setScaleFactors(AcGeScale3d(2, 2, 1));
    reference->setRotation(kPi);
    EXPECT_EQ(With(L"图块", {L"名称: M12 螺栓", L"插入点: 1, 2", L"比例: 2, 2, 1", L"旋转: 180°"}), Of(reference));
}

TEST_F(EntityProperties, OfOtherKindsAreTheCommonOnes)
{
    EXPECT_EQ(With(L"二维填充", {}), Of(new AcDbSolid(AcGePoint3d(), AcGePoint3d(1, 0, 0), AcGePoint3d(0, 1, 0))));
}

TEST_F(EntityProperties, AColorOfItsOwnHidesTheLayers)
{
    AcDbLine line(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 0, 0));
    line.setColorIndex(3);
    EXPECT_EQ(L"颜色: 绿", PropertiesOf(line)[2]);
}

TEST_F(EntityProperties, OutsideOfADrawingTheLayerIsUnknown)
{
    const AcDbPoint point(AcGePoint3d(1, 1, 0));
    EXPECT_EQ((Lines{L"类型: 点", L"图层: ？", L"颜色: 随层", L"位置: 1, 1", L"句柄: 0"}), PropertiesOf(point));
}

TEST(HoverMemory, FirstTextsAreNews)
{
    EXPECT_TRUE(CHoverMemory().IsNews({L"a"}, false));
    EXPECT_TRUE(CHoverMemory().IsNews({L"a"}, true)) << "a pinned window of the time before";
}

TEST(HoverMemory, SameTextsAreNoNewsWhileTheWindowIsShown)
{
    CHoverMemory memory;
    memory.Posted({L"a"}, CPoint(100, 100));
    EXPECT_FALSE(memory.IsNews({L"a"}, true));
    memory.MovedTo(CPoint(500, 500));
    EXPECT_FALSE(memory.IsNews({L"a"}, true));
}

TEST(HoverMemory, OtherTextsAreNewsInAnyCase)
{
    CHoverMemory memory;
    memory.Posted({L"a"}, CPoint(100, 100));
    EXPECT_TRUE(memory.IsNews({L"b"}, true));
    EXPECT_TRUE(memory.IsNews({L"b"}, false));
    EXPECT_TRUE(memory.IsNews({L"a", L"b"}, true));
}

TEST(HoverMemory, AWindowThatTheUserClosedStaysClosedWhileTheHandTrembles)
{
    CHoverMemory memory;
    memory.Posted({L"a"}, CPoint(100, 100));
    memory.MovedTo(CPoint(106, 108)); // exactly ten pixels
    EXPECT_FALSE(memory.IsNews({L"a"}, false));
}

TEST(HoverMemory, SameTextsAreNewsOnceTheCursorWasAway)
{
    CHoverMemory memory;
    memory.Posted({L"a"}, CPoint(100, 100));
    memory.MovedTo(CPoint(111, 100));
    memory.MovedTo(CPoint(100, 100));
    EXPECT_TRUE(memory.IsNews({L"a"}, false));
    memory.Posted({L"a"}, CPoint(100, 100));
    EXPECT_FALSE(memory.IsNews({L"a"}, false));
}

TEST(HoverMemory, AfterItForgotEverythingIsNews)
{
    CHoverMemory memory;
    memory.Posted({L"a"}, CPoint(100, 100));
    memory.Forget();
    EXPECT_TRUE(memory.IsNews({L"a"}, true));
}
