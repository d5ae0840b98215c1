#include "DrawingFixture.h"

#include "arx/gi/DisplayList.h"

#include "dbhatch.h"

#include <cmath>

using arxgi::DisplayColor;
using arxgi::DisplayList;
using arxgi::DisplayPrimitive;

namespace
{

constexpr double kFullTurn = 6.28318530717958647692;
constexpr unsigned int kRed = 0xFF0000;
constexpr unsigned int kYellow = 0xFFFF00;
constexpr unsigned int kGreen = 0x00FF00;
constexpr int kByBlock = 0;

AcDbLine* UnitLine()
{
    return new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 0, 0));
}

} // namespace

class DisplayListTest : public DrawingFixture
{
protected:
    DisplayList Build(double unitsPerPixel = 0.01)
    {
        DisplayList list;
        list.Build(m_database, unitsPerPixel);
        return list;
    }

    DisplayColor OnlyColor()
    {
        const DisplayList list = Build();
        EXPECT_EQ(list.primitives().size(), 1u);
        return list.primitives().empty() ? DisplayColor() : list.primitives()[0].color;
    }
};

TEST_F(DisplayListTest, EmptyDrawingIsAnEmptyList)
{
    const DisplayList list = Build();
    EXPECT_TRUE(list.items().empty());
    EXPECT_TRUE(list.box().IsEmpty());
}

TEST_F(DisplayListTest, LineIsAChainOfTwoPoints)
{
    const AcDbObjectId id = AddLine(1, 2, 3, 4);
    const DisplayList list = Build();
    ASSERT_EQ(list.items().size(), 1u);
    EXPECT_EQ(list.items()[0].entity, id);
    ASSERT_EQ(list.primitives().size(), 1u);
    EXPECT_EQ(list.primitives()[0].kind, DisplayPrimitive::kPolyline);
    ASSERT_EQ(list.points().size(), 2u);
    EXPECT_EQ(list.points()[1].x, 3);
    EXPECT_EQ(list.box().maxY, 4);
}

TEST_F(DisplayListTest, CircleClosesAndDeviatesLessThanAPixel)
{
    Add(new AcDbCircle(AcGePoint3d(0, 0, 0), AcGeVector3d::kZAxis, 100));
    const DisplayList coarse = Build(1);
    const DisplayList fine = Build(0.01);
    EXPECT_GT(fine.points().size(), coarse.points().size());
    for (const DisplayList* list : {&coarse, &fine})
    {
        EXPECT_NEAR(list->points().front().x, list->points().back().x, 1e-9);
        EXPECT_NEAR(list->points().front().y, list->points().back().y, 1e-9);
        for (size_t i = 1; i < list->points().size(); ++i)
        {
            const arxgi::Point2& a = list->points()[i - 1];
            const arxgi::Point2& b = list->points()[i];
            EXPECT_LE(100 - std::hypot((a.x + b.x) / 2, (a.y + b.y) / 2), list->chordTolerance() * 1.0001);
        }
    }
}

TEST_F(DisplayListTest, ChordsSuitTheSizeThatABlockIsShownAt)
{
    const AcDbObjectId block = AddBlock(L"Small");
    AddTo(block, new AcDbCircle(AcGePoint3d(0, 0, 0), AcGeVector3d::kZAxis, 0.1));
    AcDbBlockReference* reference = new AcDbBlockReference(AcGePoint3d(0, 0, 0), block);
    reference->setScaleFactors(AcGeScale3d(10000));
    Add(reference);
    EXPECT_GT(Build(1).points().size(), 60u);
}

TEST_F(DisplayListTest, ColorsByIndexByLayerAndForeground)
{
    const AcDbObjectId id = Add(UnitLine(), AddLayer(L"Red", 1));
    EXPECT_EQ(OnlyColor().rgb, kRed);
    EXPECT_FALSE(OnlyColor().isForeground);
    AcDbObjectPointer<AcDbLine>(id, AcDb::kForWrite)->setColorIndex(2);
    EXPECT_EQ(OnlyColor().rgb, kYellow);
    AcDbObjectPointer<AcDbLine>(id, AcDb::kForWrite)->setColorIndex(7);
    EXPECT_TRUE(OnlyColor().isForeground);
    AcDbObjectPointer<AcDbLine>(id, AcDb::kForWrite)->setColorIndex(kByBlock);
    EXPECT_TRUE(OnlyColor().isForeground);
}

TEST_F(DisplayListTest, TrueColor)
{
    AcDbLine* line = UnitLine();
    const AcDbObjectId id = Add(line);
    AcCmColor color;
    color.setRGB(0x12, 0x34, 0x56);
    AcDbObjectPointer<AcDbLine>(id, AcDb::kForWrite)->setColor(color);
    EXPECT_EQ(OnlyColor().rgb, 0x123456u);
}

