// The mouse-following tip: its window, its size, what it does when the mouse moves, and what it traces.
#include "FollowTipFixture.h"

#include "GdiCount.h"
#include "TraceCapture.h"
#include "WindowOrder.h"
#include "tip/TipWindow.h"

#include <algorithm>
#include <sstream>
#include <string>

namespace
{

class FollowTip : public FollowTipFixture
{
protected:
    static bool HasLine(const TraceCapture& trace, const std::string& line)
    {
        const std::vector<std::string> lines = trace.Lines();
        return std::find(lines.begin(), lines.end(), line) != lines.end();
    }

    // The font of tips, described here anew.
    static CSize Measure(const std::wstring& line)
    {
        const HFONT font = ::CreateFontW(-12, 0, 0, 0, 400, 0, 0, 0, 134, 3, 2, 1, 2, L"\x5B8B\x4F53");
        const HDC dc = ::GetDC(NULL);
        const HGDIOBJ before = ::SelectObject(dc, font);
        CRect rect(0, 0, 0, 0);
        ::DrawTextW(dc, line.c_str(), -1, &rect, DT_CALCRECT | DT_SINGLELINE);
        ::SelectObject(dc, before);
        ::ReleaseDC(NULL, dc);
        ::DeleteObject(font);
        return rect.Size();
    }

