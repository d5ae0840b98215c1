// Each kind of handler gets the arguments that its message documents.
#include <afxwin.h>

#include <gtest/gtest.h>

namespace
{
const int StartWidth = 300;
const int StartHeight = 200;

class Listener : public CWnd
{
public:
    CSize size;
    CPoint movedTo;
    UINT_PTR timer = 0;
    short wheel = 0;
    CPoint wheelPoint;
    BOOL wheelAnswer = TRUE;
    int wheelDefaults = 0;
    CPoint mouse;
    UINT key = 0;
    UINT repeat = 0;
    UINT scrollCode = 0;
    UINT scrollPosition = 0;
    CScrollBar* scrollBar = nullptr;
    UINT command = 0;
    CWnd* focusFrom = nullptr;
    CWnd* captureTo = nullptr;
    BOOL enabled = -1;
    CPoint hit;
    DWORD copied = 0;
    int windowPosX = 0;
    UINT menuItem = 0;
    HMENU menuSelected = nullptr;
    CMenu* popup = nullptr;
    BOOL systemMenu = -1;
    CPoint contextPoint;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        wheelDefaults += message == WM_MOUSEWHEEL;
        return CWnd::DefWindowProc(message, wParam, lParam);
    }

    afx_msg void OnSize(UINT, int cx, int cy) { size = CSize(cx, cy); }
    afx_msg void OnMove(int x, int y) { movedTo = CPoint(x, y); }
    afx_msg void OnTimer(UINT_PTR id) { timer = id; }
    afx_msg BOOL OnMouseWheel(UINT, short delta, CPoint point)
    {
        wheel = delta;
        wheelPoint = point;
        return wheelAnswer;
    }
    afx_msg void OnMouseMove(UINT, CPoint point) { mouse = point; }
    afx_msg void OnKeyDown(UINT code, UINT count, UINT)
    {
        key = code;
        repeat = count;
    }
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar)
    {
        scrollCode = code;
        scrollPosition = position;
        scrollBar = bar;
    }
    afx_msg void OnSysCommand(UINT id, LPARAM) { command = id; }
    afx_msg void OnSetFocus(CWnd* from) { focusFrom = from; }
    afx_msg void OnCaptureChanged(CWnd* to) { captureTo = to; }
    afx_msg void OnEnable(BOOL enable) { enabled = enable; }
    afx_msg LRESULT OnNcHitTest(CPoint point)
    {
        hit = point;
        return HTCAPTION;
    }
    afx_msg BOOL OnCopyData(CWnd*, COPYDATASTRUCT* data)
    {
        copied = static_cast<DWORD>(data->dwData);
        return 3;
    }
    afx_msg void OnWindowPosChanged(WINDOWPOS* position)
    {
        windowPosX = position->x;
        CWnd::OnWindowPosChanged(position);
    }
    afx_msg void OnMenuSelect(UINT item, UINT, HMENU menu)
    {
        menuItem = item;
        menuSelected = menu;
    }
    afx_msg void OnInitMenuPopup(CMenu* menu, UINT, BOOL isSystemMenu)
    {
        popup = menu;
        systemMenu = isSystemMenu;
    }
    afx_msg void OnContextMenu(CWnd*, CPoint point) { contextPoint = point; }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Listener, CWnd)
    ON_WM_SIZE()
    ON_WM_MOVE()
    ON_WM_TIMER()
    ON_WM_MOUSEWHEEL()
    ON_WM_MOUSEMOVE()
    ON_WM_KEYDOWN()
    ON_WM_VSCROLL()
    ON_WM_SYSCOMMAND()
    ON_WM_SETFOCUS()
    ON_WM_CAPTURECHANGED()
    ON_WM_ENABLE()
    ON_WM_NCHITTEST()
    ON_WM_COPYDATA()
    ON_WM_WINDOWPOSCHANGED()
    ON_WM_MENUSELECT()
    ON_WM_INITMENUPOPUP()
    ON_WM_CONTEXTMENU()
END_MESSAGE_MAP()

class HandlerArguments : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_window.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, StartWidth, StartHeight), nullptr, 0));
    }
    void TearDown() override { m_window.DestroyWindow(); }

    Listener m_window;
};
} // namespace

TEST_F(HandlerArguments, SizeAndMove)
{
    m_window.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(40, 50));
    EXPECT_EQ(CSize(40, 50), m_window.size);
    m_window.SendMessage(WM_MOVE, 0, MAKELPARAM(static_cast<WORD>(-7), 9));
    EXPECT_EQ(CPoint(-7, 9), m_window.movedTo);
}

