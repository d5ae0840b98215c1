// What the flat button draws.
#include "MyButtonFixture.h"

#include "msg/FlatButtonFace.h"

namespace
{

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kBefore = RGB(9, 9, 9);

class MyButtonPixel : public MyButtonFixture
{
protected:
    void Create(DWORD style, const wchar_t* caption = L"")
    {
        MyButtonFixture::Create(style, caption);
        m_button.SetBackgroundColor(kBackground);
        m_button.UpdateWindow();
    }

    // Every point of the frame's four sides.
    void ExpectFrame(COLORREF topLeft, COLORREF bottomRight)
    {
        for (int x = 1; x < kWidth - 1; ++x)
        {
            EXPECT_EQ(topLeft, m_canvas.Pixel(x, 0)) << x;
            EXPECT_EQ(bottomRight, m_canvas.Pixel(x, kHeight - 1)) << x;
        }
        for (int y = 1; y < kHeight - 1; ++y)
        {
            EXPECT_EQ(topLeft, m_canvas.Pixel(0, y)) << y;
            EXPECT_EQ(bottomRight, m_canvas.Pixel(kWidth - 1, y)) << y;
        }
    }
    void ExpectSunken() { ExpectFrame(::GetSysColor(COLOR_3DDKSHADOW), ::GetSysColor(COLOR_3DHILIGHT)); }
    void ExpectFlat() { ExpectFrame(kBackground, kBackground); }

    CRect Inside() const { return CRect(1, 1, kWidth - 1, kHeight - 1); }
    int InsidePixels() const { return (kWidth - 2) * (kHeight - 2); }

    // Points inside the frame that are not the background.
    int Drawn() const { return InsidePixels() - m_canvas.Count(Inside(), kBackground, 0); }
};

} // namespace

// Frames.

TEST_F(MyButtonPixel, AnIdleButtonIsFlat)
{
    Create(0);
    Draw(0);
    ExpectFlat();
    EXPECT_EQ(0, Drawn());
}

TEST_F(MyButtonPixel, APressedButtonIsSunken)
{
    Create(0);
    Draw(ODS_SELECTED);
    ExpectSunken();
    EXPECT_EQ(0, Drawn()) << "filled with the background";
}

TEST_F(MyButtonPixel, ACheckedButtonIsSunken)
{
    Create(0);
    m_button.SetCheck(1);
    Draw(0);
    ExpectSunken();
    m_button.SetCheck(0);
    Draw(0);
    ExpectFlat();
}

TEST_F(MyButtonPixel, TheRaisedFrameLeavesTheFaceAlone)
{
    CDC& dc = *CDC::FromHandle(m_canvas.Dc());
    DrawFlatButtonFrame(dc, CRect(0, 0, kWidth, kHeight), FLAT_BUTTON_RAISED, kBackground);
    ExpectFrame(::GetSysColor(COLOR_3DHILIGHT), ::GetSysColor(COLOR_3DSHADOW));
    EXPECT_EQ(InsidePixels(), m_canvas.Count(Inside(), kBefore, 0));
}

TEST_F(MyButtonPixel, FramesPutBackWhatTheDeviceContextHadSelected)
{
    const HGDIOBJ brush = ::GetCurrentObject(m_canvas.Dc(), OBJ_BRUSH);
    const HGDIOBJ pen = ::GetCurrentObject(m_canvas.Dc(), OBJ_PEN);
    const HGDIOBJ font = ::GetCurrentObject(m_canvas.Dc(), OBJ_FONT);
    Create(0, L"caption");
    Draw(ODS_SELECTED | ODS_DISABLED);
    EXPECT_EQ(brush, ::GetCurrentObject(m_canvas.Dc(), OBJ_BRUSH));
    EXPECT_EQ(pen, ::GetCurrentObject(m_canvas.Dc(), OBJ_PEN));
    EXPECT_EQ(font, ::GetCurrentObject(m_canvas.Dc(), OBJ_FONT));
    EXPECT_EQ(OPAQUE, ::GetBkMode(m_canvas.Dc()));
}

TEST_F(MyButtonPixel, TheBackgroundIsThatOfButtonsAtFirst)
{
    MyButtonFixture::Create(0);
    Draw(0);
    EXPECT_EQ(::GetSysColor(COLOR_3DFACE), m_canvas.Pixel(5, 5));
}

// On the screen.

