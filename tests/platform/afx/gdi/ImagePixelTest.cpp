// How a CImage is drawn.
#include <atlimage.h>

#include "DibCanvas.h"
#include "GdiCount.h"

#include <gtest/gtest.h>

namespace
{

const COLORREF kPaper = RGB(200, 200, 200);
const COLORREF kRed = RGB(255, 0, 0);
const COLORREF kBlue = RGB(0, 0, 255);

// Left half red, right half blue, four by two.
class DrawnImage : public testing::Test
{
protected:
    DrawnImage() : m_canvas(20, 20, kPaper)
    {
        m_image.Create(4, 2, 32);
        for (int i = 0; i < 8; ++i)
            m_image.SetPixel(i % 4, i / 4, i % 4 < 2 ? kRed : kBlue);
        ::SetStretchBltMode(m_canvas.Dc(), COLORONCOLOR);
    }

    int Count(COLORREF color) const { return m_canvas.Count(RECT{0, 0, 20, 20}, color, 1); }

    DibCanvas m_canvas;
    CImage m_image;
};

} // namespace

TEST_F(DrawnImage, DrawsInItsOwnSizeAtAPoint)
{
    EXPECT_TRUE(m_image.Draw(m_canvas.Dc(), 5, 6));
    EXPECT_EQ(4, Count(kRed));
    EXPECT_EQ(4, Count(kBlue));
    EXPECT_EQ(kRed, m_canvas.Pixel(5, 6));
    EXPECT_EQ(kBlue, m_canvas.Pixel(8, 7));
    m_canvas.Clear(kPaper);
    EXPECT_TRUE(m_image.Draw(m_canvas.Dc(), CPoint(1, 2)));
    EXPECT_EQ(kRed, m_canvas.Pixel(1, 2));
}

TEST_F(DrawnImage, DrawsStretchedToARectangle)
{
    EXPECT_TRUE(m_image.Draw(m_canvas.Dc(), CRect(2, 2, 18, 12)));
    EXPECT_EQ(80, Count(kRed));
    EXPECT_EQ(80, Count(kBlue));
    EXPECT_EQ(kRed, m_canvas.Pixel(9, 11));
    EXPECT_EQ(kBlue, m_canvas.Pixel(10, 2));
}

TEST_F(DrawnImage, DrawsAPartOfItself)
{
    EXPECT_TRUE(m_image.Draw(m_canvas.Dc(), CRect(0, 0, 10, 10), CRect(2, 0, 4, 2)));
    EXPECT_EQ(100, Count(kBlue));
    m_canvas.Clear(kPaper);
    EXPECT_TRUE(m_image.StretchBlt(m_canvas.Dc(), CRect(0, 0, 10, 10), CRect(0, 0, 2, 2)));
    EXPECT_EQ(100, Count(kRed));
    m_canvas.Clear(kPaper);
    EXPECT_TRUE(m_image.BitBlt(m_canvas.Dc(), CRect(0, 0, 2, 1), CPoint(1, 1)));
    EXPECT_EQ(1, Count(kRed));
    EXPECT_EQ(1, Count(kBlue));
}

TEST_F(DrawnImage, TheRasterOperationCounts)
{
    EXPECT_TRUE(m_image.BitBlt(m_canvas.Dc(), 0, 0, WHITENESS));
    EXPECT_EQ(8, Count(RGB(255, 255, 255)));
    EXPECT_TRUE(m_image.StretchBlt(m_canvas.Dc(), CRect(0, 0, 20, 20), NOTSRCCOPY));
    EXPECT_EQ(200, Count(RGB(0, 255, 255)));
}

TEST_F(DrawnImage, AWholePictureIsBlendedEvenly)
{
    EXPECT_TRUE(m_image.AlphaBlend(m_canvas.Dc(), CPoint(0, 0), 128));
    EXPECT_TRUE(m_canvas.Near(0, 0, RGB(228, 100, 100), 3));
}

TEST_F(DrawnImage, AColourIsLeftOut)
{
    EXPECT_TRUE(m_image.TransparentBlt(m_canvas.Dc(), CRect(0, 0, 20, 20), kRed));
    EXPECT_EQ(200, Count(kPaper));
    EXPECT_EQ(200, Count(kBlue));
}

TEST_F(DrawnImage, TheTransparentColourIsLeftOutByDraw)
{
    CImage indexed;
    ASSERT_TRUE(indexed.Create(4, 2, 8));
    const RGBQUAD colors[] = {{0, 0, 255, 0}, {255, 0, 0, 0}};
    indexed.SetColorTable(0, 2, colors);
    indexed.SetPixel(3, 1, kBlue);
    EXPECT_EQ(-1, indexed.SetTransparentColor(0));
    EXPECT_EQ(0, indexed.GetTransparentColor());
    EXPECT_TRUE(indexed.Draw(m_canvas.Dc(), 0, 0));
    EXPECT_EQ(0, Count(kRed));
    EXPECT_EQ(1, Count(kBlue));
}

TEST_F(DrawnImage, AnAlphaChannelIsReadFromAFileAndBlended)
{
    CImage written;
    ASSERT_TRUE(written.Create(2, 1, 32, CImage::createAlphaChannel));
    DWORD* const pixels = static_cast<DWORD*>(written.GetBits());
    pixels[0] = 0;          // transparent
    pixels[1] = 0xff0000ff; // blue
    wchar_t folder[MAX_PATH] = {};
    ::GetTempPathW(MAX_PATH, folder);
    const CString path = CString(folder) + L"znkt_image_alpha.png";
    ASSERT_EQ(S_OK, written.Save(path));
    CImage read;
    ASSERT_EQ(S_OK, read.Load(path));
    ::DeleteFileW(path);
    EXPECT_EQ(32, read.GetBPP());
    EXPECT_TRUE(read.Draw(m_canvas.Dc(), 0, 0));
    EXPECT_EQ(kPaper, m_canvas.Pixel(0, 0));
    EXPECT_EQ(kBlue, m_canvas.Pixel(1, 0));
}

TEST_F(DrawnImage, ANullPictureDrawsNothing)
{
    const CImage null;
    EXPECT_FALSE(null.Draw(m_canvas.Dc(), 0, 0));
    EXPECT_FALSE(null.Draw(m_canvas.Dc(), CRect(0, 0, 20, 20)));
    EXPECT_FALSE(null.BitBlt(m_canvas.Dc(), 0, 0));
    EXPECT_FALSE(null.AlphaBlend(m_canvas.Dc(), 0, 0));
    EXPECT_FALSE(null.TransparentBlt(m_canvas.Dc(), CRect(0, 0, 20, 20), kRed));
    EXPECT_EQ(400, Count(kPaper));
}

TEST_F(DrawnImage, DrawingLeavesNoObjectBehind)
{
    const size_t before = CountGdiObjects();
    for (int i = 0; i < 20; ++i)
    {
        m_image.Draw(m_canvas.Dc(), CRect(0, 0, 20, 20));
        m_image.AlphaBlend(m_canvas.Dc(), 0, 0);
        m_image.TransparentBlt(m_canvas.Dc(), CRect(0, 0, 20, 20), kRed);
    }
    EXPECT_EQ(before, CountGdiObjects());
}
