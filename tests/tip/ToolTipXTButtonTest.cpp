// The button with a tip: when the tip comes and goes, and where it stands.
#include "ToolTipButtonFixture.h"

#include "GdiCount.h"
#include "tip/ButtonTipPlace.h"
#include "tip/XTButtonToolTipWnd.h"

namespace
{

class ToolTipButton : public ToolTipButtonFixture
{
protected:
    CRect PlaceOn(int side, CSize size) const
    {
        const CSize screen(::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
        return CRect(PlaceButtonTip(side, ScreenRect(m_button->m_hWnd), size, screen), size);
    }

    void MoveOwner(int x, int y)
    {
        m_owner->SetWindowPos(NULL, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }

    // Makes the button hot.
    void Heat() { m_button->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(10, 10)); }

    void Draw()
    {
        DibCanvas canvas(100, 25, 0);
        DRAWITEMSTRUCT item = {};
        item.CtlType = ODT_BUTTON;
        item.hDC = canvas.Dc();
        item.hwndItem = m_button->m_hWnd;
        item.rcItem = CRect(0, 0, 100, 25);
        m_button->DrawItem(&item);
        EXPECT_NE(RGB(0, 0, 0), canvas.Pixel(50, 2)) << "the button draws itself in any case";
    }
};

} // namespace

TEST_F(ToolTipButton, AMouseMoveOpensTheTipAboveTheButton)
{
    EXPECT_EQ(NULL, Tip());
    EXPECT_FALSE(Offer(WM_MOUSEMOVE)) << "the message goes on";
    ASSERT_TRUE(IsTipVisible());
    EXPECT_EQ(PlaceOn(2, CSize(120, 74)), ScreenRect(Tip()));
}

TEST_F(ToolTipButton, TheTipsWindowIsTheDocumentedOne)
{
    Offer(WM_MOUSEMOVE);
    WNDCLASSW windowClass = {};
    ASSERT_TRUE(::GetClassInfoW(AfxGetInstanceHandle(), L"ZNXTButtonToolTipWnd", &windowClass));
    EXPECT_EQ(UINT(CS_SAVEBITS | CS_DROPSHADOW), windowClass.style);
    EXPECT_EQ(::LoadCursor(NULL, IDC_ARROW), windowClass.hCursor);
    EXPECT_EQ(::GetStockObject(WHITE_BRUSH), windowClass.hbrBackground);
    EXPECT_EQ(DWORD(WS_POPUP), ::GetWindowLongPtrW(Tip(), GWL_STYLE) & (WS_POPUP | WS_CHILD | WS_CAPTION));
    EXPECT_EQ(WS_EX_TOOLWINDOW, ::GetWindowLongPtrW(Tip(), GWL_EXSTYLE) & WS_EX_TOOLWINDOW);
    wchar_t title[64] = L"";
    ::GetWindowTextW(Tip(), title, 64);
    EXPECT_STREQ(L"ZNXTButtonToolTipWnd", title);
    EXPECT_EQ(m_owner->m_hWnd, ::GetWindow(Tip(), GW_OWNER));
}

TEST_F(ToolTipButton, TheTipDoesNotActivate)
{
    m_owner->SetActiveWindow();
    const HWND active = ::GetActiveWindow();
    Offer(WM_MOUSEMOVE);
    EXPECT_EQ(active, ::GetActiveWindow());
}

TEST_F(ToolTipButton, SideAndSizeAreTheOwners)
{
    for (const auto side : {CToolTipXTButton::SIDE_LEFT, CToolTipXTButton::SIDE_RIGHT, CToolTipXTButton::SIDE_ABOVE,
                            CToolTipXTButton::SIDE_BELOW})
    {
        const CSize size(60 + side, 40 - side);
        m_button->SetToolTipWndSide(side);
        m_button->SetToolTipWndSize(size);
        Offer(WM_MOUSEMOVE);
        ASSERT_NE(nullptr, Tip());
        EXPECT_EQ(PlaceOn(side, size), ScreenRect(Tip())) << side;
        Offer(WM_MOUSELEAVE);
    }
}

TEST_F(ToolTipButton, NearTheTopOfTheScreenTheTipAboveGoesBelow)
{
    MoveOwner(300, -90); // the button's top is 10 pixels below the screen's
    Offer(WM_MOUSEMOVE);
    ASSERT_NE(nullptr, Tip());
    EXPECT_EQ(ScreenRect(m_button->m_hWnd).bottom + 10, ScreenRect(Tip()).top);
}

TEST_F(ToolTipButton, NearTheRightEdgeTheTipAtTheRightStays)
{
    m_button->SetToolTipWndSide(CToolTipXTButton::SIDE_RIGHT);
    const int screen = ::GetSystemMetrics(SM_CXSCREEN);
    MoveOwner(screen - 300, 300); // 50 pixels are left beside the button
    Offer(WM_MOUSEMOVE);
    EXPECT_EQ(screen - 50 + 10, ScreenRect(Tip()).left) << "partly off the screen";
    Offer(WM_MOUSELEAVE);
    MoveOwner(screen - 250 + 1 - 10, 300);
    Offer(WM_MOUSEMOVE);
    EXPECT_EQ(ScreenRect(m_button->m_hWnd).left - 120 - 10, ScreenRect(Tip()).left)
        << "its left edge has passed the screen's width";
}

TEST_F(ToolTipButton, CornersOfTheScreen)
{
    const int right = ::GetSystemMetrics(SM_CXSCREEN) - 250;
    const int bottom = ::GetSystemMetrics(SM_CYSCREEN) - 125;
    for (int side = 0; side <= 3; ++side)
    {
        for (const CPoint& corner :
             {CPoint(-150, -100), CPoint(right, -100), CPoint(-150, bottom), CPoint(right, bottom)})
        {
            MoveOwner(corner.x, corner.y);
            m_button->SetToolTipWndSide(static_cast<CToolTipXTButton::ESide>(side));
            Offer(WM_MOUSEMOVE);
            EXPECT_EQ(PlaceOn(side, CSize(120, 74)), ScreenRect(Tip())) << side << " " << corner.x << "," << corner.y;
            Offer(WM_MOUSELEAVE);
        }
    }
}

TEST_F(ToolTipButton, MoreMovesLeaveAnOpenTipWhereItIs)
{
    Offer(WM_MOUSEMOVE);
    const HWND first = Tip();
    const CRect place = ScreenRect(first);
    m_button->SetToolTip(L"another text");
    m_button->SetToolTipWndSide(CToolTipXTButton::SIDE_BELOW);
    m_button->SetToolTipWndSize(CSize(50, 50));
    Offer(WM_MOUSEMOVE);
    EXPECT_EQ(first, Tip());
    EXPECT_EQ(place, ScreenRect(first));
}

TEST_F(ToolTipButton, AClickOrAKeyHidesTheTipButKeepsItOpen)
{
    for (const UINT message : {WM_LBUTTONDOWN, WM_KEYDOWN})
    {
        Offer(WM_MOUSEMOVE);
        ASSERT_TRUE(IsTipVisible());
        EXPECT_FALSE(Offer(message));
        EXPECT_NE(nullptr, Tip());
        EXPECT_FALSE(IsTipVisible());
        Offer(WM_MOUSEMOVE);
        EXPECT_FALSE(IsTipVisible()) << "a hidden tip is not shown again";
        Offer(WM_MOUSELEAVE);
        EXPECT_EQ(NULL, Tip());
    }
    Offer(WM_MOUSEMOVE);
    EXPECT_TRUE(IsTipVisible()) << "until the mouse has left and come back";
}

TEST_F(ToolTipButton, ClickKeyAndLeaveWithoutATipDoNothing)
{
    for (const UINT message : {WM_LBUTTONDOWN, WM_KEYDOWN, WM_MOUSELEAVE, WM_PAINT})
        EXPECT_FALSE(Offer(message));
    EXPECT_EQ(NULL, Tip());
}

TEST_F(ToolTipButton, DrawingWhileNotHotEndsTheTip)
{
    Offer(WM_MOUSEMOVE);
    Draw();
    EXPECT_EQ(NULL, Tip());
}

TEST_F(ToolTipButton, DrawingWhileHotKeepsTheTip)
{
    Offer(WM_MOUSEMOVE);
    Heat();
    ASSERT_TRUE(m_button->IsHot());
    Draw();
    EXPECT_TRUE(IsTipVisible());
}

TEST_F(ToolTipButton, ShowTipWindowOpensOnceAndEnds)
{
    m_button->ShowTipWindow(5);
    const HWND first = Tip();
    EXPECT_NE(nullptr, first);
    m_button->ShowTipWindow(1);
    EXPECT_EQ(first, Tip());
    EXPECT_EQ(NULL, ::FindWindowExW(NULL, first, L"ZNXTButtonToolTipWnd", NULL));
    m_button->ShowTipWindow(0);
    EXPECT_EQ(NULL, Tip());
    m_button->ShowTipWindow(0);
}

TEST_F(ToolTipButton, TheEndOfTheButtonEndsTheTip)
{
    Offer(WM_MOUSEMOVE);
    m_button.reset();
    EXPECT_EQ(NULL, Tip());
}

TEST_F(ToolTipButton, TheEndOfTheButtonsWindowEndsTheTip)
{
    Offer(WM_MOUSEMOVE);
    m_button->DestroyWindow();
    EXPECT_EQ(NULL, Tip());
    m_button->ShowTipWindow(1);
    EXPECT_EQ(NULL, Tip()) << "there is no button that it could stand beside";
}

TEST_F(ToolTipButton, TheEndOfTheOwnersWindowEndsTheTip)
{
    Offer(WM_MOUSEMOVE);
    m_owner.reset();
    EXPECT_EQ(NULL, Tip());
    m_owner.reset(new OwnerWindow);
    Create(*m_button);
    Offer(WM_MOUSEMOVE);
    EXPECT_TRUE(IsTipVisible());
}

TEST_F(ToolTipButton, ATipThatLostItsWindowIsOpenedAnew)
{
    Offer(WM_MOUSEMOVE);
    ::DestroyWindow(Tip());
    Offer(WM_LBUTTONDOWN);
    Offer(WM_MOUSEMOVE);
    EXPECT_TRUE(IsTipVisible());
}

TEST_F(ToolTipButton, NullEmptyAndHugeTextsAreShown)
{
    const std::wstring words(20000, L' ');
    const std::wstring oneWord(100000, L'x');
    std::wstring lines;
    for (int i = 0; i < 5000; ++i)
        lines += L"line\n";
    for (const wchar_t* text : {static_cast<const wchar_t*>(NULL), L"", words.c_str(), oneWord.c_str(), lines.c_str()})
    {
        m_button->SetToolTip(text);
        Offer(WM_MOUSEMOVE);
        EXPECT_TRUE(IsTipVisible());
        EXPECT_EQ(RGB(138, 138, 138), Picture(Tip())->Pixel(0, 0));
        Offer(WM_MOUSELEAVE);
    }
}

TEST_F(ToolTipButton, SizesThatAreNoneMakeNoTrouble)
{
    for (const CSize& size : {CSize(0, 0), CSize(-5, -5), CSize(1, 1), CSize(5000, 5000)})
    {
        m_button->SetToolTipWndSize(size);
        Offer(WM_MOUSEMOVE);
        ASSERT_NE(nullptr, Tip());
        ::UpdateWindow(Tip());
        Offer(WM_MOUSELEAVE);
    }
}

TEST_F(ToolTipButton, TheThemeIsHandedOn)
{
    const TestToolTipButton themed(RUNTIME_CLASS(CXTButtonThemeOffice2003));
    ASSERT_NE(nullptr, themed.GetTheme());
    EXPECT_TRUE(themed.GetTheme()->IsKindOf(RUNTIME_CLASS(CXTButtonThemeOffice2003)));
    const TestToolTipButton plain(NULL);
    EXPECT_EQ(NULL, plain.GetTheme());
}

TEST_F(ToolTipButton, CanBeMadeByItsRuntimeClass)
{
    const std::unique_ptr<CObject> made(RUNTIME_CLASS(CToolTipXTButton)->CreateObject());
    ASSERT_NE(nullptr, made.get());
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CXTButton)));
}

TEST_F(ToolTipButton, LeavesNoObjectBehind)
{
    const auto cycle = [this] {
        Offer(WM_MOUSEMOVE);
        ::UpdateWindow(Tip());
        Offer(WM_MOUSELEAVE);
    };
    cycle();
    const size_t gdiObjects = CountGdiObjects();
    const int userObject = UserObjectMark();
    for (int i = 0; i < 30; ++i)
        cycle();
    EXPECT_EQ(gdiObjects, CountGdiObjects());
    EXPECT_LT(UserObjectMark(), userObject + 30) << "less than one for each cycle";
}