TEST_F(DisplayListTest, ByBlockIsTheColorOfTheReference)
{
    const AcDbObjectId inner = AddBlock(L"Inner");
    AddTo(inner, UnitLine(), AcDbObjectId(), kByBlock);
    const AcDbObjectId outer = AddBlock(L"Outer");
    AddTo(outer, new AcDbBlockReference(AcGePoint3d(0, 0, 0), inner), AcDbObjectId(), kByBlock);
    Add(new AcDbBlockReference(AcGePoint3d(0, 0, 0), outer), AddLayer(L"Red", 1), 3);
    EXPECT_EQ(OnlyColor().rgb, kGreen);
}

TEST_F(DisplayListTest, LayerZeroInABlockIsTheLayerOfTheReference)
{
    const AcDbObjectId block = AddBlock(L"Block");
    AddTo(block, UnitLine());
    Add(new AcDbBlockReference(AcGePoint3d(0, 0, 0), block), AddLayer(L"Red", 1));
    EXPECT_EQ(OnlyColor().rgb, kRed);
}

TEST_F(DisplayListTest, OwnLayerInABlockStays)
{
    const AcDbObjectId block = AddBlock(L"Block");
    AddTo(block, UnitLine(), AddLayer(L"Yellow", 2));
    Add(new AcDbBlockReference(AcGePoint3d(0, 0, 0), block), AddLayer(L"Red", 1));
    EXPECT_EQ(OnlyColor().rgb, kYellow);
}

TEST_F(DisplayListTest, LayersThatAreOffOrFrozenAndInvisibleEntitiesAreLeftOut)
{
    Add(UnitLine(), AddLayer(L"Off", 1, true));
    Add(UnitLine(), AddLayer(L"Frozen", 1, false, true));
    AcDbLine* hidden = UnitLine();
    hidden->setVisibility(AcDb::kInvisible);
    Add(hidden);
    EXPECT_TRUE(Build().items().empty());
}

TEST_F(DisplayListTest, ReferenceOnALayerThatIsOffShowsItsOtherLayers)
{
    const AcDbObjectId block = AddBlock(L"Block");
    AddTo(block, UnitLine());
    AddTo(block, UnitLine(), AddLayer(L"Yellow", 2));
    Add(new AcDbBlockReference(AcGePoint3d(0, 0, 0), block), AddLayer(L"Off", 1, true));
    EXPECT_EQ(OnlyColor().rgb, kYellow);
}

TEST_F(DisplayListTest, ReferenceOnAFrozenLayerShowsNothing)
{
    const AcDbObjectId block = AddBlock(L"Block");
    AddTo(block, UnitLine(), AddLayer(L"Yellow", 2));
    Add(new AcDbBlockReference(AcGePoint3d(0, 0, 0), block), AddLayer(L"Frozen", 1, false, true));
    EXPECT_TRUE(Build().items().empty());
}

TEST_F(DisplayListTest, ErasedEntitiesAreLeftOut)
{
    const AcDbObjectId id = AddLine(0, 0, 1, 1);
    AcDbObjectPointer<AcDbLine>(id, AcDb::kForWrite)->erase();
    EXPECT_TRUE(Build().items().empty());
}

TEST_F(DisplayListTest, BlocksAreMappedByOriginScaleRotationAndPlace)
{
    const AcDbObjectId block = AddBlock(L"Block", AcGePoint3d(10, 0, 0));
    AddTo(block, new AcDbLine(AcGePoint3d(10, 0, 0), AcGePoint3d(11, 0, 0)));
    AcDbBlockReference* reference = new AcDbBlockReference(AcGePoint3d(100, 50, 0), block);
    reference->setScaleFactors(AcGeScale3d(2));
    reference->setRotation(kFullTurn / 4);
    Add(reference);
    const DisplayList list = Build();
    ASSERT_EQ(list.points().size(), 2u);
    EXPECT_NEAR(list.points()[0].x, 100, 1e-9);
    EXPECT_NEAR(list.points()[0].y, 50, 1e-9);
    EXPECT_NEAR(list.points()[1].x, 100, 1e-9);
    EXPECT_NEAR(list.points()[1].y, 52, 1e-9);
}

TEST_F(DisplayListTest, BlockArrayIsOneItemOfManyPlaces)
{
    const AcDbObjectId block = AddBlock(L"Block");
    AddTo(block, UnitLine());
    const AcDbObjectId id = Add(new AcDbMInsertBlock(AcGePoint3d(0, 0, 0), block, 4, 3, 10, 20));
    const DisplayList list = Build();
    ASSERT_EQ(list.items().size(), 1u);
    EXPECT_EQ(list.items()[0].count, 12u);
    EXPECT_NEAR(list.box().maxX, 31, 1e-9);
    EXPECT_NEAR(list.box().maxY, 40, 1e-9);
    EXPECT_TRUE(BoxOf(id).maxPoint().isEqualTo(AcGePoint3d(31, 40, 0)));
}

