// The check window itself, on the thread of the test.
#include "CheckMsgFixture.h"

#include <algorithm>

#include "dialog/CheckSpecificationMsgDlg.h"
#include "res/resource.h"

namespace
{

constexpr COLORREF kPaleGreen = RGB(233, 255, 221);
constexpr UINT kKeepFocus = 0x7101;

constexpr UINT_PTR kEarlierTimer = 98;
constexpr UINT_PTR kLaterTimer = 99;

// The timers of the thread's windows in the order in which they come first, which is that in which they are due.
std::vector<UINT_PTR> g_timers;

LRESULT CALLBACK NoteTimers(int code, WPARAM wParam, LPARAM lParam)
{
    const MSG& message = *reinterpret_cast<MSG*>(lParam);
    if (code == HC_ACTION && wParam == PM_REMOVE && message.message == WM_TIMER &&
        std::find(g_timers.begin(), g_timers.end(), message.wParam) == g_timers.end())
        g_timers.push_back(message.wParam);
    return ::CallNextHookEx(NULL, code, wParam, lParam);
}

class CheckSpecificationMsgDlg : public HostFixture
{
protected:
    // Gives the tests the filter of messages.
    class Window : public CCheckSpecificationMsgDlg
    {
    public:
        using CCheckSpecificationMsgDlg::PreTranslateMessage;
    };

    CheckSpecificationMsgDlg()
    {
        _hdllInstance = ::GetModuleHandleW(NULL);
        AfxSetResourceHandle(_hdllInstance);
        EXPECT_TRUE(m_dlg.Create(IDD_CHECK_SPECIFICATION, &Frame()));
        // Away from the cursor, so that nothing about it is left to chance.
        ::GetCursorPos(&m_cursor);
        MoveTo(m_cursor + CPoint(m_cursor.x > 640 ? -500 : 100, m_cursor.y > 480 ? -400 : 100));
    }
    ~CheckSpecificationMsgDlg() override { m_dlg.DestroyWindow(); }

    void MoveTo(CPoint place) { m_dlg.SetWindowPos(NULL, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER); }

    void SetMessages(const std::vector<std::wstring>& texts)
    {
        CStringArray array;
        AddTexts(array, texts);
        m_dlg.SetMessages(array);
    }

    template<class CONTROL>
    CONTROL& Item(int id)
    {
        return *static_cast<CONTROL*>(CWnd::FromHandlePermanent(::GetDlgItem(m_dlg.m_hWnd, id)));
    }
    CMyButton& Dock() { return Item<CMyButton>(kDockId); }
    CAutoRichEditCtrl& Rich() { return Item<CAutoRichEditCtrl>(kTextId); }
    std::wstring Text() { return TextOf(Rich().m_hWnd); }

    CRect PlaceOf(int id)
    {
        CRect place;
        m_dlg.GetDlgItem(id)->GetWindowRect(&place);
        m_dlg.ScreenToClient(&place);
        return place;
    }

    void Click(int id)
    {
        m_dlg.SendMessage(WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), LPARAM(m_dlg.GetDlgItem(id)->m_hWnd));
    }
    // Those that come after the action, among them one that is due earlier than `delay` and one that is due later.
    template<class ACTION>
    std::vector<UINT_PTR> TimersAround(UINT delay, ACTION action)
    {
        g_timers.clear();
        const HHOOK hook = ::SetWindowsHookExW(WH_GETMESSAGE, &NoteTimers, NULL, ::GetCurrentThreadId());
        m_dlg.SetTimer(kEarlierTimer, delay - delay / 5, NULL);
        action();
        m_dlg.SetTimer(kLaterTimer, delay + delay / 5, NULL);
        EXPECT_TRUE(WaitFor([] { return !g_timers.empty() && g_timers.back() == kLaterTimer; }));
        ::UnhookWindowsHookEx(hook);
        return g_timers;
    }
    void Timer(UINT id) { m_dlg.SendMessage(WM_TIMER, id); }
    bool IsMouseOver() { return m_dlg.SendMessage(kKeepFocus) == 1; }

