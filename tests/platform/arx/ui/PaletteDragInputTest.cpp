// Dragging and clicking with the real mouse.
#include "SamplePalettes.h"

#include "Wait.h"

namespace
{

class PaletteDrag : public PaletteFixture
{
protected:
    void SetUp() override
    {
        // Two tests that press the same pixel would make a double click.
        static int tests = 0;
        m_titleOffset = 40 + 12 * (++tests % 10);
        MakeSet();
        Show();
        ASSERT_TRUE(BringToFront());
        Pump();
    }

    // A point of the caption's title.
    CPoint Title() const { return SetRect().TopLeft() + CSize(m_titleOffset, 10); }
    // The middle of the close button at the right end.
    CPoint CloseButton() const { return CPoint(SetRect().right - (m_set->IsFloating() ? 10 : 14), SetRect().top + 11); }

    void Press(CPoint point)
    {
        MoveMouse(point);
        // The desktop brings windows and cursor into place in its own time.
        ASSERT_TRUE(WaitFor([this, point] {
            CPoint now;
            ::GetCursorPos(&now);
            return now == point && ::WindowFromPoint(point) == m_set->m_hWnd;
        }));
        MouseButton(true);
        ASSERT_TRUE(WaitFor([this] { return ::GetCapture() == m_set->m_hWnd; }));
    }
    void DragTo(CPoint point)
    {
        CPoint from;
        ::GetCursorPos(&from);
        MoveMouse(CPoint((from.x + point.x) / 2, (from.y + point.y) / 2));
        MoveMouse(point);
        ASSERT_TRUE(WaitFor([point] {
            CPoint now;
            ::GetCursorPos(&now);
            return now == point;
        }));
        Pump();
    }
    void Release()
    {
        MouseButton(false);
        ASSERT_TRUE(WaitFor([] { return ::GetCapture() == NULL; }));
    }

    // Clicks the close button until the set is hidden. Under a loaded virtual desktop the frame's activation may arrive
    // between press and release and take the capture away, as it would from any button: the user clicks again then.
    void ClickToClose()
    {
        constexpr int tries = 3;
        constexpr DWORD patience = 1000;
        for (int count = 0; count < tries && Set().IsWindowVisible(); ++count)
        {
            Press(CloseButton());
            Release();
            WaitFor([this] { return !Set().IsWindowVisible(); }, patience);
        }
    }

private:
    int m_titleOffset = 0;
};

} // namespace

TEST_F(PaletteDrag, FloatingSetFollowsItsCaption)
{
    const CRect before = ScreenRectOf(*Set().GetFloatingFrame());
    Press(Title());
    DragTo(Title() + CSize(80, 60));
    Release();
    EXPECT_TRUE(WaitFor([&] { return ScreenRectOf(*Set().GetFloatingFrame()) == before + CPoint(80, 60); }));
}

TEST_F(PaletteDrag, DroppedAtTheLeftEdgeItDocksThere)
{
    Press(Title());
    DragTo(CPoint(ClientOnScreen().left + 6, ClientOnScreen().CenterPoint().y));
    Release();
    EXPECT_EQ(UINT(AFX_IDW_DOCKBAR_LEFT), Set().GetDockBarID());
    EXPECT_EQ(ClientOnScreen().left, SetRect().left);
}

TEST_F(PaletteDrag, DroppedAtTheRightEdgeItDocksThere)
{
    Press(Title());
    DragTo(CPoint(ClientOnScreen().right - 6, ClientOnScreen().CenterPoint().y));
    Release();
    EXPECT_EQ(UINT(AFX_IDW_DOCKBAR_RIGHT), Set().GetDockBarID());
}

TEST_F(PaletteDrag, PulledOutOfTheDockItFloats)
{
    Set().DockControlBar(AFX_IDW_DOCKBAR_LEFT);
    Pump();
    Press(Title());
    DragTo(ClientOnScreen().CenterPoint());
    Release();
    EXPECT_TRUE(Set().IsFloating());
    EXPECT_TRUE(ScreenRectOf(*Set().GetFloatingFrame()).PtInRect(ClientOnScreen().CenterPoint()));
    EXPECT_TRUE(Set().IsWindowVisible());
}

TEST_F(PaletteDrag, ClickOnTheCaptionMovesNothing)
{
    Set().DockControlBar(AFX_IDW_DOCKBAR_LEFT);
    Pump();
    const CRect before = SetRect();
    Press(Title());
    Release();
    EXPECT_FALSE(Set().IsFloating());
    EXPECT_EQ(before, SetRect());
}

TEST_F(PaletteDrag, SplitterSizesADockedSet)
{
    Set().DockControlBar(AFX_IDW_DOCKBAR_LEFT);
    Set().SetDockedSize(320);
    Pump();
    Press(CPoint(SetRect().right - 2, SetRect().CenterPoint().y));
    DragTo(CPoint(SetRect().right + 58, SetRect().CenterPoint().y));
    Release();
    EXPECT_EQ(380, SetRect().Width());
}

TEST_F(PaletteDrag, CloseButtonOfAFloatingSetHidesIt)
{
    ClickToClose();
    EXPECT_FALSE(Set().IsWindowVisible());
    EXPECT_TRUE(::IsWindow(Set().m_hWnd));
}

TEST_F(PaletteDrag, CloseButtonOfADockedSetHidesIt)
{
    Set().DockControlBar(AFX_IDW_DOCKBAR_LEFT);
    Pump();
    ClickToClose();
    EXPECT_FALSE(Set().IsWindowVisible());
}

TEST_F(PaletteDrag, ButtonReleasedElsewhereDoesNothing)
{
    Press(CloseButton());
    DragTo(CloseButton() + CSize(-200, 60));
    Release();
    EXPECT_TRUE(Set().IsWindowVisible());
}
