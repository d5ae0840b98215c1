// The place of a set survives its end under its tool identifier.
#include "SamplePalettes.h"

namespace
{

class PaletteRestore : public PaletteFixture
{
};

} // namespace

TEST_F(PaletteRestore, WithoutASavedLayoutThePreferredSideIsTaken)
{
    SampleSet& set = MakeSet();
    set.RestoreControlBar(AFX_IDW_DOCKBAR_LEFT);
    EXPECT_EQ(UINT(AFX_IDW_DOCKBAR_LEFT), set.GetDockBarID());
    EXPECT_EQ(0, Palette().loads);
}

TEST_F(PaletteRestore, PreferredFloatTakesTheRectangle)
{
    SampleSet& set = MakeSet();
    const CRect wanted(250, 260, 750, 460);
    set.RestoreControlBar(AFX_IDW_DOCKBAR_FLOAT, &wanted);
    EXPECT_TRUE(set.IsFloating());
    EXPECT_EQ(wanted, ScreenRectOf(*set.GetFloatingFrame()));
}

TEST_F(PaletteRestore, SavedSideAndSizeWinOverThePreferredSide)
{
    MakeSet();
    Show();
    Set().DockControlBar(AFX_IDW_DOCKBAR_RIGHT);
    Set().SetDockedSize(345);
    EndSet();
    SampleSet& set = MakeSet();
    set.RestoreControlBar(AFX_IDW_DOCKBAR_LEFT);
    EXPECT_EQ(UINT(AFX_IDW_DOCKBAR_RIGHT), set.GetDockBarID());
    EXPECT_EQ(345, SetRect().Width());
    EXPECT_TRUE(set.IsWindowVisible());
    EXPECT_EQ(1, Palette().loads);
}

TEST_F(PaletteRestore, SavedFloatingRectangleComesBack)
{
    MakeSet();
    Show();
    Set().FloatControlBar(CRect(310, 220, 810, 470));
    EndSet();
    SampleSet& set = MakeSet();
    set.RestoreControlBar(AFX_IDW_DOCKBAR_LEFT);
    ASSERT_TRUE(set.IsFloating());
    EXPECT_EQ(CRect(310, 220, 810, 470), ScreenRectOf(*set.GetFloatingFrame()));
}

TEST_F(PaletteRestore, HiddenSetComesBackHidden)
{
    MakeSet();
    Show();
    Show(false);
    EndSet();
    MakeSet().RestoreControlBar();
    EXPECT_FALSE(Set().IsWindowVisible());
}

TEST_F(PaletteRestore, FloatingPlaceOffTheScreenIsBroughtBack)
{
    MakeSet();
    Show();
    Set().FloatControlBar(CRect(9000, 9000, 9500, 9300));
    EndSet();
    MakeSet().RestoreControlBar();
    const CRect screen(0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
    const CRect rect = ScreenRectOf(*Set().GetFloatingFrame());
    EXPECT_TRUE(screen.PtInRect(rect.TopLeft()));
}

TEST_F(PaletteRestore, SavedSideThatIsNoLongerAllowedFloats)
{
    MakeSet();
    Set().DockControlBar(AFX_IDW_DOCKBAR_RIGHT);
    EndSet();
    MakeSet().EnableDocking(CBRS_ALIGN_LEFT);
    Set().RestoreControlBar();
    EXPECT_TRUE(Set().IsFloating());
}

TEST_F(PaletteRestore, DamagedLayoutIsAsGoodAsNone)
{
    AfxGetApp()->WriteProfileString(L"Palettes", L"{2B3D6F41-55C1-4B0B-9E5C-7C8A27E9D011}", L"side=nowhere");
    MakeSet().RestoreControlBar(AFX_IDW_DOCKBAR_RIGHT);
    EXPECT_EQ(UINT(AFX_IDW_DOCKBAR_RIGHT), Set().GetDockBarID());
}

TEST_F(PaletteRestore, SetWithoutAToolIdentifierKeepsNothing)
{
    MakeSet().SetToolID(NULL);
    Set().DockControlBar(AFX_IDW_DOCKBAR_RIGHT);
    EndSet();
    EXPECT_EQ(L"", AfxGetApp()->GetProfileString(L"Palettes", L"{2B3D6F41-55C1-4B0B-9E5C-7C8A27E9D011}"));
}

TEST_F(PaletteRestore, LayoutsAreSavedOnRequest)
{
    MakeSet();
    Show();
    Set().DockControlBar(AFX_IDW_DOCKBAR_BOTTOM);
    AdUiSaveDockingToolPositions();
    EXPECT_EQ(1, Palette().saves);
    const CString text = AfxGetApp()->GetProfileString(L"Palettes", L"{2B3D6F41-55C1-4B0B-9E5C-7C8A27E9D011}");
    EXPECT_EQ(0, text.Find(L"side=bottom"));
}

TEST_F(PaletteRestore, LayoutOfASetThatIsDestroyedWhileFloatingAndRolledUpKeepsItsFullSize)
{
    MakeSet();
    Show();
    Set().RollUp();
    EndSet();
    MakeSet().RestoreControlBar();
    CRect full;
    Set().GetFullRect(full);
    EXPECT_TRUE(Set().GetRolledUp());
    EXPECT_EQ(CRect(200, 200, 840, 390), full);
}
