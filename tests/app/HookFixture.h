// A window of nobody's class that notes what reaches it, and hooks that note what they see and may do something evil.
#pragma once

#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "app/DySubclassWnd.h"

constexpr UINT kHookMessage = WM_APP + 1;
constexpr UINT kNestedMessage = WM_APP + 2;

typedef std::vector<std::string> Names;

class NotingHook : public CDySubclassWnd
{
public:
    NotingHook(const char* name, Names& log) : m_name(name), m_log(log) {}

    LRESULT PassOn(UINT msg, WPARAM wParam, LPARAM lParam) { return CDySubclassWnd::WindowProc(msg, wParam, lParam); }
    using CDySubclassWnd::Default;

    // Takes the place of passing the message on.
    std::function<LRESULT(UINT, WPARAM, LPARAM)> onMessage;
    std::vector<UINT> seen;

protected:
    LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override
    {
        seen.push_back(msg);
        if (msg < WM_APP)
            return PassOn(msg, wParam, lParam);
        m_log.push_back(m_name);
        // The hook may delete itself, and with it the function.
        const auto handler = onMessage;
        return handler ? handler(msg, wParam, lParam) : PassOn(msg, wParam, lParam);
    }

private:
    const std::string m_name;
    Names& m_log;
};

class HookFixture : public testing::Test
{
protected:
    HookFixture()
    {
        s_log = &m_log;
        s_lastMessage = 0;
        WNDCLASSW wndClass = {};
        wndClass.lpfnWndProc = &WindowProcedure;
        wndClass.hInstance = ::GetModuleHandleW(NULL);
        wndClass.lpszClassName = L"HookedWindow";
        ::RegisterClassW(&wndClass);
        m_window = NewWindow();
    }

    ~HookFixture() override
    {
        ::DestroyWindow(m_window);
        s_log = NULL;
    }

    HWND NewWindow()
    {
        return ::CreateWindowW(L"HookedWindow", L"hooked", WS_POPUP, 0, 0, 50, 50, NULL, NULL, ::GetModuleHandleW(NULL),
                               NULL);
    }

    LRESULT Send(UINT msg = kHookMessage, WPARAM wParam = 3, LPARAM lParam = 4)
    {
        m_log.clear();
        return ::SendMessageW(m_window, msg, wParam, lParam);
    }

    bool IsUntouched(HWND window) const
    {
        return ::GetWindowLongPtrW(window, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&WindowProcedure);
    }

    // What the window itself answers to its private messages.
    static LRESULT AnswerTo(WPARAM wParam, LPARAM lParam) { return static_cast<LRESULT>(wParam) * 100 + lParam; }

    HWND m_window = NULL;
    Names m_log;
    static bool s_wasUntouchedAtEnd;
    static UINT s_lastMessage;

private:
    static LRESULT CALLBACK WindowProcedure(HWND window, UINT msg, WPARAM wParam, LPARAM lParam)
    {
        s_lastMessage = msg;
        if (msg == WM_NCDESTROY)
            s_wasUntouchedAtEnd =
                ::GetWindowLongPtrW(window, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&WindowProcedure);
        if (msg < WM_APP || msg > 0xBFFF)
            return ::DefWindowProcW(window, msg, wParam, lParam);
        if (s_log != NULL)
            s_log->push_back("window");
        return AnswerTo(wParam, lParam);
    }

    static Names* s_log;
};
