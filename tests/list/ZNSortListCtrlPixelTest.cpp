// What the list answers to the drawing notifications, and what it paints.
#include "SortListFixture.h"

#include "DibCanvas.h"
#include "GdiCount.h"
#include "list/ColorCell.h"
#include "list/SortArrow.h"

namespace
{

const COLORREF kWhite = RGB(255, 255, 255);
const COLORREF kYellow = RGB(255, 255, 200);
const COLORREF kRed = RGB(255, 0, 0);
const DWORD kCellStage = CDDS_ITEMPREPAINT | CDDS_SUBITEM;

class SortListPicture : public SortListFixture
{
protected:
    SortListPicture() : m_canvas(500, 400, RGB(9, 9, 9)) {}

    NMLVCUSTOMDRAW Notice(DWORD stage, int row, int column)
    {
        NMLVCUSTOMDRAW notice = {};
        notice.nmcd.hdr.hwndFrom = m_list.m_hWnd;
        notice.nmcd.hdr.idFrom = kListId;
        notice.nmcd.hdr.code = NM_CUSTOMDRAW;
        notice.nmcd.dwDrawStage = stage;
        notice.nmcd.hdc = m_canvas.Dc();
        notice.nmcd.dwItemSpec = static_cast<DWORD_PTR>(row);
        notice.iSubItem = column;
        CRect cell;
        m_list.GetSubItemRect(row, column, LVIR_BOUNDS, cell);
        notice.nmcd.rc = cell;
        return notice;
    }

    LRESULT Send(NMLVCUSTOMDRAW& notice)
    {
        return m_owner.SendMessage(WM_NOTIFY, kListId, reinterpret_cast<LPARAM>(&notice));
    }

    LRESULT Ask(DWORD stage, int row, int column)
    {
        NMLVCUSTOMDRAW notice = Notice(stage, row, column);
        return Send(notice);
    }

    // Everything that the window shows, painted into the canvas.
    void Paint()
    {
        ::SendMessageW(m_list.m_hWnd, WM_PRINT, reinterpret_cast<WPARAM>(m_canvas.Dc()), PRF_CLIENT | PRF_ERASEBKGND);
    }

    CRect Label(int row, int column)
    {
        CRect rect;
        m_list.GetSubItemRect(row, column, LVIR_LABEL, rect);
        return rect;
    }

    DibCanvas m_canvas;
};

} // namespace

TEST_F(SortListPicture, OtherStagesAskForItemsAndSubItems)
{
    FillColumn({L"a", L"b"});
    for (DWORD stage : {CDDS_PREPAINT, CDDS_POSTPAINT, CDDS_ITEMPREPAINT, CDDS_ITEMPOSTPAINT})
        EXPECT_EQ(CDRF_NOTIFYITEMDRAW, Ask(stage, 0, 0));
    EXPECT_EQ(CDRF_NOTIFYITEMDRAW, Ask(CDDS_ITEMPOSTPAINT | CDDS_SUBITEM, 0, 0));
}

TEST_F(SortListPicture, RowsOfAListOfTwoTakeTurns)
{
    FillColumn({L"a", L"b"});
    NMLVCUSTOMDRAW even = Notice(kCellStage, 0, 1);
    NMLVCUSTOMDRAW odd = Notice(kCellStage, 1, 1);
    EXPECT_EQ(CDRF_NEWFONT, Send(even));
    EXPECT_EQ(kWhite, even.clrTextBk);
    EXPECT_EQ(CDRF_NEWFONT, Send(odd));
    EXPECT_EQ(kYellow, odd.clrTextBk);
}

TEST_F(SortListPicture, AListOfOneRowIsNotStriped)
{
    FillColumn({L"a"});
    NMLVCUSTOMDRAW notice = Notice(kCellStage, 0, 0);
    notice.clrTextBk = 123;
    EXPECT_EQ(CDRF_DODEFAULT, Send(notice));
    EXPECT_EQ(123u, notice.clrTextBk);
}

