// Every pixel of the six check images, as drawings and as images of a tree.
#include "StateTreeFixture.h"

#include "DibCanvas.h"
#include "GdiCount.h"
#include "tree/CheckBoxPicture.h"

namespace
{

// # black  . white  - light grey  r red
const char* const kNone[] = {
    "................", "................", "..#############.", "..#############.", //
    "..#############.", "..#############.", "..#############.", "..#############.", //
    "..#############.", "..#############.", "..#############.", "..#############.", //
    "..#############.", "..#############.", "..#############.", "................",
};
const char* const kUnchecked[] = {
    "................", "................", "..#############.", "..#############.", //
    "..##.........##.", "..##.........##.", "..##.........##.", "..##.........##.", //
    "..##.........##.", "..##.........##.", "..##.........##.", "..##.........##.", //
    "..##.........##.", "..#############.", "..#############.", "................",
};
const char* const kChecked[] = {
    "................", //
    "................", //
    "..#############.", //
    "..#############.", //
    "..##.........##.", //
    "..##.......#.##.", //
    "..##......##.##.", //
    "..##.#...###.##.", //
    "..##.##.###..##.", //
    "..##.#####...##.", //
    "..##..###....##.", //
    "..##...#.....##.", //
    "..##.........##.", //
    "..#############.", //
    "..#############.", //
    "................",
};
const char* const kPartial[] = {
    "................", //
    "................", //
    "..#############.", //
    "..#############.", //
    "..##---------##.", //
    "..##-------#-##.", //
    "..##------##-##.", //
    "..##-#---###-##.", //
    "..##-##-###--##.", //
    "..##-#####---##.", //
    "..##--###----##.", //
    "..##---#-----##.", //
    "..##---------##.", //
    "..#############.", //
    "..#############.", //
    "................",
};
const char* const kDisabled[] = {
    "................", //
    "................", //
    ".....rrrrrrr....", //
    "....rrrrrrrrr...", //
    "...rrrrr..rrrr..", //
    "..rrrrr....rrrr.", //
    "..rrrrr....rrrr.", //
    "..rrrrrr..rrrrr.", //
    "..rrrrrrrrrrrrr.", //
    "..rrrrrrrrrrrrr.", //
    "..rrrrrrrrrrrrr.", //
    "...rrrrrrrrrrr..", //
    "....rrrrrrrrr...", //
    ".....rrrrrrr....", //
    "................", //
    "................",
};

const char* const* const kImages[] = {kNone, kUnchecked, kChecked, kPartial, kDisabled, kUnchecked};
constexpr int kImageCount = 6;
constexpr int kSize = 16;

// The letter's colour; `white` is what the background shows.
COLORREF ColorOf(char letter, COLORREF white)
{
    switch (letter)
    {
    case '#':
        return RGB(0, 0, 0);
    case '-':
        return RGB(0xE4, 0xE4, 0xE4);
    case 'r':
        return RGB(255, 0, 0);
    default:
        return white;
    }
}

void ExpectPicture(const DibCanvas& canvas, const char* const* picture, COLORREF white, int image)
{
    for (int y = 0; y < kSize; ++y)
    {
        for (int x = 0; x < kSize; ++x)
            EXPECT_EQ(ColorOf(picture[y][x], white), canvas.Pixel(x, y))
                << "image " << image << " at " << x << "," << y;
    }
}

bool IsAt(const DibCanvas& canvas, int left, int top, const char* const* picture)
{
    for (int y = 0; y < kSize; ++y)
    {
        for (int x = 0; x < kSize; ++x)
        {
            if (canvas.Pixel(left + x, top + y) != ColorOf(picture[y][x], RGB(255, 255, 255)))
                return false;
        }
    }
    return true;
}

bool IsShown(const DibCanvas& canvas, const CRect& area, const char* const* picture)
{
    for (int top = area.top; top + kSize <= area.bottom; ++top)
    {
        for (int left = area.left; left + kSize <= area.right; ++left)
        {
            if (IsAt(canvas, left, top, picture))
                return true;
        }
    }
    return false;
}

class CheckBoxImages : public StateTreeFixture
{
protected:
    // Painting brings the first notification.
    void Show()
    {
        Add(NULL, 1);
        m_tree.RedrawWindow(NULL, NULL, RDW_INVALIDATE | RDW_UPDATENOW);
    }

