// The wait dialog under a real mouse.
#include <afxwin.h>

#include <ZNWaitDlgDll.h>

#include "PlainWindow.h"
#include "RealMouse.h"
#include "WaitDialog.h"

#include <gtest/gtest.h>

#include <thread>

namespace
{

const RECT kWatchedRect = {100, 100, 900, 700};

class ShowWaitDlgInput : public testing::Test
{
protected:
    ShowWaitDlgInput() : m_watched(kWatchedRect)
    {
        m_dialog.SetWatchWnd(m_watched.Handle());
        m_dialog.SetEnableCancel(1);
        ::SetForegroundWindow(m_watched.Handle());
    }

    bool WaitUntilReady()
    {
        return WaitFor([] { return WaitDialog::CancelButton() != NULL; }) &&
               WaitFor([this] { return ::GetForegroundWindow() == m_watched.Handle(); });
    }

    // Keeps this thread from dealing with any message until the user cancelled.
    bool IsCanceledWhileBusy() const
    {
        const ULONGLONG start = ::GetTickCount64();
        const ULONGLONG patience = 20000;
        while (m_dialog.GetIsCanceled() == 0 && ::GetTickCount64() - start < patience)
            std::this_thread::yield();
        return m_dialog.GetIsCanceled() != 0;
    }

    // The dialog's window that holds the mouse; null when none does.
    static HWND CaptureHolder()
    {
        GUITHREADINFO info = {};
        info.cbSize = sizeof(info);
        ::GetGUIThreadInfo(::GetWindowThreadProcessId(WaitDialog::Find(), NULL), &info);
        return info.hwndCapture;
    }

    // Drags the dialog by its upper left corner to the right and down.
    static bool Drag(int distance)
    {
        const RECT rect = WaitDialog::Rect();
        const int inside = 25;
        const DWORD patience = 1000;
        const CPoint grip(rect.left + inside, rect.top + inside);
        const CPoint target = grip + CPoint(distance, distance);
        ::SetCursorPos(grip.x, grip.y);
        SendMouse(grip, MOUSEEVENTF_LEFTDOWN);
        const bool began = WaitFor([] { return CaptureHolder() == WaitDialog::Find(); }, patience);
        ::SetCursorPos(target.x, target.y);
        const bool followed = WaitFor([&rect] { return WaitDialog::Rect().left != rect.left; }, patience);
        SendMouse(target, MOUSEEVENTF_LEFTUP);
        return began && followed && WaitFor([] { return CaptureHolder() == NULL; }, patience);
    }

    PlainWindow m_watched;
    CShowWaitDlg m_dialog;
};

} // namespace

TEST_F(ShowWaitDlgInput, CancelAnswersWhileTheWatchedThreadIsBusy)
{
    ASSERT_TRUE(WaitUntilReady());
    std::thread user([this] { WaitDialog::ClickCancelUntil([this] { return m_dialog.GetIsCanceled() != 0; }); });
    EXPECT_TRUE(IsCanceledWhileBusy());
    user.join();
    EXPECT_EQ(m_watched.Handle(), ::GetForegroundWindow()) << "the click does not take the activation";
}

TEST_F(ShowWaitDlgInput, CancelPressedTwiceIsCancelledOnce)
{
    ASSERT_TRUE(WaitUntilReady());
    std::thread user([this] {
        WaitDialog::ClickCancelUntil([this] { return m_dialog.GetIsCanceled() != 0; });
        WaitDialog::ClickCancel();
        WaitDialog::ClickCancel();
    });
    EXPECT_TRUE(IsCanceledWhileBusy());
    user.join();
    EXPECT_TRUE(WaitDialog::IsShown());
    EXPECT_NE(0, m_dialog.GetIsCanceled());
}

TEST_F(ShowWaitDlgInput, ADialogThatTheUserMovedStaysThere)
{
    ASSERT_TRUE(WaitUntilReady());
    const int attempts = 5;
    const RECT before = WaitDialog::Rect();
    bool moved = false;
    // Under Wine a move that the display reports late may take the cursor back: tried again.
    for (int i = 0; i < attempts && !moved; ++i)
        moved = Drag(60) && WaitDialog::Rect().left != before.left;
    ASSERT_TRUE(moved);
    m_dialog.SetMsg(L"1\n2\n3\n4");
    ASSERT_TRUE(WaitDialog::WaitForLines(L"1\n2\n3\n4"));
    EXPECT_NE(before.left, WaitDialog::Rect().left) << "growing does not centre it again";
    EXPECT_EQ(m_watched.Handle(), ::GetForegroundWindow()) << "nor does dragging activate it";
}