    void Resize(CSize size)
    {
        ::SetWindowPos(Tip(), NULL, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
};

std::string Hex(HWND window)
{
    std::ostringstream text;
    text << std::hex << static_cast<unsigned int>(reinterpret_cast<UINT_PTR>(window));
    return text.str();
}

std::string Numbers(int first, int second)
{
    return std::to_string(first) + "," + std::to_string(second);
}

} // namespace

TEST_F(FollowTip, TheFirstMessageMakesTheWindow)
{
    EXPECT_EQ(NULL, Tip());
    CFollowMouseTipWnd::ShowMsg(L"tip", 5, NULL);
    ASSERT_NE(nullptr, Tip());
    EXPECT_TRUE(IsVisible());
    EXPECT_EQ(DWORD(WS_POPUP), ::GetWindowLongPtrW(Tip(), GWL_STYLE) & (WS_POPUP | WS_CHILD | WS_CAPTION));
    EXPECT_EQ(WS_EX_TOOLWINDOW, ::GetWindowLongPtrW(Tip(), GWL_EXSTYLE) & WS_EX_TOOLWINDOW);
}

TEST_F(FollowTip, TheWindowClassIsTheDocumentedOne)
{
    CFollowMouseTipWnd::ShowMsg(L"tip", 5, NULL);
    WNDCLASSW windowClass = {};
    ASSERT_TRUE(::GetClassInfoW(AfxGetInstanceHandle(), kFollowTipClass, &windowClass));
    EXPECT_EQ(UINT(CS_SAVEBITS), windowClass.style);
    EXPECT_EQ(::LoadCursor(NULL, IDC_ARROW), windowClass.hCursor);
    EXPECT_EQ(reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1), windowClass.hbrBackground);
}

TEST_F(FollowTip, AWindowClassWithoutANameThrows)
{
    EXPECT_THROW(RegisterTipClass(L"", 0, NULL), CResourceException*);
}

TEST_F(FollowTip, TheFontOfTipsIsTheStatedOne)
{
    CFont font;
    CreateTipFont(font, 12);
    LOGFONT description = {};
    ASSERT_TRUE(font.GetLogFont(&description));
    EXPECT_EQ(-12, description.lfHeight);
    EXPECT_EQ(400, description.lfWeight);
    EXPECT_EQ(134, description.lfCharSet);
    EXPECT_EQ(3, description.lfOutPrecision);
    EXPECT_EQ(2, description.lfClipPrecision);
    EXPECT_EQ(1, description.lfQuality);
    EXPECT_EQ(2, description.lfPitchAndFamily);
    EXPECT_STREQ(L"\x5B8B\x4F53", description.lfFaceName);
}

// The place is that of the first window, which is 20 pixels high; the text makes it larger and does not move it.
TEST_F(FollowTip, TheFirstMessageComesUpBesideThePointer)
{
    ::SetCursorPos(650, 410);
    CFollowMouseTipWnd::ShowMsg(L"a\nb\nc", 5, NULL);
    EXPECT_EQ(CPoint(650 + 15, 410 - 20 - 10), ScreenRect(Tip()).TopLeft());
}

TEST_F(FollowTip, ATipThatComesBackIsAboveTheOtherWindows)
{
    for (const wchar_t* text : {L"a", L"a\nb\nc"})
    {
        CFollowMouseTipWnd::ShowMsg(L"a", 5, NULL);
        CFollowMouseTipWnd::Hide();
        m_owner.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        ASSERT_TRUE(IsAbove(m_owner.m_hWnd, Tip()));
        CFollowMouseTipWnd::ShowMsg(text, 5, NULL);
        EXPECT_TRUE(IsAbove(Tip(), m_owner.m_hWnd));
    }
}

TEST_F(FollowTip, ASecondMessageUsesTheSameWindow)
{
    CFollowMouseTipWnd::ShowMsg(L"first", 5, NULL);
    const HWND first = Tip();
    CFollowMouseTipWnd::ShowMsg(L"second", 5, NULL);
    EXPECT_EQ(first, Tip());
    EXPECT_EQ(NULL, ::FindWindowExW(NULL, first, kFollowTipClass, NULL));
}

TEST_F(FollowTip, SizeFollowsTheWidestLineAndTheNumberOfLines)
{
    CFollowMouseTipWnd::ShowMsg(L"a\nthe widest line\nb", 5, NULL);
    const CSize line = Measure(L"the widest line");
    const int height = static_cast<int>(2 * line.cy * 0.5 + 3 * line.cy + 10);
    EXPECT_EQ(CSize(line.cx + 20, height), ScreenRect(Tip()).Size());
}

TEST_F(FollowTip, ASmallChangeOfSizeIsNone)
{
    ClockedTip& tip = ClockedTip::Show(L"some text");
    const CSize needed = tip.CalWndSize();
    const struct
    {
        const char* name;
        CSize change;
        bool kept;
    } rows[] = {{"10 wider, 3 higher", {10, 3}, true}, {"10 narrower, 3 lower", {-10, -3}, true},
                {"11 wider", {11, 0}, false},          {"4 higher", {0, 4}, false},
                {"11 narrower", {-11, 0}, false},      {"4 lower", {0, -4}, false}};
    for (const auto& row : rows)
    {
        const CSize before(needed.cx + row.change.cx, needed.cy + row.change.cy);
        Resize(before);
        CFollowMouseTipWnd::ShowMsg(L"some text", 5, NULL);
        EXPECT_EQ(row.kept ? before : needed, ScreenRect(Tip()).Size()) << row.name;
    }
}

TEST_F(FollowTip, AMessageResizesWithoutMoving)
{
    CFollowMouseTipWnd::ShowMsg(L"a", 5, NULL);
    const CPoint before = ScreenRect(Tip()).TopLeft();
    CFollowMouseTipWnd::ShowMsg(L"a\nb\nc\nd", 5, NULL);
    EXPECT_EQ(before, ScreenRect(Tip()).TopLeft());
}

TEST_F(FollowTip, AMessageDoesNotActivate)
{
    m_owner.SetActiveWindow();
    const HWND active = ::GetActiveWindow();
    CFollowMouseTipWnd::ShowMsg(L"a", 5, NULL);
    CFollowMouseTipWnd::ShowMsg(L"a\nb", 5, NULL);
    EXPECT_EQ(active, ::GetActiveWindow());
}

TEST_F(FollowTip, AMoveBringsTheTipBesideThePointer)
{
    ClockedTip& tip = ClockedTip::Show(L"a\nb");
    ::SetCursorPos(700, 500);
    tip.OnMouseMove(m_owner.m_hWnd);
    EXPECT_EQ(PlaceByPointer(), ScreenRect(Tip()).TopLeft());
    EXPECT_TRUE(IsVisible());
}

TEST_F(FollowTip, CornersOfTheScreenDoNotHoldTheTip)
{
    ClockedTip& tip = ClockedTip::Show(L"a\nb");
    const int right = ::GetSystemMetrics(SM_CXSCREEN) - 1;
    const int bottom = ::GetSystemMetrics(SM_CYSCREEN) - 1;
    for (const CPoint& corner : {CPoint(0, 0), CPoint(right, 0), CPoint(0, bottom), CPoint(right, bottom)})
    {
        ::SetCursorPos(corner.x, corner.y);
        tip.OnMouseMove(m_owner.m_hWnd);
        EXPECT_EQ(PlaceByPointer(), ScreenRect(Tip()).TopLeft()) << corner.x << "," << corner.y;
    }
}

TEST_F(FollowTip, AnotherWindowThanTheWatchedOneHidesTheTipUntilTheMouseReturns)
{
    OwnerWindow other(CRect(600, 300, 700, 400));
    CFollowMouseTipWnd::SetWatchWnd(&m_owner);
    ClockedTip& tip = ClockedTip::Show(L"a");
    tip.OnMouseMove(other.m_hWnd);
    EXPECT_FALSE(IsVisible());
    ::SetCursorPos(700, 500);
    tip.OnMouseMove(m_owner.m_hWnd);
    EXPECT_TRUE(IsVisible());
    EXPECT_EQ(PlaceByPointer(), ScreenRect(Tip()).TopLeft());
}

TEST_F(FollowTip, AChildOfTheWatchedWindowIsAnotherWindow)
{
    CStatic child;
    child.Create(L"child", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50), &m_owner);
    CFollowMouseTipWnd::SetWatchWnd(&m_owner);
    ClockedTip& tip = ClockedTip::Show(L"a");
    tip.OnMouseMove(child.m_hWnd);
    EXPECT_FALSE(IsVisible());
}

