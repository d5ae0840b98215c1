// What the combo button paints, part by part and state by state, into a picture in memory.
#include "ComboButtonPicture.h"

#include "GdiCount.h"
#include "MenuScript.h"

namespace
{

const COLORREF kNormalTop = RGB(255, 255, 255);
const COLORREF kNormalBottom = RGB(214, 208, 197);
const COLORREF kPressedTop = RGB(209, 204, 193);
const COLORREF kPressedBottom = RGB(242, 241, 238);
const COLORREF kPressedFlat = RGB(226, 225, 217);
const COLORREF kRound = RGB(0, 60, 116);
const COLORREF kHot = RGB(252, 202, 105);
const COLORREF kSeparator = RGB(172, 168, 153);
const COLORREF kGreyArrow = RGB(172, 172, 172);
const COLORREF kBlack = RGB(0, 0, 0);
const COLORREF kRed = RGB(255, 0, 0);
const COLORREF kGreen = RGB(0, 255, 0);
const int kGradientStep = 4; // the last row is nearly, not quite, the end colour

} // namespace

// Backgrounds.

TEST_F(ComboButtonPicture, TheFaceGoesFromTheLightToTheDarkColour)
{
    Draw(CBTS_FLAT | CBTS_GRADIENT);
    EXPECT_TRUE(m_canvas.Near(5, 0, kNormalTop, 0));
    EXPECT_TRUE(m_canvas.Near(5, kHeight - 1, kNormalBottom, kGradientStep));
    for (int y = 0; y < kHeight; ++y)
        EXPECT_TRUE(IsPlain(y, 0, kWidth)) << y;
}

TEST_F(ComboButtonPicture, ThePressedFaceGoesTheOtherWay)
{
    m_button->SetComboButtonStyle(CBTS_GRADIENT);
    DRAWITEMSTRUCT request = Request(ODS_SELECTED);
    m_button->DrawItemContent(&request);
    EXPECT_TRUE(m_canvas.Near(5, 0, kPressedTop, 0));
    EXPECT_TRUE(m_canvas.Near(5, kHeight - 1, kPressedBottom, kGradientStep));
}

TEST_F(ComboButtonPicture, WithoutGradientTheFaceIsFlat)
{
    Draw(CBTS_FLAT);
    EXPECT_EQ(kWidth * kHeight, m_canvas.Count(CRect(0, 0, kWidth, kHeight), ::GetSysColor(COLOR_BTNFACE), 0));
    DRAWITEMSTRUCT request = Request(ODS_SELECTED);
    m_button->DrawItemContent(&request);
    EXPECT_EQ(kWidth * kHeight, m_canvas.Count(CRect(0, 0, kWidth, kHeight), kPressedFlat, 0));
}

TEST_F(ComboButtonPicture, AMenuThatIsOpenDoesNotPressTheFace)
{
    AddItems(2);
    MenuScript script;
    script.When(MenuScript::IsOpen, [this] {
        Draw(CBTS_GRADIENT | CBTS_ROUND);
        EXPECT_TRUE(m_canvas.Near(20, kHeight - 2, kNormalBottom, 2 * kGradientStep));
        ::EndMenu();
    });
    Press(OnDropZone());
    EXPECT_TRUE(script.IsDone());
}

TEST_F(ComboButtonPicture, TheDropZoneHasABackgroundOfItsOwn)
{
    AddItems(2);
    const struct
    {
        const char* name;
        UINT style, state;
        COLORREF top, bottom;
    } rows[] = {
        {"gradient", CBTS_GRADIENT, 0, kNormalTop, kNormalBottom},
        {"gradient, pressed", CBTS_GRADIENT, ODS_SELECTED, kPressedTop, kPressedBottom},
        {"flat", CBTS_ROUND, 0, ::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_BTNFACE)},
        {"flat, pressed", CBTS_ROUND, ODS_SELECTED, kPressedFlat, kPressedFlat},
    };
    for (const auto& row : rows)
    {
        m_button->SetComboButtonStyle(row.style);
        DRAWITEMSTRUCT request = Request(row.state);
        m_button->DrawItemComboFlag(&request);
        EXPECT_TRUE(m_canvas.Near(kWidth - 16, 0, row.top, 0)) << row.name;
        EXPECT_TRUE(m_canvas.Near(kWidth - 1, kHeight - 1, row.bottom, kGradientStep)) << row.name;
        EXPECT_TRUE(m_canvas.Near(kWidth - 18, 0, kBefore, 0)) << row.name;
    }
}

