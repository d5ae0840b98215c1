// A palette set in a real frame: creation, palettes, docking, floating, hiding.
#include "SamplePalettes.h"

#include "Wait.h"

namespace
{

class PaletteSet : public PaletteFixture
{
};

} // namespace

TEST_F(PaletteSet, IsCreatedHiddenAndFloating)
{
    SampleSet& set = MakeSet();
    EXPECT_FALSE(set.IsWindowVisible());
    EXPECT_TRUE(set.IsFloating());
    EXPECT_EQ(L"消息查看", set.GetName());
    EXPECT_EQ(CRect(200, 200, 840, 390), ScreenRectOf(*set.GetFloatingFrame()));
    EXPECT_EQ(&Frame(), set.GetDockingFrame());
}

TEST_F(PaletteSet, CreateWithoutAFrameFails)
{
    SampleSet set;
    EXPECT_FALSE(set.Create(L"x", WS_DLGFRAME, CRect(0, 0, 10, 10), NULL, PSS_CLOSE_BUTTON));
    EXPECT_FALSE(::IsWindow(set.GetSafeHwnd()));
}

TEST_F(PaletteSet, StyleFlagsAnswerForThemselves)
{
    SampleSet& set = MakeSet(PSS_AUTO_ROLLUP | PSS_CLOSE_BUTTON);
    EXPECT_EQ(DWORD(PSS_AUTO_ROLLUP | PSS_CLOSE_BUTTON), set.GetPaletteSetStyle());
    EXPECT_TRUE(set.AutoRollupStyle());
    EXPECT_TRUE(set.CloseButtonStyle());
    EXPECT_FALSE(set.PropertiesMenuStyle());
    EXPECT_FALSE(set.EditNameStyle());
    EXPECT_EQ(30, PSS_EDIT_NAME | PSS_PROPERTIES_MENU | PSS_AUTO_ROLLUP | PSS_CLOSE_BUTTON);
}

TEST_F(PaletteSet, FirstPaletteIsActiveAndFillsTheSetBelowTheCaption)
{
    SampleSet& set = MakeSet();
    Show();
    EXPECT_EQ(0, set.GetActivePaletteTabIndex());
    EXPECT_EQ(1, Palette().activations);
    EXPECT_TRUE(Palette().IsWindowVisible());
    const CRect bar = SetRect();
    const CRect page = ScreenRectOf(Palette());
    EXPECT_EQ(bar.left, page.left);
    EXPECT_EQ(bar.right, page.right);
    EXPECT_EQ(bar.bottom, page.bottom);
    EXPECT_GT(page.top, bar.top);
    EXPECT_LT(page.top, bar.top + 30);
}

TEST_F(PaletteSet, SecondPaletteGetsATabAndOnlyTheActiveOneIsVisible)
{
    SampleSet& set = MakeSet();
    Show();
    SamplePalette second;
    second.Create(WS_CHILD | WS_VISIBLE, L"第二", &set);
    EXPECT_EQ(1, set.AddPalette(&second));
    EXPECT_EQ(2, set.GetPaletteCount());
    EXPECT_FALSE(second.IsWindowVisible());
    EXPECT_LT(ScreenRectOf(Palette()).bottom, SetRect().bottom) << "room for the tabs";
    EXPECT_TRUE(set.SetActivePalette(1));
    EXPECT_TRUE(second.IsWindowVisible());
    EXPECT_FALSE(Palette().IsWindowVisible());
    EXPECT_EQ(1, second.activations);
    EXPECT_TRUE(set.RemovePalette(1));
    EXPECT_TRUE(Palette().IsWindowVisible());
    EXPECT_EQ(0, set.GetActivePaletteTabIndex());
}

TEST_F(PaletteSet, BadPalettesAndIndexesAreRefused)
{
    SampleSet& set = MakeSet();
    SamplePalette windowless;
    EXPECT_EQ(-1, set.AddPalette(NULL));
    EXPECT_EQ(-1, set.AddPalette(&windowless));
    EXPECT_EQ(-1, set.AddPalette(&Palette())) << "it is in the set already";
    EXPECT_FALSE(set.RemovePalette(1));
    EXPECT_FALSE(set.RemovePalette(-1));
    EXPECT_FALSE(set.SetActivePalette(5));
    EXPECT_EQ(NULL, set.GetPalette(7));
}

