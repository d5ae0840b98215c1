#include "arx/dxf/DxfText.h"

#include "DxfSource.h"
#include "Entities.h"

using arxdxf::CodePageOf;
using arxdxf::DxfText;

namespace
{

std::wstring Decode(const DxfText& text, std::string_view bytes)
{
    bool wasValid = true;
    return text.Decode(bytes, wasValid);
}

DxfText WithCodePage(unsigned int codePage)
{
    DxfText text;
    text.SetCodePage(codePage);
    return text;
}

DxfText Utf8()
{
    DxfText text;
    text.SetUtf8(true);
    return text;
}

// A file with one text, and the text as the entity has it.
std::wstring TextIn(const std::string& version, const std::string& codePage, const std::string& bytes)
{
    DxfSource source;
    source.Header(version, codePage).Section("ENTITIES");
    source.Entity("TEXT").Point(10, 0, 0).Real(40, 1).Group(1, bytes).End();
    ReadDrawing drawing(source.Whole());
    EXPECT_EQ(drawing.result.error, L"");
    std::wstring read;
    WithEntity<AcDbText>(drawing.database, 0, [&](const AcDbText& text) { read = text.textStringConst(); });
    return read;
}

const char kZhongWenGbk[] = "\xD6\xD0\xCE\xC4";
const char kZhongWenUtf8[] = "\xE4\xB8\xAD\xE6\x96\x87";
const wchar_t kZhongWen[] = L"中文";

} // namespace

TEST(DxfText, NamesOfCodePages)
{
    EXPECT_EQ(CodePageOf("ANSI_936"), 936u);
    EXPECT_EQ(CodePageOf("ansi_1252"), 1252u);
    EXPECT_EQ(CodePageOf("DOS437"), 437u);
    EXPECT_EQ(CodePageOf("GB2312"), 936u);
    EXPECT_EQ(CodePageOf("UTF-8"), 65001u);
    EXPECT_EQ(CodePageOf("ANSI_99999"), 0u);
    EXPECT_EQ(CodePageOf("ANSI_93x"), 0u);
    EXPECT_EQ(CodePageOf("nonsense"), 0u);
}

TEST(DxfText, BytesAreReadByTheCodePage)
{
    EXPECT_EQ(Decode(WithCodePage(936), kZhongWenGbk), kZhongWen);
    EXPECT_EQ(Decode(WithCodePage(1252), "\xE4\xF6"), L"äö");
    EXPECT_EQ(Decode(Utf8(), kZhongWenUtf8), kZhongWen);
}

TEST(DxfText, UndeclaredBytesAreUtf8OrElseChinese)
{
    EXPECT_EQ(Decode(DxfText(), kZhongWenUtf8), kZhongWen);
    EXPECT_EQ(Decode(DxfText(), kZhongWenGbk), kZhongWen);
}

TEST(DxfText, BytesThatAreNoUtf8FallBackToTheCodePage)
{
    DxfText text = WithCodePage(936);
    text.SetUtf8(true);
    bool wasValid = true;
    EXPECT_EQ(text.Decode(kZhongWenGbk, wasValid), kZhongWen);
    EXPECT_FALSE(wasValid);
    EXPECT_EQ(text.Decode(kZhongWenUtf8, wasValid), kZhongWen);
    EXPECT_TRUE(wasValid);
}

TEST(DxfText, HalfCharacterAtTheEndBecomesAMark)
{
    EXPECT_EQ(Decode(WithCodePage(936), "A\xD6"), L"A\xFFFD");
}

TEST(DxfText, EscapesAreResolved)
{
    const DxfText text = WithCodePage(1252);
    EXPECT_EQ(Decode(text, "\\U+4E2D\\U+6587"), kZhongWen);
    EXPECT_EQ(Decode(text, "a\\U+00D8b"), L"aØb");
    EXPECT_EQ(Decode(text, "\\M+5D6D0"), L"中");
}

TEST(DxfText, WhatOnlyLooksLikeAnEscapeStays)
{
    const DxfText text = WithCodePage(1252);
    EXPECT_EQ(Decode(text, "\\U+12"), L"\\U+12");
    EXPECT_EQ(Decode(text, "\\U+XYZW"), L"\\U+XYZW");
    EXPECT_EQ(Decode(text, "\\M+9D6D0"), L"\\M+9D6D0");
    EXPECT_EQ(Decode(text, "\\U+0000"), L"\\U+0000");
    EXPECT_EQ(Decode(text, "C:\\path"), L"C:\\path");
}

TEST(DxfText, FilesBefore2007UseTheirCodePage)
{
    EXPECT_EQ(TextIn("AC1015", "ANSI_936", kZhongWenGbk), kZhongWen);
    EXPECT_EQ(TextIn("AC1018", "ANSI_1252", "\xD8"), L"Ø");
    EXPECT_EQ(TextIn("AC1009", "ANSI_936", kZhongWenGbk), kZhongWen);
    EXPECT_EQ(TextIn("AC2.10", "ANSI_936", kZhongWenGbk), kZhongWen);
}

TEST(DxfText, FilesFrom2007OnAreUtf8WhateverTheirCodePage)
{
    EXPECT_EQ(TextIn("AC1021", "ANSI_936", kZhongWenUtf8), kZhongWen);
    EXPECT_EQ(TextIn("AC1032", "ANSI_1252", kZhongWenUtf8), kZhongWen);
}

TEST(DxfText, ControlCodesStayInTheTextString)
{
    EXPECT_EQ(TextIn("AC1015", "ANSI_1252", "%%c50 %%p0.1"), L"%%c50 %%p0.1");
}

TEST(DxfText, WrongUtf8IsOneWarningHoweverOftenItComes)
{
    DxfSource source;
    source.Header("AC1021", "ANSI_936").Section("ENTITIES");
    for (int i = 0; i < 3; ++i)
    {
        source.Entity("TEXT").Point(10, 0, 0).Real(40, 1).Group(1, kZhongWenGbk);
    }
    ReadDrawing drawing(source.End().Whole());
    ASSERT_EQ(drawing.result.warnings.size(), 1u);
    EXPECT_EQ(drawing.result.warnings[0], L"第 30 行：文字不是有效的 UTF-8，已按代码页读取");
}

TEST(DxfText, UnknownCodePageIsAWarning)
{
    DxfSource source;
    ReadDrawing drawing(source.Header("AC1015", "KLINGON").Whole());
    EXPECT_TRUE(drawing.succeeded);
    ASSERT_EQ(drawing.result.warnings.size(), 1u);
    EXPECT_EQ(drawing.result.warnings[0], L"第 12 行：未知的代码页“KLINGON”");
}