TEST_F(ComboButtonPicture, TheDropZoneLooksPressedWhileTheMenuIsOpen)
{
    AddItems(2);
    MenuScript script;
    script.When(MenuScript::IsOpen, [this] {
        Draw(CBTS_GRADIENT | CBTS_FLAT);
        EXPECT_TRUE(m_canvas.Near(kWidth - 15, 5, kPressedTop, 2 * kGradientStep));
        Draw(CBTS_FLAT);
        EXPECT_TRUE(m_canvas.Near(kWidth - 15, 5, kPressedFlat, 0));
        ::EndMenu();
    });
    Press(OnDropZone());
    EXPECT_TRUE(script.IsDone());
    Draw(CBTS_FLAT);
    EXPECT_TRUE(m_canvas.Near(kWidth - 15, 5, ::GetSysColor(COLOR_BTNFACE), 0));
}

TEST_F(ComboButtonPicture, WithOneItemThereIsNothingOfADropZone)
{
    AddItem(L"");
    Draw(CBTS_FLAT | CBTS_GRADIENT, ODS_DISABLED);
    for (int y = 0; y < kHeight; ++y)
        EXPECT_TRUE(IsPlain(y, 0, kWidth)) << y;
    DRAWITEMSTRUCT request = Request(0);
    m_button->DrawItemComboFlag(&request);
    EXPECT_EQ(kWidth * kHeight, m_canvas.Count(CRect(0, 0, kWidth, kHeight), kBefore, 0));
}

// Borders.

TEST_F(ComboButtonPicture, TheRoundBorderIsOnePixelOfBlue)
{
    for (const UINT state : {0u, static_cast<UINT>(ODS_SELECTED)})
    {
        Draw(CBTS_ROUND | CBTS_GRADIENT, state);
        ExpectFrame(Inner(0), kRound, kRound, "round");
        EXPECT_FALSE(m_canvas.Near(0, 0, kRound));
        EXPECT_FALSE(m_canvas.Near(kWidth - 1, kHeight - 1, kRound));
        EXPECT_FALSE(m_canvas.Near(kWidth / 2, 1, kRound));
    }
}

TEST_F(ComboButtonPicture, TheRoundBorderHasCornersOfFivePixels)
{
    DibCanvas expected(kWidth, kHeight, kBefore);
    const HPEN pen = ::CreatePen(PS_SOLID, 1, kRound);
    const HGDIOBJ penBefore = ::SelectObject(expected.Dc(), pen);
    const HGDIOBJ brushBefore = ::SelectObject(expected.Dc(), ::GetStockObject(NULL_BRUSH));
    ::RoundRect(expected.Dc(), 0, 0, kWidth, kHeight, 5, 5);
    ::SelectObject(expected.Dc(), brushBefore);
    ::SelectObject(expected.Dc(), penBefore);
    ::DeleteObject(pen);
    Draw(CBTS_ROUND | CBTS_GRADIENT);
    for (int y = 0; y < kHeight; ++y)
    {
        for (int x = 0; x < kWidth; ++x)
            ASSERT_EQ(expected.Near(x, y, kRound, 0), m_canvas.Near(x, y, kRound, 0)) << x << ", " << y;
    }
}

TEST_F(ComboButtonPicture, TheRaisedAndTheSunkenBorderHaveTheSystemsColours)
{
    const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    const COLORREF dark = ::GetSysColor(COLOR_3DDKSHADOW);
    const COLORREF inLight = ::GetSysColor(COLOR_3DLIGHT);
    const COLORREF inDark = ::GetSysColor(COLOR_BTNSHADOW);
    Draw(CBTS_GRADIENT);
    ExpectFrame(Inner(0), light, dark, "outer, raised");
    ExpectFrame(Inner(1), inLight, inDark, "inner, raised");
    Draw(CBTS_GRADIENT, ODS_SELECTED);
    ExpectFrame(Inner(0), dark, inLight, "outer, sunken");
    ExpectFrame(Inner(1), inDark, light, "inner, sunken");
}