TEST_F(SortListPicture, AColourCellIsDrawnInItsPlace)
{
    Fill({{L"a", L"Red"}, {L"b", L"10,20,30"}});
    m_list.SetIsColorColumn(1, 1);
    EXPECT_EQ(CDRF_SKIPDEFAULT, Ask(kCellStage, 0, 1));
    EXPECT_EQ(CDRF_SKIPDEFAULT, Ask(kCellStage, 1, 1));
    const CRect first = SwatchRect(Label(0, 1));
    const CRect second = SwatchRect(Label(1, 1));
    EXPECT_EQ(kRed, m_canvas.Pixel(first.CenterPoint().x, first.CenterPoint().y));
    EXPECT_EQ(RGB(10, 20, 30), m_canvas.Pixel(second.CenterPoint().x, second.CenterPoint().y));
    EXPECT_EQ(RGB(0, 0, 0), m_canvas.Pixel(first.left, first.top));
    EXPECT_EQ(kWhite, m_canvas.Pixel(first.left - 1, first.top));
    const CRect text = ColorTextRect(Label(0, 1));
    EXPECT_GT(m_canvas.Count(text, ::GetSysColor(COLOR_WINDOWTEXT), 60), 0) << "the name stands beside the swatch";
}

TEST_F(SortListPicture, AColourColumnCanBeSwitchedOff)
{
    Fill({{L"a", L"Red"}, {L"b", L"Red"}});
    m_list.SetIsColorColumn(1, 1);
    m_list.SetIsColorColumn(1, 0);
    EXPECT_EQ(CDRF_NEWFONT, Ask(kCellStage, 0, 1));
}

TEST_F(SortListPicture, AnUnknownColourNameHasAWhiteSwatch)
{
    Fill({{L"a", L"no colour"}, {L"b", L""}});
    m_list.SetIsColorColumn(1, 1);
    Ask(kCellStage, 0, 1);
    const CRect swatch = SwatchRect(Label(0, 1));
    EXPECT_EQ(kWhite, m_canvas.Pixel(swatch.CenterPoint().x, swatch.CenterPoint().y));
}

TEST_F(SortListPicture, AColourCellShowsSelectionAndDisabledState)
{
    Fill({{L"a", L"Red"}, {L"b", L"Red"}});
    m_list.SetIsColorColumn(1, 1);
    const CRect cell = Label(0, 1);
    m_list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    m_list.SetFocus();
    ASSERT_EQ(m_list.m_hWnd, ::GetFocus());
    Ask(kCellStage, 0, 1);
    EXPECT_EQ(RGB(0x31, 0x6A, 0xC5), m_canvas.Pixel(cell.right - 1, cell.top));
    m_owner.SetFocus();
    Ask(kCellStage, 0, 1);
    EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), m_canvas.Pixel(cell.right - 1, cell.top));
    m_list.SetItemState(0, 0, LVIS_SELECTED);
    Ask(kCellStage, 0, 1);
    EXPECT_EQ(kWhite, m_canvas.Pixel(cell.right - 1, cell.top));
    m_list.EnableWindow(FALSE);
    Ask(kCellStage, 0, 1);
    EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), m_canvas.Pixel(cell.right - 1, cell.top));
}

TEST_F(SortListPicture, APaintedSelectionFollowsTheFocus)
{
    Fill({{L"a", L"Red"}, {L"b", L"Red"}});
    m_list.SetIsColorColumn(1, 1);
    m_list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    const CRect cell = Label(0, 1);
    const auto background = [&] {
        m_list.SendMessage(WM_PAINT, reinterpret_cast<WPARAM>(m_canvas.Dc()));
        return m_canvas.Pixel(cell.right - 1, cell.top);
    };
    for (int i = 0; i < 2; ++i)
    {
        m_list.SetFocus();
        EXPECT_EQ(RGB(0x31, 0x6A, 0xC5), background());
        m_owner.SetFocus();
        EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), background());
    }
    m_list.SetFocus();
    Ask(kCellStage, 0, 1);
    EXPECT_EQ(RGB(0x31, 0x6A, 0xC5), m_canvas.Pixel(cell.right - 1, cell.top)) << "what a paint found is not kept";
}

