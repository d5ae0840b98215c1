// Hooks on windows of somebody else: their chain, their end, and the record of the current message.
#include "HookFixture.h"

#include <afxstat_.h>

#include <algorithm>
#include <memory>

class Hooks : public HookFixture
{
protected:
    NotingHook m_first{"first", m_log};
    NotingHook m_second{"second", m_log};
    NotingHook m_third{"third", m_log};
};

TEST_F(Hooks, HaveTheRunTimeClassOfTheirName)
{
    EXPECT_STREQ("CDySubclassWnd", m_first.GetRuntimeClass()->m_lpszClassName);
    EXPECT_TRUE(m_first.IsKindOf(RUNTIME_CLASS(CObject)));
}

TEST_F(Hooks, AHookSeesEveryMessageBeforeTheWindow)
{
    EXPECT_TRUE(m_first.HookWindow(m_window));
    EXPECT_EQ(m_window, m_first.GetHookedWindow());
    EXPECT_EQ(AnswerTo(3, 4), Send());
    EXPECT_EQ((Names{"first", "window"}), m_log);
}

TEST_F(Hooks, AHookMayKeepAMessageForItself)
{
    m_first.HookWindow(m_window);
    m_first.onMessage = [](UINT, WPARAM, LPARAM) -> LRESULT { return 7; };
    EXPECT_EQ(7, Send());
    EXPECT_EQ((Names{"first"}), m_log);
}

TEST_F(Hooks, AHookMayChangeWhatItPassesOn)
{
    m_first.HookWindow(m_window);
    m_first.onMessage = [this](UINT msg, WPARAM, LPARAM) { return m_first.PassOn(msg, 8, 9); };
    EXPECT_EQ(AnswerTo(8, 9), Send());
}

TEST_F(Hooks, TheNewerOfTwoSeesEachMessageFirst)
{
    m_first.HookWindow(m_window);
    m_second.HookWindow(m_window);
    EXPECT_EQ(AnswerTo(3, 4), Send());
    EXPECT_EQ((Names{"second", "first", "window"}), m_log);
}

TEST_F(Hooks, TheOlderSeesAMessageOnlyWhenTheNewerPassesItOn)
{
    m_first.HookWindow(m_window);
    m_second.HookWindow(m_window);
    m_second.onMessage = [](UINT, WPARAM, LPARAM) -> LRESULT { return 0; };
    Send();
    EXPECT_EQ((Names{"second"}), m_log);
}

TEST_F(Hooks, DetachingTheOlderLeavesTheNewerWorking)
{
    m_first.HookWindow(m_window);
    m_second.HookWindow(m_window);
    EXPECT_TRUE(m_first.HookWindow(NULL));
    EXPECT_TRUE(m_first.GetHookedWindow() == NULL);
    EXPECT_FALSE(IsUntouched(m_window));
    Send();
    EXPECT_EQ((Names{"second", "window"}), m_log);
    m_second.HookWindow(NULL);
    EXPECT_TRUE(IsUntouched(m_window)) << "the last hook restores the window's own procedure";
    Send();
    EXPECT_EQ((Names{"window"}), m_log);
}

TEST_F(Hooks, DetachingTheNewestMakesTheNextOneTheFirst)
{
    m_first.HookWindow(m_window);
    m_second.HookWindow(m_window);
    m_second.HookWindow(NULL);
    Send();
    EXPECT_EQ((Names{"first", "window"}), m_log);
}

TEST_F(Hooks, AHookInTheMiddleLeavesTheOthersLinked)
{
    m_first.HookWindow(m_window);
    m_second.HookWindow(m_window);
    m_third.HookWindow(m_window);
    m_second.HookWindow(NULL);
    Send();
    EXPECT_EQ((Names{"third", "first", "window"}), m_log);
}

TEST_F(Hooks, EachWindowHasItsOwnChain)
{
    const HWND other = NewWindow();
    m_first.HookWindow(m_window);
    m_second.HookWindow(other);
    Send();
    EXPECT_EQ((Names{"first", "window"}), m_log);
    m_log.clear();
    ::SendMessageW(other, kHookMessage, 0, 0);
    EXPECT_EQ((Names{"second", "window"}), m_log);
    ::DestroyWindow(other);
}

