#include <afxwin.h>

#include "GdiCount.h"

#include <gtest/gtest.h>

TEST(GdiObject, DestructorDeletesItsHandle)
{
    HPEN handle;
    {
        CPen pen(PS_SOLID, 1, RGB(1, 2, 3));
        handle = pen;
        EXPECT_EQ(static_cast<DWORD>(OBJ_PEN), ::GetObjectType(handle));
    }
    EXPECT_EQ(0u, ::GetObjectType(handle));
}

TEST(GdiObject, DetachGivesTheHandleUpAlive)
{
    HBRUSH handle;
    {
        CBrush brush(RGB(1, 2, 3));
        handle = static_cast<HBRUSH>(brush.Detach());
        EXPECT_EQ(nullptr, brush.m_hObject);
    }
    EXPECT_EQ(static_cast<DWORD>(OBJ_BRUSH), ::GetObjectType(handle));
    ::DeleteObject(handle);
}

TEST(GdiObject, FromHandleGivesTheOwnerOfAnOwnedHandle)
{
    CBrush brush(RGB(1, 2, 3));
    EXPECT_EQ(&brush, CBrush::FromHandle(brush));
}

TEST(GdiObject, TemporaryObjectLeavesItsHandleAlone)
{
    const HBRUSH handle = ::CreateSolidBrush(RGB(9, 8, 7));
    CBrush* brush = CBrush::FromHandle(handle);
    EXPECT_EQ(handle, brush->m_hObject);
    EXPECT_EQ(brush, CBrush::FromHandle(handle)) << "one temporary object a handle";
    CGdiObject::DeleteTempMap();
    EXPECT_EQ(static_cast<DWORD>(OBJ_BRUSH), ::GetObjectType(handle));
    ::DeleteObject(handle);
}

TEST(GdiObject, NullObjectHasTheNullHandle)
{
    CBrush* none = NULL;
    EXPECT_EQ(nullptr, none->GetSafeHandle());
    EXPECT_EQ(nullptr, CBrush::FromHandle(NULL));
}

TEST(GdiObject, AttachRefusesTheNullHandle)
{
    CFont font;
    EXPECT_FALSE(font.Attach(NULL));
    EXPECT_FALSE(font.DeleteObject());
}

TEST(GdiObject, PointFontHasItsHeightInPixelsOfTheScreen)
{
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(90, L"Tahoma"));
    LOGFONT data = {};
    font.GetLogFont(&data);
    CClientDC screen(NULL);
    EXPECT_EQ(-::MulDiv(screen.GetDeviceCaps(LOGPIXELSY), 90, 720), data.lfHeight);
    EXPECT_STREQ(L"Tahoma", data.lfFaceName);
}

TEST(GdiObject, ImpossiblePatternBrushThrowsAResourceException)
{
    CBitmap empty;
    bool thrown = false;
    try
    {
        CBrush brush(&empty);
    }
    catch (CResourceException* e)
    {
        thrown = true;
        e->Delete();
    }
    EXPECT_TRUE(thrown);
}

TEST(GdiObject, RegionsCombineAndAnswerPoints)
{
    CRgn left;
    CRgn right;
    CRgn both;
    left.CreateRectRgn(0, 0, 10, 10);
    right.CreateRectRgn(5, 0, 15, 10);
    both.CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(SIMPLEREGION, both.CombineRgn(&left, &right, RGN_AND));
    EXPECT_TRUE(both.PtInRegion(7, 5));
    EXPECT_FALSE(both.PtInRegion(3, 5));
}

TEST(GdiObject, NothingIsLeftAfterManyObjects)
{
    const size_t before = CountGdiObjects();
    for (int index = 0; index < 50; ++index)
    {
        CPen pen(PS_SOLID, 1, RGB(index, 0, 0));
        CBrush brush(RGB(0, index, 0));
        CFont font;
        font.CreatePointFont(90, L"Tahoma");
        CRgn region;
        region.CreateRectRgn(0, 0, index, index);
    }
    EXPECT_EQ(before, CountGdiObjects());
}

TEST(GdiObject, CounterSeesAnObjectThatIsKept)
{
    const size_t before = CountGdiObjects();
    CBrush brush(RGB(77, 66, 55));
    EXPECT_EQ(before + 1, CountGdiObjects());
}
