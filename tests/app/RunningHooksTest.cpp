// Hooks that come, go and are deleted while a message is on its way through their chain.
#include "HookFixture.h"

#include <algorithm>
#include <memory>

class RunningHooks : public HookFixture
{
protected:
    RunningHooks()
    {
        m_oldest->HookWindow(m_window);
        m_middle->HookWindow(m_window);
        m_newest->HookWindow(m_window);
    }

    // Does it in the hook's own WindowProc, then passes the message on. Once only.
    void When(NotingHook& hook, std::function<void()> action)
    {
        hook.onMessage = [&hook, action](UINT msg, WPARAM wParam, LPARAM lParam) {
            hook.onMessage = nullptr;
            action();
            return hook.PassOn(msg, wParam, lParam);
        };
    }

    std::unique_ptr<NotingHook> m_oldest = std::make_unique<NotingHook>("oldest", m_log);
    std::unique_ptr<NotingHook> m_middle = std::make_unique<NotingHook>("middle", m_log);
    std::unique_ptr<NotingHook> m_newest = std::make_unique<NotingHook>("newest", m_log);
};

TEST_F(RunningHooks, AHookThatDetachesItselfPassesTheMessageOn)
{
    for (NotingHook* hook : {m_newest.get(), m_middle.get(), m_oldest.get()})
    {
        When(*hook, [hook] { hook->HookWindow(NULL); });
        EXPECT_EQ(AnswerTo(3, 4), Send());
        EXPECT_EQ("window", m_log.back());
        EXPECT_TRUE(hook->GetHookedWindow() == NULL);
    }
    EXPECT_TRUE(IsUntouched(m_window));
    EXPECT_EQ(0, m_newest->PassOn(kHookMessage, 0, 0)) << "its place is forgotten when the message is done";
}

TEST_F(RunningHooks, AHookThatDetachesTheNextOneSkipsIt)
{
    When(*m_newest, [this] { m_middle->HookWindow(NULL); });
    EXPECT_EQ(AnswerTo(3, 4), Send());
    EXPECT_EQ((Names{"newest", "oldest", "window"}), m_log);
}

TEST_F(RunningHooks, AHookThatDetachesAllPassesOnToTheWindow)
{
    When(*m_newest, [this] {
        for (NotingHook* hook : {m_newest.get(), m_middle.get(), m_oldest.get()})
            hook->HookWindow(NULL);
    });
    EXPECT_EQ(AnswerTo(3, 4), Send());
    EXPECT_EQ((Names{"newest", "window"}), m_log);
    EXPECT_TRUE(IsUntouched(m_window));
}

TEST_F(RunningHooks, AnOlderHookMayDetachTheNewerOneThatCalledIt)
{
    When(*m_middle, [this] { m_newest->HookWindow(NULL); });
    EXPECT_EQ(AnswerTo(3, 4), Send());
    EXPECT_EQ((Names{"newest", "middle", "oldest", "window"}), m_log);
    Send();
    EXPECT_EQ((Names{"middle", "oldest", "window"}), m_log);
}

TEST_F(RunningHooks, AnOlderHookMayDeleteTheNewerOneThatCalledIt)
{
    m_newest->onMessage = [this](UINT msg, WPARAM wParam, LPARAM lParam) {
        return m_newest->PassOn(msg, wParam, lParam);
    };
    When(*m_middle, [this] { m_newest.reset(); });
    EXPECT_EQ(AnswerTo(3, 4), Send());
    EXPECT_EQ((Names{"newest", "middle", "oldest", "window"}), m_log);
    Send();
    EXPECT_EQ((Names{"middle", "oldest", "window"}), m_log);
}

TEST_F(RunningHooks, AHookMayDeleteTheOthers)
{
    When(*m_newest, [this] {
        m_middle.reset();
        m_oldest.reset();
    });
    EXPECT_EQ(AnswerTo(3, 4), Send());
    EXPECT_EQ((Names{"newest", "window"}), m_log);
}

TEST_F(RunningHooks, ADetachedHookSkipsTheOnesThatWereDeletedAfterIt)
{
    When(*m_newest, [this] {
        m_newest->HookWindow(NULL);
        m_middle.reset();
    });
    EXPECT_EQ(AnswerTo(3, 4), Send());
    EXPECT_EQ((Names{"newest", "oldest", "window"}), m_log);
}

TEST_F(RunningHooks, AHookMayDeleteItself)
{
    m_newest->onMessage = [this](UINT, WPARAM, LPARAM) -> LRESULT {
        m_newest.reset();
        return 5;
    };
    EXPECT_EQ(5, Send());
    EXPECT_EQ((Names{"newest"}), m_log);
    EXPECT_EQ(AnswerTo(3, 4), Send());
    EXPECT_EQ((Names{"middle", "oldest", "window"}), m_log);
}