    LRESULT HitTest(CPoint point) { return m_dlg.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(point.x, point.y)); }

    // Points of the button that show the icon.
    int IconPixels()
    {
        CClientDC screen(&Dock());
        CDC memory;
        memory.CreateCompatibleDC(&screen);
        CBitmap bitmap;
        bitmap.CreateCompatibleBitmap(&screen, 40, 40);
        CBitmap* const former = memory.SelectObject(&bitmap);
        DRAWITEMSTRUCT item = {};
        item.CtlType = ODT_BUTTON;
        item.hDC = memory.m_hDC;
        item.hwndItem = Dock().m_hWnd;
        Dock().GetClientRect(&item.rcItem);
        Dock().DrawItem(&item);
        int pixels = 0;
        for (int y = 4; y < 32; ++y)
        {
            for (int x = 4; x < 32; ++x)
                pixels += memory.GetPixel(x, y) != kPaleGreen;
        }
        memory.SelectObject(former);
        return pixels;
    }

    Window m_dlg;
    CPoint m_cursor;
};

} // namespace

TEST_F(CheckSpecificationMsgDlg, HasNoCaptionButSizingBorders)
{
    EXPECT_EQ(static_cast<DWORD>(WS_THICKFRAME | WS_POPUP),
              m_dlg.GetStyle() & (WS_THICKFRAME | WS_POPUP | WS_CAPTION | WS_CHILD | WS_VISIBLE) & ~WS_BORDER);
    EXPECT_EQ(0u, m_dlg.GetStyle() & WS_DLGFRAME);
    EXPECT_EQ(1000, IDD_CHECK_SPECIFICATION);
}