TEST_F(ComboButtonPicture, WithTheFocusTheRaisedBorderStandsInABlackFrame)
{
    Draw(CBTS_GRADIENT, ODS_FOCUS);
    ExpectFrame(Inner(0), kBlack, kBlack, "frame");
    ExpectFrame(Inner(1), ::GetSysColor(COLOR_BTNHIGHLIGHT), ::GetSysColor(COLOR_3DDKSHADOW), "outer");
    ExpectFrame(Inner(2), ::GetSysColor(COLOR_3DLIGHT), ::GetSysColor(COLOR_BTNSHADOW), "inner");
}

TEST_F(ComboButtonPicture, AFlatButtonHasItsBorderOnlyWhenSomethingHappens)
{
    const UINT style = CBTS_FLAT | CBTS_ROUND | CBTS_GRADIENT;
    Draw(style);
    EXPECT_EQ(0, m_canvas.Count(CRect(0, 0, kWidth, kHeight), kRound));
    Draw(style, ODS_SELECTED);
    ExpectFrame(Inner(0), kRound, kRound, "pressed");
    MakeHot();
    Draw(style);
    ExpectFrame(Inner(0), kRound, kRound, "hot");
    m_button->SendMessage(WM_MOUSELEAVE);
    Draw(style);
    EXPECT_EQ(0, m_canvas.Count(CRect(0, 0, kWidth, kHeight), kRound));
}

TEST_F(ComboButtonPicture, AFlatButtonHasItsBorderWhileTheMenuIsOpen)
{
    AddItems(2);
    MenuScript script;
    script.When(MenuScript::IsOpen, [this] {
        Draw(CBTS_FLAT | CBTS_ROUND | CBTS_GRADIENT);
        ExpectFrame(Inner(0), kRound, kRound, "menu open");
        ::EndMenu();
    });
    Press(OnDropZone());
    EXPECT_TRUE(script.IsDone());
}

TEST_F(ComboButtonPicture, TheHotFrameIsTwoPixelsWide)
{
    const UINT style = CBTS_HOTFRAME | CBTS_GRADIENT | CBTS_ROUND;
    Draw(style);
    EXPECT_EQ(0, m_canvas.Count(CRect(0, 0, kWidth, kHeight), kHot));
    MakeHot();
    Draw(style);
    ExpectFrame(Inner(2), kHot, kHot, "outer");
    ExpectFrame(Inner(3), kHot, kHot, "inner");
    EXPECT_FALSE(m_canvas.Near(kWidth / 2, 1, kHot));
    EXPECT_FALSE(m_canvas.Near(kWidth / 2, 4, kHot));
    Draw(style & ~static_cast<UINT>(CBTS_HOTFRAME));
    EXPECT_EQ(0, m_canvas.Count(CRect(0, 0, kWidth, kHeight), kHot));
}

TEST_F(ComboButtonPicture, TheFocusIsADottedRectangleThreePixelsInside)
{
    // Flat, so that there is no border; dots on white, so that they are black.
    Draw(CBTS_FLAT | CBTS_GRADIENT);
    EXPECT_TRUE(IsPlain(3, 0, kWidth));
    Draw(CBTS_FLAT | CBTS_GRADIENT, ODS_FOCUS);
    EXPECT_FALSE(IsPlain(3, 4, kWidth - 4));
    EXPECT_FALSE(IsPlain(kHeight - 4, 4, kWidth - 4));
    EXPECT_TRUE(IsPlain(2, 0, kWidth));
    EXPECT_TRUE(IsPlain(kHeight - 3, 0, kWidth));
    EXPECT_TRUE(IsPlain(4, 4, kWidth - 4));
    // Drawn again it does not vanish.
    DRAWITEMSTRUCT request = Request(ODS_FOCUS);
    m_button->DrawItem(&request);
    m_button->DrawItem(&request);
    EXPECT_FALSE(IsPlain(3, 4, kWidth - 4));
}

