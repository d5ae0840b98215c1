// The wait dialog from outside: what it shows, where it stands, how it is cancelled.
#include <afxwin.h>

#include <ZNWaitDlgDll.h>

#include "PlainWindow.h"
#include "Wait.h"
#include "WaitDialog.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

const RECT kWatchedRect = {100, 100, 900, 700};

class ShowWaitDlg : public testing::Test
{
protected:
    ShowWaitDlg() : m_watched(kWatchedRect) {}
    ~ShowWaitDlg() override { EXPECT_FALSE(WaitDialog::IsShown()) << "closed with its object"; }

    // Without closing it at the end, which is the test's own business.
    static void Open(CShowWaitDlg& dialog, HWND watched)
    {
        dialog.SetWatchWnd(watched);
        dialog.SetEnableCancel(1);
        ASSERT_TRUE(WaitDialog::WaitUntilShown());
    }

    static bool WaitForButton(bool shown)
    {
        return WaitFor([shown] { return (WaitDialog::CancelButton() != NULL) == shown; });
    }

    static void PressCancel() { ::SendMessageW(WaitDialog::CancelButton(), BM_CLICK, 0, 0); }

    static LONG Height() { return WaitDialog::Rect().bottom - WaitDialog::Rect().top; }

    // Whether one window stands before the other in the stack of all windows.
    static bool IsBefore(HWND front, HWND back)
    {
        HWND window = front;
        while (window != NULL && window != back)
            window = ::GetWindow(window, GW_HWNDNEXT);
        return window == back;
    }

    static bool IsCentredOver(HWND watched)
    {
        RECT over = {};
        ::GetWindowRect(watched, &over);
        const RECT rect = WaitDialog::Rect();
        return std::abs(rect.left + rect.right - over.left - over.right) <= 2 &&
               std::abs(rect.top + rect.bottom - over.top - over.bottom) <= 2;
    }

    PlainWindow m_watched;
};

std::wstring Joined(int first, int last)
{
    std::wstring text;
    for (int i = first; i <= last; ++i)
        text += (i == first ? L"" : L"\n") + std::to_wstring(i);
    return text;
}

// Holds the dialog's thread still while it lives.
class Standstill
{
public:
    Standstill()
        : m_thread(::OpenThread(THREAD_SUSPEND_RESUME, FALSE, ::GetWindowThreadProcessId(WaitDialog::Find(), NULL)))
    {
        ::SuspendThread(m_thread);
    }
    ~Standstill()
    {
        ::ResumeThread(m_thread);
        ::CloseHandle(m_thread);
    }
    Standstill(const Standstill&) = delete;
    Standstill& operator=(const Standstill&) = delete;

private:
    HANDLE m_thread;
};

} // namespace

TEST_F(ShowWaitDlg, ComesUpByItselfAndGoesWithItsObject)
{
    {
        CShowWaitDlg dialog;
        EXPECT_TRUE(WaitDialog::WaitUntilShown());
        EXPECT_EQ(L"", WaitDialog::Lines());
    }
    EXPECT_FALSE(WaitDialog::IsShown());
}

TEST_F(ShowWaitDlg, AnOperationThatIsOverAtOnceLeavesNothingBehind)
{
    const int rounds = 20;
    for (int i = 0; i < rounds; ++i)
    {
        CShowWaitDlg dialog;
        dialog.SetMsg(L"short");
    }
    EXPECT_FALSE(WaitDialog::IsShown());
}

TEST_F(ShowWaitDlg, ShowsTheNewestText)
{
    CShowWaitDlg dialog;
    dialog.SetMsg(L"first");
    dialog.SetMsg(L"second\nthird");
    EXPECT_TRUE(WaitDialog::WaitForLines(L"second\nthird"));
    dialog.SetMsg(L"fourth");
    EXPECT_TRUE(WaitDialog::WaitForLines(L"fourth"));
}

