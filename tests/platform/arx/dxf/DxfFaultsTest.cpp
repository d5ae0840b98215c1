#include "DxfSource.h"
#include "Entities.h"

#include "arx/dxf/BlockCheck.h"

#include <string>

namespace
{

DxfSource Entities()
{
    DxfSource source;
    source.Section("ENTITIES");
    return source;
}

// What the user sees, once, and nothing of the file in the drawing.
void ExpectError(const std::string& text, int line, const std::wstring& message)
{
    ReadDrawing drawing(text);
    EXPECT_FALSE(drawing.succeeded);
    EXPECT_EQ(drawing.result.error, message);
    EXPECT_EQ(drawing.result.errorLine, line);
    EXPECT_TRUE(drawing.result.warnings.empty());
    EXPECT_EQ(drawing.result.ReadCount(), 0);
    EXPECT_TRUE(ModelSpaceOf(drawing.database).empty());
}

void ExpectWarning(const std::string& text, const std::wstring& message)
{
    ReadDrawing drawing(text);
    EXPECT_TRUE(drawing.succeeded) << drawing.result.errorLine;
    ASSERT_EQ(drawing.result.warnings.size(), 1u);
    EXPECT_EQ(drawing.result.warnings[0], message);
}

} // namespace

TEST(DxfFaults, EmptyFile)
{
    ExpectError("", 0, L"文件是空的");
}

TEST(DxfFaults, MissingFileNamesThePath)
{
    AcDbDatabase database(true);
    arxdxf::DxfResult result;
    EXPECT_FALSE(arxdxf::ReadDxf(L"C:\\no such folder\\a.dxf", database, result));
    EXPECT_EQ(result.error, L"无法打开文件：C:\\no such folder\\a.dxf（找不到文件）");
}

TEST(DxfFaults, BinaryDxf)
{
    ExpectError(std::string("AutoCAD Binary DXF\r\n\x1A\0", 22), 0, L"这是二进制 DXF 文件，请另存为文本（ASCII）DXF");
}

TEST(DxfFaults, Dwg)
{
    ExpectError(std::string("AC1021\0\0\0\0", 10), 0, L"这是 DWG 文件，请另存为文本（ASCII）DXF");
}

TEST(DxfFaults, OtherKindsOfFiles)
{
    ExpectError("<html>\n<body>\n", 1, L"第 1 行：不是 DXF 文件");
    ExpectError(std::string("\x89PNG\r\n\x1A\n\0\0\0\x0D", 12), 1, L"第 1 行：不是 DXF 文件");
    ExpectError("10\n20\n30\n40\n", 1, L"第 1 行：不是 DXF 文件");
    ExpectError("\n", 1, L"第 1 行：不是 DXF 文件");
}

TEST(DxfFaults, BinaryRubbishInTheMiddle)
{
    std::string text = Entities().Line(0, 0, 1, 1).Text();
    text += std::string("\0\x01\x02\x03\n", 5);
    ExpectError(text, 17, L"第 17 行：含有二进制数据，不是文本");
}

TEST(DxfFaults, CutOffAtEveryLineIsAnErrorNeverHalfADrawing)
{
    DxfSource source;
    source.Header("AC1015").LayerTable().Layer("A").EndLayerTable().Section("ENTITIES").Line(0, 0, 1, 1, "A").End();
    const std::string whole = source.Whole();
    for (size_t end = whole.find('\n'); end + 1 < whole.size(); end = whole.find('\n', end + 1))
    {
        const std::string part = whole.substr(0, end + 1);
        ReadDrawing drawing(part);
        EXPECT_FALSE(drawing.succeeded) << part;
        EXPECT_NE(drawing.result.error, L"") << part;
        EXPECT_TRUE(ModelSpaceOf(drawing.database).empty()) << part;
    }
    EXPECT_TRUE(ReadDrawing(whole).succeeded);
}

TEST(DxfFaults, CutOffBetweenGroups)
{
    ExpectError(Entities().Line(0, 0, 1, 1).Text(), 16, L"第 16 行：文件不完整，没有 EOF");
}