TEST_F(MyButtonPixel, TheMouseOverItRaisesTheFrame)
{
    Create(0);
    ASSERT_TRUE(ShowsFlat());
    MoveTo(5, 5);
    EXPECT_TRUE(ShowsRaised());
    MoveTo(-1, 5);
    EXPECT_TRUE(ShowsFlat());
}

TEST_F(MyButtonPixel, ACheckIsShownAtOnce)
{
    Create(0);
    m_button.SetCheck(1);
    EXPECT_TRUE(ShowsSunken());
    m_button.SetCheck(0);
    EXPECT_TRUE(ShowsFlat());
}

TEST_F(MyButtonPixel, ACheckedButtonKeepsItsSunkenFrameWhenTheMouseLeaves)
{
    Create(0);
    m_button.SetCheck(1);
    MoveTo(5, 5);
    EXPECT_TRUE(ShowsSunken()) << "no raised frame either";
    MoveTo(-1, 5);
    EXPECT_TRUE(ShowsSunken());
    m_button.SendMessage(WM_MOUSELEAVE);
    EXPECT_TRUE(ShowsSunken());
    m_button.SetFocus();
    m_owner.SetFocus();
    EXPECT_TRUE(ShowsSunken());
}

TEST_F(MyButtonPixel, MovesDrawNoHoverFrameWhileTheButtonIsHeld)
{
    Create(0);
    m_button.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    m_button.UpdateWindow();
    ASSERT_TRUE(ShowsSunken());
    MoveTo(6, 6);
    EXPECT_TRUE(ShowsSunken());
    EXPECT_TRUE(m_button.IsHovering());
    m_button.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(6, 6));
    m_button.UpdateWindow();
    EXPECT_TRUE(ShowsFlat());
    MoveTo(6, 6);
    EXPECT_TRUE(ShowsRaised()) << "and again after the release";
}

TEST_F(MyButtonPixel, AHeldButtonThatTheMouseLeftMayBeHoveredAgain)
{
    Create(0);
    m_button.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    m_button.UpdateWindow();
    m_button.SendMessage(WM_MOUSELEAVE);
    EXPECT_TRUE(ShowsFlat());
    MoveTo(6, 6);
    EXPECT_TRUE(ShowsRaised());
    m_button.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(6, 6));
}

TEST_F(MyButtonPixel, LosingTheFocusMakesItFlat)
{
    Create(0);
    m_button.SetFocus();
    MoveTo(5, 5);
    ASSERT_TRUE(ShowsRaised());
    m_owner.SetFocus();
    EXPECT_TRUE(ShowsFlat());
}

// Icons.

TEST_F(MyButtonPixel, TheIconLiesInTheMiddleInsideTheFrame)
{
    const TestIcon icon(kRed, 16);
    Create(BS_ICON, L"caption");
    m_button.SetIcon(icon);
    Draw(0);
    const CRect place(CPoint((kWidth - 16) / 2, (kHeight - 16) / 2), CSize(16, 16));
    EXPECT_EQ(16 * 16, m_canvas.Count(place, kRed));
    EXPECT_EQ(16 * 16, Drawn()) << "and no caption";
}

TEST_F(MyButtonPixel, AnIconThatFillsTheButtonStaysInsideTheFrame)
{
    const TestIcon icon(kRed, 64);
    Create(BS_ICON);
    m_button.SetIcon(icon);
    Draw(0);
    EXPECT_EQ(kRed, m_canvas.Pixel(1, 1));
    EXPECT_EQ(kBackground, m_canvas.Pixel(0, 0));
}

TEST_F(MyButtonPixel, TheCheckedIconIsShownWhileChecked)
{
    const TestIcon normal(kRed, 16);
    const TestIcon checked(kBlue, 16);
    Create(BS_ICON);
    m_button.SetIcon(normal);
    m_button.SetCheckedIcon(checked);
    Draw(0);
    EXPECT_EQ(kRed, m_canvas.Pixel(kWidth / 2, kHeight / 2));
    m_button.SetCheck(1);
    Draw(0);
    EXPECT_EQ(kBlue, m_canvas.Pixel(kWidth / 2, kHeight / 2));
    m_button.SetCheckedIcon(NULL);
    Draw(0);
    EXPECT_EQ(kRed, m_canvas.Pixel(kWidth / 2, kHeight / 2)) << "without one the normal icon";
}