// The sign of the drop zone.

TEST_F(ComboButtonPicture, TheSeparatorLeavesTwoPixelsAboveAndBelow)
{
    AddItems(2);
    Draw(CBTS_FLAT | CBTS_GRADIENT);
    const int x = kWidth - 17;
    EXPECT_EQ(CRect(x, 2, x + 1, kHeight - 2), Found(CRect(x - 3, 0, x + 3, kHeight), kSeparator));
    EXPECT_EQ(kHeight - 4, m_canvas.Count(CRect(x, 0, x + 1, kHeight), kSeparator, 0));
}

TEST_F(ComboButtonPicture, TheSeparatorMayWaitForTheMouse)
{
    AddItems(2);
    const UINT style = CBTS_FLAT | CBTS_GRADIENT | CBTS_SEPARATORONHOT;
    const CRect line(kWidth - 17, 4, kWidth - 16, kHeight - 4);
    Draw(style, ODS_SELECTED);
    EXPECT_EQ(0, m_canvas.Count(line, kSeparator, 0));
    MakeHot();
    Draw(style);
    EXPECT_EQ(line.Height(), m_canvas.Count(line, kSeparator, 0));
}

TEST_F(ComboButtonPicture, TheArrowIsATriangleAndGreyInADisabledButton)
{
    AddItems(2);
    const CRect zone(kWidth - 16, 4, kWidth - 4, kHeight - 4);
    const struct
    {
        const char* name;
        UINT state;
        COLORREF color;
    } rows[] = {
        {"enabled", 0, kBlack},
        {"disabled", ODS_DISABLED, kGreyArrow},
        {"grey", ODS_GRAYED, kGreyArrow},
    };
    for (const auto& row : rows)
    {
        Draw(CBTS_FLAT, row.state);
        EXPECT_EQ(CRect(kWidth - 13, 13, kWidth - 4, 18), Found(zone, row.color)) << row.name;
        const int inRows[] = {9, 7, 5, 3, 1};
        for (int i = 0; i < 5; ++i)
        {
            const CRect rowOfArrow(kWidth - 16, 13 + i, kWidth - 3, 14 + i);
            EXPECT_EQ(inRows[i], m_canvas.Count(rowOfArrow, row.color, 0)) << row.name << ", row " << i;
        }
    }
}

TEST_F(ComboButtonPicture, ADisabledItemDoesNotGreyTheArrow)
{
    AddItems(2);
    m_items[0]->enabled = false;
    Draw(CBTS_FLAT);
    EXPECT_TRUE(m_canvas.Near(kWidth - 9, 14, kBlack, 0));
}

// Image and caption.

TEST_F(ComboButtonPicture, AnImageTakesThePlaceOfTheCaption)
{
    const SampleIcon icon(16, 16, kRed);
    AddItem(L"MMM").icon = icon;
    AddItem(L"other");
    const CRect face(4, 0, kWidth - 20, kHeight);
    Draw(CBTS_FLAT | CBTS_SHOWIMAGE);
    EXPECT_EQ(CRect(43, 7, 59, 23), Found(face, kRed));
    EXPECT_EQ(256, m_canvas.Count(face, kRed));
    EXPECT_EQ(0, m_canvas.Count(face, kBlack));
    Draw(CBTS_FLAT | CBTS_ROUND);
    EXPECT_EQ(0, m_canvas.Count(face, kRed));
    EXPECT_LT(0, m_canvas.Count(face, kBlack));
}

