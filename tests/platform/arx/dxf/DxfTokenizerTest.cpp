#include "arx/dxf/DxfError.h"
#include "arx/dxf/DxfTokenizer.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace arxdxf;

namespace
{

std::vector<DxfGroup> GroupsOf(std::string_view text)
{
    DxfTokenizer tokenizer(text);
    std::vector<DxfGroup> groups;
    DxfGroup group;
    while (tokenizer.Next(group))
    {
        groups.push_back(group);
    }
    return groups;
}

struct Fault
{
    const char* name;
    std::string text;
    int line;
    const wchar_t* message;
};

} // namespace

TEST(DxfTokenizer, GroupIsCodeAndValueWithTheLineOfTheCode)
{
    const std::vector<DxfGroup> groups = GroupsOf("  0\nSECTION\n 10\n 1.5\n");
    ASSERT_EQ(groups.size(), 2u);
    EXPECT_EQ(groups[0].code, 0);
    EXPECT_EQ(groups[0].value, "SECTION");
    EXPECT_EQ(groups[0].line, 1);
    EXPECT_EQ(groups[1].code, 10);
    EXPECT_EQ(groups[1].value, " 1.5");
    EXPECT_EQ(groups[1].Trimmed(), "1.5");
    EXPECT_EQ(groups[1].line, 3);
    EXPECT_EQ(groups[1].ValueLine(), 4);
}

TEST(DxfTokenizer, AllLineEndsAreKnown)
{
    for (const char* text : {"0\nLINE\n8\nA\n", "0\r\nLINE\r\n8\r\nA\r\n", "0\rLINE\r8\rA\r"})
    {
        const std::vector<DxfGroup> groups = GroupsOf(text);
        ASSERT_EQ(groups.size(), 2u) << text;
        EXPECT_EQ(groups[0].value, "LINE");
        EXPECT_EQ(groups[1].value, "A");
        EXPECT_EQ(groups[1].line, 3);
    }
}

TEST(DxfTokenizer, CommentsAndByteOrderMarkAreSkippedButCounted)
{
    const std::vector<DxfGroup> groups = GroupsOf("\xEF\xBB\xBF"
                                                  "999\nhello\n0\nEOF\n");
    ASSERT_EQ(groups.size(), 1u);
    EXPECT_EQ(groups[0].value, "EOF");
    EXPECT_EQ(groups[0].line, 3);
}

TEST(DxfTokenizer, LastLineNeedsNoEndAndCtrlZEndsTheText)
{
    EXPECT_EQ(GroupsOf("0\nEOF").at(0).value, "EOF");
    EXPECT_EQ(GroupsOf("0\nEOF\n\x1A").size(), 1u);
}

TEST(DxfTokenizer, EmptyValueIsAValue)
{
    const std::vector<DxfGroup> groups = GroupsOf("1\n\n0\nEOF\n");
    ASSERT_EQ(groups.size(), 2u);
    EXPECT_EQ(groups[0].value, "");
}

TEST(DxfTokenizer, BlanksAfterTheEndAreNothing)
{
    DxfTokenizer tokenizer("0\nEOF\n \r\n\n\x1A");
    DxfGroup group;
    ASSERT_TRUE(tokenizer.Next(group));
    EXPECT_FALSE(tokenizer.HasMore());
}

TEST(DxfTokenizer, FaultsTellLineAndReason)
{
    const Fault faults[] = {
        {"letters for a code", "0\nSECTION\nabc\n1\n", 3, L"组码“abc”不是数字"},
        {"real for a code", "1.5\n1\n", 1, L"组码“1.5”不是数字"},
        {"blank code", "0\nSECTION\n  \n1\n", 3, L"组码为空"},
        {"code beyond the range", "1072\n1\n", 1, L"组码“1072”无效"},
        {"code below the range", "-6\n1\n", 1, L"组码“-6”无效"},
        {"huge code", "99999999999999999999\n1\n", 1, L"组码“99999999999999999999”无效"},
        {"code without value", "0\nSECTION\n10", 3, L"文件不完整，组码 10 之后没有值"},
        {"zero byte in a value", std::string("1\na\0b\n", 6), 2, L"含有二进制数据，不是文本"},
        {"long rubbish is shortened", "0\nX\naaaaaaaaaabbbbbbbbbbccccccccccdddddddddd\n1\n", 3,
         L"组码“aaaaaaaaaabbbbbbbbbbcccc…”不是数字"},
        {"unprintable characters are masked", "0\nX\n\x01\xFF\n1\n", 3, L"组码“??”不是数字"},
    };
    for (const Fault& fault : faults)
    {
        try
        {
            GroupsOf(fault.text);
            ADD_FAILURE() << fault.name << ": no error";
        }
        catch (const DxfError& error)
        {
            EXPECT_EQ(error.line, fault.line) << fault.name;
            EXPECT_EQ(error.text, fault.message) << fault.name;
        }
    }
}