TEST_F(SortListPicture, TheHighlightOfACellThatIsGoneDrawsNothing)
{
    FillColumn({L"a", L"b"});
    m_list.SetCellHighlight(true, 5, 1);
    EXPECT_NE(CDRF_SKIPDEFAULT, Ask(kCellStage, 5, 1));
    m_list.SetCellHighlight(true, 0, 9);
    EXPECT_NE(CDRF_SKIPDEFAULT, Ask(kCellStage, 0, 9));
}

TEST_F(SortListPicture, TheOwnerMayDeleteRowsWhileACellIsDrawn)
{
    for (const bool isColor : {false, true})
    {
        m_list.DeleteAllItems();
        Fill({{L"a", L"Red"}, {L"b", L"Red"}});
        m_list.SetItemText(1, 1, LPSTR_TEXTCALLBACK);
        m_list.SetIsColorColumn(1, isColor);
        m_list.SetCellHighlight(true, 1, 1);
        NMLVCUSTOMDRAW notice = Notice(kCellStage, 1, 1);
        m_owner.onNotify = [this](NMHDR& notification) {
            if (notification.code == LVN_GETDISPINFO)
                m_list.DeleteAllItems();
        };
        EXPECT_NE(CDRF_SKIPDEFAULT, Send(notice));
        EXPECT_EQ(0, m_list.GetItemCount());
        m_owner.onNotify = nullptr;
    }
}

TEST_F(SortListPicture, OnlyTheHighlightedCellIsHighlighted)
{
    FillColumn({L"a", L"b"});
    m_list.SetCellHighlight(true, 1, 1);
    EXPECT_EQ(CDRF_NEWFONT, Ask(kCellStage, 1, 0));
    EXPECT_EQ(CDRF_NEWFONT, Ask(kCellStage, 0, 1));
    EXPECT_EQ(CDRF_SKIPDEFAULT, Ask(kCellStage, 1, 1));
    const CRect cell = Label(1, 1);
    EXPECT_EQ(::GetSysColor(COLOR_HIGHLIGHT), m_canvas.Pixel(cell.left + 2, cell.top + 2));
    EXPECT_EQ(::GetSysColor(COLOR_HIGHLIGHT), m_canvas.Pixel(cell.right - 3, cell.bottom - 3));
    m_list.SetCellHighlight(false, 1, 1);
    EXPECT_EQ(CDRF_NEWFONT, Ask(kCellStage, 1, 1));
}

TEST_F(SortListPicture, TheHighlightedTextIsIndented)
{
    // A full block has no blank of its own at the left.
    Fill({{L"\x2588", L"\x2588"}, {L"b", L"b"}});
    const int indents[] = {2, 6};
    for (int column = 0; column < 2; ++column)
    {
        m_list.SetCellHighlight(true, 0, column);
        Ask(kCellStage, 0, column);
        const CRect cell = Label(0, column);
        const CRect before(cell.left + 1, cell.top + 1, cell.left + indents[column], cell.bottom - 1);
        const CRect behind(cell.left + indents[column], cell.top + 1, cell.left + 30, cell.bottom - 1);
        EXPECT_EQ(0, m_canvas.Count(before, ::GetSysColor(COLOR_HIGHLIGHTTEXT))) << "column " << column;
        EXPECT_GT(m_canvas.Count(behind, ::GetSysColor(COLOR_HIGHLIGHTTEXT)), 0) << "column " << column;
    }
}

TEST_F(SortListPicture, NoCellIsHighlightedForRowMinusOne)
{
    FillColumn({L"a", L"b"});
    m_list.SetCellHighlight(true, -1, -1);
    EXPECT_NE(CDRF_SKIPDEFAULT, Ask(kCellStage, -1, -1));
}

