// The texts of the check window as one block.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ArrayCount.h"
#include "dialog/CheckMsgBlock.h"

namespace
{

using Texts = std::vector<std::wstring>;

void Fill(CStringArray& array, const Texts& texts)
{
    for (const std::wstring& text : texts)
        array.Add(CString(text.c_str(), static_cast<int>(text.size())));
}

Texts TextsOf(const CStringArray& array)
{
    Texts texts;
    for (INT_PTR i = 0; i < array.GetSize(); ++i)
        texts.push_back(array[i].GetString());
    return texts;
}

struct BlockRow
{
    const char* name;
    Texts sent;
    std::wstring block; // with all its NULs
    Texts received;
};

std::wstring operator""_w(const wchar_t* text, size_t length)
{
    return std::wstring(text, length);
}

class CheckMsgBlockTable : public testing::TestWithParam<BlockRow>
{
};

TEST_P(CheckMsgBlockTable, HoldsTheTexts)
{
    const BlockRow& row = GetParam();
    CStringArray sent;
    Fill(sent, row.sent);
    const CCheckMsgBlock block(sent);
    EXPECT_EQ(row.block, std::wstring(block.Get(), row.block.size()));
    CStringArray received;
    received.Add(L"of before");
    block.Unpack(received);
    EXPECT_EQ(row.received, TextsOf(received));
}

const BlockRow kBlocks[] = {
    {"NoTextIsASingleNul", {}, L"\0"_w, {}},
    {"OneText", {L"a"}, L"a\0\0"_w, {L"a"}},
    {"SeveralTexts", {L"ab", L"c", L"中文"}, L"ab\0c\0中文\0\0"_w, {L"ab", L"c", L"中文"}},
    {"AnEmptyTextAtTheFrontEndsTheList", {L"", L"b"}, L"\0b\0\0"_w, {}},
    {"AnEmptyTextInTheMiddleEndsTheList", {L"a", L"", L"b"}, L"a\0\0b\0\0"_w, {L"a"}},
    {"AnEmptyTextAtTheEndIsNotSeen", {L"a", L""}, L"a\0\0\0"_w, {L"a"}},
    {"ANulInsideATextMakesTwo", {L"a\0b"_w}, L"a\0b\0\0"_w, {L"a", L"b"}},
    {"LinesOfATextStayTogether", {L"a\nb", L"c"}, L"a\nb\0c\0\0"_w, {L"a\nb", L"c"}},
};

INSTANTIATE_TEST_SUITE_P(CheckMsg, CheckMsgBlockTable, testing::ValuesIn(kBlocks),
                         [](const testing::TestParamInfo<BlockRow>& row) { return std::string(row.param.name); });

} // namespace

TEST(CheckMsgBlock, AStringThatWasNullIsAnEmptyText)
{
    CStringArray texts;
    texts.Add(static_cast<const wchar_t*>(NULL));
    texts.Add(L"b");
    CCheckMsgBlock(texts).Unpack(texts);
    EXPECT_TRUE(texts.IsEmpty());
}

TEST(CheckMsgBlock, HoldsHugeTexts)
{
    const int million = 1000000;
    CStringArray texts;
    texts.Add(CString(L'x', million));
    texts.Add(L"last");
    CStringArray received;
    CCheckMsgBlock(texts).Unpack(received);
    ASSERT_EQ(2, received.GetSize());
    EXPECT_EQ(million, received[0].GetLength());
    EXPECT_EQ(L"last", received[1]);
}

TEST(CheckMsgBlock, NoBlockHoldsNoTexts)
{
    CStringArray texts;
    texts.Add(L"of before");
    CCheckMsgBlock(static_cast<wchar_t*>(NULL)).Unpack(texts);
    EXPECT_TRUE(texts.IsEmpty());
}

TEST(CheckMsgBlock, IsFreedByItsOwnerUntilItIsReleased)
{
    const long before = LiveArrays();
    CStringArray texts;
    texts.Add(L"a");
    {
        const CCheckMsgBlock owner(texts);
        EXPECT_EQ(before + 1, LiveArrays());
    }
    EXPECT_EQ(before, LiveArrays());
    wchar_t* released = NULL;
    {
        CCheckMsgBlock owner(texts);
        released = owner.Release();
        EXPECT_EQ(NULL, owner.Get());
    }
    EXPECT_EQ(before + 1, LiveArrays());
    {
        const CCheckMsgBlock taken(released);
        EXPECT_EQ(released, taken.Get());
    }
    EXPECT_EQ(before, LiveArrays());
}
