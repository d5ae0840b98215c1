// What the tree with added icons shows.
#include "IconTreeFixture.h"

#include "GdiCount.h"
#include "tree/IconPainter.h"

namespace
{

class IconTreePicture : public IconTreeFixture
{
protected:
    IconTreePicture() : m_canvas(kWidth, kHeight, RGB(9, 9, 9))
    {
        Fill(m_normal, {kIconRed, kIconGreen});
        Fill(m_added, {kIconBlue, kIconRed, kIconGreen});
        m_tree.SetAddedImageList(&m_added);
        m_item = m_tree.InsertItem(L"Hxg");
        m_other = m_tree.InsertItem(L"Hxg");
        m_tree.SelectItem(NULL);
    }

    void Show(const CTreeItemImages& images)
    {
        m_tree.SetAddedIcons(m_item, images);
        Paint(m_canvas);
    }

    CRect IconCell(int left, int width = 16, int height = 16) const
    {
        const CRect label = Label(m_item);
        return CRect(CPoint(label.left + left, label.top), CSize(width, height));
    }

    // Black pixels of the text of an item whose icons take so many pixels.
    int TextIn(HTREEITEM item, int shift)
    {
        CRect label = Label(item);
        label.OffsetRect(shift, 0);
        return m_canvas.Count(label, RGB(0, 0, 0));
    }

    int TextHeight() const
    {
        const HDC dc = ::GetDC(m_tree.m_hWnd);
        const HGDIOBJ before = ::SelectObject(dc, m_tree.GetFont()->GetSafeHandle());
        TEXTMETRIC metrics = {};
        ::GetTextMetrics(dc, &metrics);
        ::SelectObject(dc, before);
        ::ReleaseDC(m_tree.m_hWnd, dc);
        return metrics.tmHeight;
    }

    CImageList m_normal;
    CImageList m_added;
    HTREEITEM m_item;
    HTREEITEM m_other;
    DibCanvas m_canvas;
};

} // namespace

TEST_F(IconTreePicture, IconsOfAllSourcesStandInTheirOrderBeforeTheLabel)
{
    m_tree.SetImageList(&m_normal, TVSIL_NORMAL);
    const PlainIcon icon(10, 12, kIconBlue);
    CTreeItemImages images;
    images.AddImage(1);                                 // green of the tree's list
    images.AddIcon(icon);                               // blue, 10 by 12
    images.AddImage(1, CTreeItemImages::IMG_ADDEDLIST); // red
    images.AddImage(0, 77);                             // red of the tree's list: an unknown source is the tree's
    Show(images);
    EXPECT_EQ(256, m_canvas.Count(IconCell(0), kIconGreen));
    EXPECT_EQ(120, m_canvas.Count(IconCell(16, 10, 12), kIconBlue));
    EXPECT_EQ(512, m_canvas.Count(IconCell(26, 32), kIconRed));
    EXPECT_GT(TextIn(m_item, 58), 5) << "the label is to the right of the icons";
}

TEST_F(IconTreePicture, TheLabelOfAnItemWithoutIconsIsPaintedToo)
{
    Paint(m_canvas);
    EXPECT_GT(TextIn(m_other, 0), 5);
}

TEST_F(IconTreePicture, AllBlackOfTheLabelIsInTheMovedRectangle)
{
    CTreeItemImages images;
    images.AddImage(0, CTreeItemImages::IMG_ADDEDLIST);
    Show(images);
    const CRect label = Label(m_item);
    const CRect before(0, label.top, label.left + 16 + 3, label.bottom);
    EXPECT_EQ(0, m_canvas.Count(before, RGB(0, 0, 0))) << "nothing is left of the native label, nor of the indent";
}

TEST_F(IconTreePicture, TheLabelBeginsThreePixelsRightOfTheIcons)
{
    m_tree.SetItemText(m_item, L"|");
    Paint(m_canvas);
    const CRect label = Label(m_item);
    int first = label.right + 10;
    for (int x = label.left; x < first; ++x)
    {
        if (m_canvas.Count(CRect(x, label.top, x + 1, label.bottom), RGB(0, 0, 0)) > 3)
            first = x;
    }
    const int unshifted = first;
    CTreeItemImages images;
    images.AddImage(0, CTreeItemImages::IMG_ADDEDLIST);
    Show(images);
    EXPECT_GE(unshifted, label.left + 3);
    EXPECT_GT(m_canvas.Count(CRect(unshifted + 16, label.top, unshifted + 17, label.bottom), RGB(0, 0, 0)), 3);
}

TEST_F(IconTreePicture, AnIndexThatTheListDoesNotHaveNeitherDrawsNorShifts)
{
    for (unsigned int source : {1u, 2u, 9u})
    {
        for (int index : {-1, 3, 1000, -1000})
        {
            CTreeItemImages images;
            images.AddImage(index, source);
            images.AddImage(0, CTreeItemImages::IMG_ADDEDLIST);
            Show(images);
            EXPECT_EQ(256, m_canvas.Count(IconCell(0), kIconBlue)) << source << " " << index;
        }
    }
}

