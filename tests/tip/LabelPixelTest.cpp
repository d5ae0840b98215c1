// The picture of labels, compared with the same runs put together by hand.
#include "TipFixture.h"

#include "GdiCount.h"
#include "tip/LabelDrawing.h"
#include "tip/ZNKTLabel.h"

#include <climits>
#include <string>

namespace
{

constexpr int kWidth = 200;
constexpr int kHeight = 30;
const COLORREF kPaper = RGB(255, 255, 255);

// A normal font and the small one that belongs to it, and a picture to draw into with both.
class LabelPicture : public testing::Test
{
protected:
    LabelPicture()
        : m_canvas(kWidth, kHeight, kPaper), m_expected(kWidth, kHeight, kPaper), m_normal(MakeFont(-17)),
          m_small(MakeFont(-12)) // three quarters of 17, cut off
    {
        ::SetBkMode(m_expected.Dc(), TRANSPARENT);
    }

    ~LabelPicture() override
    {
        ::SelectObject(m_expected.Dc(), ::GetStockObject(SYSTEM_FONT));
        ::DeleteObject(m_normal);
        ::DeleteObject(m_small);
    }

    static HFONT MakeFont(int height)
    {
        return ::CreateFontW(height, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"Tahoma");
    }

    int Draw(const std::wstring& text)
    {
        m_canvas.Clear(kPaper);
        return DrawLabel(*CDC::FromHandle(m_canvas.Dc()), text.c_str(), m_normal);
    }

    // By hand: each answers where the next run begins.
    int Put(int x, int y, HFONT font, const std::wstring& text)
    {
        ::SelectObject(m_expected.Dc(), font);
        ::TextOutW(m_expected.Dc(), x, y, text.c_str(), static_cast<int>(text.size()));
        return x + Size(font, text).cx;
    }

    SIZE Size(HFONT font, const std::wstring& text)
    {
        SIZE size = {};
        ::SelectObject(m_expected.Dc(), font);
        ::GetTextExtentPoint32W(m_expected.Dc(), text.c_str(), static_cast<int>(text.size()), &size);
        return size;
    }

    int Lowering()
    {
        const int height = Size(m_normal, L"o").cy;
        return height % 2 == 1 ? height / 2 - 2 : height / 2 - 1;
    }

    void ExpectAsByHand(const DibCanvas& picture)
    {
        for (int y = 0; y < kHeight; ++y)
        {
            for (int x = 0; x < kWidth; ++x)
                ASSERT_TRUE(picture.Near(x, y, m_expected.Pixel(x, y))) << x << "," << y;
        }
    }

    int Ink(const DibCanvas& canvas) const
    {
        return kWidth * kHeight - canvas.Count(CRect(0, 0, kWidth, kHeight), kPaper, 0);
    }

    DibCanvas m_canvas;
    DibCanvas m_expected;
    HFONT m_normal;
    HFONT m_small;
};

// A static text of a parent window that a label has taken over.
class LabelWindow : public LabelPicture
{
protected:
    LabelWindow() : m_owner(CRect(100, 300, 500, 600)) {}

    void Make(const wchar_t* text)
    {
        m_static.Create(L"", WS_CHILD | WS_VISIBLE, CRect(10, 10, 10 + kWidth, 10 + kHeight), &m_owner, 7);
        const HWND window = m_static.Detach();
        m_label.SubclassWindow(window);
        SetText(text);
    }

    void SetText(const std::wstring& text)
    {
        m_label.SetWindowText(text.c_str());
        m_label.Invalidate();
    }

    // The label draws on the colour of dialogs; the comparison is drawn on paper.
    void ExpectAsByHandOnDialogColour()
    {
        const auto picture = Picture(m_label.m_hWnd);
        const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
        for (int y = 0; y < kHeight; ++y)
        {
            for (int x = 0; x < kWidth; ++x)
            {
                const COLORREF byHand = m_expected.Pixel(x, y);
                if (byHand == kPaper || byHand == 0)
                {
                    ASSERT_EQ(byHand == 0 ? 0 : face, picture->Pixel(x, y)) << x << "," << y;
                }
            }
        }
    }

