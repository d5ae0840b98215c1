// Takes a picture of the frame when a window comes up while the main thread is busy, as a command that works for a
// while keeps it.
#pragma once

#include <afxwin.h>

#include <string>
#include <thread>

namespace arxhost
{

class ScreenWatch
{
public:
    // `patience`: how long a watch waits for its window, milliseconds.
    explicit ScreenWatch(unsigned patience = 20000);
    ~ScreenWatch();
    ScreenWatch(const ScreenWatch&) = delete;
    ScreenWatch& operator=(const ScreenWatch&) = delete;

    // From now on, on a thread of its own: as soon as this program shows a top-level window with the title, and that
    // has painted itself, the frame's part of the screen is saved as PNG. A watch that is still on is waited for first.
    void Start(HWND frame, const std::wstring& title, const std::wstring& path);

    // Waits until the picture is taken or the time for it is over. Returns a message for the user, empty on success or
    // when no watch was on.
    std::wstring Finish();

private:
    void Run(HWND frame, const std::wstring& title, const std::wstring& path);

    const unsigned m_patience;
    std::thread m_thread;
    std::wstring m_error;
};

} // namespace arxhost