TEST(DxfFaults, CutOffAfterACode)
{
    ExpectError(Entities().Line(0, 0, 1, 1).Text() + "10\n", 17, L"第 17 行：文件不完整，组码 10 之后没有值");
}

TEST(DxfFaults, SectionWithoutEnd)
{
    ExpectError(Entities().Line(0, 0, 1, 1).Whole(), 17, L"第 17 行：ENTITIES 节没有 ENDSEC");
}

TEST(DxfFaults, RecordOutsideOfSections)
{
    DxfSource source;
    ExpectError(source.Section("HEADER").End().Line(0, 0, 1, 1).Whole(), 7,
                L"第 7 行：此处应为 SECTION 或 EOF，却是“LINE”");
}

TEST(DxfFaults, GroupsBetweenSectionsAreIgnoredWithOneWarning)
{
    DxfSource source;
    source.Section("HEADER").End().Group(9, "$DIMASZ").Group(40, "3").End().Section("ENTITIES").End();
    ExpectWarning(source.Whole(), L"第 7 行：节之外的内容已忽略");
}

TEST(DxfFaults, TextAfterTheEnd)
{
    DxfSource source;
    ExpectWarning(source.Section("ENTITIES").End().Whole() + "leftover\n", L"第 9 行：EOF 之后还有内容，已忽略");
}

TEST(DxfFaults, BlanksAfterTheEndAreFine)
{
    DxfSource source;
    EXPECT_TRUE(ReadDrawing(source.Section("ENTITIES").End().Whole() + " \n\n").result.warnings.empty());
}

TEST(DxfFaults, GroupCodeThatIsNoNumber)
{
    ExpectError(Entities().Line(0, 0, 1, 1).Text() + "xyz\n1\n", 17, L"第 17 行：组码“xyz”不是数字");
}

TEST(DxfFaults, ValuesThatAreNoNumbers)
{
    ExpectError(Entities().Entity("LINE").Group(10, "abc").Group(20, "0").Point(11, 1, 1).End().Whole(), 10,
                L"第 10 行：组码 10 的值“abc”不是数字");
    ExpectError(Entities().Entity("LINE").Group(10, "").Group(20, "0").Point(11, 1, 1).End().Whole(), 10,
                L"第 10 行：组码 10 的值“”不是数字");
    ExpectError(Entities().Entity("LINE").Group(10, "1,5").Group(20, "0").Point(11, 1, 1).End().Whole(), 10,
                L"第 10 行：组码 10 的值“1,5”不是数字");
    ExpectError(Entities().Entity("LINE").Group(10, "nan").Group(20, "0").Point(11, 1, 1).End().Whole(), 10,
                L"第 10 行：组码 10 的值“nan”超出范围");
    ExpectError(Entities().Entity("LINE").Group(10, "1e999").Group(20, "0").Point(11, 1, 1).End().Whole(), 10,
                L"第 10 行：组码 10 的值“1e999”超出范围");
    ExpectError(Entities().Entity("LINE").Group(62, "red").Point(10, 0, 0).Point(11, 1, 1).End().Whole(), 10,
                L"第 10 行：组码 62 的值“red”不是数字");
    ExpectError(Entities().Entity("LINE").Group(62, "1.5").Point(10, 0, 0).Point(11, 1, 1).End().Whole(), 10,
                L"第 10 行：组码 62 的值“1.5”不是整数");
}

TEST(DxfFaults, NumbersMayHaveSignsExponentsAndTinyValues)
{
    ReadDrawing drawing(Entities()
                            .Entity("LINE")
                            .Group(10, "+1.5E+1")
                            .Group(20, " -2e-1")
                            .Group(11, "1e-999")
                            .Group(21, ".5")
                            .End()
                            .Whole());
    ASSERT_EQ(drawing.result.error, L"");
    WithEntity<AcDbLine>(drawing.database, 0, [](const AcDbLine& line) {
        EXPECT_EQ(line.startPoint(), AcGePoint3d(15, -0.2, 0));
        EXPECT_EQ(line.endPoint(), AcGePoint3d(0, 0.5, 0));
    });
}