TEST_F(CheckSpecificationMsgDlg, TheTextStretchesAndTheCloseButtonKeepsItsDistance)
{
    const CRect text = PlaceOf(kTextId);
    const CRect dock = PlaceOf(kDockId);
    const CRect close = PlaceOf(kCloseId);
    CRect window;
    m_dlg.GetWindowRect(&window);
    m_dlg.SetWindowPos(NULL, 0, 0, window.Width() + 60, window.Height() + 40, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_TRUE(CRect(text.left, text.top, text.right + 60, text.bottom + 40) == PlaceOf(kTextId));
    EXPECT_TRUE(dock == PlaceOf(kDockId));
    EXPECT_TRUE(close + CPoint(60, 0) == PlaceOf(kCloseId));
}

TEST_F(CheckSpecificationMsgDlg, TextsAreJoinedALineEach)
{
    SetMessages({L"a", L"b", L"c"});
    EXPECT_EQ(L"a\r\nb\r\nc\r\n", Text());
}

TEST_F(CheckSpecificationMsgDlg, NoTextsAreSaidInBoldCentredWords)
{
    SetMessages({L"a"});
    m_dlg.KillTimer(1);
    SetMessages({});
    EXPECT_EQ(L"\r\n\r\n\r\n无属性显示", Text());
    EXPECT_EQ(FALSE, m_dlg.KillTimer(1));
    Rich().SetSel(3, 8);
    CHARFORMAT2 format = {};
    Rich().GetSelectionCharFormat(format);
    EXPECT_EQ(static_cast<DWORD>(CFE_BOLD), format.dwEffects & CFE_BOLD);
    EXPECT_EQ(9, Rich().GetFontSize());
    EXPECT_EQ(GB2312_CHARSET, format.bCharSet);
    PARAFORMAT2 paragraph = {};
    Rich().GetParaFormat(paragraph);
    EXPECT_EQ(PFA_CENTER, paragraph.wAlignment);
}

// Texts do not take the words' format over from the time before.
TEST_F(CheckSpecificationMsgDlg, AListAfterNoneIsShown)
{
    SetMessages({});
    SetMessages({L"a"});
    EXPECT_EQ(L"a\r\n", Text());
    EXPECT_EQ(TRUE, m_dlg.KillTimer(1));
}

TEST_F(CheckSpecificationMsgDlg, WithoutAWindowTextsAreIgnored)
{
    CCheckSpecificationMsgDlg none;
    CStringArray texts;
    none.SetMessages(texts);
    texts.Add(L"a");
    none.SetMessages(texts);
    EXPECT_EQ(NULL, none.m_hWnd);
}

TEST_F(CheckSpecificationMsgDlg, AnEmptyListDoesNotStopTheTimerOfTextsBefore)
{
    SetMessages({L"a"});
    SetMessages({});
    EXPECT_EQ(TRUE, m_dlg.KillTimer(1));
}

TEST_F(CheckSpecificationMsgDlg, ComesUpBesideTheRestingCursor)
{
    SetMessages({L"a"});
    EXPECT_TRUE(WaitFor([this] { return m_dlg.IsWindowVisible() != FALSE; }));
    EXPECT_EQ(FALSE, m_dlg.KillTimer(1));
    EXPECT_EQ(TRUE, m_dlg.KillTimer(2));
}

TEST_F(CheckSpecificationMsgDlg, ComesUpAfterFiftyMilliseconds)
{
    EXPECT_EQ((std::vector<UINT_PTR>{kEarlierTimer, 1, kLaterTimer}),
              TimersAround(50, [this] { SetMessages({L"a"}); }));
}

TEST_F(CheckSpecificationMsgDlg, LooksAfterTwoHundredMillisecondsWhetherToHide)
{
    SetMessages({L"a"});
    EXPECT_EQ((std::vector<UINT_PTR>{kEarlierTimer, 2, kLaterTimer}), TimersAround(200, [this] { Timer(1); }));
}

TEST_F(CheckSpecificationMsgDlg, AVisibleWindowStaysWhereItIs)
{
    m_dlg.ShowWindow(SW_SHOWNA);
    const CRect place = ScreenRectOf(m_dlg);
    SetMessages({L"a"});
    Timer(1);
    EXPECT_TRUE(place == ScreenRectOf(m_dlg));
    EXPECT_EQ(FALSE, m_dlg.KillTimer(1));
    EXPECT_EQ(FALSE, m_dlg.KillTimer(2));
}

TEST_F(CheckSpecificationMsgDlg, NewTextsWhilePinnedChangeTheTextButNotThePlace)
{
    Click(kDockId);
    const CRect place = ScreenRectOf(m_dlg);
    SetMessages({L"a"});
    Timer(1);
    EXPECT_TRUE(m_dlg.IsWindowVisible());
    EXPECT_TRUE(place == ScreenRectOf(m_dlg));
    SetMessages({L"b"});
    Timer(1);
    EXPECT_EQ(L"b\r\n", Text());
    EXPECT_TRUE(place == ScreenRectOf(m_dlg));
}

TEST_F(CheckSpecificationMsgDlg, StaysUpWhileTheCursorRests)
{
    SetMessages({L"a"});
    Timer(1);
    Timer(2);
    EXPECT_TRUE(m_dlg.IsWindowVisible());
    EXPECT_EQ(TRUE, m_dlg.KillTimer(2));
}

// It has not come up by its timer yet, so that the place counts as the screen's corner, far from the cursor.
TEST_F(CheckSpecificationMsgDlg, HidesForGoodByTheDistanceFromWhereItCameUpNotFromWhereTheTextsWereSet)
{
    SetMessages({L"a"});
    m_dlg.ShowWindow(SW_SHOWNA);
    m_dlg.SetTimer(2, USER_TIMER_MAXIMUM, NULL);
    Timer(2);
    EXPECT_FALSE(m_dlg.IsWindowVisible());
    EXPECT_EQ(FALSE, m_dlg.KillTimer(2));
}

TEST_F(CheckSpecificationMsgDlg, OtherTimersChangeNothing)
{
    SetMessages({L"a"});
    Timer(3);
    EXPECT_FALSE(m_dlg.IsWindowVisible());
    EXPECT_EQ(TRUE, m_dlg.KillTimer(1));
}

TEST_F(CheckSpecificationMsgDlg, TheDockButtonTogglesItsIcon)
{
    EXPECT_EQ(0, Dock().GetCheck());
    const int unpinned = IconPixels();
    Click(kDockId);
    EXPECT_NE(0, Dock().GetCheck());
    const int pinned = IconPixels();
    Click(kDockId);
    EXPECT_EQ(0, Dock().GetCheck());
    EXPECT_EQ(unpinned, IconPixels());
    EXPECT_GT(unpinned, 0);
    EXPECT_GT(pinned, 0);
    EXPECT_NE(unpinned, pinned);
}

TEST_F(CheckSpecificationMsgDlg, TheCloseButtonHidesTheWindow)
{
    m_dlg.ShowWindow(SW_SHOWNA);
    Click(kCloseId);
    EXPECT_FALSE(m_dlg.IsWindowVisible());
    EXPECT_TRUE(::IsWindow(m_dlg.m_hWnd));
}

TEST_F(CheckSpecificationMsgDlg, CanBeDraggedByAnyPointAndSizedByItsBorders)
{
    const CRect window = ScreenRectOf(m_dlg);
    EXPECT_EQ(HTCAPTION, HitTest(window.CenterPoint()));
    EXPECT_EQ(HTCAPTION, HitTest(CPoint(-30000, -30000)));
    EXPECT_EQ(HTLEFT, HitTest(CPoint(window.left, window.CenterPoint().y)));
    EXPECT_EQ(HTRIGHT, HitTest(CPoint(window.right - 1, window.CenterPoint().y)));
    EXPECT_EQ(HTTOP, HitTest(CPoint(window.CenterPoint().x, window.top)));
    EXPECT_EQ(HTBOTTOM, HitTest(CPoint(window.CenterPoint().x, window.bottom - 1)));
    EXPECT_EQ(HTTOPLEFT, HitTest(window.TopLeft()));
    EXPECT_EQ(HTBOTTOMRIGHT, HitTest(window.BottomRight() - CPoint(1, 1)));
}

TEST_F(CheckSpecificationMsgDlg, EverythingIsPaleGreen)
{
    for (const UINT message : {WM_CTLCOLORDLG, WM_CTLCOLORSTATIC, WM_CTLCOLOREDIT})
    {
        CClientDC dc(&m_dlg);
        dc.SetBkMode(OPAQUE);
        const HBRUSH brush = HBRUSH(m_dlg.SendMessage(message, WPARAM(dc.m_hDC), LPARAM(m_dlg.m_hWnd)));
        LOGBRUSH info = {};
        ASSERT_NE(0, ::GetObjectW(brush, sizeof(info), &info));
        EXPECT_EQ(kPaleGreen, info.lbColor);
        EXPECT_EQ(TRANSPARENT, dc.GetBkMode());
    }
    EXPECT_EQ(static_cast<LRESULT>(kPaleGreen), Rich().SendMessage(EM_SETBKGNDCOLOR, FALSE, 0));
    EXPECT_EQ(0xDDFFE9u, kPaleGreen);
}

TEST_F(CheckSpecificationMsgDlg, TheButtonsHaveTips)
{
    struct Found
    {
        HWND owner;
        std::vector<HWND> tips;
    } found = {m_dlg.m_hWnd, {}};
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM result) -> BOOL {
            wchar_t name[32] = L"";
            ::GetClassNameW(window, name, 32);
            Found& into = *reinterpret_cast<Found*>(result);
            if (CString(name) == TOOLTIPS_CLASSW && ::GetWindow(window, GW_OWNER) == into.owner)
                into.tips.push_back(window);
            return TRUE;
        },
        LPARAM(&found));
    ASSERT_EQ(1u, found.tips.size());
    const auto tipOf = [&](int id) {
        wchar_t text[64] = L"";
        TOOLINFOW tool = {};
        tool.cbSize = TTTOOLINFOW_V2_SIZE;
        tool.uFlags = TTF_IDISHWND;
        tool.hwnd = m_dlg.m_hWnd;
        tool.uId = UINT_PTR(m_dlg.GetDlgItem(id)->m_hWnd);
        tool.lpszText = text;
        ::SendMessageW(found.tips[0], TTM_GETTEXTW, 64, LPARAM(&tool));
        return std::wstring(text);
    };
    EXPECT_EQ(L"关闭窗口", tipOf(kCloseId));
    EXPECT_EQ(L"锁定位置", tipOf(kDockId));
}

