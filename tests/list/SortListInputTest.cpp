// The sortable list under a real mouse.
#include "SortListFixture.h"

#include "RealMouse.h"

namespace
{

class SortListInput : public SortListFixture
{
protected:
    SortListInput()
    {
        Fill({{L"b", L"2"}, {L"c", L"3"}, {L"a", L"1"}});
        ::SetForegroundWindow(m_owner.m_hWnd);
        m_list.UpdateWindow();
    }

    static CPoint OnScreen(HWND window, CRect rect)
    {
        ::MapWindowPoints(window, NULL, reinterpret_cast<POINT*>(&rect), 2);
        return rect.CenterPoint();
    }

    CPoint HeadingPoint(int column)
    {
        CRect rect;
        m_list.GetHeaderCtrl()->GetItemRect(column, &rect);
        return OnScreen(m_list.GetHeaderCtrl()->m_hWnd, rect);
    }

    CPoint CellPoint(int row, int column)
    {
        CRect rect;
        m_list.GetSubItemRect(row, column, LVIR_LABEL, rect);
        return OnScreen(m_list.m_hWnd, rect);
    }

    CPoint EmptyPoint()
    {
        CRect client;
        m_list.GetClientRect(&client);
        return OnScreen(m_list.m_hWnd, CRect(client.right - 20, client.bottom - 20, client.right, client.bottom));
    }

    bool IsClicked(int row, int column)
    {
        int clickedRow = 0;
        int clickedColumn = 0;
        m_list.GetClickPos(clickedRow, clickedColumn);
        return clickedRow == row && clickedColumn == column;
    }
};

} // namespace

TEST_F(SortListInput, AClickOnAHeadingSortsAndTheNextOneReverses)
{
    EXPECT_TRUE(ClickMouseUntil(HeadingPoint(0), [this] { return Column(0) == (Texts{L"c", L"b", L"a"}); }));
    EXPECT_TRUE(HasArrow(0));
    EXPECT_TRUE(ClickMouseUntil(HeadingPoint(0), [this] { return Column(0) == (Texts{L"a", L"b", L"c"}); }));
    EXPECT_EQ((std::vector<DWORD_PTR>{1002, 1000, 1001}), Data());
}

TEST_F(SortListInput, AClickRecordsItsCell)
{
    EXPECT_TRUE(IsClicked(-1, -1));
    EXPECT_TRUE(ClickMouseUntil(CellPoint(1, 1), [this] { return IsClicked(1, 1); }));
    EXPECT_TRUE(ClickMouseUntil(CellPoint(2, 0), [this] { return IsClicked(2, 0); }));
    EXPECT_TRUE(ClickMouseUntil(EmptyPoint(), [this] { return IsClicked(-1, -1); }));
}

TEST_F(SortListInput, TheRightButtonRecordsItsCellToo)
{
    EXPECT_TRUE(ClickMouseUntil(
        CellPoint(0, 1), [this] { return IsClicked(0, 1); }, kRightClick));
}

TEST_F(SortListInput, AClickStillSelectsTheRow)
{
    EXPECT_TRUE(
        ClickMouseUntil(CellPoint(1, 0), [this] { return m_list.GetItemState(1, LVIS_SELECTED) == LVIS_SELECTED; }));
}