TEST_F(IconTreePicture, MissingListsDrawNothing)
{
    m_tree.SetAddedImageList(NULL);
    CTreeItemImages images;
    images.AddImage(0, CTreeItemImages::IMG_ADDEDLIST);
    images.AddImage(0, CTreeItemImages::IMG_TREELIST);
    Show(images);
    EXPECT_GT(TextIn(m_item, 0), 5);
    CImageList empty;
    m_tree.SetAddedImageList(&empty);
    Paint(m_canvas);
    EXPECT_GT(TextIn(m_item, 0), 5);
}

TEST_F(IconTreePicture, HandlesThatAreNoIconsDrawNothing)
{
    HICON destroyed = NULL;
    {
        const PlainIcon icon(16, 16, kIconRed);
        destroyed = icon;
    }
    CTreeItemImages images;
    images.AddIcon(NULL);
    images.AddIcon(reinterpret_cast<HICON>(m_tree.m_hWnd));
    images.AddIcon(reinterpret_cast<HICON>(static_cast<ULONG_PTR>(0xDEAD)));
    images.AddIcon(destroyed);
    images.AddImage(0, CTreeItemImages::IMG_ADDEDLIST);
    Show(images);
    EXPECT_EQ(256, m_canvas.Count(IconCell(0), kIconBlue));
}

TEST_F(IconTreePicture, ABlackAndWhiteIconHasItsOwnHeight)
{
    const std::vector<BYTE> andMask(16 * 2, 0x00);
    const std::vector<BYTE> xorMask(16 * 2, 0x00);
    const HICON icon = ::CreateIcon(NULL, 16, 16, 1, 1, andMask.data(), xorMask.data());
    ASSERT_NE(nullptr, icon);
    CTreeItemImages images;
    images.AddIcon(icon);
    Show(images);
    EXPECT_EQ(256, m_canvas.Count(IconCell(0), RGB(0, 0, 0)));
    EXPECT_EQ(0, m_canvas.Count(IconCell(0, 16, 20), RGB(0, 0, 0)) - 256) << "not twice as high";
    ::DestroyIcon(icon);
}

TEST_F(IconTreePicture, ACallersIconIsNotDestroyed)
{
    const PlainIcon icon(16, 16, kIconRed);
    CTreeItemImages images;
    images.AddIcon(icon);
    Show(images);
    Show(images);
    EXPECT_EQ(256, m_canvas.Count(IconCell(0), kIconRed));
    ICONINFO info = {};
    ASSERT_TRUE(::GetIconInfo(icon, &info));
    ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
}

TEST_F(IconTreePicture, TheGroundUnderAnIconIsWhite)
{
    // An icon whose left half is transparent, on a selected item.
    std::vector<BYTE> andMask;
    for (int y = 0; y < 16; ++y)
    {
        andMask.push_back(0xFF);
        andMask.push_back(0x00);
    }
    const std::vector<BYTE> black(16 * 16 * 4, 0);
    ICONINFO info = {};
    info.fIcon = TRUE;
    info.hbmMask = ::CreateBitmap(16, 16, 1, 1, andMask.data());
    info.hbmColor = ::CreateBitmap(16, 16, 1, 32, black.data());
    const HICON icon = ::CreateIconIndirect(&info);
    ::DeleteObject(info.hbmMask);
    ::DeleteObject(info.hbmColor);
    CTreeItemImages images;
    images.AddIcon(icon);
    m_tree.SelectItem(m_item);
    Show(images);
    EXPECT_EQ(128, m_canvas.Count(IconCell(0, 8), kWhite));
    ::DestroyIcon(icon);
}

TEST_F(IconTreePicture, ASelectedLabelIsWhiteOnBlueWithAFocusRectangle)
{
    m_tree.SelectItem(m_item);
    CTreeItemImages images;
    images.AddImage(0, CTreeItemImages::IMG_ADDEDLIST);
    Show(images);
    CRect label = Label(m_item);
    label.OffsetRect(16, 0);
    label.right += 4;
    CRect inside(label);
    inside.DeflateRect(1, 1);
    const int blue = m_canvas.Count(inside, kSelectedBlue);
    const int white = m_canvas.Count(inside, kWhite, 0);
    EXPECT_GT(blue, inside.Width() * inside.Height() / 2);
    EXPECT_GT(white, 5) << "the text";
    EXPECT_EQ(0, m_canvas.Count(inside, RGB(0, 0, 0)));
    int dots = 0;
    for (int x = label.left; x < label.right; ++x)
        dots += !m_canvas.Near(x, label.top, kSelectedBlue) && !m_canvas.Near(x, label.top, kWhite, 0);
    EXPECT_GE(dots, label.Width() / 2 - 1) << "every other point of the focus rectangle";
    EXPECT_EQ(0, m_canvas.Count(CRect(label.right, label.top, kWidth, label.bottom), kSelectedBlue));
}

TEST_F(IconTreePicture, AnUnselectedLabelIsBlackOnWhite)
{
    m_tree.SelectItem(m_item);
    Paint(m_canvas);
    const CRect label = Label(m_other);
    EXPECT_EQ(0, m_canvas.Count(label, kSelectedBlue));
    EXPECT_GT(m_canvas.Count(label, kWhite), label.Width() * label.Height() / 2);
    EXPECT_GT(m_canvas.Count(label, RGB(0, 0, 0)), 5);
}