TEST_F(SortListPicture, ColourBeatsHighlight)
{
    Fill({{L"a", L"Red"}, {L"b", L"Red"}});
    m_list.SetIsColorColumn(1, 1);
    m_list.SetCellHighlight(true, 0, 1);
    Ask(kCellStage, 0, 1);
    const CRect swatch = SwatchRect(Label(0, 1));
    EXPECT_EQ(kRed, m_canvas.Pixel(swatch.CenterPoint().x, swatch.CenterPoint().y));
}

TEST_F(SortListPicture, TextBesideASwatchHasNoBackgroundOfItsOwn)
{
    Fill({{L"a", L"Red"}, {L"b", L"Red"}});
    m_list.SetIsColorColumn(1, 1);
    ::SetBkMode(m_canvas.Dc(), OPAQUE);
    Ask(kCellStage, 0, 1);
    // Inside of the first letters, which would stand on the colour of the swatch's frame.
    CRect letters = ColorTextRect(Label(0, 1));
    letters.right = letters.left + 10;
    letters.DeflateRect(0, letters.Height() / 2 - 3);
    EXPECT_GT(m_canvas.Count(letters, RGB(255, 255, 255)), 0);
}

TEST_F(SortListPicture, TheHighlightedCellHasAFocusRectangle)
{
    FillColumn({L"", L""});
    m_list.SetCellHighlight(true, 0, 0);
    Ask(kCellStage, 0, 0);
    const CRect label = Label(0, 0);
    const CRect edge(label.left, label.top, label.right, label.top + 1);
    const int plain = m_canvas.Count(edge, ::GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_GT(plain, 0); // dots
    EXPECT_LT(plain, edge.Width());
}

TEST_F(SortListPicture, TheDeviceContextIsAsBefore)
{
    Fill({{L"a", L"Red"}, {L"b", L"Red"}});
    m_list.SetIsColorColumn(1, 1);
    m_list.SetCellHighlight(true, 0, 0);
    const HGDIOBJ font = ::GetCurrentObject(m_canvas.Dc(), OBJ_FONT);
    ::SetTextColor(m_canvas.Dc(), RGB(1, 2, 3));
    ::SetBkMode(m_canvas.Dc(), OPAQUE);
    for (int column = 0; column < 2; ++column)
    {
        Ask(kCellStage, 0, column);
        EXPECT_EQ(font, ::GetCurrentObject(m_canvas.Dc(), OBJ_FONT));
        EXPECT_EQ(RGB(1, 2, 3), ::GetTextColor(m_canvas.Dc()));
        EXPECT_EQ(OPAQUE, ::GetBkMode(m_canvas.Dc()));
    }
}

TEST_F(SortListPicture, BadNoticesDrawNothing)
{
    Fill({{L"a", L"Red"}, {L"b", L"Red"}});
    m_list.SetIsColorColumn(1, 1);
    EXPECT_NE(CDRF_SKIPDEFAULT, Ask(kCellStage, 99, 1));
    NMLVCUSTOMDRAW notice = Notice(kCellStage, 0, 1);
    notice.nmcd.hdc = NULL;
    EXPECT_NE(CDRF_SKIPDEFAULT, Send(notice));
}

TEST_F(SortListPicture, TheOwnerMayDestroyTheListWhileACellIsDrawn)
{
    Fill({{L"a", L"Red"}, {L"b", L"Red"}});
    m_list.SetItemText(0, 1, LPSTR_TEXTCALLBACK);
    m_list.SetIsColorColumn(1, 1);
    NMLVCUSTOMDRAW notice = Notice(kCellStage, 0, 1);
    m_owner.onNotify = [this](NMHDR& notification) {
        if (notification.code == LVN_GETDISPINFO)
            m_list.DestroyWindow();
    };
    EXPECT_NE(CDRF_SKIPDEFAULT, Send(notice));
    EXPECT_FALSE(::IsWindow(m_list.m_hWnd));
}

TEST_F(SortListPicture, TheWindowShowsStripesAndSwatches)
{
    Fill({{L"a", L"Red"}, {L"b", L"Green"}, {L"c", L"ByLayer"}});
    m_list.SetIsColorColumn(1, 1);
    Paint();
    const COLORREF colors[] = {kRed, RGB(0, 255, 0), kWhite};
    for (int row = 0; row < 3; ++row)
    {
        const CRect text = Label(row, 0);
        const CRect swatch = SwatchRect(Label(row, 1));
        EXPECT_EQ(row == 1 ? kYellow : kWhite, m_canvas.Pixel(text.right - 3, text.top + 1)) << "row " << row;
        EXPECT_EQ(colors[row], m_canvas.Pixel(swatch.CenterPoint().x, swatch.CenterPoint().y)) << "row " << row;
    }
}

TEST_F(SortListPicture, SwatchesFollowTheScrolledWindow)
{
    Fill({{L"a", L"Red"}, {L"b", L"Green"}});
    m_list.SetIsColorColumn(1, 1);
    m_list.SetColumnWidth(0, 400);
    m_list.SetColumnWidth(1, 400);
    m_list.UpdateWindow();
    m_list.Scroll(CSize(150, 0));
    ASSERT_EQ(250, Label(0, 1).left);
    Paint();
    const CRect swatch = SwatchRect(Label(0, 1));
    EXPECT_EQ(RGB(0, 0, 0), m_canvas.Pixel(swatch.left, swatch.top));
    EXPECT_EQ(kRed, m_canvas.Pixel(swatch.CenterPoint().x, swatch.CenterPoint().y));
    EXPECT_EQ(0, m_canvas.Count(CRect(0, swatch.top, 249, swatch.bottom), kRed));
}

TEST_F(SortListPicture, AColourColumnAtTheFrontStaysInItsCell)
{
    Fill({{L"Red", L"x"}, {L"Green", L"y"}});
    m_list.SetIsColorColumn(0, 1);
    Paint();
    const CRect swatch = SwatchRect(CRect(0, Label(0, 0).top, kColumnWidth, Label(0, 0).bottom));
    EXPECT_EQ(kRed, m_canvas.Pixel(swatch.CenterPoint().x, swatch.CenterPoint().y));
}

TEST_F(SortListPicture, TheHeaderImagesAreTheArrows)
{
    FillColumn({L"a", L"b"});
    m_list.SortColumn(0, 0, 1);
    CImageList* const images = m_list.GetHeaderCtrl()->GetImageList();
    const COLORREF behind = RGB(0, 90, 0);
    for (int image = 0; image < 2; ++image)
    {
        DibCanvas arrow(kSortArrowPixels, kSortArrowPixels, 0);
        DibCanvas shown(kSortArrowPixels, kSortArrowPixels, behind);
        DrawSortArrow(*CDC::FromHandle(arrow.Dc()), image == 0);
        images->Draw(CDC::FromHandle(shown.Dc()), image, CPoint(0, 0), ILD_TRANSPARENT);
        for (int y = 0; y < kSortArrowPixels; ++y)
        {
            for (int x = 0; x < kSortArrowPixels; ++x)
            {
                const COLORREF drawn = arrow.Pixel(x, y);
                EXPECT_EQ(drawn == kSortArrowMask ? behind : drawn, shown.Pixel(x, y)) << x << "," << y;
            }
        }
    }
}

TEST_F(SortListPicture, PaintingAndSortingLeaveNoGdiObjectBehind)
{
    Fill({{L"a", L"Red"}, {L"b", L"Green"}});
    m_list.SetIsColorColumn(1, 1);
    m_list.SetCellHighlight(true, 0, 0);
    const auto work = [this] {
        m_list.SortColumn(0, 0, -1);
        m_list.RedrawWindow();
        Paint();
    };
    work();
    const size_t before = CountGdiObjects();
    for (int i = 0; i < 10; ++i)
        work();
    EXPECT_EQ(before, CountGdiObjects());
}
