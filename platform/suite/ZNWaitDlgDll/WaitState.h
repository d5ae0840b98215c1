// What the calling thread and the dialog's thread share. Neither ever waits for the other: single values are atomic,
// and a text is handed over by exchanging a pointer.
#pragma once

#include <windows.h>

#include <atomic>
#include <memory>
#include <string>

#include "suite/ZNWaitDlgDll/WaitText.h"

namespace wait
{
// Holds the newest text until it is taken.
class TextBox
{
public:
    TextBox() = default;
    ~TextBox() { delete m_newest.load(); }
    TextBox(const TextBox&) = delete;
    TextBox& operator=(const TextBox&) = delete;

    void Put(const wchar_t* text) { delete m_newest.exchange(new std::wstring(LastLines(text))); }

    // Null when there is none since the last time.
    std::unique_ptr<std::wstring> Take() { return std::unique_ptr<std::wstring>(m_newest.exchange(nullptr)); }

private:
    std::atomic<std::wstring*> m_newest{nullptr};
};

struct State
{
    std::atomic<HWND> watched{nullptr};
    std::atomic<bool> cancelEnabled{false};
    std::atomic<bool> canceled{false};
    TextBox text;
};
} // namespace wait
