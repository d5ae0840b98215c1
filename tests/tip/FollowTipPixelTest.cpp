// The picture of the mouse-following tip.
#include "FollowTipFixture.h"

namespace
{

const COLORREF kYellow = RGB(255, 255, 175);
const int kDark = 120; // tolerance: anything that is rather black

class FollowTipPicture : public FollowTipFixture
{
};

} // namespace

TEST_F(FollowTipPicture, LinesStandOnYellowOneAndAHalfLinesApart)
{
    CFollowMouseTipWnd::ShowMsg(L"HHHH\nHHHH", 5, NULL);
    const auto picture = Picture(Tip());
    const int width = picture->Width();
    const int height = picture->Height();
    const int line = (height - 10) * 2 / 5; // two lines and half a line between them
    for (const CPoint& corner :
         {CPoint(0, 0), CPoint(width - 1, 0), CPoint(0, height - 1), CPoint(width - 1, height - 1)})
        EXPECT_EQ(kYellow, picture->Pixel(corner.x, corner.y)) << corner.x << "," << corner.y;
    const int second = 5 + line * 3 / 2;
    EXPECT_GT(picture->Count(CRect(3, 5, width, 5 + line), 0, kDark), 4) << "first line";
    EXPECT_GT(picture->Count(CRect(3, second, width, second + line), 0, kDark), 4) << "second line";
    EXPECT_EQ(0, picture->Count(CRect(0, 0, 3, height), 0, kDark)) << "left of the text";
    EXPECT_EQ(0, picture->Count(CRect(0, 0, width, 5), 0, kDark)) << "above the text";
    EXPECT_EQ(0, picture->Count(CRect(0, 5 + line + 1, width, second - 1), 0, kDark)) << "between the lines";
}

TEST_F(FollowTipPicture, BehindTheLettersIsYellowToo)
{
    CFollowMouseTipWnd::ShowMsg(L"HHHH", 5, NULL);
    const auto picture = Picture(Tip());
    const CRect all(0, 0, picture->Width(), picture->Height());
    EXPECT_EQ(0, picture->Count(all, RGB(255, 255, 255), 4));
}

TEST_F(FollowTipPicture, ANewTextIsPaintedAtOnce)
{
    CFollowMouseTipWnd::ShowMsg(L"HHHH", 5, NULL);
    Picture(Tip());
    CFollowMouseTipWnd::ShowMsg(L" ", 5, NULL);
    CRect stale(0, 0, 0, 0);
    EXPECT_FALSE(::GetUpdateRect(Tip(), &stale, FALSE));
    const auto picture = Picture(Tip());
    EXPECT_EQ(0, picture->Count(CRect(0, 0, picture->Width(), picture->Height()), 0, kDark));
}

TEST_F(FollowTipPicture, TheLastOfManyLinesThatFitsIsPainted)
{
    std::wstring lines;
    for (int i = 0; i < 2000; ++i)
        lines += L"HHHH\n";
    CFollowMouseTipWnd::ShowMsg(L"HHHH", 5, NULL);
    const int line = ScreenRect(Tip()).Height() - 10;
    CFollowMouseTipWnd::ShowMsg(lines.c_str(), 5, NULL);
    ::SetWindowPos(Tip(), HWND_TOP, 0, 0, 100, 200, SWP_NOACTIVATE);
    ::InvalidateRect(Tip(), NULL, FALSE);
    const auto picture = Picture(Tip());
    const int index = (200 - 5 - line) * 2 / (3 * line);
    const int top = 5 + line * 3 * index / 2;
    EXPECT_GT(picture->Count(CRect(3, top, 100, top + line), 0, kDark), 4);
}
