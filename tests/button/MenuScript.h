// Drives a menu from within: a menu runs its own message loop, which still delivers a timer.
//
//     MenuScript script(button);
//     script.When(script.MenuIsOpen(), [&] { PressKey(VK_DOWN); });
//     script.When([&] { return script.IsHighlighted(0); }, [&] { PressKey(VK_RETURN); });
//     ... opens the menu, and comes back when it is closed ...
//     EXPECT_TRUE(script.IsDone());
//
// Each step waits for its condition. A step that waits too long ends the menu, and the script is never done.
#pragma once

#include <afxwin.h>

#include <functional>
#include <vector>

class MenuScript
{
public:
    typedef std::function<bool()> Condition;
    typedef std::function<void()> Action;

    MenuScript();
    ~MenuScript();
    MenuScript(const MenuScript&) = delete;
    MenuScript& operator=(const MenuScript&) = delete;

    MenuScript& When(Condition condition, Action action);

    // Every step has been taken.
    bool IsDone() const { return m_next == m_steps.size(); }

    // The open menu of this process: its window (null without one), its handle.
    static HWND MenuWindow();
    static HMENU OpenMenu();
    static bool IsOpen();
    static bool IsHighlighted(int position);
    // The middle of an entry, in screen coordinates.
    static CPoint EntryPoint(int position);

private:
    struct Step
    {
        Condition condition;
        Action action;
    };

    static void CALLBACK OnTimer(HWND window, UINT message, UINT_PTR id, DWORD time);
    void TakeStep();

    static MenuScript* s_current;

    std::vector<Step> m_steps;
    size_t m_next = 0;
    bool m_inStep = false;
    DWORD m_waitingSince;
    UINT_PTR m_timer;
};