TEST_F(ComboButtonPicture, ABitmapIsShownWhereThereIsNoIcon)
{
    const SampleBitmap bitmap(20, 10, kGreen);
    TestItem& item = AddItem(L"MMM");
    item.bitmap = bitmap;
    Draw(CBTS_FLAT | CBTS_SHOWIMAGE);
    EXPECT_EQ(CRect(50, 10, 70, 20), Found(Inner(4), kGreen));
    const SampleIcon icon(16, 16, kRed);
    item.icon = icon;
    Draw(CBTS_FLAT | CBTS_SHOWIMAGE);
    EXPECT_EQ(CRect(52, 7, 68, 23), Found(Inner(4), kRed));
    EXPECT_EQ(0, m_canvas.Count(Inner(4), kGreen));
}

TEST_F(ComboButtonPicture, WhatIsNoImageLeavesTheCaption)
{
    TestItem& item = AddItem(L"MMM");
    Draw(CBTS_FLAT | CBTS_SHOWIMAGE);
    const CRect caption = Found(Inner(4), kBlack);
    ASSERT_LT(0, caption.Width());
    item.icon = reinterpret_cast<HICON>(static_cast<UINT_PTR>(0x12345));
    item.bitmap = reinterpret_cast<HBITMAP>(m_button->m_hWnd);
    Draw(CBTS_FLAT | CBTS_SHOWIMAGE);
    EXPECT_EQ(caption, Found(Inner(4), kBlack));
}

TEST_F(ComboButtonPicture, PressedContentsMoveByOnePixel)
{
    const SampleIcon icon(16, 16, kRed);
    AddItem(L"MMM").icon = icon;
    Draw(CBTS_FLAT | CBTS_SHOWIMAGE, ODS_SELECTED);
    EXPECT_EQ(CRect(53, 8, 69, 24), Found(Inner(4), kRed));
    Draw(CBTS_FLAT | CBTS_ROUND);
    const CRect rest = Found(Inner(4), kBlack);
    Draw(CBTS_FLAT | CBTS_ROUND, ODS_SELECTED);
    EXPECT_EQ(rest + CPoint(1, 1), Found(Inner(4), kBlack));
}

TEST_F(ComboButtonPicture, ImageAndCaptionStandSideBySide)
{
    const SampleIcon icon(16, 16, kRed);
    AddItem(L"MMM").icon = icon;
    Draw(CBTS_FLAT | CBTS_SHOWIMAGE | CBTS_IMAGEANDTEXT);
    const CRect image = Found(Inner(4), kRed);
    const CRect caption = Found(Inner(4), kBlack);
    EXPECT_EQ(kWidth / 2 - (16 + 3 + CaptionSize(L"MMM").cx) / 2, image.left);
    EXPECT_EQ(CRect(image.left, 7, image.left + 16, 23), image);
    EXPECT_LE(image.right + 3, caption.left);
    EXPECT_GE(image.right + 3 + CaptionSize(L"MMM").cx, caption.right);
}

TEST_F(ComboButtonPicture, TheImageMayStandAboveTheCaption)
{
    const SampleIcon icon(8, 8, kRed);
    AddItem(L"MMM").icon = icon;
    Draw(CBTS_FLAT | CBTS_SHOWIMAGE | CBTS_IMAGEANDTEXT | CBTS_IMAGEABOVE);
    const CRect image = Found(CRect(0, 0, kWidth, kHeight), kRed);
    const CRect caption = Found(CRect(0, 0, kWidth, kHeight), kBlack);
    EXPECT_EQ(kHeight / 2 - (8 + 3 + CaptionSize(L"MMM").cy) / 2, image.top);
    EXPECT_EQ(kWidth / 2 - 4, image.left);
    EXPECT_EQ(8, image.Height());
    EXPECT_LE(image.bottom + 3, caption.top);
}

TEST_F(ComboButtonPicture, TheCaptionIsTheItemsNameNotTheWindowText)
{
    AddItem(L"MMM");
    Draw(CBTS_FLAT);
    const CRect caption = Found(Inner(4), kBlack);
    m_button->SetWindowText(L"another, longer text");
    Draw(CBTS_FLAT);
    EXPECT_EQ(caption, Found(Inner(4), kBlack));
    m_items[0]->name = L"";
    Draw(CBTS_FLAT);
    EXPECT_EQ(0, m_canvas.Count(Inner(4), kBlack));
}

