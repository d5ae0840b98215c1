// Ends the message boxes of this thread as soon as they appear, and remembers their texts.
#pragma once

#include <afxwin.h>

#include <vector>

class MessageBoxCloser
{
public:
    MessageBoxCloser()
    {
        Current() = this;
        m_hook = ::SetWindowsHookEx(WH_CBT, &OnHook, nullptr, ::GetCurrentThreadId());
    }
    ~MessageBoxCloser()
    {
        ::UnhookWindowsHookEx(m_hook);
        Current() = nullptr;
    }
    MessageBoxCloser(const MessageBoxCloser&) = delete;
    MessageBoxCloser& operator=(const MessageBoxCloser&) = delete;

    std::vector<CString> m_texts;

private:
    static const int TextId = 0xFFFF;

    static MessageBoxCloser*& Current()
    {
        static MessageBoxCloser* current = nullptr;
        return current;
    }

    // A dialog of the system: no object of the framework stands for it.
    static bool IsMessageBox(HWND window)
    {
        return (::GetClassLongPtr(window, GCW_ATOM) == reinterpret_cast<ULONG_PTR>(WC_DIALOG)) &&
               CWnd::FromHandlePermanent(window) == nullptr;
    }

    static LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam)
    {
        const HWND window = reinterpret_cast<HWND>(wParam);
        if (code == HCBT_ACTIVATE && IsMessageBox(window))
        {
            CString text;
            CWnd::FromHandle(window)->GetDlgItemText(TextId, text);
            Current()->m_texts.push_back(text);
            ::PostMessage(window, WM_COMMAND, IDOK, 0);
        }
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    HHOOK m_hook;
};
