#include "host/ScreenWatch.h"

#include "host/FrameShot.h"

namespace arxhost
{
namespace
{

const DWORD pause = 10;         // milliseconds between two looks
const DWORD paintingTime = 150; // milliseconds until the window and what it says have reached the screen

struct TitleSearch
{
    std::wstring title;
    HWND found;
};

// Asks nothing of the window's thread, which may be busy: the title is read from the window itself.
BOOL CALLBACK MatchTitle(HWND window, LPARAM parameter)
{
    TitleSearch& search = *reinterpret_cast<TitleSearch*>(parameter);
    wchar_t title[128] = L"";
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process != GetCurrentProcessId() || !IsWindowVisible(window))
        return TRUE;
    InternalGetWindowText(window, title, 128);
    if (search.title == title)
        search.found = window;
    return search.found == nullptr;
}

// Looks again and again, because a window that comes up on another thread tells nobody.
bool WaitForWindow(const std::wstring& title, unsigned patience)
{
    TitleSearch search{title, nullptr};
    const ULONGLONG start = GetTickCount64();
    EnumWindows(&MatchTitle, reinterpret_cast<LPARAM>(&search));
    while (search.found == nullptr && GetTickCount64() - start < patience)
    {
        Sleep(pause);
        EnumWindows(&MatchTitle, reinterpret_cast<LPARAM>(&search));
    }
    return search.found != nullptr;
}

} // namespace

ScreenWatch::ScreenWatch(unsigned patience) : m_patience(patience) {}

ScreenWatch::~ScreenWatch()
{
    Finish();
}

void ScreenWatch::Start(HWND frame, const std::wstring& title, const std::wstring& path)
{
    Finish();
    m_thread = std::thread([=] { Run(frame, title, path); });
}

std::wstring ScreenWatch::Finish()
{
    if (m_thread.joinable())
        m_thread.join();
    std::wstring error;
    error.swap(m_error);
    return error;
}

void ScreenWatch::Run(HWND frame, const std::wstring& title, const std::wstring& path)
{
    if (!WaitForWindow(title, m_patience))
    {
        m_error = L"没有出现标题为“" + title + L"”的窗口。";
        return;
    }
    Sleep(paintingTime);
    RECT area = {};
    GetWindowRect(frame, &area);
    m_error = SaveScreenShot(area, path);
}

} // namespace arxhost
