#include "DxfSource.h"
#include "Entities.h"

#include "arx/gi/DisplayList.h"

namespace
{

AcDbObjectId LayerIn(AcDbDatabase& database, const wchar_t* name)
{
    AcDbObjectPointer<AcDbLayerTable> table(database.layerTableId());
    AcDbObjectId id;
    table->getAt(name, id);
    return id;
}

} // namespace

TEST(DxfDrawing, LayersWithColorAndState)
{
    DxfSource source;
    source.LayerTable().Layer("On", 3).Layer("Off", -5).Layer("Frozen", 7, 1).Layer("Locked", 7, 4).EndLayerTable();
    ReadDrawing drawing(source.Whole());
    ASSERT_EQ(drawing.result.error, L"");
    AcDbObjectPointer<AcDbLayerTableRecord> on(LayerIn(drawing.database, L"On"));
    EXPECT_EQ(on->color().colorIndex(), 3);
    EXPECT_FALSE(on->isOff());
    AcDbObjectPointer<AcDbLayerTableRecord> off(LayerIn(drawing.database, L"Off"));
    EXPECT_EQ(off->color().colorIndex(), 5);
    EXPECT_TRUE(off->isOff());
    EXPECT_TRUE(AcDbObjectPointer<AcDbLayerTableRecord>(LayerIn(drawing.database, L"Frozen"))->isFrozen());
    EXPECT_TRUE(AcDbObjectPointer<AcDbLayerTableRecord>(LayerIn(drawing.database, L"Locked"))->isLocked());
}

TEST(DxfDrawing, LayerZeroOfTheFileReplacesTheDefaultOne)
{
    DxfSource source;
    ReadDrawing drawing(source.LayerTable().Layer("0", 1).EndLayerTable().Whole());
    ASSERT_EQ(drawing.result.error, L"");
    EXPECT_EQ(AcDbObjectPointer<AcDbLayerTableRecord>(drawing.database.layerZero())->color().colorIndex(), 1);
}

TEST(DxfDrawing, LimitsAreTheHeaders)
{
    DxfSource source;
    source.Section("HEADER").Group(9, "$LIMMIN").Point(10, -1, -2).Group(9, "$LIMMAX").Point(10, 420, 297).End();
    ReadDrawing drawing(source.Whole());
    EXPECT_EQ(drawing.database.limmin(), AcGePoint2d(-1, -2));
    EXPECT_EQ(drawing.database.limmax(), AcGePoint2d(420, 297));
}

TEST(DxfDrawing, MissingLayerIsAPlaceholderAndReported)
{
    DxfSource source;
    source.LayerTable().Layer("A").EndLayerTable().Section("ENTITIES").Line(0, 0, 1, 1, "A").Line(0, 0, 1, 1, "Gone");
    ReadDrawing drawing(source.End().Whole());
    ASSERT_EQ(drawing.result.error, L"");
    WithEntity<AcDbLine>(drawing.database, 1, [](const AcDbLine& line) { EXPECT_EQ(LayerOf(line), L"Gone"); });
    EXPECT_FALSE(AcDbObjectPointer<AcDbLayerTableRecord>(LayerIn(drawing.database, L"Gone"))->isResolved());
    EXPECT_TRUE(AcDbObjectPointer<AcDbLayerTableRecord>(LayerIn(drawing.database, L"A"))->isResolved());
    ASSERT_EQ(drawing.result.missing.size(), 1u);
    EXPECT_EQ(drawing.result.missing[0].kind, arxdxf::MissingReference::kLayer);
    EXPECT_EQ(drawing.result.missing[0].name, L"Gone");
    EXPECT_EQ(drawing.result.missing[0].entity, ModelSpaceOf(drawing.database)[1]);
}

TEST(DxfDrawing, WithoutALayerTableEveryNameIsALayer)
{
    DxfSource source;
    ReadDrawing drawing(source.Section("ENTITIES").Line(0, 0, 1, 1, "Walls").End().Whole());
    EXPECT_TRUE(drawing.result.missing.empty());
    EXPECT_TRUE(AcDbObjectPointer<AcDbLayerTableRecord>(LayerIn(drawing.database, L"Walls"))->isResolved());
}