TEST_F(CheckSpecificationMsgDlg, TellsWhetherTheUserWorksInIt)
{
    MoveTo(m_cursor - CPoint(20, 20));
    EXPECT_TRUE(IsMouseOver()); // from the start on, as long as the cursor is inside
    MoveTo(m_cursor + CPoint(20, 20));
    EXPECT_FALSE(IsMouseOver());
    MoveTo(m_cursor - CPoint(20, 20));
    EXPECT_FALSE(IsMouseOver()); // until the mouse moves over it
    MSG move = {Rich().m_hWnd, WM_MOUSEMOVE, 0, 0, 0, {0, 0}};
    m_dlg.PreTranslateMessage(&move);
    EXPECT_TRUE(IsMouseOver());
}

TEST_F(CheckSpecificationMsgDlg, OnlyMouseMovesCountAsWorkInIt)
{
    EXPECT_FALSE(IsMouseOver());
    MoveTo(m_cursor - CPoint(20, 20));
    MSG other = {Rich().m_hWnd, WM_NCMOUSEMOVE, HTCAPTION, 0, 0, {0, 0}};
    m_dlg.PreTranslateMessage(&other);
    EXPECT_FALSE(IsMouseOver());
}

TEST_F(CheckSpecificationMsgDlg, AMouseMoveMakesItActive)
{
    m_dlg.ShowWindow(SW_SHOWNA);
    Frame().SetActiveWindow();
    ASSERT_EQ(Frame().m_hWnd, ::GetActiveWindow());
    MSG move = {Rich().m_hWnd, WM_MOUSEMOVE, 0, 0, 0, {0, 0}};
    m_dlg.PreTranslateMessage(&move);
    EXPECT_EQ(m_dlg.m_hWnd, ::GetActiveWindow());
}