TEST_F(ShowWaitDlg, AnEmptyOrNullTextClearsTheDialogAndLeavesItOpen)
{
    for (const wchar_t* text : {static_cast<const wchar_t*>(nullptr), L""})
    {
        CShowWaitDlg dialog;
        dialog.SetMsg(L"something");
        ASSERT_TRUE(WaitDialog::WaitForLines(L"something"));
        dialog.SetMsg(text);
        EXPECT_TRUE(WaitDialog::WaitForLines(L""));
        EXPECT_TRUE(WaitDialog::IsShown());
    }
}

TEST_F(ShowWaitDlg, PerCentSignsAndAmpersandsAreText)
{
    const std::wstring text = L"%n %s %% %\nR&D";
    CShowWaitDlg dialog;
    dialog.SetMsg(text.c_str());
    EXPECT_TRUE(WaitDialog::WaitForLines(text));
}

TEST_F(ShowWaitDlg, OfTenThousandLinesTheLastOnesAreShown)
{
    CShowWaitDlg dialog;
    dialog.SetMsg(Joined(1, 10000).c_str());
    EXPECT_TRUE(WaitDialog::WaitForLines(Joined(9991, 10000)));
}

TEST_F(ShowWaitDlg, GrowsWithItsLinesUpToALimitAndDoesNotShrink)
{
    CShowWaitDlg dialog;
    std::vector<LONG> heights;
    for (const int lines : {1, 2, 3, 10, 11, 40, 1})
    {
        dialog.SetMsg(Joined(1, lines).c_str());
        ASSERT_TRUE(WaitDialog::WaitForLines(Joined(lines > 10 ? lines - 9 : 1, lines)));
        heights.push_back(Height());
    }
    const LONG line = heights[1] - heights[0];
    EXPECT_GT(line, 0);
    EXPECT_EQ(2 * line, heights[2] - heights[0]);
    EXPECT_EQ(9 * line, heights[3] - heights[0]);
    EXPECT_EQ(heights[3], heights[4]);
    EXPECT_EQ(heights[3], heights[5]);
    EXPECT_EQ(heights[3], heights[6]) << "a window that shrank would jump at every line";
}

TEST_F(ShowWaitDlg, HasNoButtonUntilCancellingIsEnabled)
{
    CShowWaitDlg dialog;
    ASSERT_TRUE(WaitDialog::WaitUntilShown());
    EXPECT_EQ(nullptr, WaitDialog::CancelButton());
    dialog.SetEnableCancel(1);
    ASSERT_TRUE(WaitForButton(true));
    EXPECT_TRUE(::IsWindowEnabled(WaitDialog::CancelButton()));
    dialog.SetEnableCancel(0);
    EXPECT_TRUE(WaitForButton(false));
}

TEST_F(ShowWaitDlg, EveryValueButZeroEnablesCancelling)
{
    CShowWaitDlg dialog;
    dialog.SetEnableCancel(-5);
    EXPECT_TRUE(WaitForButton(true));
}

TEST_F(ShowWaitDlg, PressingCancelIsReported)
{
    CShowWaitDlg dialog;
    Open(dialog, m_watched.Handle());
    EXPECT_EQ(0, dialog.GetIsCanceled());
    PressCancel();
    EXPECT_NE(0, dialog.GetIsCanceled());
    EXPECT_FALSE(::IsWindowEnabled(WaitDialog::CancelButton()));
    EXPECT_TRUE(WaitDialog::IsShown()) << "the operation has to end first";
}

TEST_F(ShowWaitDlg, TheHeadingTellsThatCancelWasHeard)
{
    CShowWaitDlg dialog;
    Open(dialog, m_watched.Handle());
    const std::wstring before = WaitDialog::Heading();
    PressCancel();
    EXPECT_NE(before, WaitDialog::Heading());
}

TEST_F(ShowWaitDlg, CancelPressedTwiceIsCancelledOnce)
{
    CShowWaitDlg dialog;
    Open(dialog, m_watched.Handle());
    PressCancel();
    PressCancel();
    ::SendMessageW(WaitDialog::Find(), WM_COMMAND, IDCANCEL, 0);
    EXPECT_NE(0, dialog.GetIsCanceled());
    EXPECT_TRUE(WaitDialog::IsShown());
}

