// Which cell a button message hits. A right press is sent: the list view waits for the release of a left one.
#include "SortListFixture.h"

#include "MessageSpy.h"

namespace
{

class ClickPos : public SortListFixture
{
protected:
    typedef std::pair<int, int> Cell;

    // A press and its release; the release is queued first, because the list view waits for it inside the press.
    void Press(CPoint point)
    {
        const LPARAM place = MAKELPARAM(point.x, point.y);
        m_list.PostMessage(WM_RBUTTONUP, 0, place);
        m_list.SendMessage(WM_RBUTTONDOWN, MK_RBUTTON, place);
    }

    CPoint Centre(int row, int column)
    {
        CRect rect;
        m_list.GetSubItemRect(row, column, LVIR_LABEL, rect);
        return rect.CenterPoint();
    }

    Cell Get()
    {
        Cell cell;
        m_list.GetClickPos(cell.first, cell.second);
        return cell;
    }

    bool NeedsRedraw(int row)
    {
        CRect bounds;
        m_list.GetItemRect(row, &bounds, LVIR_BOUNDS);
        CRect update;
        ::GetUpdateRect(m_list.m_hWnd, &update, FALSE);
        CRect common;
        return common.IntersectRect(&update, &bounds) != FALSE;
    }
};

} // namespace

TEST_F(ClickPos, IsNowhereAtFirst)
{
    EXPECT_EQ(Cell(-1, -1), Get());
}

TEST_F(ClickPos, IsTheCellUnderThePoint)
{
    FillColumn({L"a", L"b", L"c"});
    for (int row = 0; row < 3; ++row)
    {
        for (int column = 0; column < 2; ++column)
        {
            Press(Centre(row, column));
            EXPECT_EQ(Cell(row, column), Get());
        }
    }
}

TEST_F(ClickPos, IsNowhereAfterAPressOutsideTheCells)
{
    FillColumn({L"a", L"b"});
    for (const CPoint& point : {CPoint(5, 350), CPoint(450, 30), CPoint(-5, -5)})
    {
        m_list.SetCellHighlight(false, 0, 0);
        Press(point);
        EXPECT_EQ(Cell(-1, -1), Get());
    }
}

TEST_F(ClickPos, IsRightInAScrolledList)
{
    FillColumn(Texts(500, L"text"));
    m_list.EnsureVisible(499, FALSE);
    Press(Centre(499, 1));
    EXPECT_EQ(Cell(499, 1), Get());
    const int top = m_list.GetTopIndex();
    Press(Centre(top, 0));
    EXPECT_EQ(Cell(top, 0), Get());
}

TEST_F(ClickPos, IsWhatSetCellHighlightSaid)
{
    FillColumn({L"a", L"b"});
    m_list.SetCellHighlight(false, 1, 0);
    EXPECT_EQ(Cell(1, 0), Get());
}

TEST_F(ClickPos, SetCellHighlightRedrawsItsRowOnly)
{
    FillColumn({L"a", L"b", L"c"});
    m_list.UpdateWindow();
    m_list.SetCellHighlight(true, 1, 0);
    EXPECT_FALSE(NeedsRedraw(0));
    EXPECT_TRUE(NeedsRedraw(1));
    EXPECT_FALSE(NeedsRedraw(2));
}

TEST_F(ClickPos, APressRedrawsTheFormerRowAndThenItsOwn)
{
    FillColumn({L"a", L"b", L"c"});
    m_list.SetCellHighlight(true, 2, 0);
    const MessageSpy spy(m_list.m_hWnd, LVM_REDRAWITEMS);
    Press(Centre(1, 0));
    EXPECT_EQ((std::vector<MessageSpy::Parameters>{{2, 2}, {1, 1}}), spy.Seen());
}

TEST_F(ClickPos, ARowThatIsPartlyInViewIsHit)
{
    FillColumn(std::vector<std::wstring>(200, L"a"));
    const int row = m_list.GetTopIndex() + m_list.GetCountPerPage();
    CRect bounds;
    m_list.GetItemRect(row, &bounds, LVIR_BOUNDS);
    m_list.SetWindowPos(NULL, 0, 0, bounds.right + 50, bounds.top + bounds.Height() / 2, SWP_NOMOVE | SWP_NOZORDER);
    ASSERT_EQ(row, m_list.GetTopIndex() + m_list.GetCountPerPage());
    Press(CPoint(bounds.left + 10, bounds.top + 1));
    EXPECT_EQ(Cell(row, 0), Get());
}