TEST(DxfDrawing, MissingBlockIsAnEmptyPlaceholderAndReported)
{
    DxfSource source;
    ReadDrawing drawing(source.Section("ENTITIES").Insert("Gone").End().Whole());
    ASSERT_EQ(drawing.result.error, L"");
    WithEntity<AcDbBlockReference>(drawing.database, 0, [](const AcDbBlockReference& reference) {
        AcDbObjectPointer<AcDbBlockTableRecord> block(reference.blockTableRecord());
        ASSERT_EQ(block.openStatus(), Acad::eOk);
        EXPECT_FALSE(block->isResolved());
        EXPECT_TRUE(block->entityIds().isEmpty());
        const ACHAR* name = NULL;
        block->getName(name);
        EXPECT_STREQ(name, L"Gone");
        AcDbExtents box;
        EXPECT_EQ(reference.getGeomExtents(box), Acad::eNullExtents);
    });
    ASSERT_EQ(drawing.result.missing.size(), 1u);
    EXPECT_EQ(drawing.result.missing[0].kind, arxdxf::MissingReference::kBlock);
    EXPECT_EQ(drawing.result.missing[0].name, L"Gone");
    EXPECT_EQ(drawing.result.missing[0].line, 5);
}

TEST(DxfDrawing, BlockMayNameOneThatComesLater)
{
    DxfSource source;
    source.Section("BLOCKS").BeginBlock("A").Insert("B", 10, 0).EndBlock();
    source.BeginBlock("B").Line(0, 0, 1, 1).EndBlock().End().Section("ENTITIES").Insert("A", 100, 0).End();
    ReadDrawing drawing(source.Whole());
    ASSERT_EQ(drawing.result.error, L"");
    WithEntity<AcDbBlockReference>(drawing.database, 0, [](const AcDbBlockReference& reference) {
        AcDbExtents box;
        ASSERT_EQ(reference.getGeomExtents(box), Acad::eOk);
        EXPECT_EQ(box.minPoint(), AcGePoint3d(110, 0, 0));
        EXPECT_EQ(box.maxPoint(), AcGePoint3d(111, 1, 0));
    });
}

TEST(DxfDrawing, PaperSpaceDoesNotReachModelSpace)
{
    DxfSource source;
    source.Section("ENTITIES").Line(0, 0, 1, 1).Line(0, 0, 500, 500).Group(67, "1").End();
    ReadDrawing drawing(source.Whole());
    EXPECT_EQ(drawing.result.read[L"LINE"], 2);
    EXPECT_EQ(ModelSpaceOf(drawing.database).size(), 1u);
}

TEST(DxfDrawing, EntitiesOfTheModelSpaceBlockAreTheDrawings)
{
    DxfSource source;
    source.Section("BLOCKS").BeginBlock("*MODEL_SPACE").Line(0, 0, 1, 1).EndBlock();
    source.BeginBlock("$PAPER_SPACE").Line(0, 0, 1, 1).EndBlock().End();
    ReadDrawing drawing(source.Whole());
    EXPECT_EQ(ModelSpaceOf(drawing.database).size(), 1u);
}

TEST(DxfDrawing, HandlesThatTheDefaultDrawingUsesAreStillTheFiles)
{
    DxfSource source;
    source.Section("ENTITIES");
    for (const char* handle : {"1", "2", "3", "4", "5", "6", "7"})
    {
        source.Line(0, 0, 1, 1).Group(5, handle);
    }
    ReadDrawing drawing(source.End().Whole());
    const std::vector<AcDbObjectId> ids = ModelSpaceOf(drawing.database);
    ASSERT_EQ(ids.size(), 7u);
    for (size_t i = 0; i < ids.size(); ++i)
    {
        EXPECT_EQ(ids[i].handle(), AcDbHandle(Adesk::UInt64(i + 1)));
    }
}

TEST(DxfDrawing, ManyEntitiesAreReadWhole)
{
    constexpr int kMany = 100000;
    DxfSource line;
    line.Line(0, 0, 1, 1);
    std::string text = DxfSource().Section("ENTITIES").Text();
    for (int i = 0; i < kMany; ++i)
    {
        text += line.Text();
    }
    ReadDrawing drawing(text + DxfSource().End().Whole());
    ASSERT_EQ(drawing.result.error, L"");
    EXPECT_EQ(drawing.result.read[L"LINE"], kMany);
    arxgi::DisplayList list;
    list.Build(drawing.database, 1);
    EXPECT_EQ(list.items().size(), static_cast<size_t>(kMany));
}