    HIMAGELIST List() const
    {
        return reinterpret_cast<HIMAGELIST>(::SendMessage(m_tree.m_hWnd, TVM_GETIMAGELIST, TVSIL_STATE, 0));
    }
};

} // namespace

TEST(CheckBoxPicture, EveryPixelOfEveryValueIsAsDrawnHere)
{
    for (int value = 0; value < kImageCount - 1; ++value)
    {
        DibCanvas canvas(kSize + 2, kSize + 2, RGB(1, 2, 3));
        DrawCheckBox(*CDC::FromHandle(canvas.Dc()), value);
        ExpectPicture(canvas, kImages[value], RGB(255, 255, 255), value);
        EXPECT_EQ(RGB(1, 2, 3), canvas.Pixel(kSize, 8)) << "drawn beyond the square";
        EXPECT_EQ(RGB(1, 2, 3), canvas.Pixel(8, kSize)) << "drawn beyond the square";
    }
}

TEST_F(CheckBoxImages, TheTreeHasSixImagesOfSixteenPixels)
{
    Show();
    ASSERT_NE(nullptr, List());
    EXPECT_EQ(kImageCount, ::ImageList_GetImageCount(List()));
    int width = 0;
    int height = 0;
    ::ImageList_GetIconSize(List(), &width, &height);
    EXPECT_EQ(kSize, width);
    EXPECT_EQ(kSize, height);
}

TEST_F(CheckBoxImages, EveryPixelOfEveryImageIsAsDrawnAndWhiteIsTransparent)
{
    Show();
    const COLORREF ground = RGB(255, 0, 255);
    for (int image = 0; image < kImageCount; ++image)
    {
        DibCanvas canvas(kSize, kSize, ground);
        ASSERT_TRUE(::ImageList_Draw(List(), image, canvas.Dc(), 0, 0, ILD_TRANSPARENT));
        ExpectPicture(canvas, kImages[image], ground, image);
    }
}

TEST_F(CheckBoxImages, TheTreePaintsTheImageOfEachValue)
{
    m_tree.ModifyStyle(TVS_HASLINES, 0); // they touch the edge of the images
    m_tree.SetItemHeight(20);
    std::vector<HTREEITEM> items;
    for (int value = 0; value < kImageCount; ++value)
        items.push_back(Add(NULL, value));
    m_tree.RedrawWindow(NULL, NULL, RDW_INVALIDATE | RDW_UPDATENOW);
    DibCanvas canvas(300, 380, RGB(9, 9, 9));
    ::SendMessage(m_tree.m_hWnd, WM_PRINT, reinterpret_cast<WPARAM>(canvas.Dc()), PRF_CLIENT | PRF_ERASEBKGND);
    for (int value = 1; value < kImageCount; ++value)
    {
        CRect row;
        m_tree.GetItemRect(items[value], &row, FALSE);
        for (int other = 1; other < kImageCount; ++other)
            EXPECT_EQ(kImages[other] == kImages[value], IsShown(canvas, row, kImages[other])) << value << " " << other;
    }
}

TEST_F(CheckBoxImages, ATreeThatComesAndGoesLeavesNoGdiObject)
{
    const auto comeAndGo = [this] {
        CStateTreeCtrl tree;
        tree.Create(kStyle, Place(), &m_owner, 99);
        tree.InsertItem(L"item");
        tree.RedrawWindow(NULL, NULL, RDW_INVALIDATE | RDW_UPDATENOW);
        tree.SetCheck(tree.GetRootItem(), 1);
        tree.RedrawWindow(NULL, NULL, RDW_INVALIDATE | RDW_UPDATENOW);
    };
    comeAndGo(); // what the control library makes once
    const size_t before = CountGdiObjects();
    for (int i = 0; i < 20; ++i)
        comeAndGo();
    EXPECT_EQ(before, CountGdiObjects());
}

TEST_F(CheckBoxImages, TheDrawingLeavesNoGdiObject)
{
    DibCanvas canvas(kSize, kSize, 0);
    CDC& dc = *CDC::FromHandle(canvas.Dc());
    const size_t before = CountGdiObjects();
    for (int value = 0; value < kImageCount; ++value)
        DrawCheckBox(dc, value);
    EXPECT_EQ(before, CountGdiObjects());
}