TEST_F(RunningHooks, ANewHookAtTheAddressOfADeletedOneStartsAnew)
{
    const HWND other = NewWindow();
    alignas(NotingHook) char place[sizeof(NotingHook)];
    NotingHook* at = new (place) NotingHook("deleted", m_log);
    at->HookWindow(m_window);
    LRESULT answers[2] = {1, 1};
    at->onMessage = [&](UINT msg, WPARAM wParam, LPARAM lParam) -> LRESULT {
        at->~NotingHook();
        at = new (place) NotingHook("new", m_log);
        answers[0] = at->PassOn(msg, wParam, lParam); // was never attached
        at->HookWindow(other);
        answers[1] = at->PassOn(msg, 8, 9); // has no place in the chain of the deleted one
        return 6;
    };
    EXPECT_EQ(6, Send());
    EXPECT_EQ(0, answers[0]);
    EXPECT_EQ(AnswerTo(8, 9), answers[1]);
    EXPECT_EQ((Names{"deleted", "window"}), m_log);
    at->~NotingHook();
    ::DestroyWindow(other);
}

TEST_F(RunningHooks, ANewHookSeesTheNextMessage)
{
    NotingHook added("added", m_log);
    When(*m_middle, [&] { added.HookWindow(m_window); });
    EXPECT_EQ(AnswerTo(3, 4), Send());
    EXPECT_EQ((Names{"newest", "middle", "oldest", "window"}), m_log);
    Send();
    EXPECT_EQ((Names{"added", "newest", "middle", "oldest", "window"}), m_log);
}

TEST_F(RunningHooks, AHookThatMovesToTheFrontSeesItsMessageOnce)
{
    When(*m_oldest, [this] { m_oldest->HookWindow(m_window); });
    EXPECT_EQ(AnswerTo(3, 4), Send());
    EXPECT_EQ((Names{"newest", "middle", "oldest", "window"}), m_log);
    Send();
    EXPECT_EQ((Names{"oldest", "newest", "middle", "window"}), m_log);
}

TEST_F(RunningHooks, AHookThatMovesToTheFrontTwiceKeepsItsPlaceForThisMessage)
{
    When(*m_newest, [this] {
        m_newest->HookWindow(NULL);
        m_newest->HookWindow(m_window);
        m_newest->HookWindow(NULL);
    });
    EXPECT_EQ(AnswerTo(3, 4), Send());
    EXPECT_EQ((Names{"newest", "middle", "oldest", "window"}), m_log);
}

TEST_F(RunningHooks, AHookThatMovesToAnotherWindowPassesItsMessageOnToTheFormer)
{
    const HWND other = NewWindow();
    ::SetWindowTextW(other, L"other");
    NotingHook hook("moving", m_log);
    hook.HookWindow(m_window);
    When(hook, [&] { hook.HookWindow(other); });
    EXPECT_EQ(AnswerTo(3, 4), Send());
    EXPECT_EQ((Names{"moving", "newest", "middle", "oldest", "window"}), m_log);
    EXPECT_EQ(other, hook.GetHookedWindow());
    ::DestroyWindow(other);
}

TEST_F(RunningHooks, LeavingDuringANestedMessageKeepsThePlaceInTheOuterOne)
{
    m_middle->onMessage = [this](UINT msg, WPARAM wParam, LPARAM lParam) {
        if (msg == kNestedMessage)
            m_middle->HookWindow(NULL);
        else
            ::SendMessageW(m_window, kNestedMessage, 0, 0);
        return m_middle->PassOn(msg, wParam, lParam);
    };
    EXPECT_EQ(AnswerTo(3, 4), Send());
    EXPECT_EQ((Names{"newest", "middle", "newest", "middle", "oldest", "window", "oldest", "window"}), m_log);
}

// The window goes.

TEST_F(RunningHooks, AWindowDestroyedInsideAHookEndsItsMessage)
{
    for (NotingHook* hook : {m_oldest.get(), m_middle.get(), m_newest.get()})
    {
        m_window = NewWindow();
        m_oldest->HookWindow(m_window);
        m_middle->HookWindow(m_window);
        m_newest->HookWindow(m_window);
        When(*hook, [this] { ::DestroyWindow(m_window); });
        EXPECT_EQ(0, Send());
        EXPECT_EQ(0, std::count(m_log.begin(), m_log.end(), "window"));
        EXPECT_TRUE(hook->GetHookedWindow() == NULL);
    }
}

TEST_F(RunningHooks, AWindowDestroyedInsideANestedMessageEndsBoth)
{
    m_newest->onMessage = [this](UINT msg, WPARAM wParam, LPARAM lParam) {
        if (msg == kHookMessage)
            ::SendMessageW(m_window, kNestedMessage, 0, 0);
        else
            ::DestroyWindow(m_window);
        return m_newest->PassOn(msg, wParam, lParam);
    };
    EXPECT_EQ(0, Send());
    EXPECT_EQ((Names{"newest", "newest"}), m_log);
}

TEST_F(RunningHooks, AHookMayDestroyTheWindowAndDeleteItself)
{
    m_middle->onMessage = [this](UINT, WPARAM, LPARAM) -> LRESULT {
        ::DestroyWindow(m_window);
        m_middle.reset();
        return 1;
    };
    EXPECT_EQ(1, Send());
    EXPECT_TRUE(m_newest->GetHookedWindow() == NULL);
}

TEST_F(RunningHooks, AHookThatServesANewWindowDoesNotSendItTheOldMessage)
{
    HWND other = NULL;
    When(*m_newest, [&] {
        ::DestroyWindow(m_window);
        other = NewWindow();
        m_newest->HookWindow(other);
    });
    EXPECT_EQ(0, Send());
    EXPECT_EQ((Names{"newest"}), m_log);
    ::DestroyWindow(other);
}