TEST_F(PaletteSet, PaletteThatEndsBeforeItsSetIsTakenOut)
{
    SampleSet& set = MakeSet();
    {
        SamplePalette brief;
        brief.Create(WS_CHILD | WS_VISIBLE, L"图层", &set);
        ASSERT_EQ(1, set.AddPalette(&brief));
        set.SetActivePalette(1);
    }
    EXPECT_EQ(1, set.GetPaletteCount());
    EXPECT_EQ(&Palette(), set.GetActivePalette());
    m_palette.reset();
    EXPECT_EQ(0, set.GetPaletteCount());
    EXPECT_EQ(NULL, set.GetActivePalette());
    set.SaveLayout(); // asks every palette that is left
}

TEST_F(PaletteSet, PaletteWithANewWindowIsTakenAgain)
{
    SampleSet& set = MakeSet();
    Palette().DestroyWindow();
    EXPECT_EQ(-1, set.AddPalette(&Palette()));
    Palette().Create(WS_CHILD | WS_VISIBLE, L"消息查看", &set);
    EXPECT_EQ(0, set.AddPalette(&Palette()));
}

TEST_F(PaletteSet, WithoutAWindowItTakesNothingAndStaysWhereItIs)
{
    MakeSet().DockControlBar(AFX_IDW_DOCKBAR_LEFT);
    EndSet(); // leaves a saved layout for the tool
    SampleSet set;
    set.SetToolID(&g_sampleTool);
    set.EnableDocking(CBRS_ALIGN_ANY);
    set.RestoreControlBar();
    set.RollUp();
    EXPECT_EQ(NULL, set.GetSafeHwnd());
    EXPECT_TRUE(set.IsFloating());
    EXPECT_FALSE(set.GetRolledUp());
    EXPECT_EQ(NULL, set.GetFloatingFrame());
    MakeSet();
    EXPECT_EQ(-1, set.AddPalette(&Palette()));
}

TEST_F(PaletteSet, TabIsChosenByAClick)
{
    SampleSet& set = MakeSet();
    Show();
    SamplePalette second;
    second.Create(WS_CHILD | WS_VISIBLE, L"第二", &set);
    set.AddPalette(&second);
    const CRect bar = SetRect();
    CPoint tab(bar.left + bar.Width() / 4, bar.bottom - 5);
    set.ScreenToClient(&tab);
    tab.x = 130;
    set.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(tab.x, tab.y));
    set.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(tab.x, tab.y));
    EXPECT_EQ(1, set.GetActivePaletteTabIndex());
    set.RemovePalette(1);
}

TEST_F(PaletteSet, ShowAndHideTakeTheFloatingFrameWithThem)
{
    SampleSet& set = MakeSet();
    Show();
    EXPECT_TRUE(set.IsWindowVisible());
    EXPECT_TRUE(set.GetFloatingFrame()->IsWindowVisible());
    EXPECT_TRUE(set.IsVisible());
    Show(false);
    EXPECT_FALSE(set.IsWindowVisible());
    EXPECT_FALSE(set.GetFloatingFrame()->IsWindowVisible());
    EXPECT_FALSE(set.IsVisible());
}

TEST_F(PaletteSet, DocksAtEverySideAsAChildOfTheFrame)
{
    SampleSet& set = MakeSet();
    Show();
    const CRect client = ClientOnScreen();
    ASSERT_TRUE(set.DockControlBar(AFX_IDW_DOCKBAR_LEFT));
    EXPECT_FALSE(set.IsFloating());
    EXPECT_EQ(&Frame(), set.GetParent());
    EXPECT_EQ(client.left, SetRect().left);
    EXPECT_EQ(client.Height(), SetRect().Height());
    ASSERT_TRUE(set.DockControlBar(AFX_IDW_DOCKBAR_RIGHT));
    EXPECT_EQ(client.right, SetRect().right);
    ASSERT_TRUE(set.DockControlBar(AFX_IDW_DOCKBAR_TOP));
    EXPECT_EQ(client.top, SetRect().top);
    EXPECT_EQ(client.Width(), SetRect().Width());
    ASSERT_TRUE(set.DockControlBar(AFX_IDW_DOCKBAR_BOTTOM));
    EXPECT_EQ(client.bottom, SetRect().bottom);
    EXPECT_EQ(UINT(AFX_IDW_DOCKBAR_BOTTOM), set.GetDockBarID());
}