TEST_F(FollowTip, WithoutAWatchedWindowTheTipIsShownEverywhere)
{
    CFollowMouseTipWnd::SetWatchWnd(&m_owner);
    CFollowMouseTipWnd::SetWatchWnd(NULL);
    ClockedTip& tip = ClockedTip::Show(L"a");
    tip.OnMouseMove(::GetDesktopWindow());
    EXPECT_TRUE(IsVisible());
    tip.OnMouseMove(NULL);
    EXPECT_TRUE(IsVisible());
}

TEST_F(FollowTip, HideLastsUntilTheNextMessage)
{
    ClockedTip& tip = ClockedTip::Show(L"a");
    CFollowMouseTipWnd::Hide();
    EXPECT_FALSE(IsVisible());
    const CPoint before = ScreenRect(Tip()).TopLeft();
    ::SetCursorPos(700, 500);
    tip.OnMouseMove(m_owner.m_hWnd);
    EXPECT_FALSE(IsVisible());
    EXPECT_EQ(before, ScreenRect(Tip()).TopLeft());
    CFollowMouseTipWnd::ShowMsg(L"a", 5, NULL);
    EXPECT_TRUE(IsVisible());
    tip.OnMouseMove(m_owner.m_hWnd);
    EXPECT_EQ(PlaceByPointer(), ScreenRect(Tip()).TopLeft());
}

TEST_F(FollowTip, HideAndDestroyWithoutATipDoNothing)
{
    CFollowMouseTipWnd::Hide();
    CFollowMouseTipWnd::Destroy();
    EXPECT_EQ(NULL, Tip());
}

TEST_F(FollowTip, DestroyForgetsTheWatchedWindow)
{
    CFollowMouseTipWnd::SetWatchWnd(&m_owner);
    CFollowMouseTipWnd::ShowMsg(L"a", 5, NULL);
    CFollowMouseTipWnd::Destroy();
    EXPECT_EQ(NULL, Tip());
    ClockedTip& tip = ClockedTip::Show(L"a");
    tip.OnMouseMove(::GetDesktopWindow());
    EXPECT_TRUE(IsVisible());
}

TEST_F(FollowTip, AWatchedWindowThatIsGoneIsForgottenByTheNextTip)
{
    {
        OwnerWindow gone(CRect(600, 300, 700, 400));
        CFollowMouseTipWnd::SetWatchWnd(&gone);
    }
    ClockedTip& tip = ClockedTip::Show(L"a");
    tip.OnMouseMove(m_owner.m_hWnd);
    EXPECT_TRUE(IsVisible());
}

