// The viewer under a real mouse and a real keyboard.
#include "Drawing.h"
#include "ViewerFixture.h"

#include "RealKeyboard.h"
#include "RealMouse.h"

namespace
{

class ViewerInput : public ViewerFixture
{
protected:
    ViewerInput()
    {
        arxhost::NewDocument();
        for (const wchar_t* text : {L"one", L"two", L"three", L"four"})
            Add(L"g", text);
        Show();
        ::SetForegroundWindow(m_frame.Wnd().m_hWnd);
        ::UpdateWindow(Viewer());
    }

    static CPoint CentreOf(HWND window, CRect rect)
    {
        ::MapWindowPoints(window, NULL, reinterpret_cast<POINT*>(&rect), 2);
        return rect.CenterPoint();
    }

    static CPoint CentreOfItem(int id)
    {
        CRect rect;
        ::GetClientRect(Item(id), &rect);
        return CentreOf(Item(id), rect);
    }

    static CPoint CentreOfRow(int row)
    {
        CRect rect;
        ListView_GetSubItemRect(Item(IDC_LIST), row, 1, LVIR_BOUNDS, &rect);
        return CentreOf(Item(IDC_LIST), rect);
    }

    static CPoint CentreOfHeader(int column)
    {
        const HWND header = ListView_GetHeader(Item(IDC_LIST));
        CRect rect;
        Header_GetItemRect(header, column, &rect);
        return CentreOf(header, rect);
    }

    static bool SelectByClick(int row)
    {
        return ClickMouseUntil(CentreOfRow(row), [row] { return SelectedRows() == std::vector<int>{row}; });
    }

    static bool WaitForSelection(const std::vector<int>& rows)
    {
        return WaitThroughFramework([&rows] { return SelectedRows() == rows; });
    }
};

} // namespace

TEST_F(ViewerInput, ClickSelectsARowAndTheButtonDeletesIt)
{
    ASSERT_TRUE(SelectByClick(1));
    EXPECT_TRUE(ClickMouseUntil(CentreOfItem(IDC_DELETE_SELECTED), [] { return Rows() == 3; }));
    EXPECT_EQ((Texts{L"one", L"three", L"four"}), Column(3));
}

TEST_F(ViewerInput, ShiftClickSelectsARange)
{
    ASSERT_TRUE(SelectByClick(0));
    SendKey(VK_SHIFT, 0);
    EXPECT_TRUE(ClickMouseUntil(CentreOfRow(2), [] { return SelectedRows().size() == 3; }));
    SendKey(VK_SHIFT, KEYEVENTF_KEYUP);
}

TEST_F(ViewerInput, ArrowKeysMoveTheSelection)
{
    ASSERT_TRUE(SelectByClick(0));
    PressKey(VK_DOWN);
    EXPECT_TRUE(WaitForSelection({1}));
}

TEST_F(ViewerInput, TabReachesTheButtonsAndTheSpaceBarPressesThem)
{
    const auto hasFocus = [](int id) { return WaitThroughFramework([id] { return ::GetFocus() == Item(id); }); };
    ASSERT_TRUE(SelectByClick(1));
    // The buttons in between are disabled: the message has neither objects nor an area.
    PressKey(VK_TAB, VK_SHIFT);
    ASSERT_TRUE(hasFocus(IDC_DELETE_SHOWN));
    PressKey(VK_TAB, VK_SHIFT);
    ASSERT_TRUE(hasFocus(IDC_DELETE_SELECTED));
    PressKey(VK_SPACE);
    EXPECT_TRUE(WaitThroughFramework([] { return Rows() == 3; }));
    EXPECT_EQ((Texts{L"one", L"three", L"four"}), Column(3));
    PressKey(VK_TAB, VK_SHIFT);
    ASSERT_TRUE(hasFocus(IDC_SHOW_TREE));
    PressKey(VK_TAB, VK_SHIFT);
    EXPECT_TRUE(hasFocus(IDC_TREE));
}

TEST_F(ViewerInput, ATipComesUpWhenTheMouseRestsOnAButton)
{
    const auto isTipShown = [] {
        HWND tip = NULL;
        while ((tip = ::FindWindowExW(NULL, tip, TOOLTIPS_CLASSW, NULL)) != NULL)
        {
            if (::IsWindowVisible(tip) && ::GetWindowThreadProcessId(tip, NULL) == ::GetCurrentThreadId())
                return true;
        }
        return false;
    };
    // A first move away, so that there is one onto the button.
    const CPoint button = CentreOfItem(IDC_DELETE_SELECTED);
    SendMouse(button + CPoint(0, 200), 0);
    EXPECT_FALSE(isTipShown());
    SendMouse(button, 0);
    EXPECT_TRUE(WaitThroughFramework(isTipShown));
}

TEST_F(ViewerInput, ControlClickAddsARow)
{
    ASSERT_TRUE(SelectByClick(0));
    SendKey(VK_CONTROL, 0);
    EXPECT_TRUE(ClickMouseUntil(CentreOfRow(2), [] { return SelectedRows() == (std::vector<int>{0, 2}); }));
    SendKey(VK_CONTROL, KEYEVENTF_KEYUP);
}

TEST_F(ViewerInput, EnterAndEscapeLeaveTheViewerOpen)
{
    ASSERT_TRUE(SelectByClick(0));
    PressKey(VK_RETURN);
    PressKey(VK_ESCAPE);
    PressKey(VK_DOWN);
    ASSERT_TRUE(WaitForSelection({1}));
    EXPECT_TRUE(::IsWindowVisible(Viewer()));
}

TEST_F(ViewerInput, ClickOnAHeadingSorts)
{
    EXPECT_TRUE(ClickMouseUntil(CentreOfHeader(3), [] {
        return Column(3) == (Texts{L"four", L"one", L"three", L"two"});
    }));
}

TEST_F(ViewerInput, ClickOnTheToggleHidesTheTree)
{
    EXPECT_TRUE(ClickMouseUntil(CentreOfItem(IDC_SHOW_TREE), [] { return !IsShown(IDC_TREE); }));
}

TEST_F(ViewerInput, DoubleClickZooms)
{
    const AcDbExtents area(AcGePoint3d(100, 100, 0), AcGePoint3d(300, 200, 0));
    KTMsgWnd::AddMsg(KTMsgWnd::eInfo, L"g", L"area", true, NULL, &area);
    KTMsgWnd::UpdateMsgWnd();
    ::UpdateWindow(Viewer());
    const CPoint point = CentreOfRow(4);
    AcApDocument* const document = CZNMsgManager::CurrentDocument();
    const auto isZoomed = [document] { return arxhost::GetView(document).centre.x == 200; };
    EXPECT_TRUE(ClickMouseUntil(point, isZoomed, kDoubleClick));
}
