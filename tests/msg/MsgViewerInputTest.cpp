// The viewer under a real mouse and a real keyboard.
#include "Drawing.h"
#include "ViewerFixture.h"

#include "Wait.h"

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

    static void SendMouse(DWORD flags)
    {
        INPUT input = {};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = flags;
        ::SendInput(1, &input, sizeof(input));
    }

    static void ClickAt(CPoint point)
    {
        ::SetCursorPos(point.x, point.y);
        SendMouse(MOUSEEVENTF_LEFTDOWN);
        SendMouse(MOUSEEVENTF_LEFTUP);
    }

    static void SendKey(WORD key, DWORD flags)
    {
        INPUT input = {};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.dwFlags = flags;
        ::SendInput(1, &input, sizeof(input));
    }

    static void Press(WORD key)
    {
        SendKey(key, 0);
        SendKey(key, KEYEVENTF_KEYUP);
    }

    // Under Wine a move that the display reports late takes the cursor back before the button goes down: a click that
    // had no effect in time is tried again. The pause is longer than that of a double click.
    template<class CONDITION>
    static bool ClickUntil(CPoint point, CONDITION condition, int clicks = 1)
    {
        const int attempts = 5;
        for (int i = 0; i < attempts; ++i)
        {
            for (int click = 0; click < clicks; ++click)
                ClickAt(point);
            if (WaitFor(condition, 2 * ::GetDoubleClickTime()))
                return true;
        }
        return false;
    }

    static bool SelectByClick(int row)
    {
        return ClickUntil(CentreOfRow(row), [row] { return SelectedRows() == std::vector<int>{row}; });
    }

    static bool WaitForSelection(const std::vector<int>& rows)
    {
        return WaitFor([&rows] { return SelectedRows() == rows; });
    }
};

} // namespace

TEST_F(ViewerInput, ClickSelectsARowAndTheButtonDeletesIt)
{
    ASSERT_TRUE(SelectByClick(1));
    EXPECT_TRUE(ClickUntil(CentreOfItem(IDC_DELETE_SELECTED), [] { return Rows() == 3; }));
    EXPECT_EQ((Texts{L"one", L"three", L"four"}), Column(3));
}

TEST_F(ViewerInput, ShiftClickSelectsARange)
{
    ASSERT_TRUE(SelectByClick(0));
    SendKey(VK_SHIFT, 0);
    EXPECT_TRUE(ClickUntil(CentreOfRow(2), [] { return SelectedRows().size() == 3; }));
    SendKey(VK_SHIFT, KEYEVENTF_KEYUP);
}

TEST_F(ViewerInput, ArrowKeysMoveTheSelection)
{
    ASSERT_TRUE(SelectByClick(0));
    Press(VK_DOWN);
    EXPECT_TRUE(WaitForSelection({1}));
}

TEST_F(ViewerInput, EnterAndEscapeLeaveTheViewerOpen)
{
    ASSERT_TRUE(SelectByClick(0));
    Press(VK_RETURN);
    Press(VK_ESCAPE);
    Press(VK_DOWN);
    ASSERT_TRUE(WaitForSelection({1}));
    EXPECT_TRUE(::IsWindowVisible(Viewer()));
}

TEST_F(ViewerInput, ClickOnAHeadingSorts)
{
    EXPECT_TRUE(ClickUntil(CentreOfHeader(3), [] { return Column(3) == (Texts{L"four", L"one", L"three", L"two"}); }));
}

TEST_F(ViewerInput, ClickOnTheToggleHidesTheTree)
{
    EXPECT_TRUE(ClickUntil(CentreOfItem(IDC_SHOW_TREE), [] { return !IsShown(IDC_TREE); }));
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
    EXPECT_TRUE(ClickUntil(point, isZoomed, 2));
}
