// The check window on its thread, seen from the host's main thread.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>

#include <atomic>
#include <memory>
#include <string>
#include <vector>

#include "ArrayCount.h"
#include "HostFixture.h"
#include "Wait.h"
#include "base/ModuleInstance.h"
#include "dialog/CheckMsgPosts.h"
#include "dialog/CheckSpecMsgThread.h"

constexpr int kTextId = 112;
constexpr int kDockId = 113;
constexpr int kCloseId = 114;

inline void AddTexts(CStringArray& array, const std::vector<std::wstring>& texts)
{
    for (const std::wstring& text : texts)
        array.Add(text.c_str());
}

inline std::wstring TextOf(HWND window)
{
    std::wstring text(static_cast<size_t>(::GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<size_t>(::GetWindowTextW(window, &text[0], static_cast<int>(text.size()))));
    return text;
}

// A window's thread that the test may hold up, and that notes what its filter sees.
class HeldThread : public CCheckSpecMsgThread
{
public:
    static constexpr UINT kHold = WM_APP + 1;

    HeldThread() { m_bAutoDelete = FALSE; }
    explicit HeldThread(CCheckMsgPosts* posts) : CCheckSpecMsgThread(posts) { m_bAutoDelete = FALSE; }
    ~HeldThread() override { ::CloseHandle(m_go); }

    BOOL PreTranslateMessage(MSG* message) override
    {
        if (message->hwnd == NULL && message->message == kHold)
        {
            held = true;
            ::WaitForSingleObject(m_go, INFINITE);
            held = false;
        }
        const BOOL taken = CCheckSpecMsgThread::PreTranslateMessage(message);
        if (message->message == WM_KEYDOWN)
            ++(taken ? keysTaken : keysLeft);
        releases += message->message == WM_LBUTTONUP;
        return taken;
    }

    void Hold()
    {
        PostThreadMessage(kHold, 0, 0);
        EXPECT_TRUE(WaitFor([this] { return held.load(); }));
    }
    void LetGo() { ::SetEvent(m_go); }

    bool HasEnded() const { return ::WaitForSingleObject(m_hThread, 0) == WAIT_OBJECT_0; }

    std::atomic<bool> held{false};
    std::atomic<int> keysTaken{0};
    std::atomic<int> keysLeft{0};
    std::atomic<int> releases{0}; // of the mouse button

private:
    const HANDLE m_go = ::CreateEventW(NULL, FALSE, FALSE, NULL);
};

class CheckMsgFixture : public HostFixture
{
protected:
    CheckMsgFixture() : m_before(LiveArrays()) { _hdllInstance = ::GetModuleHandleW(NULL); }
    ~CheckMsgFixture() override { EndThread(); }

    void StartThread(HeldThread* thread = new HeldThread)
    {
        m_thread.reset(thread);
        ASSERT_TRUE(m_thread->CreateThread());
        ASSERT_TRUE(WaitFor([this] { return Dialog() != NULL; }));
        // Whatever is posted from here on is taken by the thread's loop.
        m_thread->Hold();
        m_idle = LiveArrays();
        m_thread->LetGo();
    }

    // Ends the thread, looks that no block of texts is left, and takes the object along.
    void EndThread()
    {
        if (m_thread == nullptr)
            return;
        if (m_thread->m_hThread != NULL)
        {
            m_thread->LetGo();
            m_thread->End();
            EXPECT_TRUE(WaitFor([this] { return m_thread->HasEnded(); }));
        }
        m_thread.reset();
        EXPECT_EQ(m_before, LiveArrays());
    }

    void ShowMsg(const std::vector<std::wstring>& texts)
    {
        CStringArray array;
        AddTexts(array, texts);
        m_thread->ShowMsg(array);
    }

    // The window of the thread; null when there is none.
    HWND Dialog() const
    {
        HWND found = NULL;
        ::EnumThreadWindows(
            m_thread->m_nThreadID,
            [](HWND window, LPARAM result) -> BOOL {
                if (::GetDlgItem(window, kCloseId) == NULL)
                    return TRUE;
                *reinterpret_cast<HWND*>(result) = window;
                return FALSE;
            },
            reinterpret_cast<LPARAM>(&found));
        return found;
    }

    HWND Item(int id) const { return ::GetDlgItem(Dialog(), id); }
    std::wstring Text() const { return TextOf(Item(kTextId)); }
    bool ShowsText(const std::wstring& text)
    {
        return WaitFor([&] { return Text() == text; });
    }
    bool IsShown() const { return m_thread->IsDlgShowed(); }
    bool WaitUntilShown(bool shown)
    {
        return WaitFor([&] { return IsShown() == shown; });
    }

    CRect Place() const
    {
        CRect place;
        ::GetWindowRect(Dialog(), &place);
        return place;
    }

    const long m_before;
    long m_idle = 0; // arrays while the window is there, without any texts on their way
    std::unique_ptr<HeldThread> m_thread;
};