    // An owner whose font is the normal font of the tests.
    class FontOwner : public OwnerWindow
    {
    public:
        using OwnerWindow::OwnerWindow;
        HFONT font = NULL;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_GETFONT)
                return reinterpret_cast<LRESULT>(font);
            return OwnerWindow::WindowProc(message, wParam, lParam);
        }
    };

    void SetUp() override { m_owner.font = m_normal; }

    FontOwner m_owner;
    CStatic m_static;
    CZNKTLabel m_label;
};

} // namespace

TEST_F(LabelPicture, ASquareMetreHasASmallTwoAtTheTop)
{
    const int width = Draw(L"m{U2}");
    EXPECT_EQ(width, Put(Put(0, 0, m_normal, L"m"), 0, m_small, L"2"));
    EXPECT_GT(Ink(m_canvas), 10);
    ExpectAsByHand(m_canvas);
}

TEST_F(LabelPicture, WaterHasALoweredSmallTwoBetweenItsLetters)
{
    const int width = Draw(L"H{B2}O");
    const int end = Put(0, 0, m_normal, L"H");
    EXPECT_EQ(width, Put(Put(end, Lowering(), m_small, L"2"), 0, m_normal, L"O"));
    ExpectAsByHand(m_canvas);
}

TEST_F(LabelPicture, AnUnknownLetterLeavesAGap)
{
    const int width = Draw(L"a{X1}b");
    const int gap = Size(m_normal, L"1").cx;
    EXPECT_EQ(width, Put(Put(0, 0, m_normal, L"a") + gap, 0, m_normal, L"b"));
    ExpectAsByHand(m_canvas);
    EXPECT_EQ(gap, Draw(L"{X1}"));
    EXPECT_EQ(0, Ink(m_canvas));
}

TEST_F(LabelPicture, AGapBehindASmallRunIsMeasuredInTheSmallFont)
{
    const int width = Draw(L"{U2}{X1}b");
    const int end = Put(0, 0, m_small, L"2") + Size(m_small, L"1").cx;
    EXPECT_EQ(width, Put(end, 0, m_normal, L"b"));
    ExpectAsByHand(m_canvas);
}

TEST_F(LabelPicture, UnfinishedMarkupIsNotPainted)
{
    EXPECT_EQ(Draw(L"ab{"), Put(0, 0, m_normal, L"ab"));
    ExpectAsByHand(m_canvas);
    EXPECT_EQ(0, Draw(L"{B"));
    EXPECT_EQ(0, Ink(m_canvas));
    EXPECT_EQ(0, Draw(L""));
    EXPECT_EQ(0, Ink(m_canvas));
}

TEST_F(LabelPicture, ARunWithoutAnEndReachesToTheEndOfTheText)
{
    EXPECT_EQ(Draw(L"a{B12"), Put(Put(0, 0, m_normal, L"a"), Lowering(), m_small, L"12"));
    ExpectAsByHand(m_canvas);
}

TEST_F(LabelPicture, AmpersandsAreOrdinaryCharacters)
{
    EXPECT_EQ(Draw(L"a&b"), Put(0, 0, m_normal, L"a&b"));
    ExpectAsByHand(m_canvas);
}

TEST_F(LabelPicture, EveryPrefixOfASampleIsDrawn)
{
    const std::wstring sample = L"Q{Bmax} = {X12}4 m{U3}/s{}{{U}{B1{U2}}}{";
    for (size_t length = 0; length <= sample.size(); ++length)
        EXPECT_GE(Draw(sample.substr(0, length)), 0) << length;
}

TEST_F(LabelPicture, WhatLiesBeyondThePictureIsNotDrawn)
{
    std::wstring many;
    for (int i = 0; i < 100000; ++i)
        many += L"a{U2}";
    const int width = Draw(many);
    EXPECT_GE(width, kWidth);
    EXPECT_LT(width, 2 * kWidth);
    EXPECT_GT(Draw(std::wstring(100000, L'x')), kWidth);
}

TEST_F(LabelPicture, TheDeviceContextIsLeftAsItWas)
{
    const HGDIOBJ font = ::GetCurrentObject(m_canvas.Dc(), OBJ_FONT);
    ::SetBkMode(m_canvas.Dc(), OPAQUE);
    Draw(L"a{U2}{B3}");
    const size_t objects = CountGdiObjects();
    Draw(L"a{U2}{B3}");
    EXPECT_EQ(font, ::GetCurrentObject(m_canvas.Dc(), OBJ_FONT));
    EXPECT_EQ(OPAQUE, ::GetBkMode(m_canvas.Dc()));
    EXPECT_EQ(objects, CountGdiObjects());
}