TEST_F(ComboButtonPicture, WhatIsTooWideEndsAtTheDropZone)
{
    const CRect dropZone(kWidth - 17, 0, kWidth, kHeight);
    const SampleIcon icon(2 * kWidth, 8, kRed);
    AddItem(L"");
    AddItem(L"");
    for (const int style : {CBTS_FLAT + 0, CBTS_FLAT | CBTS_SHOWIMAGE})
    {
        m_items[0]->name = L"";
        m_items[0]->icon = NULL;
        Draw(style);
        const int black = m_canvas.Count(dropZone, kBlack, 0);
        const int background = m_canvas.Count(dropZone, ::GetSysColor(COLOR_BTNFACE), 0);
        m_items[0]->name = L"MMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMM";
        m_items[0]->icon = icon;
        Draw(style);
        EXPECT_EQ(black, m_canvas.Count(dropZone, kBlack, 0)) << style;
        EXPECT_EQ(background, m_canvas.Count(dropZone, ::GetSysColor(COLOR_BTNFACE), 0)) << style;
    }
}

TEST_F(ComboButtonPicture, AfterARemovalTheFaceShowsTheNewDefault)
{
    AddItem(L"");
    AddItem(L"MMM");
    AddItem(L"");
    Draw(CBTS_FLAT);
    const CRect face(4, 4, kWidth - 20, kHeight - 4);
    EXPECT_EQ(0, m_canvas.Count(face, kBlack));
    m_button->RemoveItem(m_items[0].get());
    Draw(CBTS_FLAT);
    EXPECT_LT(0, m_canvas.Count(face, kBlack));
}

TEST_F(ComboButtonPicture, DisabledContentsAreNotDrawnInFullColour)
{
    const SampleIcon icon(16, 16, kRed);
    const SampleBitmap bitmap(16, 16, kGreen);
    TestItem& item = AddItem(L"MMM");
    const struct
    {
        const char* name;
        bool enabled;
        UINT state;
        bool full;
    } rows[] = {
        {"enabled", true, 0, true},
        {"disabled item", false, 0, false},
        {"disabled button", true, ODS_DISABLED, false},
        {"grey button", true, ODS_GRAYED, false},
    };
    for (const auto& row : rows)
    {
        item.enabled = row.enabled;
        item.icon = icon;
        item.bitmap = NULL;
        Draw(CBTS_FLAT | CBTS_SHOWIMAGE | CBTS_IMAGEANDTEXT, row.state);
        EXPECT_EQ(row.full ? 256 : 0, m_canvas.Count(Inner(4), kRed)) << row.name;
        EXPECT_EQ(row.full, m_canvas.Count(Inner(4), kBlack) > 0) << row.name;
        EXPECT_GT(m_canvas.Count(Inner(4), ::GetSysColor(COLOR_BTNSHADOW)), row.full ? -1 : 0) << row.name;
        item.icon = NULL;
        item.bitmap = bitmap;
        Draw(CBTS_FLAT | CBTS_SHOWIMAGE, row.state);
        EXPECT_EQ(row.full ? 256 : 0, m_canvas.Count(Inner(4), kGreen)) << row.name;
    }
}

TEST_F(ComboButtonPicture, WithoutItemsThereAreBackgroundAndBorderOnly)
{
    Draw(CBTS_ROUND | CBTS_GRADIENT);
    for (int y = 3; y < kHeight - 3; ++y)
        EXPECT_TRUE(IsPlain(y, 3, kWidth - 3)) << y;
    ExpectFrame(Inner(0), kRound, kRound, "border");
}

TEST_F(ComboButtonPicture, ATinyButtonIsDrawnWithoutGoingOutside)
{
    AddItems(2);
    MakeHot();
    for (const int size : {0, 1, 4, 7})
    {
        DRAWITEMSTRUCT request = Request(ODS_FOCUS);
        request.rcItem = CRect(40, 10, 40 + size, 10 + size);
        m_button->SetComboButtonStyle(CBTS_HOTFRAME | CBTS_SHOWIMAGE);
        m_button->DrawItemBorder(&request);
        const CRect inside(request.rcItem);
        const int untouched = m_canvas.Count(CRect(0, 0, kWidth, kHeight), kBefore, 0);
        EXPECT_EQ(kWidth * kHeight - size * size, untouched - m_canvas.Count(inside, kBefore, 0)) << size;
    }
}

