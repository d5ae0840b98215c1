// Arrows and colour cells drawn into a picture in memory.
#include "list/ColorCell.h"
#include "list/SortArrow.h"

#include "DibCanvas.h"
#include "GdiCount.h"

#include <gtest/gtest.h>

namespace
{

// The arrows as they are drawn: w white, g grey, a blank is the mask colour.
const char* const kUpRows[] = {"       gw       ", "      ggww      ", "      g  w      ",
                               "     gg  ww     ", "     g    w     ", "    gg    ww    "};
const char* const kDownRows[] = {"    gggggggg    ", "    gg    ww    ", "     g    w     ", "     gg  ww     ",
                                 "      g  w      ", "      ggww      ", "       gw       "};
constexpr int kFirstRow = 4;

COLORREF ColorOf(char code)
{
    return code == 'w' ? RGB(255, 255, 255) : code == 'g' ? RGB(100, 100, 100) : RGB(0, 0, 255);
}

template<size_t ROWS>
void ExpectRows(const DibCanvas& canvas, const char* const (&rows)[ROWS])
{
    for (int y = 0; y < kSortArrowPixels; ++y)
    {
        const bool isListed = y >= kFirstRow && y < kFirstRow + static_cast<int>(ROWS);
        for (int x = 0; x < kSortArrowPixels; ++x)
        {
            const char code = isListed ? rows[y - kFirstRow][x] : ' ';
            EXPECT_EQ(ColorOf(code), canvas.Pixel(x, y)) << "at " << x << "," << y;
        }
    }
}

const COLORREF kWhite = RGB(255, 255, 255);

} // namespace

TEST(SortArrow, UpHasEveryListedPixel)
{
    const char* const rows[] = {kUpRows[0], kUpRows[1], kUpRows[2],        kUpRows[3],
                                kUpRows[4], kUpRows[5], "    wwwwwwww    "};
    DibCanvas canvas(kSortArrowPixels, kSortArrowPixels, 0);
    DrawSortArrow(*CDC::FromHandle(canvas.Dc()), true);
    ExpectRows(canvas, rows);
}

TEST(SortArrow, DownHasEveryListedPixel)
{
    DibCanvas canvas(kSortArrowPixels, kSortArrowPixels, 0);
    DrawSortArrow(*CDC::FromHandle(canvas.Dc()), false);
    ExpectRows(canvas, kDownRows);
}

TEST(SortArrow, LeavesNoGdiObjectBehind)
{
    DibCanvas canvas(kSortArrowPixels, kSortArrowPixels, 0);
    CDC* const dc = CDC::FromHandle(canvas.Dc());
    DrawSortArrow(*dc, true);
    const size_t before = CountGdiObjects();
    for (int i = 0; i < 10; ++i)
        DrawSortArrow(*dc, i % 2 != 0);
    EXPECT_EQ(before, CountGdiObjects());
}

TEST(ColorCell, RowsTakeTurns)
{
    EXPECT_EQ(kWhite, RowBackground(0));
    EXPECT_EQ(RGB(255, 255, 200), RowBackground(1));
    EXPECT_EQ(kWhite, RowBackground(2));
    EXPECT_EQ(RGB(255, 255, 200), RowBackground(99999));
}

TEST(ColorCell, BackgroundFollowsSelectionFocusAndEnabledState)
{
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    const COLORREF selection = RGB(0x31, 0x6A, 0xC5);
    EXPECT_EQ(kWhite, ColorCellBackground({true, false, false}));
    EXPECT_EQ(kWhite, ColorCellBackground({true, false, true}));
    EXPECT_EQ(face, ColorCellBackground({false, false, false}));
    EXPECT_EQ(selection, ColorCellBackground({true, true, true}));
    EXPECT_EQ(face, ColorCellBackground({true, true, false}));
    EXPECT_EQ(face, ColorCellBackground({false, true, false}));
}

TEST(ColorCell, SwatchColorFollowsTheMethodOfTheColour)
{
    AcCmColor color;
    color.setColorMethod(AcCmEntityColor::kByLayer);
    EXPECT_EQ(kWhite, SwatchColor(color));
    color.setColorMethod(AcCmEntityColor::kByBlock);
    EXPECT_EQ(kWhite, SwatchColor(color));
    color.setColorMethod(AcCmEntityColor::kNone);
    EXPECT_EQ(kWhite, SwatchColor(color)) << "a name that is no colour";
    color.setColorIndex(1);
    EXPECT_EQ(RGB(255, 0, 0), SwatchColor(color));
    color.setColorIndex(30);
    EXPECT_EQ(RGB(255, 127, 0), SwatchColor(color));
    color.setColorIndex(7);
    EXPECT_EQ(kWhite, SwatchColor(color));
    color.setRGB(1, 2, 3);
    EXPECT_EQ(RGB(1, 2, 3), SwatchColor(color));
}

TEST(ColorCell, SwatchIsASquareTwoPixelsInside)
{
    const CRect cell(100, 40, 200, 57);
    EXPECT_EQ(CRect(102, 42, 115, 55), SwatchRect(cell));
    EXPECT_EQ(CRect(117, 40, 200, 57), ColorTextRect(cell));
}

TEST(ColorCell, ANarrowCellLeavesNoRoomForText)
{
    EXPECT_TRUE(ColorTextRect(CRect(100, 40, 105, 57)).IsRectEmpty());
}

TEST(ColorCell, DrawsBackgroundFrameAndSwatch)
{
    DibCanvas canvas(60, 20, RGB(9, 9, 9));
    const CRect cell(5, 0, 55, 20);
    DrawColorCell(*CDC::FromHandle(canvas.Dc()), cell, kWhite, RGB(200, 10, 30));
    EXPECT_EQ(RGB(9, 9, 9), canvas.Pixel(4, 10)) << "left of the cell";
    EXPECT_EQ(kWhite, canvas.Pixel(6, 10));
    EXPECT_EQ(RGB(0, 0, 0), canvas.Pixel(7, 10)) << "left edge of the frame";
    EXPECT_EQ(RGB(0, 0, 0), canvas.Pixel(22, 17)) << "right lower corner of the frame";
    EXPECT_EQ(RGB(200, 10, 30), canvas.Pixel(8, 3));
    EXPECT_EQ(RGB(200, 10, 30), canvas.Pixel(21, 16));
    EXPECT_EQ(kWhite, canvas.Pixel(23, 10));
    EXPECT_EQ(RGB(9, 9, 9), canvas.Pixel(55, 10)) << "right of the cell";
}