TEST_F(LabelWindow, PaintsItsTextInTheFontOfTheParent)
{
    Make(L"H{B2}O m{U2}");
    const int end = Put(Put(0, 0, m_normal, L"H"), Lowering(), m_small, L"2");
    Put(Put(end, 0, m_normal, L"O m"), 0, m_small, L"2");
    ExpectAsByHandOnDialogColour();
}

TEST_F(LabelWindow, ItsOwnFontDoesNotCountInAParent)
{
    Make(L"m{U2}");
    CFont other;
    other.CreatePointFont(200, L"Tahoma");
    m_label.SetFont(&other);
    Put(Put(0, 0, m_normal, L"m"), 0, m_small, L"2");
    ExpectAsByHandOnDialogColour();
}

TEST_F(LabelWindow, WithoutAParentItsOwnFontCounts)
{
    const HWND window = ::CreateWindowW(L"STATIC", L"m{U2}", WS_POPUP | WS_VISIBLE, 600, 300, kWidth, kHeight, NULL,
                                        NULL, AfxGetInstanceHandle(), NULL);
    ASSERT_TRUE(m_label.SubclassWindow(window));
    ::SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(m_normal), FALSE);
    m_label.Invalidate();
    Put(Put(0, 0, m_normal, L"m"), 0, m_small, L"2");
    const auto picture = Picture(window);
    int inkByHand = 0;
    for (int y = 0; y < kHeight; ++y)
    {
        for (int x = 0; x < kWidth; ++x)
        {
            if (m_expected.Pixel(x, y) != 0)
                continue;
            ++inkByHand;
            ASSERT_EQ(COLORREF(0), picture->Pixel(x, y)) << x << "," << y;
        }
    }
    EXPECT_GT(inkByHand, 0);
    m_label.DestroyWindow();
}

TEST_F(LabelWindow, AParentWithoutAFontGivesTheSystemFont)
{
    m_owner.font = NULL;
    Make(L"mm");
    Put(0, 0, static_cast<HFONT>(::GetStockObject(SYSTEM_FONT)), L"mm");
    ExpectAsByHandOnDialogColour();
}

TEST_F(LabelWindow, ANewTextReplacesTheOldPicture)
{
    Make(L"a very long text {U2}");
    Picture(m_label.m_hWnd);
    SetText(L"m{U2}");
    Put(Put(0, 0, m_normal, L"m"), 0, m_small, L"2");
    ExpectAsByHandOnDialogColour();
}

TEST_F(LabelWindow, AnEmptyTextPaintsNothing)
{
    Make(L"m{U2}");
    Picture(m_label.m_hWnd);
    SetText(L"");
    ExpectAsByHandOnDialogColour();
    CRect stale(0, 0, 0, 0);
    EXPECT_FALSE(m_label.GetUpdateRect(&stale)) << "the window counts as painted";
}

TEST_F(LabelWindow, HugeTextsArePainted)
{
    Make(L"");
    std::wstring many;
    for (int i = 0; i < 100000; ++i)
        many += L"a{U2}";
    for (const std::wstring& text : {many, std::wstring(200000, L'x'), std::wstring(200000, L'{')})
    {
        SetText(text);
        m_label.UpdateWindow();
        CRect stale(0, 0, 0, 0);
        EXPECT_FALSE(m_label.GetUpdateRect(&stale));
    }
}

TEST_F(LabelWindow, PaintingLeavesNoObjectBehind)
{
    Make(L"H{B2}O m{U2}");
    Picture(m_label.m_hWnd);
    const size_t before = CountGdiObjects();
    for (int i = 0; i < 20; ++i)
        m_label.RedrawWindow();
    EXPECT_EQ(before, CountGdiObjects());
}

TEST_F(LabelWindow, HasRuntimeClassInformation)
{
    EXPECT_TRUE(m_label.IsKindOf(RUNTIME_CLASS(CZNKTLabel)));
    EXPECT_TRUE(m_label.IsKindOf(RUNTIME_CLASS(CWnd)));
}
