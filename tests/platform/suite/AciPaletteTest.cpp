// The 255 colours of the index palette against the public table.
#include <ZnQFCBaseU.h>

#include <dbcolor.h>

#include <gtest/gtest.h>

namespace
{
struct Row
{
    int index;
    COLORREF color;
};

// Every kind of entry: the named ones, the first hue in full, each sixth of the circle, the greys.
const Row kRows[] = {
    {1, RGB(255, 0, 0)},       {2, RGB(255, 255, 0)},     {3, RGB(0, 255, 0)},       {4, RGB(0, 255, 255)},
    {5, RGB(0, 0, 255)},       {6, RGB(255, 0, 255)},     {7, RGB(255, 255, 255)},   {8, RGB(128, 128, 128)},
    {9, RGB(192, 192, 192)},   {10, RGB(255, 0, 0)},      {11, RGB(255, 127, 127)},  {12, RGB(204, 0, 0)},
    {13, RGB(204, 102, 102)},  {14, RGB(153, 0, 0)},      {15, RGB(153, 76, 76)},    {16, RGB(127, 0, 0)},
    {17, RGB(127, 63, 63)},    {18, RGB(76, 0, 0)},       {19, RGB(76, 38, 38)},     {20, RGB(255, 63, 0)},
    {21, RGB(255, 159, 127)},  {22, RGB(204, 51, 0)},     {30, RGB(255, 127, 0)},    {40, RGB(255, 191, 0)},
    {50, RGB(255, 255, 0)},    {60, RGB(191, 255, 0)},    {70, RGB(127, 255, 0)},    {80, RGB(63, 255, 0)},
    {90, RGB(0, 255, 0)},      {100, RGB(0, 255, 63)},    {110, RGB(0, 255, 127)},   {120, RGB(0, 255, 191)},
    {130, RGB(0, 255, 255)},   {140, RGB(0, 191, 255)},   {150, RGB(0, 127, 255)},   {160, RGB(0, 63, 255)},
    {170, RGB(0, 0, 255)},     {180, RGB(63, 0, 255)},    {190, RGB(127, 0, 255)},   {200, RGB(191, 0, 255)},
    {210, RGB(255, 0, 255)},   {220, RGB(255, 0, 191)},   {230, RGB(255, 0, 127)},   {240, RGB(255, 0, 63)},
    {249, RGB(76, 38, 47)},    {250, RGB(51, 51, 51)},    {251, RGB(91, 91, 91)},    {252, RGB(132, 132, 132)},
    {253, RGB(173, 173, 173)}, {254, RGB(214, 214, 214)}, {255, RGB(255, 255, 255)},
};
} // namespace

TEST(AciPalette, GivesTheColoursOfThePublicTable)
{
    for (const Row& row : kRows)
        EXPECT_EQ(row.color, Tevrin::GetRGBFromACI(row.index)) << row.index;
}

TEST(AciPalette, AgreesWithTheHostsPalette)
{
    for (int index = 1; index <= 255; ++index)
    {
        const Adesk::UInt32 host = AcCmEntityColor::lookUpRGB(static_cast<Adesk::UInt8>(index));
        const COLORREF expected = RGB((host >> 16) & 0xFF, (host >> 8) & 0xFF, host & 0xFF);
        EXPECT_EQ(expected, Tevrin::GetRGBFromACI(index)) << index;
    }
}

TEST(AciPalette, IndicesThatAreNoColoursAreWhite)
{
    for (int index : {0, 256, 257, -1, 1000, -1000})
        EXPECT_EQ(RGB(255, 255, 255), Tevrin::GetRGBFromACI(index)) << index;
}
