// The border of the slide control, point by point, and how an image is drawn in it.
#include "SlideFixture.h"

namespace
{

const COLORREF kGrey = RGB(128, 128, 128);
const COLORREF kBlack = RGB(0, 0, 0);
const COLORREF kLight = RGB(192, 192, 192);
const COLORREF kWhite = RGB(255, 255, 255);
const COLORREF kInside = RGB(200, 100, 50);

// The state in which a bitmap was stretched, and where to.
struct StretchCall
{
    DWORD mode;
    POINTL origin;
    LONG x, y, width, height;
    bool done;
};

int CALLBACK NoteStretchCall(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM parameter)
{
    StretchCall& call = *reinterpret_cast<StretchCall*>(parameter);
    if (call.done)
        return TRUE;
    if (record->iType == EMR_SETSTRETCHBLTMODE)
        call.mode = reinterpret_cast<const EMRSETSTRETCHBLTMODE*>(record)->iMode;
    if (record->iType == EMR_SETBRUSHORGEX)
        call.origin = reinterpret_cast<const EMRSETBRUSHORGEX*>(record)->ptlOrigin;
    if (record->iType == EMR_STRETCHBLT)
    {
        const EMRSTRETCHBLT& blt = *reinterpret_cast<const EMRSTRETCHBLT*>(record);
        call = {call.mode, call.origin, blt.xDest, blt.yDest, blt.cxDest, blt.cyDest, true};
    }
    return TRUE;
}

class SlideBorder : public SlideFixture
{
protected:
    // The border alone, on a picture one pixel larger than the window at the right and below. `band`: its background
    // colour; the lines are seen where the band is not.
    std::unique_ptr<DibCanvas> Border()
    {
        std::unique_ptr<DibCanvas> canvas(new DibCanvas(kWidth + 1, kHeight + 1, kInside));
        m_control.DrawBorder(CDC::FromHandle(canvas->Dc()));
        return canvas;
    }

    // The four lines drawn by hand, then the band with a pen of its own.
    static void DrawByHand(DibCanvas& canvas, COLORREF bandColor)
    {
        const int w = kWidth;
        const int h = kHeight;
        const struct
        {
            COLORREF color;
            POINT from;
            POINT to;
        } lines[] = {
            {kGrey, {0, 0}, {0, h}},
            {kGrey, {0, 0}, {w, 0}},
            {kBlack, {1, 1}, {1, h - 1}},
            {kBlack, {1, 1}, {w - 1, 1}},
            {kLight, {w - 2, h - 2}, {1, h - 2}},
            {kLight, {w - 2, h - 2}, {w - 2, 1}},
            {kWhite, {w - 1, h - 1}, {0, h - 1}},
            {kWhite, {w - 1, h - 1}, {w - 1, 0}},
        };
        for (const auto& line : lines)
            Line(canvas.Dc(), 1, line.color, {line.from, line.to});
        Line(canvas.Dc(), 3, bandColor, {{2, 2}, {w - 2, 2}, {w - 2, h - 2}, {2, h - 2}, {2, 2}});
    }

    static void Line(HDC dc, int width, COLORREF color, const std::vector<POINT>& points)
    {
        const HPEN pen = ::CreatePen(PS_SOLID, width, color);
        const HGDIOBJ former = ::SelectObject(dc, pen);
        ::MoveToEx(dc, points[0].x, points[0].y, NULL);
        for (size_t i = 1; i < points.size(); ++i)
            ::LineTo(dc, points[i].x, points[i].y);
        ::SelectObject(dc, former);
        ::DeleteObject(pen);
    }
};

} // namespace

TEST_F(SlideBorder, TheOuterLinesAreGreyAboveAndLeft)
{
    const auto border = Border();
    EXPECT_EQ(kGrey, border->Pixel(0, 0));
    EXPECT_EQ(kGrey, border->Pixel(0, kHeight / 2));
    EXPECT_EQ(kGrey, border->Pixel(0, kHeight - 2));
    EXPECT_EQ(kGrey, border->Pixel(kWidth / 2, 0));
    EXPECT_EQ(kGrey, border->Pixel(kWidth - 2, 0));
}

TEST_F(SlideBorder, TheBandCoversThreePixels)
{
    const auto border = Border();
    for (int i = 1; i <= 3; ++i)
    {
        EXPECT_EQ(Paper(), border->Pixel(i, kHeight / 2)) << i;
        EXPECT_EQ(Paper(), border->Pixel(kWidth / 2, i)) << i;
        EXPECT_EQ(Paper(), border->Pixel(kWidth - i, kHeight / 2)) << i;
        EXPECT_EQ(Paper(), border->Pixel(kWidth / 2, kHeight - i)) << i;
    }
    EXPECT_EQ(kInside, border->Pixel(4, kHeight / 2));
    EXPECT_EQ(kInside, border->Pixel(kWidth / 2, 4));
    EXPECT_EQ(kInside, border->Pixel(kWidth - 4, kHeight / 2));
    EXPECT_EQ(kInside, border->Pixel(kWidth / 2, kHeight - 4));
    EXPECT_EQ(kInside, border->Pixel(kWidth, kHeight / 2)) << "outside";
}