TEST_F(FollowTip, AWatchedWindowThatGoesWhileTheTipShowsHidesIt)
{
    std::unique_ptr<OwnerWindow> watched(new OwnerWindow(CRect(600, 300, 700, 400)));
    CFollowMouseTipWnd::SetWatchWnd(watched.get());
    ClockedTip& tip = ClockedTip::Show(L"Debug:a");
    watched.reset();
    EXPECT_TRUE(IsVisible());
    tip.OnMouseMove(m_owner.m_hWnd);
    EXPECT_FALSE(IsVisible());
    CFollowMouseTipWnd::Destroy();
    EXPECT_EQ(NULL, Tip());
}

TEST_F(FollowTip, AParentBecomesTheParentAndTheTipStaysWhereItIs)
{
    ::SetCursorPos(250, 450);
    CFollowMouseTipWnd::ShowMsg(L"a", 5, NULL);
    const CRect before = ScreenRect(Tip());
    CFollowMouseTipWnd::ShowMsg(L"a", 5, &m_owner);
    EXPECT_EQ(m_owner.m_hWnd, ::GetAncestor(Tip(), GA_PARENT));
    EXPECT_EQ(before, ScreenRect(Tip()));
    EXPECT_TRUE(IsVisible());
    CFollowMouseTipWnd::ShowMsg(L"a", 5, NULL);
    EXPECT_EQ(m_owner.m_hWnd, ::GetAncestor(Tip(), GA_PARENT)) << "no parent leaves the former one";
}

TEST_F(FollowTip, InsideAParentTheTipStandsBesideThePointerToo)
{
    ClockedTip& tip = ClockedTip::Show(L"a", 5, &m_owner);
    ::SetCursorPos(250, 450);
    tip.OnMouseMove(m_owner.m_hWnd);
    EXPECT_EQ(PlaceByPointer(), ScreenRect(Tip()).TopLeft());
}

TEST_F(FollowTip, AParentThatGoesTakesTheTipWithIt)
{
    std::unique_ptr<OwnerWindow> parent(new OwnerWindow(CRect(600, 300, 700, 400)));
    CFollowMouseTipWnd::ShowMsg(L"a", 5, parent.get());
    const HWND tip = ::FindWindowExW(parent->m_hWnd, NULL, kFollowTipClass, NULL);
    ASSERT_NE(nullptr, tip);
    parent.reset();
    EXPECT_FALSE(::IsWindow(tip));
    CFollowMouseTipWnd::Hide();
    CFollowMouseTipWnd::ShowMsg(L"a", 5, NULL);
    EXPECT_TRUE(IsVisible());
}

TEST_F(FollowTip, AParentWithoutAWindowIsNone)
{
    CWnd none;
    CFollowMouseTipWnd::ShowMsg(L"a", 5, &none);
    EXPECT_TRUE(IsVisible());
    EXPECT_EQ(::GetDesktopWindow(), ::GetAncestor(Tip(), GA_PARENT));
}

TEST_F(FollowTip, NullAndEmptyTextsAreAnEmptyLine)
{
    const CSize line = Measure(L"x");
    for (const wchar_t* text : {static_cast<const wchar_t*>(NULL), L""})
    {
        CFollowMouseTipWnd::ShowMsg(text, 5, NULL);
        EXPECT_TRUE(IsVisible());
        EXPECT_EQ(20, ScreenRect(Tip()).Width());
        EXPECT_LE(ScreenRect(Tip()).Height(), line.cy + 10);
        CFollowMouseTipWnd::Destroy();
    }
}

TEST_F(FollowTip, HugeTextsAndThousandsOfLinesAreShown)
{
    CFollowMouseTipWnd::ShowMsg(std::wstring(200000, L'x').c_str(), 5, NULL);
    EXPECT_GT(ScreenRect(Tip()).Width(), 1000);
    std::wstring lines;
    for (int i = 0; i < 5000; ++i)
        lines += L"line\n";
    CFollowMouseTipWnd::ShowMsg(lines.c_str(), 5, NULL);
    EXPECT_GT(ScreenRect(Tip()).Height(), 10000);
    EXPECT_LT(ScreenRect(Tip()).Width(), 1000);
    EXPECT_TRUE(IsVisible());
}