TEST_F(IconTreePicture, TheGroundOfALabelIsWhiteWhateverTheTreesColour)
{
    m_tree.SetBkColor(RGB(200, 255, 200));
    Paint(m_canvas);
    EXPECT_TRUE(m_canvas.Near(Label(m_item).left + 1, Label(m_item).top + 1, kWhite));
}

TEST_F(IconTreePicture, TheLabelStandsInTheMiddleOfAHighItem)
{
    m_tree.SetItemHeight(60);
    Paint(m_canvas);
    const CRect label = Label(m_item);
    int first = label.top;
    while (first < label.bottom && m_canvas.Count(CRect(label.left, first, label.right, first + 1), RGB(0, 0, 0)) == 0)
        ++first;
    const int textHeight = TextHeight();
    ASSERT_LT(textHeight, 30);
    EXPECT_GE(first, label.CenterPoint().y - textHeight / 2 - 1);
    EXPECT_LT(first, label.CenterPoint().y);
}

TEST_F(IconTreePicture, AnAmpersandIsShown)
{
    m_tree.SetItemText(m_item, L"ab");
    m_tree.SetItemText(m_other, L"a&b");
    Paint(m_canvas);
    EXPECT_GT(TextIn(m_other, 0), TextIn(m_item, 0) + 4);
}

TEST_F(IconTreePicture, ManyIconsBeyondTheWindowAreDrawnWithoutHarm)
{
    CTreeItemImages images;
    for (int i = 0; i < 100; ++i)
        images.AddImage(i % 3, CTreeItemImages::IMG_ADDEDLIST);
    Show(images);
    EXPECT_EQ(256, m_canvas.Count(IconCell(0), kIconBlue));
    EXPECT_EQ(256, m_canvas.Count(IconCell(16), kIconRed));
    EXPECT_EQ(256, m_canvas.Count(IconCell(32), kIconGreen));
}

TEST_F(IconTreePicture, AnEmptyTreeIsWhite)
{
    m_tree.DeleteAllItems();
    Paint(m_canvas);
    EXPECT_EQ(kWidth * kHeight, m_canvas.Count(CRect(0, 0, kWidth, kHeight), kWhite));
}

TEST_F(IconTreePicture, ATextThatTheOwnerAnswersIsPainted)
{
    TVITEM asked = {};
    asked.hItem = m_item;
    asked.mask = TVIF_TEXT;
    asked.pszText = LPSTR_TEXTCALLBACK;
    m_tree.SetItem(&asked);
    Repaint();
    int questions = 0;
    m_owner.onNotify = [&](NMHDR& header) {
        if (header.code != TVN_GETDISPINFO)
            return;
        ++questions;
        NMTVDISPINFO& info = reinterpret_cast<NMTVDISPINFO&>(header);
        wcscpy(info.item.pszText, L"asked");
    };
    Paint(m_canvas);
    EXPECT_GE(questions, 1);
    EXPECT_GT(TextIn(m_item, 0), 5);
}

TEST_F(IconTreePicture, PaintingLeavesNoGdiObject)
{
    m_tree.SetImageList(&m_normal, TVSIL_NORMAL);
    const PlainIcon icon(16, 16, kIconRed);
    CTreeItemImages images;
    images.AddIcon(icon);
    images.AddImage(0);
    images.AddImage(1, CTreeItemImages::IMG_ADDEDLIST);
    images.AddImage(-1, CTreeItemImages::IMG_ADDEDLIST);
    images.AddIcon(reinterpret_cast<HICON>(static_cast<ULONG_PTR>(0xDEAD)));
    m_tree.SelectItem(m_item);
    Show(images);
    const size_t before = CountGdiObjects();
    for (int i = 0; i < 50; ++i)
        Repaint();
    EXPECT_EQ(before, CountGdiObjects());
}

TEST_F(IconTreePicture, ThePaintersAnswerTheWidthThatTheyDrew)
{
    CDC& dc = *CDC::FromHandle(m_canvas.Dc());
    const PlainIcon icon(10, 12, kIconBlue);
    CIconPainter painter(dc);
    EXPECT_EQ(10, painter.PaintIcon(icon, CPoint(0, 0)));
    EXPECT_EQ(0, painter.PaintIcon(NULL, CPoint(0, 0)));
    for (int again = 0; again < 2; ++again)
    {
        EXPECT_EQ(16, painter.PaintImage(m_added.GetSafeHandle(), 2, CPoint(20 + 20 * again, 20)));
        EXPECT_EQ(256, m_canvas.Count(CRect(20 + 20 * again, 20, 36 + 20 * again, 36), kIconGreen));
        EXPECT_EQ(0, painter.PaintImage(m_added.GetSafeHandle(), 3, CPoint(0, 0)));
        EXPECT_EQ(0, painter.PaintImage(m_added.GetSafeHandle(), -1, CPoint(0, 0)));
    }
    EXPECT_EQ(0, painter.PaintImage(NULL, 0, CPoint(0, 0)));
}
