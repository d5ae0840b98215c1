// Remembers messages that are sent to one window of this thread, as long as it lives. Several may live at once, and end
// in the reverse order.
//
//   MessageSpy spy(list, LVM_ENSUREVISIBLE);
//   ... code that sends ...
//   EXPECT_EQ(1u, spy.Seen().size());
#pragma once

#include <windows.h>

#include <utility>
#include <vector>

class MessageSpy
{
public:
    typedef std::pair<WPARAM, LPARAM> Parameters;

    MessageSpy(HWND window, UINT message) : m_window(window), m_message(message), m_outer(Current())
    {
        Current() = this;
        // The first hook serves all spies.
        if (m_outer == NULL)
            m_hook = ::SetWindowsHookExW(WH_CALLWNDPROC, &MessageSpy::OnHook, NULL, ::GetCurrentThreadId());
    }

    ~MessageSpy()
    {
        if (m_hook != NULL)
            ::UnhookWindowsHookEx(m_hook);
        Current() = m_outer;
    }

    MessageSpy(const MessageSpy&) = delete;
    MessageSpy& operator=(const MessageSpy&) = delete;

    // Parameters of the messages, in the order in which they came.
    const std::vector<Parameters>& Seen() const { return m_seen; }

private:
    static MessageSpy*& Current()
    {
        static MessageSpy* current = NULL;
        return current;
    }

    static LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam)
    {
        const CWPSTRUCT& sent = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        for (MessageSpy* spy = code == HC_ACTION ? Current() : NULL; spy != NULL; spy = spy->m_outer)
        {
            if (sent.hwnd == spy->m_window && sent.message == spy->m_message)
                spy->m_seen.push_back(Parameters(sent.wParam, sent.lParam));
        }
        return ::CallNextHookEx(NULL, code, wParam, lParam);
    }

    HWND m_window;
    UINT m_message;
    MessageSpy* m_outer;
    HHOOK m_hook = NULL;
    std::vector<Parameters> m_seen;
};
