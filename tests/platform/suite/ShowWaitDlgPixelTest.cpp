// The wait dialog as it stands on the screen.
#include <afxwin.h>

#include <ZNWaitDlgDll.h>

#include "DibCanvas.h"
#include "GdiCount.h"
#include "PlainWindow.h"
#include "Wait.h"
#include "WaitDialog.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace
{

const RECT kWatchedRect = {100, 100, 900, 700};
const COLORREF kNoColour = RGB(1, 2, 3);

class ShowWaitDlgPixel : public testing::Test
{
protected:
    ShowWaitDlgPixel() : m_watched(kWatchedRect)
    {
        m_dialog.reset(new CShowWaitDlg);
        m_dialog->SetWatchWnd(m_watched.Handle());
        m_dialog->SetEnableCancel(1);
    }

    // A picture of one of the dialog's controls.
    static std::unique_ptr<DibCanvas> Picture(int id)
    {
        const HWND control = ::GetDlgItem(WaitDialog::Find(), id);
        RECT client = {};
        ::GetClientRect(control, &client);
        std::unique_ptr<DibCanvas> canvas(new DibCanvas(client.right, client.bottom, kNoColour));
        const HDC dc = ::GetDC(control);
        ::BitBlt(canvas->Dc(), 0, 0, client.right, client.bottom, dc, 0, 0, SRCCOPY);
        ::ReleaseDC(control, dc);
        return canvas;
    }

    static int CountDark(const DibCanvas& canvas, const RECT& area)
    {
        const int halfBright = 128;
        int count = 0;
        for (int y = area.top; y < area.bottom; ++y)
        {
            for (int x = area.left; x < area.right; ++x)
                count += GetGValue(canvas.Pixel(x, y)) < halfBright;
        }
        return count;
    }

    // The column where the bar's moving part begins; -1 while it is out of sight.
    static int StartOfMovingPart()
    {
        const std::unique_ptr<DibCanvas> canvas = Picture(WaitDialog::BarId);
        for (int x = 0; x < canvas->Width(); ++x)
        {
            if (canvas->Near(x, canvas->Height() / 2, ::GetSysColor(COLOR_HIGHLIGHT)))
                return x;
        }
        return -1;
    }

    PlainWindow m_watched;
    std::unique_ptr<CShowWaitDlg> m_dialog;
};

} // namespace

TEST_F(ShowWaitDlgPixel, TheBarMovesWhileNothingElseHappens)
{
    ASSERT_TRUE(WaitDialog::WaitUntilShown());
    ASSERT_TRUE(WaitFor([] { return StartOfMovingPart() > 0; }));
    const int first = StartOfMovingPart();
    EXPECT_TRUE(WaitFor([first] { return StartOfMovingPart() > first; }));
    EXPECT_TRUE(WaitFor([first] { return StartOfMovingPart() < first; })) << "it comes again from the left";
}

TEST_F(ShowWaitDlgPixel, EachLineIsDrawnInItsRow)
{
    m_dialog->SetMsg(L"HHHH\n\nHHHH");
    ASSERT_TRUE(WaitDialog::WaitForLines(L"HHHH\n\nHHHH"));
    const auto drawn = [] {
        const std::unique_ptr<DibCanvas> canvas = Picture(WaitDialog::LinesId);
        const int row = canvas->Height() / 3;
        const int width = canvas->Width();
        return CountDark(*canvas, {0, 0, width, row}) > 0 && CountDark(*canvas, {0, row, width, 2 * row}) == 0 &&
               CountDark(*canvas, {0, 2 * row, width, 3 * row}) > 0;
    };
    EXPECT_TRUE(WaitFor(drawn));
}

TEST_F(ShowWaitDlgPixel, LongLinesEndInAnEllipsis)
{
    const std::wstring text(200, L'H');
    m_dialog->SetMsg(text.c_str());
    ASSERT_TRUE(WaitDialog::WaitForLines(text));
    // The letters reach to the middle of the line's height; the dots of the ellipsis do not.
    const auto elided = [] {
        const std::unique_ptr<DibCanvas> canvas = Picture(WaitDialog::LinesId);
        const int middle = canvas->Height() / 2;
        const int dotWidth = 3;
        const RECT start = {0, middle - 1, 30, middle};
        const RECT end = {canvas->Width() - dotWidth, middle - 1, canvas->Width(), middle};
        const RECT endRows = {canvas->Width() - 30, middle, canvas->Width(), canvas->Height()};
        return CountDark(*canvas, start) > 0 && CountDark(*canvas, end) == 0 && CountDark(*canvas, endRows) > 0;
    };
    EXPECT_TRUE(WaitFor(elided));
}

TEST_F(ShowWaitDlgPixel, LeavesNoGdiObjectBehind)
{
    const auto round = [this] {
        m_dialog.reset(new CShowWaitDlg);
        m_dialog->SetMsg(L"some\nlines");
        EXPECT_TRUE(WaitDialog::WaitForLines(L"some\nlines"));
        m_dialog.reset();
    };
    round(); // what the system keeps for good
    const size_t before = CountGdiObjects();
    for (int i = 0; i < 5; ++i)
        round();
    EXPECT_EQ(before, CountGdiObjects());
}