TEST_F(MyButtonPixel, ACheckedIconAloneIsShownOnlyWhileChecked)
{
    const TestIcon checked(kBlue, 16);
    Create(BS_ICON, L"W");
    m_button.SetCheckedIcon(checked);
    Draw(0);
    EXPECT_EQ(0, m_canvas.Count(Inside(), kBlue));
    EXPECT_GT(Drawn(), 0) << "the caption";
    m_button.SetCheck(1);
    Draw(0);
    EXPECT_EQ(16 * 16, m_canvas.Count(Inside(), kBlue));
}

TEST_F(MyButtonPixel, AnIconButtonWithoutIconsShowsItsCaption)
{
    Create(BS_ICON, L"W");
    Draw(0);
    EXPECT_GT(Drawn(), 0);
    EXPECT_GT(m_canvas.Count(Inside(), ::GetSysColor(COLOR_BTNTEXT), 60), 0);
}

TEST_F(MyButtonPixel, AButtonThatIsNoIconButtonShowsNoIcon)
{
    const TestIcon icon(kRed, 16);
    Create(0, L"W");
    m_button.SetIcon(icon);
    Draw(0);
    EXPECT_EQ(0, m_canvas.Count(Inside(), kRed));
    EXPECT_GT(Drawn(), 0) << "the caption";
}

TEST_F(MyButtonPixel, AButtonThatIsNoBitmapButtonShowsNoBitmap)
{
    const HBITMAP bitmap = MakeBitmap(DibCanvas(10, 8, kRed));
    Create(0, L"W");
    m_button.SetBitmap(bitmap);
    ::DeleteObject(bitmap);
    Draw(0);
    EXPECT_EQ(0, m_canvas.Count(Inside(), kRed));
    EXPECT_GT(Drawn(), 0) << "the caption";
}

TEST_F(MyButtonPixel, IconsThatAreNoneDrawNothing)
{
    Create(BS_ICON);
    const HICON destroyed = ::CopyIcon(::LoadIcon(NULL, IDI_APPLICATION));
    ::DestroyIcon(destroyed);
    for (const HICON icon : {reinterpret_cast<HICON>(0x7777), static_cast<HICON>(static_cast<HANDLE>(m_button.m_hWnd)),
                             destroyed, reinterpret_cast<HICON>(-1)})
    {
        m_button.SetIcon(icon);
        Draw(0);
        EXPECT_EQ(0, Drawn());
        Draw(ODS_DISABLED);
        ExpectFlat();
    }
}

TEST_F(MyButtonPixel, ADisabledIconIsDrawnGreyed)
{
    const TestIcon icon(kRed, 16);
    Create(BS_ICON);
    m_button.SetIcon(icon);
    Draw(ODS_DISABLED);
    EXPECT_EQ(0, m_canvas.Count(Inside(), kRed));
    EXPECT_GT(Drawn(), 0);
}

// Bitmaps.

TEST_F(MyButtonPixel, ABitmapLiesInTheCornerInsideTheFrame)
{
    const HBITMAP bitmap = MakeBitmap(DibCanvas(10, 8, kRed));
    Create(BS_BITMAP, L"caption");
    m_button.SetBitmap(bitmap);
    ::DeleteObject(bitmap); // it was copied
    Draw(0);
    EXPECT_EQ(10 * 8, m_canvas.Count(CRect(1, 1, 11, 9), kRed));
    EXPECT_EQ(10 * 8, Drawn()) << "the rest is background";
    ExpectFlat();
}

TEST_F(MyButtonPixel, ABitmapThatIsTooLargeIsCutOffAtTheFrame)
{
    const HBITMAP bitmap = MakeBitmap(DibCanvas(100, 100, kRed));
    Create(BS_BITMAP);
    m_button.SetBitmap(bitmap);
    ::DeleteObject(bitmap);
    Draw(ODS_SELECTED);
    EXPECT_EQ(InsidePixels(), m_canvas.Count(Inside(), kRed));
    ExpectSunken();
}

TEST_F(MyButtonPixel, ANewBitmapReplacesTheFormerOne)
{
    Create(BS_BITMAP, L"W");
    for (const COLORREF color : {kRed, kBlue})
    {
        const HBITMAP bitmap = MakeBitmap(DibCanvas(10, 8, color));
        m_button.SetBitmap(bitmap);
        ::DeleteObject(bitmap);
        Draw(0);
        EXPECT_EQ(color, m_canvas.Pixel(5, 5));
    }
    m_button.SetBitmap(NULL);
    Draw(0);
    EXPECT_EQ(0, m_canvas.Count(Inside(), kBlue));
    EXPECT_GT(Drawn(), 0) << "without one the caption";
}

