// The picture that is taken of a window which comes up while the main thread is busy.
#include "host/ScreenWatch.h"

#include "DialogTemplate.h"
#include "HostFixture.h"
#include "PictureFile.h"

#include <gtest/gtest.h>

namespace
{

const wchar_t kTitle[] = L"等待的窗口";

// How long a watch waits here for a window that does not come, milliseconds.
const unsigned kShort = 50;

class ScreenWatch : public HostFixture
{
protected:
    ~ScreenWatch() override { m_dialog.DestroyWindow(); }

    void ShowDialog(const wchar_t* title)
    {
        DialogTemplate form(title, 60, 30, WS_POPUP | WS_CAPTION | DS_SETFONT);
        m_dialog.CreateIndirect(form.Get(), &Frame());
        m_dialog.ShowWindow(SW_SHOW);
    }

    void Start(arxhost::ScreenWatch& watch) { watch.Start(Frame().m_hWnd, kTitle, m_picture.Path()); }

    // What the user is told when the window does not come.
    static std::wstring Missing() { return L"没有出现标题为“" + std::wstring(kTitle) + L"”的窗口。"; }

    CSize FrameSize() { return ScreenRectOf(Frame()).Size(); }

    PictureFile m_picture{L"screen_watch_test.png"};
    CDialog m_dialog;
};

} // namespace

// Finish() keeps the main thread as a long operation does: nothing is painted or answered by it meanwhile.
TEST_F(ScreenWatch, TakesTheFrameWhenTheWindowHasComeUp)
{
    arxhost::ScreenWatch watch;
    Start(watch);
    ShowDialog(kTitle);
    EXPECT_EQ(L"", watch.Finish());
    EXPECT_EQ(FrameSize(), m_picture.Size());
}

TEST_F(ScreenWatch, AWindowThatIsThereAlreadyNeedsNoWaiting)
{
    ShowDialog(kTitle);
    arxhost::ScreenWatch watch(0);
    Start(watch);
    EXPECT_EQ(L"", watch.Finish());
    EXPECT_EQ(FrameSize(), m_picture.Size());
}

TEST_F(ScreenWatch, TellsWhichWindowDidNotComeUp)
{
    arxhost::ScreenWatch watch(kShort);
    Start(watch);
    EXPECT_EQ(Missing(), watch.Finish());
    EXPECT_EQ(CSize(0, 0), m_picture.Size());
}

TEST_F(ScreenWatch, AHiddenWindowOrOneOfAnotherTitleDoesNotCount)
{
    ShowDialog(L"另一个窗口");
    arxhost::ScreenWatch watch(kShort);
    Start(watch);
    EXPECT_EQ(Missing(), watch.Finish());
    m_dialog.SetWindowText(kTitle);
    m_dialog.ShowWindow(SW_HIDE);
    Start(watch);
    EXPECT_EQ(Missing(), watch.Finish());
}

TEST_F(ScreenWatch, TellsThatThePictureCouldNotBeWritten)
{
    ShowDialog(kTitle);
    arxhost::ScreenWatch watch;
    watch.Start(Frame().m_hWnd, kTitle, L"Z:\\no such folder\\picture.png");
    EXPECT_NE(std::wstring::npos, watch.Finish().find(L"picture.png"));
}

TEST_F(ScreenWatch, WithoutAWatchThereIsNothingToTell)
{
    arxhost::ScreenWatch watch(kShort);
    EXPECT_EQ(L"", watch.Finish());
    Start(watch);
    watch.Finish();
    EXPECT_EQ(L"", watch.Finish()) << "a message is told once";
}

TEST_F(ScreenWatch, ANewWatchForgetsWhatTheFormerOneMissed)
{
    arxhost::ScreenWatch watch(kShort);
    Start(watch);
    ShowDialog(kTitle);
    Start(watch);
    EXPECT_EQ(L"", watch.Finish());
    EXPECT_EQ(FrameSize(), m_picture.Size());
}
