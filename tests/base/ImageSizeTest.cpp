// How large icons and bitmaps are, and what is neither.
#include "base/ImageSize.h"

#include <gtest/gtest.h>

#include "GdiCount.h"

#include <vector>

namespace
{

constexpr int kWidth = 24;
constexpr int kHeight = 18;

// An icon of that size, with colours or of black and white alone.
class TestIcon
{
public:
    explicit TestIcon(BYTE bitsPerPixel)
    {
        const std::vector<BYTE> masks(kWidth * kHeight * 4);
        m_icon = ::CreateIcon(NULL, kWidth, kHeight, 1, bitsPerPixel, masks.data(), masks.data());
    }
    ~TestIcon() { ::DestroyIcon(m_icon); }
    TestIcon(const TestIcon&) = delete;
    TestIcon& operator=(const TestIcon&) = delete;

    HICON Get() const { return m_icon; }

private:
    HICON m_icon;
};

// Answers that must leave the size alone.
void ExpectNoImage(bool answer, const CSize& size)
{
    EXPECT_FALSE(answer);
    EXPECT_EQ(CSize(7, 8), size);
}

} // namespace

TEST(ImageSize, AnIconWithColoursHasItsSize)
{
    const TestIcon icon(32);
    CSize size;
    EXPECT_TRUE(GetIconSize(icon.Get(), size));
    EXPECT_EQ(CSize(kWidth, kHeight), size);
}

// Its two masks lie one below the other in one bitmap.
TEST(ImageSize, AnIconOfBlackAndWhiteHasItsSize)
{
    const TestIcon icon(1);
    CSize size;
    EXPECT_TRUE(GetIconSize(icon.Get(), size));
    EXPECT_EQ(CSize(kWidth, kHeight), size);
}

TEST(ImageSize, ABitmapHasItsSize)
{
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(kWidth, kHeight, 1, 1, NULL));
    CSize size;
    EXPECT_TRUE(GetBitmapSize(static_cast<HBITMAP>(bitmap.GetSafeHandle()), size));
    EXPECT_EQ(CSize(kWidth, kHeight), size);
}

TEST(ImageSize, WhatIsNoImageHasNoSize)
{
    const TestIcon icon(32);
    CBrush brush(RGB(1, 2, 3));
    CBitmap gone;
    gone.CreateBitmap(kWidth, kHeight, 1, 1, NULL);
    const HBITMAP deleted = static_cast<HBITMAP>(gone.GetSafeHandle());
    gone.DeleteObject();
    CSize size(7, 8);
    ExpectNoImage(GetIconSize(NULL, size), size);
    ExpectNoImage(GetIconSize(reinterpret_cast<HICON>(brush.GetSafeHandle()), size), size);
    ExpectNoImage(GetBitmapSize(NULL, size), size);
    ExpectNoImage(GetBitmapSize(deleted, size), size);
    ExpectNoImage(GetBitmapSize(reinterpret_cast<HBITMAP>(icon.Get()), size), size);
    ExpectNoImage(GetBitmapSize(reinterpret_cast<HBITMAP>(brush.GetSafeHandle()), size), size);
}

TEST(ImageSize, AskingLeavesNoGdiObject)
{
    const TestIcon colours(32);
    const TestIcon blackAndWhite(1);
    CSize size;
    GetIconSize(colours.Get(), size);
    const size_t before = CountGdiObjects();
    for (int i = 0; i < 20; ++i)
    {
        GetIconSize(colours.Get(), size);
        GetIconSize(blackAndWhite.Get(), size);
    }
    EXPECT_EQ(before, CountGdiObjects());
}