TEST_F(MyButtonPixel, BitmapsThatAreNoneTakeThePictureAway)
{
    Create(BS_BITMAP);
    for (HGDIOBJ handle : {static_cast<HGDIOBJ>(reinterpret_cast<HBITMAP>(0x7777)), ::GetStockObject(WHITE_BRUSH),
                           static_cast<HGDIOBJ>(NULL)})
    {
        m_button.SetBitmap(static_cast<HBITMAP>(handle));
        Draw(0);
        EXPECT_EQ(0, Drawn());
    }
}

TEST_F(MyButtonPixel, ABitmapInAButtonWithoutRoomIsNotShown)
{
    m_button.Create(L"", WS_CHILD | BS_BITMAP, CRect(0, 0, 2, 2), &m_owner, ButtonOwner::kButtonId);
    const HBITMAP bitmap = MakeBitmap(DibCanvas(10, 8, kRed));
    m_button.SetBitmap(bitmap);
    ::DeleteObject(bitmap);
    Draw(0);
    EXPECT_EQ(0, m_canvas.Count(CRect(0, 0, kWidth, kHeight), kRed));
}

// The caption.

TEST_F(MyButtonPixel, TheCaptionStandsInTheMiddleOfTheContent)
{
    Create(0, L"W");
    Draw(0);
    const CRect middle(CPoint(kWidth / 2 - 8, kHeight / 2 - 9), CSize(18, 20));
    const int drawn = Drawn();
    EXPECT_GT(drawn, 0);
    int inMiddle = 0;
    for (int y = middle.top; y < middle.bottom; ++y)
    {
        for (int x = middle.left; x < middle.right; ++x)
            inMiddle += m_canvas.Pixel(x, y) != kBackground;
    }
    EXPECT_EQ(drawn, inMiddle);
}

TEST_F(MyButtonPixel, ALongCaptionIsBrokenIntoLines)
{
    // Measured in its own line the caption would be cut off on both sides, and leave no point in the lower part.
    Create(0, L"i i i i i i i i i i i i i i");
    Draw(0);
    int lower = 0;
    int upper = 0;
    for (int x = 1; x < kWidth - 1; ++x)
    {
        for (int y = 1; y < 5; ++y)
            upper += m_canvas.Pixel(x, y) != kBackground;
        for (int y = kHeight - 6; y < kHeight - 1; ++y)
            lower += m_canvas.Pixel(x, y) != kBackground;
    }
    EXPECT_GT(upper, 0);
    EXPECT_GT(lower, 0);
}

TEST_F(MyButtonPixel, TheCaptionIsWrittenInTheFontOfTheParent)
{
    CFont tall;
    tall.CreateFont(-16, 0, 0, 0, FW_BOLD, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma");
    CFont small;
    small.CreateFont(-7, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma");
    int drawn[2] = {};
    CFont* const fonts[] = {&tall, &small};
    for (int i = 0; i < 2; ++i)
    {
        const HWND plain = ::CreateWindowW(L"STATIC", L"", WS_POPUP, 0, 0, 90, 90, NULL, NULL, NULL, NULL);
        ::SendMessageW(plain, WM_SETFONT, reinterpret_cast<WPARAM>(fonts[i]->GetSafeHandle()), 0);
        CMyButton button;
        button.Create(L"W", WS_CHILD, CRect(0, 0, kWidth, kHeight), CWnd::FromHandle(plain), 1);
        button.SetBackgroundColor(kBackground);
        DRAWITEMSTRUCT item = {};
        item.hDC = m_canvas.Dc();
        button.DrawItem(&item);
        drawn[i] = Drawn();
        button.DestroyWindow();
        ::DestroyWindow(plain);
    }
    EXPECT_GT(drawn[0], 2 * drawn[1]);
}

TEST_F(MyButtonPixel, ADisabledCaptionIsDrawnGreyed)
{
    Create(0, L"W");
    Draw(ODS_DISABLED);
    EXPECT_GT(m_canvas.Count(Inside(), ::GetSysColor(COLOR_3DSHADOW), 40), 0);
    EXPECT_EQ(0, m_canvas.Count(Inside(), RGB(0, 0, 0), 40));
}
