// The picture of a button's tip.
#include "TipFixture.h"

#include "GdiCount.h"
#include "tip/ButtonTipDrawing.h"
#include "tip/TipWindow.h"
#include "tip/ToolTipXTButton.h"
#include "tip/XTButtonToolTipWnd.h"

#include <climits>
#include <string>

namespace
{

const COLORREF kFrame = RGB(138, 138, 138);
const COLORREF kBack = RGB(255, 255, 200);
const COLORREF kInk = RGB(0, 0, 160);
const int kInkTolerance = 100;

class ButtonTipPicture : public testing::Test
{
protected:
    ButtonTipPicture() : m_canvas(120, 74, RGB(1, 2, 3)) { CreateTipFont(m_font, 12); }

    void Draw(const wchar_t* text)
    {
        const ButtonTipLook look = {text, &m_font, kBack, kInk};
        DrawButtonTip(*CDC::FromHandle(m_canvas.Dc()), CRect(0, 0, 120, 74), look);
    }

    CSize Measure(const wchar_t* text)
    {
        CDC& dc = *CDC::FromHandle(m_canvas.Dc());
        CFont* const before = dc.SelectObject(&m_font);
        CRect rect(3, 3, 117, 71);
        dc.DrawText(text, -1, &rect, DT_CALCRECT | DT_WORDBREAK);
        dc.SelectObject(before);
        return rect.Size();
    }

    int Width(const std::wstring& text)
    {
        CDC& dc = *CDC::FromHandle(m_canvas.Dc());
        CFont* const before = dc.SelectObject(&m_font);
        const int width = dc.GetTextExtent(text.c_str(), static_cast<int>(text.size())).cx;
        dc.SelectObject(before);
        return width;
    }

    // Everything that is written, without the frame.
    CRect Ink() const
    {
        CRect ink(INT_MAX, INT_MAX, 0, 0);
        for (int y = 1; y < 73; ++y)
        {
            for (int x = 1; x < 119; ++x)
            {
                if (m_canvas.Near(x, y, kInk, kInkTolerance))
                    ink = CRect(std::min<int>(ink.left, x), std::min<int>(ink.top, y), std::max<int>(ink.right, x + 1),
                                std::max<int>(ink.bottom, y + 1));
            }
        }
        return ink;
    }

    DibCanvas m_canvas;
    CFont m_font;
};

} // namespace

TEST_F(ButtonTipPicture, HasAFrameOfOnePixelAroundItsBackground)
{
    Draw(L"");
    for (int x = 0; x < 120; ++x)
    {
        EXPECT_EQ(kFrame, m_canvas.Pixel(x, 0));
        EXPECT_EQ(kFrame, m_canvas.Pixel(x, 73));
    }
    for (int y = 0; y < 74; ++y)
    {
        EXPECT_EQ(kFrame, m_canvas.Pixel(0, y));
        EXPECT_EQ(kFrame, m_canvas.Pixel(119, y));
    }
    EXPECT_EQ(118 * 72, m_canvas.Count(CRect(1, 1, 119, 73), kBack, 0));
}

TEST_F(ButtonTipPicture, AShortTextStandsInTheMiddle)
{
    Draw(L"HHH");
    const CSize size = Measure(L"HHH");
    const CRect place((120 - size.cx) / 2, (74 - size.cy) / 2, (120 - size.cx) / 2 + size.cx,
                      (74 - size.cy) / 2 + size.cy);
    const CRect ink = Ink();
    ASSERT_FALSE(ink.IsRectEmpty());
    EXPECT_EQ(ink, CRect(ink) & place) << "the text leaves its place";
    EXPECT_LE(ink.left - place.left, 3);
    EXPECT_LE(place.right - ink.right, 3);
}

TEST_F(ButtonTipPicture, ALongTextWrapsInsideTheMarginsAndStaysCentred)
{
    const wchar_t* const text = L"HHH HHH HHH HHH HHH HHH HHH HHH HHH HHH";
    Draw(text);
    const CSize size = Measure(text);
    ASSERT_GT(size.cy, Measure(L"HHH").cy) << "more than one line";
    const CRect ink = Ink();
    EXPECT_GE(ink.left, 3);
    EXPECT_LE(ink.right, 117);
    EXPECT_GE(ink.top, (74 - size.cy) / 2);
    EXPECT_LE(ink.bottom, (74 - size.cy) / 2 + size.cy);
    EXPECT_GT(ink.Height(), Measure(L"HHH").cy);
}

TEST_F(ButtonTipPicture, ATextThatFitsOnlyWithoutTheMarginsWraps)
{
    // Words that together are wider than the tip without its margins, but not wider than the tip.
    std::wstring text = L"HHH ";
    while (Width(text) <= 114)
        text += L'i';
    ASSERT_LE(Width(text), 120) << "the letter is too wide for this test";
    Draw(text.c_str());
    EXPECT_GT(Ink().Height(), Measure(L"HHH").cy);
}