TEST_F(SlideBorder, EveryPointIsThatOfTheLinesDrawnByHand)
{
    for (const COLORREF paper : {Paper(), kWhite, kBlack})
    {
        m_control.SetBkColor(paper);
        const auto border = Border();
        DibCanvas expected(kWidth + 1, kHeight + 1, kInside);
        DrawByHand(expected, paper);
        for (int y = 0; y <= kHeight; ++y)
        {
            for (int x = 0; x <= kWidth; ++x)
                ASSERT_EQ(expected.Pixel(x, y), border->Pixel(x, y)) << x << "," << y;
        }
    }
}

TEST_F(SlideBorder, TheCornersTellWhichLineIsDrawnLast)
{
    const auto border = Border();
    EXPECT_EQ(kWhite, border->Pixel(kWidth - 1, 1)) << "the white line reaches up to the second row";
    EXPECT_EQ(kGrey, border->Pixel(kWidth - 1, 0));
    EXPECT_EQ(kWhite, border->Pixel(1, kHeight - 1));
    EXPECT_EQ(kGrey, border->Pixel(0, kHeight - 1));
}

TEST_F(SlideBorder, AnImageIsDrawnToTheEdgesUnderTheBorder)
{
    m_control.SetFileName(BlueImage(L"plan.png"));
    const auto picture = Picture(m_control.m_hWnd);
    EXPECT_EQ(Blue(), picture->Pixel(4, 4));
    EXPECT_EQ(Blue(), picture->Pixel(kWidth - 4, kHeight - 4));
    EXPECT_EQ(Paper(), picture->Pixel(3, kHeight / 2));
    EXPECT_EQ(kGrey, picture->Pixel(0, kHeight / 2));
}

TEST_F(SlideBorder, ASlideHasNoBorder)
{
    m_control.SetFileName(RedSlide(L"plan.sld"));
    const auto picture = Picture(m_control.m_hWnd);
    EXPECT_EQ(kWidth * kHeight, picture->Count(CRect(0, 0, kWidth, kHeight), Red(), 0));
}

// Not every system averages the colours in this mode, so that the picture would not tell: the calls do.
TEST_F(SlideBorder, AnImageIsStretchedInHalftoneFromTheOrigin)
{
    m_control.SetFileName(BlueImage(L"plan.png"));
    DRAWITEMSTRUCT item = {};
    item.hDC = ::CreateEnhMetaFileW(NULL, NULL, NULL, NULL);
    ::SetBrushOrgEx(item.hDC, 5, 6, NULL);
    item.rcItem = CRect(0, 0, kWidth, kHeight);
    m_control.DrawItem(&item);
    const HENHMETAFILE calls = ::CloseEnhMetaFile(item.hDC);
    StretchCall found = {};
    ::EnumEnhMetaFile(NULL, calls, &NoteStretchCall, &found, NULL);
    ::DeleteEnhMetaFile(calls);
    EXPECT_EQ(DWORD(HALFTONE), found.mode);
    EXPECT_EQ(0, found.origin.x);
    EXPECT_EQ(0, found.origin.y);
    EXPECT_EQ(CRect(0, 0, kWidth, kHeight), CRect(CPoint(found.x, found.y), CSize(found.width, found.height)));
}

TEST_F(SlideBorder, TransparentPartsOfAnImageShowTheBackground)
{
    const CString path = Path(L"glass.png");
    CImage image;
    ASSERT_TRUE(image.Create(2, 2, 32, CImage::createAlphaChannel));
    ASSERT_EQ(S_OK, image.Save(path));
    m_control.SetFileName(path);
    m_control.RedrawWindow();
    EXPECT_EQ(Paper(), Middle());
}

TEST_F(SlideBorder, TheDeviceContextIsLeftAsItWas)
{
    m_control.SetFileName(BlueImage(L"plan.png"));
    DibCanvas canvas(kWidth, kHeight, kInside);
    ::SetStretchBltMode(canvas.Dc(), COLORONCOLOR);
    ::SetBrushOrgEx(canvas.Dc(), 3, 4, NULL);
    const HGDIOBJ pen = ::GetCurrentObject(canvas.Dc(), OBJ_PEN);
    DRAWITEMSTRUCT item = {};
    item.hDC = canvas.Dc();
    item.rcItem = CRect(0, 0, kWidth, kHeight);
    m_control.DrawItem(&item);
    EXPECT_EQ(Blue(), canvas.Pixel(kWidth / 2, kHeight / 2));
    EXPECT_EQ(COLORONCOLOR, ::GetStretchBltMode(canvas.Dc()));
    EXPECT_EQ(pen, ::GetCurrentObject(canvas.Dc(), OBJ_PEN));
    POINT origin = {};
    ::GetBrushOrgEx(canvas.Dc(), &origin);
    EXPECT_EQ(3, origin.x);
}