TEST_F(PaletteSet, DockedSetLeavesTheRestToTheDrawings)
{
    SampleSet& set = MakeSet();
    Show();
    set.DockControlBar(AFX_IDW_DOCKBAR_LEFT);
    set.SetDockedSize(350);
    CRect client;
    ::GetWindowRect(Frame().m_hWndMDIClient, &client);
    EXPECT_EQ(350, SetRect().Width());
    EXPECT_EQ(SetRect().right, client.left);
    Show(false);
    ::GetWindowRect(Frame().m_hWndMDIClient, &client);
    EXPECT_EQ(ClientOnScreen().left, client.left) << "hidden, it takes no edge";
}

TEST_F(PaletteSet, SideThatIsNotAllowedIsRefused)
{
    SampleSet& set = MakeSet();
    set.EnableDocking(CBRS_ALIGN_LEFT);
    EXPECT_FALSE(set.DockControlBar(AFX_IDW_DOCKBAR_RIGHT));
    EXPECT_TRUE(set.IsFloating());
    EXPECT_FALSE(set.DockControlBar(AFX_IDW_DOCKBAR_FLOAT));
}

TEST_F(PaletteSet, DockedSizeStaysWithinMinimumAndFrame)
{
    SampleSet& set = MakeSet();
    Show();
    set.DockControlBar(AFX_IDW_DOCKBAR_LEFT);
    set.SetDockedSize(10);
    EXPECT_EQ(300, SetRect().Width());
    set.SetDockedSize(5000);
    EXPECT_LT(SetRect().Width(), ClientOnScreen().Width());
}

TEST_F(PaletteSet, FloatsAgainWhereItIsTold)
{
    SampleSet& set = MakeSet();
    Show();
    set.DockControlBar(AFX_IDW_DOCKBAR_LEFT);
    set.FloatControlBar(CRect(300, 250, 800, 500));
    EXPECT_TRUE(set.IsFloating());
    ASSERT_NE(nullptr, set.GetFloatingFrame());
    EXPECT_EQ(CRect(300, 250, 800, 500), ScreenRectOf(*set.GetFloatingFrame()));
    EXPECT_TRUE(set.IsWindowVisible());
    CRect client;
    ::GetWindowRect(Frame().m_hWndMDIClient, &client);
    EXPECT_EQ(ClientOnScreen().left, client.left);
}

TEST_F(PaletteSet, HiddenDockedSetComesBackWhereItWas)
{
    SampleSet& set = MakeSet();
    Show();
    set.DockControlBar(AFX_IDW_DOCKBAR_RIGHT);
    set.SetDockedSize(333);
    const CRect before = SetRect();
    Show(false);
    EXPECT_FALSE(set.IsWindowVisible());
    Show();
    EXPECT_EQ(before, SetRect());
}

TEST_F(PaletteSet, HiddenSetThatIsDockedStaysHidden)
{
    SampleSet& set = MakeSet();
    set.DockControlBar(AFX_IDW_DOCKBAR_LEFT);
    EXPECT_FALSE(set.IsWindowVisible());
    set.FloatControlBar(CRect(300, 250, 800, 500));
    EXPECT_FALSE(set.GetFloatingFrame()->IsWindowVisible());
}

TEST_F(PaletteSet, TwoDockedSetsShareTheEdge)
{
    SampleSet& set = MakeSet();
    Show();
    set.DockControlBar(AFX_IDW_DOCKBAR_LEFT);
    SampleSet second;
    second.Create(L"第二", WS_DLGFRAME, CRect(200, 200, 600, 390), &Frame(), PSS_CLOSE_BUTTON);
    second.EnableDocking(CBRS_ALIGN_ANY);
    second.DockControlBar(AFX_IDW_DOCKBAR_LEFT);
    Frame().ShowControlBar(&second, TRUE, FALSE);
    EXPECT_EQ(SetRect().right, ScreenRectOf(second).left);
    second.DestroyWindow();
}