TEST(DxfFaults, MissingData)
{
    ExpectError(Entities().Entity("LINE").Point(10, 0, 0).End().Whole(), 5, L"第 5 行：LINE 缺少组码 11");
    ExpectError(Entities().Entity("CIRCLE").Point(10, 0, 0).End().Whole(), 5, L"第 5 行：CIRCLE 缺少组码 40");
    ExpectError(Entities().Entity("INSERT").Point(10, 0, 0).End().Whole(), 5, L"第 5 行：INSERT 没有图块名");
    ExpectError(Entities().Entity("HATCH").Group(2, "SOLID").Group(91, "1").End().Whole(), 5,
                L"第 5 行：HATCH 的边界不完整，缺少组码 92");
}

TEST(DxfFaults, ContradictoryData)
{
    ExpectError(Entities().Entity("CIRCLE").Point(10, 0, 0).Real(40, -1).End().Whole(), 5,
                L"第 5 行：CIRCLE 的半径为负");
    ExpectError(Entities().Entity("ELLIPSE").Point(10, 0, 0).Point(11, 0, 0).Real(40, 1).End().Whole(), 5,
                L"第 5 行：ELLIPSE 的轴长无效");
    ExpectError(Entities().Entity("SPLINE").Group(71, "3").Point(10, 0, 0).Point(10, 1, 1).End().Whole(), 5,
                L"第 5 行：SPLINE 的控制点、节点和阶数不一致");
}

TEST(DxfFaults, PolylineWithoutItsEnd)
{
    ExpectError(Entities().Entity("POLYLINE").Entity("VERTEX").Point(10, 0, 0).Line(0, 0, 1, 1).End().Whole(), 5,
                L"第 5 行：POLYLINE 没有 SEQEND");
}

TEST(DxfFaults, DoubledHandleIsMendedWithAWarning)
{
    DxfSource source = Entities();
    source.Line(0, 0, 1, 1).Group(5, "1A").Line(2, 2, 3, 3).Group(5, "1A").End();
    ReadDrawing drawing(source.Whole());
    ASSERT_EQ(drawing.result.warnings.size(), 1u);
    EXPECT_EQ(drawing.result.warnings[0], L"第 32 行：句柄“1A”重复，已分配新句柄");
    const std::vector<AcDbObjectId> ids = ModelSpaceOf(drawing.database);
    ASSERT_EQ(ids.size(), 2u);
    EXPECT_EQ(ids[0].handle(), AcDbHandle(Adesk::UInt64(0x1A)));
    EXPECT_NE(ids[1].handle(), ids[0].handle());
    EXPECT_FALSE(ids[1].handle().isNull());
}

TEST(DxfFaults, HandlesThatAreNone)
{
    ExpectWarning(Entities().Line(0, 0, 1, 1).Group(5, "").End().Whole(), L"第 18 行：句柄为空，已分配新句柄");
    ExpectWarning(Entities().Line(0, 0, 1, 1).Group(5, "XYZ").End().Whole(), L"第 18 行：句柄“XYZ”无效，已分配新句柄");
    ExpectWarning(Entities().Line(0, 0, 1, 1).Group(5, "0").End().Whole(), L"第 18 行：句柄“0”无效，已分配新句柄");
}

TEST(DxfFaults, ManyWarningsEndInACount)
{
    DxfSource source = Entities();
    for (int i = 0; i < 103; ++i)
    {
        source.Line(0, 0, 1, 1).Group(5, "");
    }
    ReadDrawing drawing(source.End().Whole());
    ASSERT_EQ(drawing.result.warnings.size(), 101u);
    EXPECT_EQ(drawing.result.warnings.back(), L"另有 3 条警告");
}

TEST(DxfFaults, BlockThatContainsItself)
{
    DxfSource source;
    source.Section("BLOCKS").BeginBlock("A").Insert("A").EndBlock().End();
    ExpectError(source.Whole(), 13, L"第 13 行：图块循环引用：A → A");
}