TEST_F(Hooks, ManyWindowsAreFoundAgain)
{
    std::vector<HWND> windows;
    std::vector<std::unique_ptr<NotingHook>> hooks;
    for (int i = 0; i < 50; ++i)
    {
        windows.push_back(NewWindow());
        hooks.push_back(std::make_unique<NotingHook>(std::to_string(i).c_str(), m_log));
        hooks.back()->HookWindow(windows.back());
    }
    for (int i = 0; i < 50; ++i)
    {
        m_log.clear();
        ::SendMessageW(windows[i], kHookMessage, 0, 0);
        EXPECT_EQ((Names{std::to_string(i), "window"}), m_log);
        ::DestroyWindow(windows[i]);
        EXPECT_TRUE(hooks[i]->GetHookedWindow() == NULL);
    }
}

TEST_F(Hooks, DestroyingTheWindowDetachesAllAndRestoresItsProcedureFirst)
{
    m_first.HookWindow(m_window);
    m_second.HookWindow(m_window);
    s_wasUntouchedAtEnd = false;
    ::DestroyWindow(m_window);
    EXPECT_TRUE(s_wasUntouchedAtEnd) << "before it receives its last message";
    EXPECT_EQ(UINT(WM_NCDESTROY), s_lastMessage);
    EXPECT_TRUE(m_first.GetHookedWindow() == NULL);
    EXPECT_TRUE(m_second.GetHookedWindow() == NULL);
    for (const NotingHook* hook : {&m_first, &m_second})
    {
        EXPECT_EQ(1, std::count(hook->seen.begin(), hook->seen.end(), UINT(WM_DESTROY)));
        EXPECT_EQ(0, std::count(hook->seen.begin(), hook->seen.end(), UINT(WM_NCDESTROY)));
    }
}

TEST_F(Hooks, AHookThatOutlivedItsWindowServesAnother)
{
    m_first.HookWindow(m_window);
    ::DestroyWindow(m_window);
    m_window = NewWindow();
    m_first.HookWindow(m_window);
    Send();
    EXPECT_EQ((Names{"first", "window"}), m_log);
}

TEST_F(Hooks, DetachingAHookThatWasNeverAttachedDoesNothing)
{
    EXPECT_NE(FALSE, m_first.HookWindow(NULL));
    EXPECT_TRUE(m_first.GetHookedWindow() == NULL);
    EXPECT_EQ(0, m_first.PassOn(kHookMessage, 1, 2));
    EXPECT_TRUE(IsUntouched(m_window));
}

TEST_F(Hooks, ADeletedHookLeavesItsChain)
{
    m_first.HookWindow(m_window);
    {
        NotingHook brief("brief", m_log);
        brief.HookWindow(m_window);
        Send();
        EXPECT_EQ((Names{"brief", "first", "window"}), m_log);
    }
    Send();
    EXPECT_EQ((Names{"first", "window"}), m_log);
}

// Handles that are none.

TEST_F(Hooks, ADeadWindowHandleLeavesTheHookDetached)
{
    const HWND dead = NewWindow();
    ::DestroyWindow(dead);
    EXPECT_NE(FALSE, m_first.HookWindow(dead));
    EXPECT_TRUE(m_first.GetHookedWindow() == NULL);
    EXPECT_NE(FALSE, m_first.HookWindow(reinterpret_cast<HWND>(0x12345)));
    EXPECT_TRUE(m_first.GetHookedWindow() == NULL);
    m_first.HookWindow(m_window);
    Send();
    EXPECT_EQ((Names{"first", "window"}), m_log);
}

TEST_F(Hooks, AWindowOfAnotherProcessLeavesTheHookDetached)
{
    EXPECT_NE(FALSE, m_first.HookWindow(::GetDesktopWindow()));
    EXPECT_TRUE(m_first.GetHookedWindow() == NULL);
}

// One hook, several places.

TEST_F(Hooks, HookedTwiceOnOneWindowItSeesAMessageOnce)
{
    m_first.HookWindow(m_window);
    m_first.HookWindow(m_window);
    EXPECT_EQ(AnswerTo(3, 4), Send());
    EXPECT_EQ((Names{"first", "window"}), m_log);
    m_first.HookWindow(NULL);
    EXPECT_TRUE(IsUntouched(m_window));
}

TEST_F(Hooks, HookedAgainItComesFirst)
{
    m_first.HookWindow(m_window);
    m_second.HookWindow(m_window);
    m_first.HookWindow(m_window);
    Send();
    EXPECT_EQ((Names{"first", "second", "window"}), m_log);
}

