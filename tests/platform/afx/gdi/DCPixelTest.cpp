#include <afxwin.h>

#include <afxcmn.h>

#include "DibCanvas.h"

#include <gtest/gtest.h>

namespace
{
constexpr COLORREF g_white = RGB(255, 255, 255);
constexpr COLORREF g_red = RGB(255, 0, 0);
constexpr COLORREF g_blue = RGB(0, 0, 255);

// A canvas with a framework context that borrows its handle.
struct Picture
{
    Picture() : canvas(32, 32, g_white) { dc.Attach(canvas.Dc()); }
    ~Picture() { dc.Detach(); }

    DibCanvas canvas;
    CDC dc;
};
} // namespace

TEST(DC, FillSolidRectCoversTheRectangleExactly)
{
    Picture picture;
    picture.dc.FillSolidRect(CRect(4, 5, 10, 12), g_red);
    const RECT all = {0, 0, 32, 32};
    EXPECT_EQ(6 * 7, picture.canvas.Count(all, g_red));
    EXPECT_EQ(g_red, picture.canvas.Pixel(4, 5));
    EXPECT_EQ(g_white, picture.canvas.Pixel(10, 12));
}

TEST(DC, Draw3dRectHasTopLeftAndBottomRightEdges)
{
    Picture picture;
    picture.dc.Draw3dRect(CRect(2, 3, 12, 13), g_red, g_blue);
    EXPECT_EQ(g_red, picture.canvas.Pixel(2, 3));
    EXPECT_EQ(g_red, picture.canvas.Pixel(2, 11));
    EXPECT_EQ(g_blue, picture.canvas.Pixel(11, 3));
    EXPECT_EQ(g_blue, picture.canvas.Pixel(2, 12));
    EXPECT_EQ(g_blue, picture.canvas.Pixel(11, 12));
    EXPECT_EQ(g_white, picture.canvas.Pixel(5, 5));
}

TEST(DC, SelectObjectGivesTheObjectBefore)
{
    Picture picture;
    CPen first(PS_SOLID, 1, g_red);
    CPen second(PS_SOLID, 1, g_blue);
    CPen* stock = picture.dc.SelectObject(&first);
    EXPECT_EQ(&first, picture.dc.SelectObject(&second));
    EXPECT_EQ(&second, picture.dc.SelectObject(stock));
}

TEST(DC, LinesUseTheSelectedPen)
{
    Picture picture;
    CPen pen(PS_SOLID, 1, g_blue);
    CPen* before = picture.dc.SelectObject(&pen);
    EXPECT_EQ(CPoint(0, 0), picture.dc.MoveTo(3, 8));
    picture.dc.LineTo(9, 8);
    EXPECT_EQ(CPoint(9, 8), picture.dc.GetCurrentPosition());
    picture.dc.SelectObject(before);
    const RECT all = {0, 0, 32, 32};
    EXPECT_EQ(6, picture.canvas.Count(all, g_blue));
}

TEST(DC, TextIsDrawnInTheTextColorAndMeasured)
{
    Picture picture;
    picture.dc.SetBkMode(TRANSPARENT);
    EXPECT_EQ(RGB(0, 0, 0), picture.dc.SetTextColor(g_red));
    const CString text(L"WW");
    const CSize size = picture.dc.GetTextExtent(text);
    EXPECT_GT(size.cx, 4);
    CRect measured(0, 0, 0, 0);
    picture.dc.DrawText(text, &measured, DT_CALCRECT | DT_SINGLELINE);
    EXPECT_EQ(size.cx, measured.Width());
    picture.dc.TextOut(0, 0, text);
    const RECT all = {0, 0, 32, 32};
    EXPECT_GT(picture.canvas.Count(all, g_red, 100), 3);
}

TEST(DC, ModifyStringLeavesTheStringAlone)
{
    Picture picture;
    const CString text(L"a long text that does not fit");
    const CString copy(text);
    CRect narrow(0, 0, 30, 20);
    picture.dc.DrawText(text, &narrow, DT_END_ELLIPSIS | DT_MODIFYSTRING | DT_SINGLELINE);
    EXPECT_STREQ(copy, text);
}

TEST(DC, SavedStateComesBack)
{
    Picture picture;
    const int saved = picture.dc.SaveDC();
    picture.dc.SetTextColor(g_blue);
    picture.dc.RestoreDC(saved);
    EXPECT_EQ(RGB(0, 0, 0), picture.dc.GetTextColor());
}

TEST(DC, ClippedPixelsStay)
{
    Picture picture;
    picture.dc.ExcludeClipRect(CRect(0, 0, 16, 32));
    picture.dc.FillSolidRect(CRect(0, 0, 32, 32), g_red);
    EXPECT_EQ(g_white, picture.canvas.Pixel(15, 10));
    EXPECT_EQ(g_red, picture.canvas.Pixel(16, 10));
}

TEST(DC, WindowOriginMovesTheOutput)
{
    Picture picture;
    EXPECT_EQ(CPoint(0, 0), picture.dc.SetViewportOrg(10, 20));
    picture.dc.FillSolidRect(CRect(0, 0, 1, 1), g_red);
    EXPECT_EQ(g_red, picture.canvas.Pixel(10, 20));
}

TEST(DC, MemoryContextIsDeletedWithItsObject)
{
    HDC handle;
    {
        CDC memory;
        ASSERT_TRUE(memory.CreateCompatibleDC(NULL));
        handle = memory;
        EXPECT_EQ(&memory, CDC::FromHandle(handle));
    }
    EXPECT_EQ(0u, ::GetObjectType(handle));
}

TEST(ImageList, MaskedStripIsCutIntoImages)
{
    CBitmap strip;
    strip.CreateBitmap(32, 16, 1, 32, NULL);
    CDC memory;
    memory.CreateCompatibleDC(NULL);
    CBitmap* before = memory.SelectObject(&strip);
    memory.FillSolidRect(CRect(0, 0, 16, 16), g_red);
    memory.FillSolidRect(CRect(16, 0, 32, 16), g_blue);
    memory.SelectObject(before);

    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR32 | ILC_MASK, 0, 2));
    EXPECT_EQ(0, images.Add(&strip, RGB(0, 255, 0)));
    EXPECT_EQ(2, images.GetImageCount());
    Picture picture;
    EXPECT_TRUE(images.Draw(&picture.dc, 1, CPoint(0, 0), ILD_NORMAL));
    EXPECT_EQ(g_blue, picture.canvas.Pixel(8, 8));
}

TEST(ImageList, OwnerIsFoundAndTemporaryOnesOnlyBorrow)
{
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR32, 1, 1));
    EXPECT_EQ(&images, CImageList::FromHandle(images));
    const HIMAGELIST foreign = ImageList_Create(8, 8, ILC_COLOR32, 1, 1);
    EXPECT_EQ(nullptr, CImageList::FromHandlePermanent(foreign));
    CImageList::FromHandle(foreign);
    CImageList::DeleteTempMap();
    int width = 0;
    int height = 0;
    EXPECT_TRUE(ImageList_GetIconSize(foreign, &width, &height));
    EXPECT_EQ(8, width);
    ImageList_Destroy(foreign);
}
