// The combo button under a real mouse and a real keyboard.
#include "ComboButtonFixture.h"

#include "MenuScript.h"
#include "RealKeyboard.h"
#include "RealMouse.h"

namespace
{

class ComboButtonInput : public ComboButtonFixture
{
protected:
    ComboButtonInput()
    {
        ::SetForegroundWindow(m_owner->m_hWnd);
        m_owner->SetFocus();
    }

    CPoint OnScreen(CPoint point)
    {
        m_button->ClientToScreen(&point);
        return point;
    }

    template<class CONDITION>
    bool ClickUntil(CPoint point, CONDITION condition)
    {
        return ClickMouseUntil(OnScreen(point), condition);
    }

    // Clicks on the drop zone and lets the script drive the menu, until it has closed again.
    bool OpenMenuAnd(MenuScript& script)
    {
        return ClickUntil(OnDropZone(), [&] { return script.IsDone() && !MenuScript::IsOpen(); });
    }

    int Runs()
    {
        int runs = 0;
        for (const auto& item : m_items)
            runs += item->runs;
        return runs;
    }
};

} // namespace

TEST_F(ComboButtonInput, AClickOnTheFaceRunsTheDefaultItem)
{
    AddItems(2);
    EXPECT_TRUE(ClickUntil(OnFace(), [this] { return m_items[0]->runs > 0; }));
    EXPECT_EQ(m_owner->clicks, m_items[0]->runs);
    EXPECT_EQ(0, m_items[1]->runs);
    EXPECT_EQ(m_button->m_hWnd, ::GetFocus());
}

TEST_F(ComboButtonInput, ADisabledItemIsNotRunByAClickOnTheFace)
{
    AddItems(2);
    m_items[0]->enabled = false;
    EXPECT_TRUE(ClickUntil(OnFace(), [this] { return m_button->pressesSeen > 0; }));
    EXPECT_EQ(0, Runs());
    EXPECT_EQ(0, m_owner->clicks);
}

TEST_F(ComboButtonInput, TheArrowKeysAndEnterChooseAnEntry)
{
    AddItems(3);
    MenuScript script;
    script.When(MenuScript::IsOpen, [] { PressKey(VK_DOWN); })
        .When([] { return MenuScript::IsHighlighted(0); }, [] { PressKey(VK_DOWN); })
        .When([] { return MenuScript::IsHighlighted(1); }, [] { PressKey(VK_RETURN); });
    ASSERT_TRUE(OpenMenuAnd(script));
    EXPECT_TRUE(WaitFor([this] { return m_items[1]->runs > 0; }));
    EXPECT_EQ(1, Runs());
    EXPECT_EQ(m_items[1].get(), m_button->GetDefaultItem());
    EXPECT_EQ(L"item 1", Text());
    EXPECT_EQ(1, m_owner->clicks);
}

TEST_F(ComboButtonInput, AMnemonicChoosesItsEntry)
{
    AddItem(L"&Open");
    AddItem(L"Op&en more");
    AddItem(L"&Close");
    MenuScript script;
    script.When(MenuScript::IsOpen, [] { PressKey('E'); }).When([] { return !MenuScript::IsOpen(); }, [] {});
    ASSERT_TRUE(OpenMenuAnd(script));
    EXPECT_TRUE(WaitFor([this] { return m_items[1]->runs > 0; }));
    EXPECT_EQ(1, Runs());
    EXPECT_EQ(1, DefaultIndex());
}

TEST_F(ComboButtonInput, ACharacterThatIsNoMnemonicLeavesTheMenuOpen)
{
    AddItem(L"&Open");
    AddItem(L"&Close");
    MenuScript script;
    script.When(MenuScript::IsOpen, [] { PressKey('X'); })
        .When([this] { return m_button->charactersSeen > 0; }, [] { EXPECT_TRUE(MenuScript::IsOpen()); })
        .When(MenuScript::IsOpen, [] { PressKey(VK_ESCAPE); });
    ASSERT_TRUE(OpenMenuAnd(script));
    EXPECT_EQ(0, Runs());
}

TEST_F(ComboButtonInput, EscapeChoosesNothing)
{
    AddItems(3);
    MenuScript script;
    script.When(MenuScript::IsOpen, [] { PressKey(VK_DOWN); })
        .When([] { return MenuScript::IsHighlighted(0); }, [] { PressKey(VK_ESCAPE); });
    ASSERT_TRUE(OpenMenuAnd(script));
    EXPECT_EQ(0, Runs());
    EXPECT_EQ(0, DefaultIndex());
    EXPECT_EQ(0, m_owner->clicks);
}

