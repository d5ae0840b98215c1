// Scripts: bytes to text, text to lines, lines to words.
#include "host/ScriptText.h"

#include <gtest/gtest.h>

using namespace arxhost;

TEST(ScriptText, BytesOfEveryCommonEncodingAreRead)
{
    EXPECT_EQ(L"缩放", DecodeText("\xE7\xBC\xA9\xE6\x94\xBE")) << "UTF-8";
    EXPECT_EQ(L"缩放", DecodeText("\xEF\xBB\xBF\xE7\xBC\xA9\xE6\x94\xBE")) << "UTF-8 with its mark";
    EXPECT_EQ(L"缩放", DecodeText("\xCB\xF5\xB7\xC5")) << "code page 936";
    EXPECT_EQ(L"缩放", DecodeText(std::string("\xFF\xFE\x29\x7F\x3E\x65", 6))) << "UTF-16";
    EXPECT_EQ(L"", DecodeText(""));
}

TEST(ScriptText, BlankLinesAndCommentsAreLeftOutAndNumbersKept)
{
    const std::vector<ScriptLine> lines = ScriptLines(L"; tour\r\n\r\n  ZOOM E  \n;x\nSHOT a.png");
    ASSERT_EQ(2u, lines.size());
    EXPECT_EQ(3, lines[0].number);
    EXPECT_EQ(L"ZOOM E", lines[0].text);
    EXPECT_EQ(5, lines[1].number);
    EXPECT_EQ(L"SHOT a.png", lines[1].text);
}

TEST(ScriptText, QuotedWordKeepsItsBlanks)
{
    std::vector<std::wstring> words;
    ASSERT_TRUE(SplitWords(L"OPEN \"my drawing.dxf\"  now", words));
    EXPECT_EQ((std::vector<std::wstring>{L"OPEN", L"my drawing.dxf", L"now"}), words);
}

TEST(ScriptText, TwoQuotesInsideStandForOne)
{
    std::vector<std::wstring> words;
    ASSERT_TRUE(SplitWords(L"\"a \"\"b\"\" c\"", words));
    EXPECT_EQ((std::vector<std::wstring>{L"a \"b\" c"}), words);
}

TEST(ScriptText, OpenQuoteIsRefused)
{
    std::vector<std::wstring> words;
    EXPECT_FALSE(SplitWords(L"OPEN \"half", words));
}

TEST(ScriptText, EmptyLineHasNoWords)
{
    std::vector<std::wstring> words;
    EXPECT_TRUE(SplitWords(L"   ", words));
    EXPECT_TRUE(words.empty());
}
