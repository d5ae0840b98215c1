// The edit menu under a real mouse and keyboard.
#include "RichEditFixture.h"

#include "RealKeyboard.h"
#include "RealMouse.h"

class EditMenuInput : public RichEditFixture
{
protected:
    void SetUp() override
    {
        m_owner.SetForegroundWindow();
        ASSERT_TRUE(WaitFor([this] { return ::GetForegroundWindow() == m_owner.m_hWnd; }));
        m_edit.SetFocus();
        SetText(L"abcd");
        m_edit.UpdateWindow();
    }

    bool RightClickUntilOpened(const MenuDriver& driver)
    {
        CRect rect;
        m_edit.GetWindowRect(&rect);
        const int before = driver.Opened();
        return ClickMouseUntil(
            rect.CenterPoint(), [&] { return driver.Opened() != before; }, kRightClick);
    }
};

TEST_F(EditMenuInput, ARightClickOpensTheMenuAndACommandWorks)
{
    const MenuDriver driver([](HMENU menu) {
        EXPECT_EQ(8, ::GetMenuItemCount(menu));
        return ID_EDIT_SELECT_ALL;
    });
    ASSERT_TRUE(RightClickUntilOpened(driver));
    EXPECT_TRUE(WaitFor([this] { return m_edit.GetSelText() == L"abcd"; }));
}

TEST_F(EditMenuInput, CutAndPasteMoveText)
{
    UINT next = ID_EDIT_CUT;
    const MenuDriver driver([&next](HMENU) { return next; });
    m_edit.SetSel(0, 4);
    ASSERT_TRUE(RightClickUntilOpened(driver));
    ASSERT_TRUE(WaitFor([this] { return Text().empty(); }));
    next = ID_EDIT_PASTE;
    ASSERT_TRUE(RightClickUntilOpened(driver));
    EXPECT_TRUE(WaitFor([this] { return Text() == L"abcd"; }));
}

TEST_F(EditMenuInput, UndoTakesTypingBack)
{
    m_edit.SetSel(4, 4);
    PressKey('X');
    ASSERT_TRUE(WaitFor([this] { return Text() == L"abcdx"; }));
    const MenuDriver driver([](HMENU) { return ID_EDIT_UNDO; });
    ASSERT_TRUE(RightClickUntilOpened(driver));
    EXPECT_TRUE(WaitFor([this] { return Text() == L"abcd"; }));
}

TEST_F(EditMenuInput, EscapeClosesTheMenuAndChangesNothing)
{
    m_edit.SetSel(0, 4);
    const MenuDriver driver([](HMENU) { return 0; });
    ASSERT_TRUE(RightClickUntilOpened(driver));
    EXPECT_TRUE(WaitFor([] {
        const HWND menu = ::FindWindowW(L"#32768", NULL);
        return menu == NULL || !::IsWindowVisible(menu);
    }));
    EXPECT_EQ(L"abcd", Text());
    EXPECT_TRUE(m_owner.commands.empty());
}