TEST_F(DisplayListTest, ExtentsOfATurnedBlockAreExact)
{
    const AcDbObjectId block = AddBlock(L"Block");
    AddTo(block, new AcDbCircle(AcGePoint3d(0, 0, 0), AcGeVector3d::kZAxis, 1));
    AcDbBlockReference* reference = new AcDbBlockReference(AcGePoint3d(0, 0, 0), block);
    reference->setRotation(kFullTurn / 8);
    EXPECT_TRUE(BoxOf(Add(reference)).maxPoint().isEqualTo(AcGePoint3d(1, 1, 0)));
}

TEST_F(DisplayListTest, BlockThatContainsItselfIsShownOnce)
{
    const AcDbObjectId block = AddBlock(L"Block");
    AddTo(block, UnitLine());
    AddTo(block, new AcDbBlockReference(AcGePoint3d(1, 1, 0), block));
    const AcDbObjectId id = Add(new AcDbBlockReference(AcGePoint3d(0, 0, 0), block));
    EXPECT_EQ(Build().primitives().size(), 1u);
    EXPECT_TRUE(BoxOf(id).maxPoint().isEqualTo(AcGePoint3d(1, 0, 0)));
}

TEST_F(DisplayListTest, SolidFillIsAnAreaWithLoopsAndAPatternItsOutlines)
{
    arxents::HatchLoop outer, inner;
    outer.isPolyline = inner.isPolyline = true;
    for (const AcGePoint2d& corner : {AcGePoint2d(0, 0), AcGePoint2d(9, 0), AcGePoint2d(9, 9), AcGePoint2d(0, 9)})
    {
        outer.polyline.vertices.emplace_back(corner, 0);
        inner.polyline.vertices.emplace_back(AcGePoint2d(corner.x / 3 + 3, corner.y / 3 + 3), 0);
    }
    for (bool isSolid : {true, false})
    {
        AcDbHatch* hatch = new AcDbHatch;
        hatch->setSolidFill(isSolid);
        hatch->appendLoop(outer);
        hatch->appendLoop(inner);
        Add(hatch);
    }
    const DisplayList list = Build();
    ASSERT_EQ(list.primitives().size(), 3u);
    const DisplayPrimitive& area = list.primitives()[0];
    EXPECT_EQ(area.kind, DisplayPrimitive::kArea);
    ASSERT_EQ(area.loopCount, 2u);
    EXPECT_EQ(list.loopEnds()[area.firstLoop], 5u);
    EXPECT_EQ(list.loopEnds()[area.firstLoop + 1], 10u);
    EXPECT_EQ(list.primitives()[1].kind, DisplayPrimitive::kPolyline);
}

TEST_F(DisplayListTest, TextStandsOnItsParallelogram)
{
    Add(new AcDbText(AcGePoint3d(1, 2, 0), L"%%c5", 10));
    const DisplayList list = Build();
    ASSERT_EQ(list.primitives().size(), 1u);
    ASSERT_EQ(list.primitives()[0].kind, DisplayPrimitive::kText);
    EXPECT_EQ(list.texts()[list.primitives()[0].text], L"Ø5");
    ASSERT_EQ(list.points().size(), 5u);
    EXPECT_NEAR(list.points()[2].x, 13, 1e-9);
    EXPECT_NEAR(list.points()[2].y, 12, 1e-9);
}

TEST_F(DisplayListTest, EntityOpenForWritingIsLeftOut)
{
    const AcDbObjectId id = AddLine(0, 0, 1, 1);
    AddLine(0, 0, 2, 2);
    AcDbObjectPointer<AcDbLine> writer(id, AcDb::kForWrite);
    EXPECT_EQ(Build().items().size(), 1u);
}

TEST_F(DisplayListTest, DrawingBeyondTheLimitIsCutAndSaysSo)
{
    for (int i = 0; i < 10; ++i)
    {
        AddLine(0, 0, i, 1);
    }
    DisplayList list;
    list.Build(m_database, 1, 21);
    EXPECT_FALSE(list.isTruncated());
    EXPECT_EQ(list.items().size(), 10u);
    list.Build(m_database, 1, 8);
    EXPECT_TRUE(list.isTruncated());
    EXPECT_EQ(list.items().size(), 4u);
}

TEST_F(DisplayListTest, NearManyCirclesTheWholeDrawingIsShownLessSmooth)
{
    constexpr Adesk::UInt16 kMany = 10;
    const AcDbObjectId block = AddBlock(L"Block");
    AddTo(block, new AcDbCircle(AcGePoint3d(0, 0, 0), AcGeVector3d::kZAxis, 1000));
    Add(new AcDbMInsertBlock(AcGePoint3d(0, 0, 0), block, kMany, kMany, 1, 1));
    DisplayList smooth, bounded;
    smooth.Build(m_database, 0.01);
    bounded.Build(m_database, 0.01, smooth.points().size() / 2);
    EXPECT_FALSE(bounded.isTruncated());
    EXPECT_LT(bounded.points().size(), smooth.points().size() / 2);
    EXPECT_EQ(bounded.primitives().size(), static_cast<size_t>(kMany) * kMany);
    EXPECT_EQ(bounded.chordTolerance(), smooth.chordTolerance());
}