TEST_F(ShowWaitDlg, LettingGoOutsideTheButtonDoesNotCancel)
{
    struct Row
    {
        const char* name;
        LPARAM point;
        int canceled;
    };
    const Row rows[] = {
        {"to the left of it", MAKELPARAM(static_cast<WORD>(-1), 5), 0},
        {"below it", MAKELPARAM(5, 500), 0},
        {"inside", MAKELPARAM(5, 5), 1},
    };
    CShowWaitDlg dialog;
    Open(dialog, m_watched.Handle());
    ASSERT_TRUE(WaitForButton(true));
    for (const Row& row : rows)
    {
        ::PostMessageW(WaitDialog::CancelButton(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        ::PostMessageW(WaitDialog::CancelButton(), WM_LBUTTONUP, 0, row.point);
        // A beat comes behind posted messages, so both are dealt with when a new text is shown.
        const std::wstring text(row.name, row.name + strlen(row.name));
        dialog.SetMsg(text.c_str());
        ASSERT_TRUE(WaitDialog::WaitForLines(text));
        EXPECT_EQ(row.canceled, dialog.GetIsCanceled()) << row.name;
    }
}

TEST_F(ShowWaitDlg, CancelledStaysCancelledWhenTheButtonGoes)
{
    CShowWaitDlg dialog;
    Open(dialog, m_watched.Handle());
    PressCancel();
    dialog.SetEnableCancel(0);
    dialog.SetMsg(L"more");
    ASSERT_TRUE(WaitDialog::WaitForLines(L"more"));
    EXPECT_NE(0, dialog.GetIsCanceled());
}

TEST_F(ShowWaitDlg, ClosingIsCancellingAndOnlyWhereThatIsEnabled)
{
    CShowWaitDlg dialog;
    ASSERT_TRUE(WaitDialog::WaitUntilShown());
    ::SendMessageW(WaitDialog::Find(), WM_CLOSE, 0, 0);
    EXPECT_EQ(0, dialog.GetIsCanceled());
    dialog.SetEnableCancel(1);
    ASSERT_TRUE(WaitForButton(true));
    ::SendMessageW(WaitDialog::Find(), WM_CLOSE, 0, 0);
    EXPECT_NE(0, dialog.GetIsCanceled());
    EXPECT_TRUE(WaitDialog::IsShown());
}

TEST_F(ShowWaitDlg, TheTimeGoesOn)
{
    CShowWaitDlg dialog;
    ASSERT_TRUE(WaitDialog::WaitUntilShown());
    const std::wstring first = WaitDialog::Elapsed();
    EXPECT_NE(std::wstring::npos, first.find(L"0:0"));
    EXPECT_TRUE(WaitFor([&first] { return WaitDialog::Elapsed() != first; }));
}

TEST_F(ShowWaitDlg, StandsCentredOverTheWatchedWindow)
{
    CShowWaitDlg dialog;
    Open(dialog, m_watched.Handle());
    EXPECT_TRUE(WaitFor([this] { return IsCentredOver(m_watched.Handle()); }));
    ::SetWindowPos(m_watched.Handle(), NULL, 300, 150, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_TRUE(WaitFor([this] { return IsCentredOver(m_watched.Handle()); })) << "it follows";
}

TEST_F(ShowWaitDlg, StaysBeforeTheWatchedWindowAndItsPopups)
{
    CShowWaitDlg dialog;
    Open(dialog, m_watched.Handle());
    EXPECT_TRUE(IsBefore(WaitDialog::Find(), m_watched.Handle()));
    const PlainWindow popup({200, 200, 800, 600}, m_watched.Handle());
    ::SetWindowPos(popup.Handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    EXPECT_TRUE(WaitFor([&popup] { return IsBefore(WaitDialog::Find(), popup.Handle()); }));
}

TEST_F(ShowWaitDlg, LetsAnAnswerBeGivenToADialogOfTheWatchedWindow)
{
    CShowWaitDlg dialog;
    Open(dialog, m_watched.Handle());
    ::EnableWindow(m_watched.Handle(), FALSE);
    const PlainWindow question({200, 200, 800, 600}, m_watched.Handle());
    EXPECT_TRUE(WaitFor([&question] { return IsBefore(question.Handle(), WaitDialog::Find()); }));
    EXPECT_TRUE(IsBefore(WaitDialog::Find(), m_watched.Handle()));
}

TEST_F(ShowWaitDlg, DoesNotStandBeforeWindowsOfOthers)
{
    CShowWaitDlg dialog;
    Open(dialog, m_watched.Handle());
    const PlainWindow other({200, 200, 800, 600});
    ::SetWindowPos(other.Handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    // Growing, it looks for its place again.
    dialog.SetMsg(L"one\ntwo\nthree");
    ASSERT_TRUE(WaitDialog::WaitForLines(L"one\ntwo\nthree"));
    EXPECT_TRUE(IsBefore(other.Handle(), WaitDialog::Find()));
}

TEST_F(ShowWaitDlg, TakesNeitherFocusNorActivation)
{
    ::SetForegroundWindow(m_watched.Handle());
    ::SetFocus(m_watched.Handle());
    ASSERT_TRUE(WaitFor([this] { return ::GetForegroundWindow() == m_watched.Handle(); }));
    CShowWaitDlg dialog;
    Open(dialog, m_watched.Handle());
    EXPECT_EQ(m_watched.Handle(), ::GetForegroundWindow());
    EXPECT_EQ(m_watched.Handle(), ::GetFocus());
    EXPECT_EQ(nullptr, ::GetWindow(WaitDialog::Find(), GW_OWNER)) << "an owner would share its input";
    EXPECT_NE(::GetCurrentThreadId(), ::GetWindowThreadProcessId(WaitDialog::Find(), NULL));
}

TEST_F(ShowWaitDlg, OutlivesTheWatchedWindow)
{
    CShowWaitDlg dialog;
    Open(dialog, m_watched.Handle());
    m_watched.Destroy();
    dialog.SetMsg(L"still here");
    EXPECT_TRUE(WaitDialog::WaitForLines(L"still here"));
    PressCancel();
    EXPECT_NE(0, dialog.GetIsCanceled());
}

TEST_F(ShowWaitDlg, ComesUpWithoutAWatchedWindow)
{
    const HWND gone = reinterpret_cast<HWND>(static_cast<UINT_PTR>(0x7FFFFFF0));
    for (const HWND watched : {static_cast<HWND>(NULL), gone})
    {
        CShowWaitDlg dialog;
        Open(dialog, watched);
    }
}

TEST_F(ShowWaitDlg, SeveralAtATimeDoNotMeet)
{
    CShowWaitDlg outer;
    Open(outer, m_watched.Handle());
    const HWND outerWindow = WaitDialog::Find();
    CShowWaitDlg inner;
    inner.SetEnableCancel(1);
    ASSERT_TRUE(WaitFor([outerWindow] { return WaitDialog::Find() != outerWindow; }));
    ASSERT_TRUE(WaitForButton(true));
    PressCancel();
    EXPECT_NE(0, inner.GetIsCanceled());
    EXPECT_EQ(0, outer.GetIsCanceled());
}

// Would never end if one of the operations waited for the dialog's thread.
TEST_F(ShowWaitDlg, OperationsDoNotWaitForTheDialogsThread)
{
    CShowWaitDlg dialog;
    Open(dialog, m_watched.Handle());
    {
        const Standstill standstill;
        for (int i = 1; i <= 1000; ++i)
        {
            dialog.SetMsg(std::to_wstring(i).c_str());
            dialog.SetEnableCancel(i % 2);
            dialog.SetWatchWnd(m_watched.Handle());
            EXPECT_EQ(0, dialog.GetIsCanceled());
        }
    }
    EXPECT_TRUE(WaitDialog::WaitForLines(L"1000")) << "the newest text is shown when the thread goes on";
    EXPECT_TRUE(WaitForButton(false));
}
