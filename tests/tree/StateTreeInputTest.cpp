// The check tree under a real mouse and keyboard.
#include "StateTreeFixture.h"

#include "RealKeyboard.h"
#include "RealMouse.h"

namespace
{

class StateTreeInput : public StateTreeFixture
{
protected:
    StateTreeInput()
    {
        m_root = Add(NULL, 1);
        m_children = AddAll(m_root, {1, 1, 4});
        ExpandAll();
        // The window is moved under the cursor, which has to be where the window can be as well.
        static const bool placed = ::SetCursorPos(500, 500) != FALSE && WaitFor([] {
                                       POINT cursor = {};
                                       ::GetCursorPos(&cursor);
                                       return cursor.x == 500 && cursor.y == 500;
                                   });
        EXPECT_TRUE(placed);
        ::SetForegroundWindow(m_owner.m_hWnd);
        m_tree.SetFocus();
        m_tree.UpdateWindow();
    }

    // The tree's own point on the screen travels with the press: the display may take the cursor back in between.
    void Press(CPoint point)
    {
        PutUnderCursor(point);
        m_tree.ClientToScreen(&point);
        SendMouse(point, MOUSEEVENTF_LEFTDOWN);
        SendMouse(point, MOUSEEVENTF_LEFTUP);
    }

    // A real click, tried again where it did not arrive: nothing was told then.
    bool ClickUntilTold(CPoint point)
    {
        const size_t before = m_owner.told.size();
        const int attempts = 5;
        for (int i = 0; i < attempts; ++i)
        {
            Press(point);
            // Longer than a double click takes, so that the next one is a click of its own.
            if (WaitFor([&] { return m_owner.told.size() > before; }, 2 * ::GetDoubleClickTime()))
                return true;
        }
        return false;
    }

    // The tree asks where the cursor is while it hears of the press; a display that has taken the cursor back by then
    // makes it a click beside the box, which tells no change. That one is forgotten and tried again.
    bool ClickBoxUntilChanged(HTREEITEM item)
    {
        const int attempts = 5;
        for (int i = 0; i < attempts; ++i)
        {
            m_owner.told.clear();
            if (ClickUntilTold(BoxOf(item)) && Codes().front() == static_cast<UINT>(STATETREEN_CHECKCHANGED))
                return true;
            LetDoubleClickPass();
        }
        return false;
    }

    // The next press would be the second of a double click otherwise.
    void LetDoubleClickPass()
    {
        const DWORD start = ::GetTickCount();
        WaitFor([start] { return ::GetTickCount() - start > ::GetDoubleClickTime(); });
    }

    HTREEITEM m_root;
    Items m_children;
};

} // namespace

TEST_F(StateTreeInput, AClickOnABoxChecksAndTheNextOneUnchecks)
{
    ASSERT_TRUE(ClickBoxUntilChanged(m_children[0]));
    EXPECT_EQ((Ints{2, 1, 4}), Values(m_children));
    EXPECT_EQ(STATE_PARTIAL, Value(m_root));
    EXPECT_EQ((CodeList{STATETREEN_CHECKCHANGED, STATETREEN_CLICK}), Codes());
    LetDoubleClickPass();
    ASSERT_TRUE(ClickBoxUntilChanged(m_children[0]));
    EXPECT_EQ((Ints{1, 1, 4}), Values(m_children));
    EXPECT_EQ(STATE_UNCHECKED, Value(m_root));
}

TEST_F(StateTreeInput, AClickOnTheRootsBoxSetsItsSubtree)
{
    ASSERT_TRUE(ClickBoxUntilChanged(m_root));
    EXPECT_EQ((Ints{2, 2, 4}), Values(m_children));
}

TEST_F(StateTreeInput, AClickOnALabelOnlyTellsTheClickAndSelects)
{
    ASSERT_TRUE(ClickUntilTold(LabelOf(m_children[1])));
    EXPECT_EQ((CodeList{STATETREEN_CLICK}), Codes());
    EXPECT_EQ((Ints{1, 1, 4}), Values(m_children));
    EXPECT_TRUE(WaitFor([this] { return m_tree.GetSelectedItem() == m_children[1]; }));
}

TEST_F(StateTreeInput, AClickOnADisabledBoxTellsNothing)
{
    Press(BoxOf(m_children[2]));
    // A click on a label after it shows that the first one has been worked on.
    LetDoubleClickPass();
    ASSERT_TRUE(ClickUntilTold(LabelOf(m_children[1])));
    EXPECT_EQ((CodeList{STATETREEN_CLICK}), Codes());
    EXPECT_EQ((Ints{1, 1, 4}), Values(m_children));
}

TEST_F(StateTreeInput, SpaceTogglesTheSelectedItem)
{
    m_tree.SelectItem(m_root);
    ASSERT_TRUE(WaitFor([this] { return ::GetFocus() == m_tree.m_hWnd; }));
    PressKey(VK_SPACE);
    EXPECT_TRUE(WaitFor([this] { return Value(m_root) == STATE_CHECKED; }));
    EXPECT_EQ((Ints{2, 2, 4}), Values(m_children));
    PressKey(VK_SPACE);
    EXPECT_TRUE(WaitFor([this] { return Value(m_root) == STATE_UNCHECKED; }));
    EXPECT_EQ((Ints{1, 1, 4}), Values(m_children));
    EXPECT_TRUE(m_owner.told.empty());
}