TEST(DxfFaults, BlocksThatContainEachOther)
{
    DxfSource source;
    source.Section("BLOCKS").BeginBlock("A").Insert("B").EndBlock().BeginBlock("B").Insert("C").EndBlock();
    source.BeginBlock("C").Insert("a").EndBlock().End();
    ExpectError(source.Whole(), 53, L"第 53 行：图块循环引用：A → B → C → A");
}

TEST(DxfFaults, BlocksNestedTooDeep)
{
    const auto chain = [](int levels) {
        DxfSource source;
        source.Section("BLOCKS");
        for (int i = 1; i < levels; ++i)
        {
            source.BeginBlock("B" + std::to_string(i)).Insert("B" + std::to_string(i + 1)).EndBlock();
        }
        source.BeginBlock("B" + std::to_string(levels)).Line(0, 0, 1, 1).EndBlock().End();
        return source.Section("ENTITIES").Insert("B1").End().Whole();
    };
    EXPECT_TRUE(ReadDrawing(chain(arxdxf::kMaxBlockDepth)).succeeded);
    const ReadDrawing tooDeep(chain(arxdxf::kMaxBlockDepth + 1));
    EXPECT_FALSE(tooDeep.succeeded);
    EXPECT_NE(tooDeep.result.error.find(L"图块嵌套超过 100 层"), std::wstring::npos);
    EXPECT_FALSE(ReadDrawing(chain(50000)).succeeded);
}

TEST(DxfFaults, BlocksThatMultiplyBeyondAllBounds)
{
    DxfSource source;
    source.Section("BLOCKS");
    for (int i = 0; i < 30; ++i)
    {
        source.BeginBlock("B" + std::to_string(i));
        source.Insert("B" + std::to_string(i + 1)).Insert("B" + std::to_string(i + 1)).EndBlock();
    }
    source.BeginBlock("B30").Line(0, 0, 1, 1).EndBlock().End();
    const ReadDrawing drawing(source.Whole());
    EXPECT_FALSE(drawing.succeeded);
    EXPECT_NE(drawing.result.error.find(L"图块展开后的图元超过 10000000 个"), std::wstring::npos);
}

TEST(DxfFaults, BlockArrayBeyondAllBounds)
{
    DxfSource source;
    source.Section("BLOCKS").BeginBlock("A").Line(0, 0, 1, 1).EndBlock().End().Section("ENTITIES");
    source.Insert("A").Group(70, "32767").Group(71, "32767").End();
    ExpectError(source.Whole(), 33, L"第 33 行：图块展开后的图元超过 10000000 个");
}

TEST(DxfFaults, BlockWithoutEnd)
{
    DxfSource source;
    ExpectError(source.Section("BLOCKS").BeginBlock("A").Line(0, 0, 1, 1).End().Whole(), 25,
                L"第 25 行：图块“A”没有 ENDBLK");
}

TEST(DxfFaults, DoubledBlocksAndLayersKeepTheFirst)
{
    DxfSource source;
    source.Section("BLOCKS").BeginBlock("A").Line(0, 0, 1, 1).EndBlock().BeginBlock("a").EndBlock().End();
    source.Section("ENTITIES").Insert("A").End();
    ReadDrawing drawing(source.Whole());
    ASSERT_EQ(drawing.result.warnings.size(), 1u);
    EXPECT_EQ(drawing.result.warnings[0], L"第 27 行：图块“a”重复定义，后一个已忽略");
    WithEntity<AcDbBlockReference>(drawing.database, 0, [](const AcDbBlockReference& reference) {
        AcDbObjectPointer<AcDbBlockTableRecord> block(reference.blockTableRecord());
        EXPECT_EQ(block->entityIds().length(), 1);
    });

    DxfSource layers;
    ExpectWarning(layers.LayerTable().Layer("A").Layer("A").EndLayerTable().Whole(),
                  L"第 17 行：图层“A”重复定义，后一个已忽略");
}

TEST(DxfFaults, UnknownColorBecomesByLayer)
{
    ExpectWarning(Entities().Line(0, 0, 1, 1).Group(62, "300").End().Whole(), L"第 18 行：颜色 300 无效，已改为随层");
}