TEST_F(ComboButtonInput, AClickOnAnEntryChoosesIt)
{
    AddItems(3);
    MenuScript script;
    script.When(MenuScript::IsOpen, [] { SendMouse(MenuScript::EntryPoint(2), 0); })
        .When([] { return MenuScript::IsHighlighted(2); }, [] { ClickMouse(MenuScript::EntryPoint(2)); });
    ASSERT_TRUE(OpenMenuAnd(script));
    EXPECT_TRUE(WaitFor([this] { return m_items[2]->runs > 0; }));
    EXPECT_EQ(1, Runs());
    EXPECT_EQ(2, DefaultIndex());
}

TEST_F(ComboButtonInput, AGreyEntryIsNotChosen)
{
    AddItems(2);
    m_items[1]->enabled = false;
    MenuScript script;
    script.When(MenuScript::IsOpen, [] { PressKey(VK_DOWN); })
        .When([] { return MenuScript::IsHighlighted(0); }, [] { PressKey(VK_DOWN); })
        .When([] { return MenuScript::IsHighlighted(1); }, [] { PressKey(VK_RETURN); })
        .When(MenuScript::IsOpen, [] { PressKey(VK_ESCAPE); });
    ASSERT_TRUE(OpenMenuAnd(script));
    EXPECT_EQ(0, Runs());
    EXPECT_EQ(0, DefaultIndex());
}

TEST_F(ComboButtonInput, TheChosenEntryRunsFromTheFaceNextTime)
{
    AddItems(3);
    MenuScript script;
    script.When(MenuScript::IsOpen, [] { PressKey(VK_UP); })
        .When([] { return MenuScript::IsHighlighted(2); }, [] { PressKey(VK_RETURN); });
    ASSERT_TRUE(OpenMenuAnd(script));
    ASSERT_TRUE(WaitFor([this] { return m_items[2]->runs == 1; }));
    EXPECT_TRUE(ClickUntil(OnFace(), [this] { return m_items[2]->runs > 1; }));
}

TEST_F(ComboButtonInput, TheSpaceKeyRunsTheDefaultItem)
{
    AddItems(2);
    m_button->SetFocus();
    PressKey(VK_SPACE);
    EXPECT_TRUE(WaitFor([this] { return m_items[0]->runs > 0; }));
    EXPECT_EQ(1, Runs());
}

TEST_F(ComboButtonInput, TheHotFrameComesAndGoesWithTheMouse)
{
    const COLORREF hot = RGB(252, 202, 105);
    AddItems(1);
    m_button->SetComboButtonStyle(CBTS_HOTFRAME | CBTS_ROUND);
    const auto frame = [this] {
        m_button->UpdateWindow();
        const HDC dc = ::GetDC(m_button->m_hWnd);
        const COLORREF color = ::GetPixel(dc, kWidth / 2, 2);
        ::ReleaseDC(m_button->m_hWnd, dc);
        return color;
    };
    EXPECT_TRUE(MoveMouseUntil(OnScreen(CPoint(-10, -10)), [&] { return frame() != hot; }));
    EXPECT_TRUE(MoveMouseUntil(OnScreen(OnFace()), [&] { return frame() == hot; }));
    EXPECT_TRUE(MoveMouseUntil(OnScreen(CPoint(-10, -10)), [&] { return frame() != hot; }));
}

TEST_F(ComboButtonInput, TheEntryUnderTheCursorIsBlueOnTheScreen)
{
    AddItems(2);
    COLORREF color = 0;
    MenuScript script;
    script.When(MenuScript::IsOpen, [] { PressKey(VK_DOWN); })
        .When(
            [&] {
                RECT entry = {};
                RECT window = {};
                ::GetMenuItemRect(MenuScript::MenuWindow(), MenuScript::OpenMenu(), 0, &entry);
                ::GetWindowRect(MenuScript::MenuWindow(), &window);
                const HDC dc = ::GetWindowDC(MenuScript::MenuWindow());
                color = ::GetPixel(dc, entry.right - window.left - 2, entry.top - window.top + 1);
                ::ReleaseDC(MenuScript::MenuWindow(), dc);
                return color == RGB(0, 0, 255);
            },
            [] { PressKey(VK_ESCAPE); });
    EXPECT_TRUE(OpenMenuAnd(script)) << std::hex << color;
}