// How it is drawn.

namespace
{

class RecordingButton : public CComboButton
{
public:
    std::vector<std::pair<char, LPDRAWITEMSTRUCT>> calls;

protected:
    void DrawItemBorder(LPDRAWITEMSTRUCT request) override { calls.emplace_back('b', request); }
    void DrawItemContent(LPDRAWITEMSTRUCT request) override { calls.emplace_back('c', request); }
    void DrawItemComboFlag(LPDRAWITEMSTRUCT request) override { calls.emplace_back('f', request); }
};

} // namespace

TEST_F(ComboButtonPicture, TheThreePartsAreDrawnInOrderAndMayBeReplaced)
{
    RecordingButton button;
    button.Create(L"", WS_CHILD, kPlace, m_owner.get(), 8);
    DRAWITEMSTRUCT request = Request(0);
    button.DrawItem(&request);
    const std::vector<std::pair<char, LPDRAWITEMSTRUCT>> expected = {{'b', &request}, {'c', &request}, {'f', &request}};
    EXPECT_EQ(expected, button.calls);
    button.DestroyWindow();
}

TEST_F(ComboButtonPicture, TheDeviceContextIsLeftAsItWas)
{
    const SampleIcon icon(16, 16, kRed);
    AddItem(L"MMM").icon = icon;
    AddItem(L"other");
    MakeHot();
    const HDC dc = m_canvas.Dc();
    const UINT kinds[] = {OBJ_PEN, OBJ_BRUSH, OBJ_FONT, OBJ_BITMAP};
    std::vector<HGDIOBJ> before;
    for (const UINT kind : kinds)
        before.push_back(::GetCurrentObject(dc, kind));
    for (const UINT style : {0xFFu, 0xFEu, 0x31u, 0x80u})
    {
        Draw(style, ODS_FOCUS);
        for (size_t i = 0; i < before.size(); ++i)
            EXPECT_EQ(before[i], ::GetCurrentObject(dc, kinds[i])) << style;
        EXPECT_EQ(OPAQUE, ::GetBkMode(dc)) << style;
        EXPECT_EQ(RGB(0, 0, 0), ::GetTextColor(dc)) << style;
        EXPECT_EQ(RGB(255, 255, 255), ::GetBkColor(dc)) << style;
    }
}

TEST_F(ComboButtonPicture, DrawingLeavesNoObjectBehind)
{
    const SampleIcon icon(16, 16, kRed);
    const SampleBitmap bitmap(16, 16, kGreen);
    AddItem(L"MMM");
    AddItem(L"other");
    size_t counted = 0;
    for (int round = 0; round < 4; ++round)
    {
        for (UINT style = 1; style < 256; style += 2)
        {
            m_items[0]->icon = style % 4 == 1 ? static_cast<HICON>(icon) : NULL;
            m_items[0]->bitmap = bitmap;
            Draw(style, ODS_FOCUS);
            Draw(style + 1, ODS_SELECTED | ODS_DISABLED);
        }
        const size_t now = CountGdiObjects();
        EXPECT_TRUE(round < 2 || now == counted) << counted << " objects became " << now;
        counted = now;
    }
}

TEST_F(ComboButtonPicture, TheWindowPaintsItself)
{
    const SampleIcon icon(16, 16, kRed);
    AddItem(L"MMM").icon = icon;
    m_button->SetComboButtonStyle(CBTS_SHOWIMAGE | CBTS_ROUND);
    m_button->UpdateWindow();
    const HDC dc = ::GetDC(m_button->m_hWnd);
    EXPECT_EQ(kRed, ::GetPixel(dc, kWidth / 2, kHeight / 2));
    EXPECT_EQ(kRound, ::GetPixel(dc, kWidth / 2, 0));
    ::ReleaseDC(m_button->m_hWnd, dc);
}