TEST_F(ButtonTipPicture, TheTextRectangleIsCentredInTheTip)
{
    EXPECT_EQ(CRect(45, 31, 75, 43), ButtonTipTextRect(CRect(0, 0, 120, 74), CSize(30, 12)));
    EXPECT_EQ(CRect(44, 30, 75, 43), ButtonTipTextRect(CRect(0, 0, 120, 74), CSize(31, 13)));
    EXPECT_EQ(CRect(-10, 31, 130, 43), ButtonTipTextRect(CRect(0, 0, 120, 74), CSize(140, 12)));
    EXPECT_EQ(CRect(55, 51, 85, 63), ButtonTipTextRect(CRect(10, 20, 130, 94), CSize(30, 12)));
}

TEST_F(ButtonTipPicture, LeavesTheDeviceContextAsItWas)
{
    CDC& dc = *CDC::FromHandle(m_canvas.Dc());
    const HGDIOBJ font = ::GetCurrentObject(dc, OBJ_FONT);
    dc.SetBkMode(OPAQUE);
    dc.SetTextColor(RGB(1, 2, 3));
    dc.SetBkColor(RGB(4, 5, 6));
    const size_t objects = CountGdiObjects();
    Draw(L"text");
    EXPECT_EQ(font, ::GetCurrentObject(dc, OBJ_FONT));
    EXPECT_EQ(OPAQUE, dc.GetBkMode());
    EXPECT_EQ(RGB(1, 2, 3), dc.GetTextColor());
    EXPECT_EQ(RGB(4, 5, 6), dc.GetBkColor());
    EXPECT_EQ(objects, CountGdiObjects());
}

TEST_F(ButtonTipPicture, TheWindowShowsTextColoursAndFrameItWasGiven)
{
    OwnerWindow owner;
    CXTButtonToolTipWnd tip(L"HHHH HHHH HHHH", kBack, kInk, 0);
    ASSERT_TRUE(tip.Create(CRect(600, 300, 720, 374), &owner, 10001));
    EXPECT_TRUE(tip.IsWindowVisible());
    const auto picture = Picture(tip.m_hWnd);
    EXPECT_EQ(kFrame, picture->Pixel(0, 0));
    EXPECT_EQ(kFrame, picture->Pixel(119, 73));
    EXPECT_EQ(kBack, picture->Pixel(2, 2));
    Draw(L"HHHH HHHH HHHH"); // a height of the font below 1 is 12
    for (int y = 0; y < 74; ++y)
    {
        for (int x = 0; x < 120; ++x)
            ASSERT_TRUE(picture->Near(x, y, m_canvas.Pixel(x, y))) << x << "," << y;
    }
}

TEST_F(ButtonTipPicture, TheTipOfAButtonIsBlackOnLightYellowInTwelvePixels)
{
    OwnerWindow owner;
    CToolTipXTButton button(NULL);
    button.Create(L"button", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, CRect(150, 100, 250, 125), &owner, 7);
    button.SetToolTip(L"HHHH HHHH HHHH");
    MSG move = {};
    move.hwnd = button.m_hWnd;
    move.message = WM_MOUSEMOVE;
    button.PreTranslateMessage(&move);
    const HWND tip = ::FindWindowW(L"ZNXTButtonToolTipWnd", NULL);
    ASSERT_NE(nullptr, tip);
    const auto picture = Picture(tip);
    const ButtonTipLook look = {L"HHHH HHHH HHHH", &m_font, RGB(255, 255, 200), RGB(0, 0, 0)};
    DrawButtonTip(*CDC::FromHandle(m_canvas.Dc()), CRect(0, 0, 120, 74), look);
    for (int y = 0; y < 74; ++y)
    {
        for (int x = 0; x < 120; ++x)
            ASSERT_TRUE(picture->Near(x, y, m_canvas.Pixel(x, y))) << x << "," << y;
    }
}

TEST_F(ButtonTipPicture, TheHeightOfTheFontIsTheCallers)
{
    OwnerWindow owner;
    CXTButtonToolTipWnd tip(L"H", kBack, kInk, 40);
    ASSERT_TRUE(tip.Create(CRect(600, 300, 720, 374), &owner, 10001));
    Draw(L"H");
    const int small = m_canvas.Count(CRect(1, 1, 119, 73), kInk, kInkTolerance);
    EXPECT_GT(Picture(tip.m_hWnd)->Count(CRect(1, 1, 119, 73), kInk, kInkTolerance), 3 * small);
}
