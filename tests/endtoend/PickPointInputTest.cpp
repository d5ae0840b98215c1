// A client's command asks for a point; the user answers with the real mouse and the command line.
// Before the other headers: it brings the system's in its own order.
#include "RealMouse.h"

#include "HostProcess.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{

constexpr DWORD g_patience = 60000; // milliseconds
constexpr int g_history = 1;
constexpr int g_prompt = 2;
constexpr int g_input = 3;
const wchar_t* const g_tipClass = L"ZNKTFollowMouseTipWnd";
const wchar_t* const g_question = L"指定点：";

// What the view of a new drawing shows.
constexpr double g_centreX = 210;
constexpr double g_centreY = 148.5;
constexpr double g_height = 297;

COLORREF PixelSum(const CRect& area)
{
    const HDC screen = GetDC(NULL);
    COLORREF sum = 0;
    for (int y = area.top; y < area.bottom; ++y)
    {
        for (int x = area.left; x < area.right; ++x)
            sum = sum * 31 + GetPixel(screen, x, y);
    }
    ReleaseDC(NULL, screen);
    return sum;
}

class PickPointInput : public testing::Test
{
protected:
    void SetUp() override
    {
        m_host.reset(new HostProcess(L"/ld ZNKTControls.arx /ld drawing_check.arx /c PICKPOINT"));
        ASSERT_TRUE(WaitFor([&] { return IsAsking() || !m_host->IsRunning(); }, g_patience));
        ASSERT_TRUE(m_host->IsRunning());
        m_frame = GetAncestor(m_host->FindControl(L"Edit", g_history), GA_ROOT);
        m_view = FindDrawingView(m_frame);
        ASSERT_NE(nullptr, m_view);
        GetClientRect(m_view, &m_client);
        m_place = m_client.CenterPoint() + CPoint(m_client.Width() / 8, m_client.Height() / 8);
    }

    bool IsAsking() const { return TextOf(m_host->FindControl(L"Static", g_prompt)) == g_question; }
    std::wstring History() const { return TextOf(m_host->FindControl(L"Edit", g_history)); }
    bool HasPrinted(const wchar_t* text) const { return History().find(text) != std::wstring::npos; }

    CPoint OnScreen(CPoint point) const
    {
        ClientToScreen(m_view, &point);
        return point;
    }
    double UnitsPerPixel() const { return g_height / m_client.Height(); }
    double DrawingX(CPoint point) const { return g_centreX + (point.x - m_client.Width() / 2.0) * UnitsPerPixel(); }
    double DrawingY(CPoint point) const { return g_centreY - (point.y - m_client.Height() / 2.0) * UnitsPerPixel(); }

    void Type(const wchar_t* text) const
    {
        for (; *text != L'\0'; ++text)
            PostMessageW(m_host->FindControl(L"Edit", g_input), WM_CHAR, *text, 0);
    }

    static HWND Tip() { return FindWindowW(g_tipClass, NULL); }
    bool ShowTipAt(CPoint point) const
    {
        return MoveMouseUntil(OnScreen(point), [] { return Tip() != NULL && IsWindowVisible(Tip()); });
    }
    static CRect TipArea()
    {
        CRect area;
        GetWindowRect(Tip(), &area);
        return area;
    }

    std::unique_ptr<HostProcess> m_host;
    HWND m_frame = NULL;
    HWND m_view = NULL;
    CRect m_client;
    CPoint m_place;
};

} // namespace

TEST_F(PickPointInput, ClickGivesThePointUnderTheMouse)
{
    ASSERT_TRUE(ShowTipAt(m_place));
    SendMouse(OnScreen(m_place), MOUSEEVENTF_LEFTDOWN);
    SendMouse(OnScreen(m_place), MOUSEEVENTF_LEFTUP);
    ASSERT_TRUE(WaitFor([&] { return HasPrinted(L"选定的点："); }));
    const std::wstring history = History();
    double x = 0;
    double y = 0;
    const std::wstring answer = history.substr(history.find(L"选定的点："));
    ASSERT_EQ(2, swscanf(answer.c_str(), L"选定的点：X = %lf，Y = %lf", &x, &y));
    EXPECT_NEAR(DrawingX(m_place), x, 1.5 * UnitsPerPixel());
    EXPECT_NEAR(DrawingY(m_place), y, 1.5 * UnitsPerPixel());
    EXPECT_TRUE(WaitFor([] { return Tip() == NULL; }));
    EXPECT_FALSE(IsAsking());
}

TEST_F(PickPointInput, TipFollowsTheMouseWithOtherCoordinates)
{
    EXPECT_EQ(nullptr, Tip()) << "the mouse did not move yet";
    ASSERT_TRUE(ShowTipAt(m_place));
    const CRect before = TipArea();
    const COLORREF picture = PixelSum(before);
    EXPECT_TRUE(MoveMouseUntil(OnScreen(m_place - CPoint(m_client.Width() / 4, m_client.Height() / 4)), [&] {
        return TipArea().left < before.left && TipArea().top < before.top && PixelSum(TipArea()) != picture;
    }));
}

TEST_F(PickPointInput, EscGivesUp)
{
    ASSERT_TRUE(ShowTipAt(m_place));
    Type(L"\x1b");
    EXPECT_TRUE(WaitFor([&] { return HasPrinted(L"没有选定点。") && Tip() == NULL; }));
    EXPECT_TRUE(HasPrinted(L"*取消*"));
}

TEST_F(PickPointInput, EscInTheViewGivesUp)
{
    PostMessageW(m_view, WM_KEYDOWN, VK_ESCAPE, 0);
    EXPECT_TRUE(WaitFor([&] { return HasPrinted(L"没有选定点。") && !IsAsking(); }));
}

TEST_F(PickPointInput, EnterAloneGivesNoPoint)
{
    Type(L"\r");
    EXPECT_TRUE(WaitFor([&] { return HasPrinted(L"没有选定点。") && !IsAsking(); }));
    EXPECT_FALSE(HasPrinted(L"*取消*"));
}

TEST_F(PickPointInput, OtherTextIsRefusedThenTypedCoordinatesAreTaken)
{
    Type(L"here\r");
    ASSERT_TRUE(WaitFor([&] { return HasPrinted(L"点“here”无效") && IsAsking(); }));
    Type(L"12.5,-3\r");
    EXPECT_TRUE(WaitFor([&] { return HasPrinted(L"选定的点：X = 12.5000，Y = -3.0000"); }));
}

TEST_F(PickPointInput, ClosingTheProgramEndsTheQuestion)
{
    PostMessageW(m_frame, WM_CLOSE, 0, 0);
    EXPECT_EQ(0u, m_host->WaitForEnd(g_patience));
}

TEST_F(PickPointInput, ClosingTheDrawingEndsTheQuestion)
{
    ASSERT_TRUE(ShowTipAt(m_place));
    PostMessageW(GetParent(m_view), WM_CLOSE, 0, 0);
    EXPECT_TRUE(WaitFor([&] { return !IsWindow(m_view) && Tip() == NULL; }));
    EXPECT_TRUE(HasPrinted(L"没有选定点。"));
    EXPECT_TRUE(m_host->IsRunning());
}
