#include "dbcolor.h"

#include <gtest/gtest.h>

namespace
{

struct PaletteRow
{
    int index;
    Adesk::UInt32 rgb;
};

class Palette : public testing::TestWithParam<PaletteRow>
{
};

TEST_P(Palette, GivesTheDocumentedColor)
{
    const PaletteRow& row = GetParam();
    EXPECT_EQ(AcCmEntityColor::lookUpRGB(static_cast<Adesk::UInt8>(row.index)), row.rgb) << row.index;
}

INSTANTIATE_TEST_SUITE_P(Index, Palette,
                         testing::Values(PaletteRow{1, 0xFF0000}, PaletteRow{2, 0xFFFF00}, PaletteRow{3, 0x00FF00},
                                         PaletteRow{4, 0x00FFFF}, PaletteRow{5, 0x0000FF}, PaletteRow{6, 0xFF00FF},
                                         PaletteRow{7, 0xFFFFFF}, PaletteRow{8, 0x808080}, PaletteRow{9, 0xC0C0C0},
                                         PaletteRow{10, 0xFF0000}, PaletteRow{11, 0xFF7F7F}, PaletteRow{12, 0xCC0000},
                                         PaletteRow{13, 0xCC6666}, PaletteRow{14, 0x990000}, PaletteRow{15, 0x994C4C},
                                         PaletteRow{16, 0x7F0000}, PaletteRow{17, 0x7F3F3F}, PaletteRow{18, 0x4C0000},
                                         PaletteRow{19, 0x4C2626}, PaletteRow{20, 0xFF3F00}, PaletteRow{21, 0xFF9F7F},
                                         PaletteRow{30, 0xFF7F00}, PaletteRow{40, 0xFFBF00}, PaletteRow{50, 0xFFFF00},
                                         PaletteRow{90, 0x00FF00}, PaletteRow{130, 0x00FFFF}, PaletteRow{170, 0x0000FF},
                                         PaletteRow{210, 0xFF00FF}, PaletteRow{250, 0x333333},
                                         PaletteRow{251, 0x5B5B5B}, PaletteRow{252, 0x848484},
                                         PaletteRow{253, 0xADADAD}, PaletteRow{254, 0xD6D6D6},
                                         PaletteRow{255, 0xFFFFFF}));

TEST(Color, IndexDecidesTheMethod)
{
    AcCmColor color;
    EXPECT_EQ(color.setColorIndex(0), Acad::eOk);
    EXPECT_TRUE(color.isByBlock());
    EXPECT_EQ(color.setColorIndex(256), Acad::eOk);
    EXPECT_TRUE(color.isByLayer());
    EXPECT_EQ(color.setColorIndex(257), Acad::eOk);
    EXPECT_TRUE(color.isNone());
    EXPECT_EQ(color.setColorIndex(30), Acad::eOk);
    EXPECT_TRUE(color.isByACI());
    EXPECT_EQ(color.colorIndex(), 30);
    EXPECT_EQ(color.green(), 127);
    EXPECT_EQ(color.setColorIndex(258), Acad::eInvalidInput);
    EXPECT_EQ(color.colorIndex(), 30);
}

TEST(Color, PacksMethodAndBytes)
{
    AcCmColor color;
    EXPECT_EQ(color.setRGB(0x12, 0x34, 0x56), Acad::eOk);
    EXPECT_EQ(color.color(), 0xC2123456u);
    EXPECT_TRUE(color.isByColor());
    EXPECT_EQ(color.red(), 0x12);
    EXPECT_EQ(color.green(), 0x34);
    EXPECT_EQ(color.blue(), 0x56);
    EXPECT_EQ(color.setColor(0xC3000005u), Acad::eOk);
    EXPECT_EQ(color.colorIndex(), 5);
    EXPECT_EQ(color.setColor(0x01000005u), Acad::eInvalidInput);
    EXPECT_EQ(color.colorIndex(), 5);
}

TEST(Color, MethodsHaveTheirNumbers)
{
    EXPECT_EQ(AcCmEntityColor::kByLayer, 0xC0);
    EXPECT_EQ(AcCmEntityColor::kByBlock, 0xC1);
    EXPECT_EQ(AcCmEntityColor::kByColor, 0xC2);
    EXPECT_EQ(AcCmEntityColor::kByACI, 0xC3);
    EXPECT_EQ(AcCmEntityColor::kNone, 0xC8);
    AcCmColor color;
    color.setColorMethod(AcCmEntityColor::kForeground);
    EXPECT_TRUE(color.isForeground());
    EXPECT_EQ(color.colorIndex(), 7);
}

} // namespace
