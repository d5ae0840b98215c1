// Colours from what people write for them.
#include <ZNKTPub.h>

#include <gtest/gtest.h>

namespace
{
struct IndexRow
{
    const wchar_t* name;
    int index;
};

const IndexRow kIndexRows[] = {
    {L"红", 1},     {L"红色", 1},  {L"Red", 1},      {L"RED", 1},     {L"  red ", 1},      {L"黄色", 2},
    {L"yellow", 2}, {L"绿", 3},    {L"Green", 3},    {L"青色", 4},    {L"cyan", 4},        {L"蓝色", 5},
    {L"Blue", 5},   {L"洋红", 6},  {L"品红色", 6},   {L"Magenta", 6}, {L"白色", 7},        {L"white", 7},
    {L"黑色", 7},   {L"灰色", 8},  {L"Gray", 8},     {L"浅灰色", 9},  {L"Light Grey", 9},  {L"1", 1},
    {L"255", 255},  {L" 42 ", 42}, {L"颜色 10", 10}, {L"颜色10", 10}, {L"Color 250", 250},
};

const wchar_t* const kUnknown[] = {L"",
                                   L"   ",
                                   L"色",
                                   L"puce",
                                   L"258",
                                   L"257",
                                   L"-1",
                                   L"1.5",
                                   L"12x",
                                   L"1,2",
                                   L"1,2,",
                                   L"1,2,3,4",
                                   L"1,2,256",
                                   L"1;2;3",
                                   L"颜色",
                                   L"color",
                                   L"999999999999999999999",
                                   L"a,b,c",
                                   L"红红"};
} // namespace

TEST(ColorNames, ReadsNamesAndIndices)
{
    for (const IndexRow& row : kIndexRows)
    {
        const AcCmColor color = ZNKTPub::GetColorFromName(row.name);
        EXPECT_TRUE(color.isByACI() || color.isForeground()) << std::wstring(row.name).size() << " index " << row.index;
        EXPECT_EQ(row.index, color.colorIndex()) << row.index;
    }
}

TEST(ColorNames, ReadsTheMethods)
{
    for (const wchar_t* name : {L"随层", L"ByLayer", L"BYLAYER", L"256"})
        EXPECT_TRUE(ZNKTPub::GetColorFromName(name).isByLayer());
    for (const wchar_t* name : {L"随块", L"ByBlock", L"byblock", L"0"})
        EXPECT_TRUE(ZNKTPub::GetColorFromName(name).isByBlock());
}

TEST(ColorNames, ReadsTrueColours)
{
    for (const wchar_t* name : {L"255,128,0", L" 255 , 128 , 0 ", L"RGB:255,128,0", L"rgb: 255,128,0"})
    {
        const AcCmColor color = ZNKTPub::GetColorFromName(name);
        ASSERT_TRUE(color.isByColor());
        EXPECT_EQ(255, color.red());
        EXPECT_EQ(128, color.green());
        EXPECT_EQ(0, color.blue());
    }
}

TEST(ColorNames, EverythingElseIsNoColour)
{
    for (size_t i = 0; i < _countof(kUnknown); ++i)
        EXPECT_TRUE(ZNKTPub::GetColorFromName(kUnknown[i]).isNone()) << "row " << i;
    EXPECT_TRUE(ZNKTPub::GetColorFromName(nullptr).isNone());
}
