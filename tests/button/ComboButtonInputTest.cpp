// The combo button under a real mouse and a real keyboard.
#include "ComboButtonFixture.h"

#include "MenuScript.h"
#include "Wait.h"

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

    // The place travels with the event: under Wine the display may report an earlier place of the cursor late, which
    // would take it back from wherever it had been set before.
    static void MouseEvent(CPoint point, DWORD flags)
    {
        const int units = 65536; // across the screen, each way
        INPUT input = {};
        input.type = INPUT_MOUSE;
        input.mi.dx = (point.x * units + units / 2) / ::GetSystemMetrics(SM_CXSCREEN);
        input.mi.dy = (point.y * units + units / 2) / ::GetSystemMetrics(SM_CYSCREEN);
        input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | flags;
        ::SendInput(1, &input, sizeof(input));
    }

    static void KeyEvent(WORD key, DWORD flags)
    {
        INPUT input = {};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.dwFlags = flags;
        ::SendInput(1, &input, sizeof(input));
    }

    static void TypeKey(WORD key)
    {
        KeyEvent(key, 0);
        KeyEvent(key, KEYEVENTF_KEYUP);
    }

    static void MoveTo(CPoint point) { MouseEvent(point, 0); }

    static void ClickAt(CPoint point)
    {
        MouseEvent(point, MOUSEEVENTF_LEFTDOWN);
        MouseEvent(point, MOUSEEVENTF_LEFTUP);
    }

    CPoint OnScreen(CPoint point)
    {
        m_button->ClientToScreen(&point);
        return point;
    }

    // A click that had no effect in time is tried again, after longer than a double click takes.
    template<class CONDITION>
    bool ClickUntil(CPoint point, CONDITION condition)
    {
        const int attempts = 5;
        for (int i = 0; i < attempts; ++i)
        {
            ClickAt(OnScreen(point));
            if (WaitFor(condition, 2 * ::GetDoubleClickTime()))
                return true;
        }
        return false;
    }

    // Moves the display's own cursor as well, so that it stays; to the point and beside it in turn, because a move to
    // where the cursor is tells nobody.
    template<class CONDITION>
    static bool MoveUntil(CPoint point, CONDITION condition)
    {
        const int attempts = 10;
        for (int i = 0; i < attempts; ++i)
        {
            const CPoint place = point + CPoint(i % 2, 0);
            ::SetCursorPos(place.x, place.y);
            MoveTo(place);
            if (WaitFor(condition, 1000))
                return true;
        }
        return false;
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
    script.When(MenuScript::IsOpen, [] { TypeKey(VK_DOWN); })
        .When([] { return MenuScript::IsHighlighted(0); }, [] { TypeKey(VK_DOWN); })
        .When([] { return MenuScript::IsHighlighted(1); }, [] { TypeKey(VK_RETURN); });
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
    script.When(MenuScript::IsOpen, [] { TypeKey('E'); }).When([] { return !MenuScript::IsOpen(); }, [] {});
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
    script.When(MenuScript::IsOpen, [] { TypeKey('X'); })
        .When([this] { return m_button->charactersSeen > 0; }, [] { EXPECT_TRUE(MenuScript::IsOpen()); })
        .When(MenuScript::IsOpen, [] { TypeKey(VK_ESCAPE); });
    ASSERT_TRUE(OpenMenuAnd(script));
    EXPECT_EQ(0, Runs());
}

TEST_F(ComboButtonInput, EscapeChoosesNothing)
{
    AddItems(3);
    MenuScript script;
    script.When(MenuScript::IsOpen, [] { TypeKey(VK_DOWN); })
        .When([] { return MenuScript::IsHighlighted(0); }, [] { TypeKey(VK_ESCAPE); });
    ASSERT_TRUE(OpenMenuAnd(script));
    EXPECT_EQ(0, Runs());
    EXPECT_EQ(0, DefaultIndex());
    EXPECT_EQ(0, m_owner->clicks);
}

TEST_F(ComboButtonInput, AClickOnAnEntryChoosesIt)
{
    AddItems(3);
    MenuScript script;
    script.When(MenuScript::IsOpen, [] { MoveTo(MenuScript::EntryPoint(2)); })
        .When([] { return MenuScript::IsHighlighted(2); }, [] { ClickAt(MenuScript::EntryPoint(2)); });
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
    script.When(MenuScript::IsOpen, [] { TypeKey(VK_DOWN); })
        .When([] { return MenuScript::IsHighlighted(0); }, [] { TypeKey(VK_DOWN); })
        .When([] { return MenuScript::IsHighlighted(1); }, [] { TypeKey(VK_RETURN); })
        .When(MenuScript::IsOpen, [] { TypeKey(VK_ESCAPE); });
    ASSERT_TRUE(OpenMenuAnd(script));
    EXPECT_EQ(0, Runs());
    EXPECT_EQ(0, DefaultIndex());
}

TEST_F(ComboButtonInput, TheChosenEntryRunsFromTheFaceNextTime)
{
    AddItems(3);
    MenuScript script;
    script.When(MenuScript::IsOpen, [] { TypeKey(VK_UP); })
        .When([] { return MenuScript::IsHighlighted(2); }, [] { TypeKey(VK_RETURN); });
    ASSERT_TRUE(OpenMenuAnd(script));
    ASSERT_TRUE(WaitFor([this] { return m_items[2]->runs == 1; }));
    EXPECT_TRUE(ClickUntil(OnFace(), [this] { return m_items[2]->runs > 1; }));
}

TEST_F(ComboButtonInput, TheSpaceKeyRunsTheDefaultItem)
{
    AddItems(2);
    m_button->SetFocus();
    TypeKey(VK_SPACE);
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
    EXPECT_TRUE(MoveUntil(OnScreen(CPoint(-10, -10)), [&] { return frame() != hot; }));
    EXPECT_TRUE(MoveUntil(OnScreen(OnFace()), [&] { return frame() == hot; }));
    EXPECT_TRUE(MoveUntil(OnScreen(CPoint(-10, -10)), [&] { return frame() != hot; }));
}

TEST_F(ComboButtonInput, TheEntryUnderTheCursorIsBlueOnTheScreen)
{
    AddItems(2);
    COLORREF color = 0;
    MenuScript script;
    script.When(MenuScript::IsOpen, [] { TypeKey(VK_DOWN); })
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
            [] { TypeKey(VK_ESCAPE); });
    EXPECT_TRUE(OpenMenuAnd(script)) << std::hex << color;
}