TEST_F(HandlerArguments, TimerIdsHaveTheWidthOfAPointer)
{
    const UINT_PTR wide = UINT_PTR(1) << 40;
    m_window.SendMessage(WM_TIMER, wide);
    EXPECT_EQ(wide, m_window.timer);
}

TEST_F(HandlerArguments, TheWheelTurnsBothWays)
{
    m_window.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), MAKELPARAM(1, 2));
    EXPECT_EQ(-WHEEL_DELTA, m_window.wheel);
    EXPECT_EQ(CPoint(1, 2), m_window.wheelPoint);
    EXPECT_EQ(0, m_window.wheelDefaults);
}

TEST_F(HandlerArguments, AWheelHandlerMayDecline)
{
    m_window.wheelAnswer = FALSE;
    m_window.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0);
    EXPECT_EQ(1, m_window.wheelDefaults);
}

TEST_F(HandlerArguments, MousePositionsMayBeNegative)
{
    m_window.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(static_cast<WORD>(-3), static_cast<WORD>(-4)));
    EXPECT_EQ(CPoint(-3, -4), m_window.mouse);
    EXPECT_EQ(HTCAPTION, m_window.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(static_cast<WORD>(-5), 6)));
    EXPECT_EQ(CPoint(-5, 6), m_window.hit);
    m_window.SendMessage(WM_CONTEXTMENU, WPARAM(m_window.m_hWnd), -1);
    EXPECT_EQ(CPoint(-1, -1), m_window.contextPoint);
}

TEST_F(HandlerArguments, KeysComeWithTheirRepeatCount)
{
    m_window.SendMessage(WM_KEYDOWN, VK_DOWN, 3);
    EXPECT_EQ(UINT(VK_DOWN), m_window.key);
    EXPECT_EQ(3u, m_window.repeat);
}

TEST_F(HandlerArguments, ScrollingNamesTheBar)
{
    m_window.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 17), 0);
    EXPECT_EQ(UINT(SB_THUMBPOSITION), m_window.scrollCode);
    EXPECT_EQ(17u, m_window.scrollPosition);
    EXPECT_EQ(nullptr, m_window.scrollBar);

    CScrollBar bar;
    ASSERT_TRUE(bar.Create(SBS_VERT | WS_CHILD, CRect(0, 0, 16, 60), &m_window, 5));
    m_window.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_LINEDOWN, 0), LPARAM(bar.m_hWnd));
    EXPECT_EQ(&bar, m_window.scrollBar);
}

TEST_F(HandlerArguments, WindowsArriveAsObjects)
{
    CWnd child;
    ASSERT_TRUE(child.Create(L"STATIC", L"", WS_CHILD, CRect(0, 0, 10, 10), &m_window, 6));
    m_window.SendMessage(WM_SETFOCUS, WPARAM(child.m_hWnd));
    EXPECT_EQ(&child, m_window.focusFrom);
    m_window.SendMessage(WM_CAPTURECHANGED, 0, LPARAM(child.m_hWnd));
    EXPECT_EQ(&child, m_window.captureTo);
}

TEST_F(HandlerArguments, StructuresArriveAsPointers)
{
    COPYDATASTRUCT data = {};
    data.dwData = 77;
    EXPECT_EQ(3, m_window.SendMessage(WM_COPYDATA, 0, LPARAM(&data)));
    EXPECT_EQ(77u, m_window.copied);

    m_window.SetWindowPos(nullptr, 25, 30, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_EQ(25, m_window.windowPosX);
    EXPECT_EQ(CPoint(25, 30), m_window.movedTo);
}

TEST_F(HandlerArguments, MenusArriveAsObjectsAndHandles)
{
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    m_window.SendMessage(WM_INITMENUPOPUP, WPARAM(menu.m_hMenu), MAKELPARAM(2, TRUE));
    EXPECT_EQ(&menu, m_window.popup);
    EXPECT_EQ(TRUE, m_window.systemMenu);
    m_window.SendMessage(WM_MENUSELECT, MAKEWPARAM(44, 0), LPARAM(menu.m_hMenu));
    EXPECT_EQ(44u, m_window.menuItem);
    EXPECT_EQ(menu.m_hMenu, m_window.menuSelected);
}

TEST_F(HandlerArguments, FlagsArriveAsNumbers)
{
    m_window.EnableWindow(FALSE);
    EXPECT_EQ(FALSE, m_window.enabled);
    m_window.SendMessage(WM_SYSCOMMAND, SC_KEYMENU);
    EXPECT_EQ(UINT(SC_KEYMENU), m_window.command);
}