TEST_F(Hooks, MovedToAnotherWindowItLeavesTheFormerOne)
{
    const HWND other = NewWindow();
    m_first.HookWindow(m_window);
    m_first.HookWindow(other);
    EXPECT_TRUE(IsUntouched(m_window));
    EXPECT_EQ(other, m_first.GetHookedWindow());
    m_log.clear();
    ::SendMessageW(other, kHookMessage, 0, 0);
    EXPECT_EQ((Names{"first", "window"}), m_log);
    ::DestroyWindow(other);
}

// Somebody subclasses the window over the hooks.

TEST_F(Hooks, TheProcedureBelowTheHooksComesBackEvenOverALaterSubclass)
{
    m_first.HookWindow(m_window);
    const auto hookProcedure = reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(m_window, GWLP_WNDPROC));
    ::SetWindowLongPtrW(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&::DefWindowProcW));
    m_first.HookWindow(NULL);
    EXPECT_TRUE(IsUntouched(m_window));
    // The one who was cut off may put back what he found.
    ::SetWindowLongPtrW(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(hookProcedure));
    EXPECT_EQ(0, Send());
    EXPECT_EQ(Names(), m_log);
}

TEST_F(Hooks, AFrameworkWindowSubclassedOverAHookEndsProperly)
{
    m_first.HookWindow(m_window);
    CWnd over;
    ASSERT_TRUE(over.SubclassWindow(m_window));
    Send();
    EXPECT_EQ((Names{"first", "window"}), m_log);
    ::DestroyWindow(m_window);
    EXPECT_TRUE(over.m_hWnd == NULL);
    EXPECT_TRUE(m_first.GetHookedWindow() == NULL);
    EXPECT_TRUE(CWnd::FromHandlePermanent(m_window) == NULL);
}

// The record of the message that is being dispatched.

TEST_F(Hooks, DefaultPassesTheCurrentMessageOn)
{
    m_first.HookWindow(m_window);
    m_second.HookWindow(m_window);
    m_second.onMessage = [this](UINT, WPARAM, LPARAM) { return m_second.Default(); };
    EXPECT_EQ(AnswerTo(3, 4), Send());
    EXPECT_EQ((Names{"second", "first", "window"}), m_log);
}

TEST_F(Hooks, TheFrameworkKnowsTheCurrentMessage)
{
    MSG noted = {};
    m_first.HookWindow(m_window);
    m_first.onMessage = [&noted](UINT, WPARAM, LPARAM) -> LRESULT {
        noted = *CWnd::GetCurrentMessage();
        return 0;
    };
    Send(kHookMessage, 5, 6);
    EXPECT_EQ(m_window, noted.hwnd);
    EXPECT_EQ(kHookMessage, noted.message);
    EXPECT_EQ(5u, noted.wParam);
    EXPECT_EQ(6, noted.lParam);
}

TEST_F(Hooks, TheFormerRecordIsThereAgainAfterwards)
{
    m_first.HookWindow(m_window);
    AfxGetThreadState()->m_lastSentMsg.message = 4711;
    AfxGetThreadState()->m_lastSentMsg.wParam = 12;
    Send();
    EXPECT_EQ(4711u, AfxGetThreadState()->m_lastSentMsg.message);
    EXPECT_EQ(12u, AfxGetThreadState()->m_lastSentMsg.wParam);
    ::DestroyWindow(m_window);
    EXPECT_EQ(4711u, AfxGetThreadState()->m_lastSentMsg.message) << "after the last message as well";
}

TEST_F(Hooks, ANestedMessageLeavesTheOuterRecordAlone)
{
    m_first.HookWindow(m_window);
    m_first.onMessage = [this](UINT msg, WPARAM, LPARAM) -> LRESULT {
        if (msg == kHookMessage)
            ::SendMessageW(m_window, kNestedMessage, 1, 1);
        return m_first.Default();
    };
    EXPECT_EQ(AnswerTo(3, 4), Send());
    EXPECT_EQ((Names{"first", "first", "window", "window"}), m_log);
}

TEST_F(Hooks, AnExceptionOfAHookEndsAtTheWindow)
{
    AfxGetThreadState()->m_lastSentMsg.message = 4711;
    m_first.HookWindow(m_window);
    m_first.onMessage = [](UINT, WPARAM, LPARAM) -> LRESULT { throw new CUserException; };
    EXPECT_EQ(0, Send());
    EXPECT_EQ(4711u, AfxGetThreadState()->m_lastSentMsg.message);
    m_first.onMessage = nullptr;
    EXPECT_EQ(AnswerTo(3, 4), Send()) << "the chain works on";
}