TEST_F(PaletteSet, ClientMovesAFloatingSetByItsScreenRectangle)
{
    SampleSet& set = MakeSet();
    Show();
    CRect rect = SetRect();
    ++rect.bottom;
    set.MoveWindow(rect);
    EXPECT_EQ(rect, SetRect());
    EXPECT_EQ(rect.bottom, ScreenRectOf(Palette()).bottom);
}

TEST_F(PaletteSet, CloseButtonHidesAndNeverDestroys)
{
    SampleSet& set = MakeSet();
    Show();
    set.GetFloatingFrame()->SendMessage(WM_CLOSE);
    EXPECT_TRUE(::IsWindow(set.m_hWnd));
    EXPECT_FALSE(set.IsWindowVisible());
    Show();
    EXPECT_TRUE(set.GetFloatingFrame()->IsWindowVisible());
}

TEST_F(PaletteSet, SetMayRefuseToClose)
{
    SampleSet& set = MakeSet();
    Show();
    set.mayClose = false;
    set.GetFloatingFrame()->SendMessage(WM_CLOSE);
    EXPECT_TRUE(set.IsWindowVisible());
}

TEST_F(PaletteSet, FloatingFrameIsNoSmallerThanTheMinimum)
{
    SampleSet& set = MakeSet();
    Show();
    MINMAXINFO limits = {};
    set.GetFloatingFrame()->SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    EXPECT_GE(limits.ptMinTrackSize.x, 300);
    EXPECT_GE(limits.ptMinTrackSize.y, 120);
}

TEST_F(PaletteSet, RollsUpToItsCaptionAndComesDownToItsFullSize)
{
    SampleSet& set = MakeSet();
    Show();
    const CRect open = ScreenRectOf(*set.GetFloatingFrame());
    set.RollUp();
    EXPECT_TRUE(set.GetRolledUp());
    EXPECT_LT(ScreenRectOf(*set.GetFloatingFrame()).Height(), 60);
    CRect full;
    set.GetFullRect(full);
    EXPECT_EQ(open, full);
    set.RollDown();
    EXPECT_EQ(open, ScreenRectOf(*set.GetFloatingFrame()));
}

TEST_F(PaletteSet, DockedSetDoesNotRollUp)
{
    SampleSet& set = MakeSet();
    Show();
    set.DockControlBar(AFX_IDW_DOCKBAR_LEFT);
    set.RollUp();
    EXPECT_FALSE(set.GetRolledUp());
}

TEST_F(PaletteSet, AutomaticRollUpNeedsItsStyle)
{
    SampleSet& set = MakeSet(PSS_CLOSE_BUTTON);
    EXPECT_FALSE(set.SetAutoRollup(TRUE));
    EXPECT_FALSE(set.GetAutoRollup());
    set.SetPaletteSetStyle(PSS_CLOSE_BUTTON | PSS_AUTO_ROLLUP);
    EXPECT_TRUE(set.SetAutoRollup(TRUE));
    EXPECT_TRUE(set.GetAutoRollup());
}

TEST_F(PaletteSet, OpacityIsKeptAndNonsenseRefused)
{
    SampleSet& set = MakeSet();
    EXPECT_EQ(100, set.GetOpacity());
    EXPECT_FALSE(set.SetOpacity(101));
    EXPECT_FALSE(set.SetOpacity(-1));
    EXPECT_TRUE(set.SetOpacity(60));
    EXPECT_EQ(60, set.GetOpacity());
    EXPECT_TRUE((set.GetFloatingFrame()->GetExStyle() & WS_EX_LAYERED) != 0);
    EXPECT_TRUE(set.SetOpacity(100));
    EXPECT_FALSE((set.GetFloatingFrame()->GetExStyle() & WS_EX_LAYERED) != 0);
}

TEST_F(PaletteSet, PaletteDecidesAboutTheFocus)
{
    SampleSet& set = MakeSet();
    EXPECT_TRUE(set.CanFrameworkTakeFocus());
    Palette().letsGo = false;
    EXPECT_FALSE(set.CanFrameworkTakeFocus());
}

TEST_F(PaletteSet, FrameThatEndsTakesTheSetsWindowWithIt)
{
    SampleSet& set = MakeSet();
    Show();
    const HWND window = set.m_hWnd;
    DestroyFrame();
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(NULL, set.GetSafeHwnd());
}