TEST_F(FollowTip, DebugTextIsShownWithItsPrefixAndTraced)
{
    const TraceCapture trace;
    CFollowMouseTipWnd::ShowMsg(L"Debug:x", 5, NULL);
    EXPECT_EQ(std::max<int>(20, Measure(L"Debug:x").cx + 20), ScreenRect(Tip()).Width());
    EXPECT_FALSE(trace.Lines().empty());
}

TEST_F(FollowTip, OtherTextsAreNotTraced)
{
    const TraceCapture trace;
    OwnerWindow other(CRect(600, 300, 700, 400));
    CFollowMouseTipWnd::SetWatchWnd(&m_owner);
    ClockedTip& tip = ClockedTip::Show(L"Debug:x");
    const size_t traced = trace.Lines().size();
    CFollowMouseTipWnd::ShowMsg(L"x", 5, NULL);
    CFollowMouseTipWnd::ShowMsg(L"x\ny", 5, NULL);
    tip.OnMouseMove(m_owner.m_hWnd);
    tip.OnMouseMove(other.m_hWnd);
    CFollowMouseTipWnd::Hide();
    tip.OnMouseMove(m_owner.m_hWnd);
    tip.now += 5001;
    tip.SendMessage(WM_TIMER, 1, 0);
    EXPECT_EQ(traced, trace.Lines().size());
}

TEST_F(FollowTip, EveryStepIsTraced)
{
    const TraceCapture trace;
    OwnerWindow other(CRect(600, 300, 700, 400));
    other.SetWindowText(L"elsewhere");
    CFollowMouseTipWnd::SetWatchWnd(&m_owner);
    ::SetCursorPos(650, 410);
    ClockedTip& tip = ClockedTip::Show(L"Debug:x");
    const CRect place = ScreenRect(Tip());
    EXPECT_TRUE(HasLine(trace, "Window is Visible: " + Numbers(place.Width(), place.Height())))
        << "the first place is smaller than the text";

    CFollowMouseTipWnd::ShowMsg(L"Debug:x", 5, NULL);
    EXPECT_EQ("Window is Visible", trace.Lines().back());

    tip.OnMouseMove(m_owner.m_hWnd);
    const CPoint moved = ScreenRect(Tip()).TopLeft();
    EXPECT_EQ("update wnd pos: " + Numbers(moved.x, moved.y), trace.Lines().back());

    tip.OnMouseMove(other.m_hWnd);
    EXPECT_EQ("Out of watch window " + Hex(m_owner.m_hWnd) + "(cur in wnd " + Hex(other.m_hWnd) + ",elsewhere)",
              trace.Lines().back());
    const size_t traced = trace.Lines().size();
    tip.OnMouseMove(other.m_hWnd);
    EXPECT_EQ(traced, trace.Lines().size()) << "a hidden tip has nothing to tell";

    CFollowMouseTipWnd::ShowMsg(L"Debug:x", 5, NULL);
    EXPECT_EQ("SWP_SHOWWINDOW", trace.Lines().back());

    CFollowMouseTipWnd::Hide();
    tip.OnMouseMove(m_owner.m_hWnd);
    EXPECT_EQ("In hide mode", trace.Lines().back());

    CFollowMouseTipWnd::ShowMsg(L"Debug:x\ny", 5, NULL);
    const CSize size = ScreenRect(Tip()).Size();
    EXPECT_EQ("SWP_SHOWWINDOW: " + Numbers(size.cx, size.cy), trace.Lines().back());

    tip.now += 5001;
    tip.SendMessage(WM_TIMER, 1, 0);
    EXPECT_EQ("OnTimer Destroy", trace.Lines().back());
    EXPECT_EQ(NULL, Tip());
}

TEST_F(FollowTip, LeavesNoObjectBehind)
{
    const auto cycle = [this] {
        CFollowMouseTipWnd::SetWatchWnd(&m_owner);
        CFollowMouseTipWnd::ShowMsg(L"a\nb", 5, NULL);
        CFollowMouseTipWnd::ShowMsg(L"another text", 5, NULL);
        CFollowMouseTipWnd::Destroy();
    };
    cycle();
    const size_t gdiObjects = CountGdiObjects();
    const int userObject = UserObjectMark();
    for (int i = 0; i < 30; ++i)
        cycle();
    EXPECT_EQ(gdiObjects, CountGdiObjects());
    EXPECT_LT(UserObjectMark(), userObject + 30) << "less than one for each cycle";
}
