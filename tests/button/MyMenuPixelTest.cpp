// What the owner-drawn menu paints of an entry, into a picture in memory and on the screen.
#include "ComboButtonFixture.h"

#include "DibCanvas.h"
#include "GdiCount.h"
#include "MenuScript.h"
#include "button/MyMenu.h"

namespace
{

const UINT kEntry = 2001;
const UINT kUnknown = 2002;
const int kCanvasWidth = 300;
const int kCanvasHeight = 60;
const COLORREF kBefore = RGB(255, 0, 255);
const COLORREF kBlue = RGB(0, 0, 255);
const COLORREF kWhite = RGB(255, 255, 255);
const COLORREF kBlack = RGB(0, 0, 0);
const COLORREF kRed = RGB(255, 0, 0);
const int kGradientStep = 4;

class MyMenuPicture : public testing::Test
{
protected:
    MyMenuPicture() : m_canvas(kCanvasWidth, kCanvasHeight, kBefore) {}

    void Draw(UINT action, UINT state, UINT id = kEntry)
    {
        DRAWITEMSTRUCT request = {};
        request.CtlType = ODT_MENU;
        request.itemID = id;
        request.itemAction = action;
        request.itemState = state;
        request.hDC = m_canvas.Dc();
        request.rcItem = kPlace;
        m_menu.DrawItem(&request);
    }

    void DrawAnew(UINT action, UINT state, UINT id = kEntry)
    {
        m_canvas.Clear(kBefore);
        Draw(action, state, id);
    }

    // The entry stands between rows 10 and 32, so that its middle is 21.
    const CRect kPlace = CRect(0, 10, 250, 32);
    const CRect kText = CRect(22, 10, 250, 32);
    CMyMenu m_menu;
    DibCanvas m_canvas;
};

} // namespace

TEST_F(MyMenuPicture, AnEntryIsAColumnAndABackground)
{
    m_menu.AddIconEntry(NULL, kEntry, L"", NULL, FALSE);
    DrawAnew(ODA_DRAWENTIRE, 0);
    const COLORREF background = ::GetSysColor(COLOR_MENU);
    EXPECT_EQ(kText.Width() * kText.Height(), m_canvas.Count(kText, background, 0));
    for (const LONG y : {kPlace.top, kPlace.bottom - 1})
    {
        EXPECT_TRUE(m_canvas.Near(0, y, RGB(240, 240, 240), 0));
        EXPECT_TRUE(m_canvas.Near(11, y, RGB(220, 220, 220), kGradientStep));
        EXPECT_TRUE(m_canvas.Near(21, y, RGB(200, 200, 200), kGradientStep));
    }
    EXPECT_EQ(kCanvasWidth * kCanvasHeight - kPlace.Width() * kPlace.Height(),
              m_canvas.Count(CRect(0, 0, kCanvasWidth, kCanvasHeight), kBefore, 0));
}

TEST_F(MyMenuPicture, TheHighlightIsPureBlueWithWhiteText)
{
    m_menu.AddIconEntry(NULL, kEntry, L"MMM", NULL, FALSE);
    DrawAnew(ODA_DRAWENTIRE, 0);
    EXPECT_LT(0, m_canvas.Count(kText, kBlack));
    for (const UINT action : {ODA_DRAWENTIRE, ODA_SELECT})
    {
        DrawAnew(action, ODS_SELECTED);
        EXPECT_TRUE(m_canvas.Near(22, 10, kBlue, 0));
        EXPECT_TRUE(m_canvas.Near(249, 31, kBlue, 0));
        EXPECT_TRUE(m_canvas.Near(21, 10, RGB(200, 200, 200), kGradientStep));
        EXPECT_LT(0, m_canvas.Count(kText, kWhite));
        EXPECT_EQ(0, m_canvas.Count(kText, kBlack));
    }
}

TEST_F(MyMenuPicture, TheHighlightIsTakenAway)
{
    m_menu.AddIconEntry(NULL, kEntry, L"MMM", NULL, FALSE);
    DrawAnew(ODA_DRAWENTIRE, ODS_SELECTED);
    Draw(ODA_SELECT, 0);
    EXPECT_EQ(0, m_canvas.Count(kText, kBlue));
    EXPECT_TRUE(m_canvas.Near(22, 10, ::GetSysColor(COLOR_MENU), 0));
    EXPECT_LT(0, m_canvas.Count(kText, kBlack));
}

TEST_F(MyMenuPicture, AChangeOfTheFocusAloneFillsNothing)
{
    m_menu.AddIconEntry(NULL, kEntry, L"", NULL, FALSE);
    DrawAnew(ODA_FOCUS, ODS_SELECTED);
    EXPECT_EQ(kText.Width() * kText.Height(), m_canvas.Count(kText, kBefore, 0));
}

TEST_F(MyMenuPicture, TheDefaultEntryHasACheckMark)
{
    const CPoint tops[] = {{25, 19}, {26, 20}, {27, 21}, {28, 20}, {29, 19}, {30, 18}, {31, 17}};
    const CRect around(22, 10, 34, 32);
    m_menu.AddIconEntry(NULL, kEntry, L"", NULL, TRUE);
    const struct
    {
        UINT state;
        COLORREF mark;
    } rows[] = {{0, kBlack}, {ODS_SELECTED, kWhite}, {ODS_GRAYED, kBlack}};
    for (const auto& row : rows)
    {
        DrawAnew(ODA_DRAWENTIRE, row.state);
        for (const CPoint& top : tops)
        {
            for (int i = 0; i < 3; ++i)
                EXPECT_TRUE(m_canvas.Near(top.x, top.y + i, row.mark, 0)) << top.x << ", " << i;
        }
        EXPECT_EQ(21, m_canvas.Count(around, row.mark, 0));
    }
    m_menu.AddIconEntry(NULL, kEntry, L"", NULL, FALSE);
    DrawAnew(ODA_DRAWENTIRE, 0);
    EXPECT_EQ(0, m_canvas.Count(around, kBlack));
}

TEST_F(MyMenuPicture, TheImageStandsInTheMiddleOfItsColumn)
{
    const SampleIcon icon(16, 16, kRed);
    const SampleBitmap bitmap(16, 16, kRed);
    const CRect image(3, 13, 19, 29);
    m_menu.AddIconEntry(NULL, kEntry, L"", icon, FALSE);
    DrawAnew(ODA_DRAWENTIRE, 0);
    EXPECT_EQ(256, m_canvas.Count(image, kRed));
    EXPECT_EQ(256, m_canvas.Count(kPlace, kRed));
    m_menu.AddBitmapEntry(NULL, kEntry, L"", bitmap, FALSE);
    DrawAnew(ODA_DRAWENTIRE, ODS_SELECTED);
    EXPECT_EQ(256, m_canvas.Count(image, kRed));
    EXPECT_EQ(256, m_canvas.Count(kPlace, kRed));
}

TEST_F(MyMenuPicture, ALongBitmapIsCutAtTheLargestWidth)
{
    const SampleBitmap bitmap(300, 8, kRed);
    m_menu.AddBitmapEntry(NULL, kEntry, L"", bitmap, FALSE);
    DrawAnew(ODA_DRAWENTIRE, 0);
    EXPECT_TRUE(m_canvas.Near(3, 14, kRed, 0));
    EXPECT_TRUE(m_canvas.Near(162, 14, kRed, 0));
    EXPECT_FALSE(m_canvas.Near(163, 14, kRed));
    EXPECT_TRUE(m_canvas.Near(165, 31, RGB(200, 200, 200), kGradientStep));
    EXPECT_TRUE(m_canvas.Near(166, 31, ::GetSysColor(COLOR_MENU), 0));
}

TEST_F(MyMenuPicture, TheTextBeginsTwelvePixelsInTheTextArea)
{
    m_menu.AddIconEntry(NULL, kEntry, L"MMM", NULL, FALSE);
    MEASUREITEMSTRUCT size = {};
    size.itemID = kEntry;
    m_menu.MeasureItem(&size);
    DrawAnew(ODA_DRAWENTIRE, 0);
    // Exactly as wide as it was measured: the same font.
    EXPECT_EQ(m_canvas.Count(kText, kBlack),
              m_canvas.Count(CRect(34, 10, static_cast<LONG>(size.itemWidth), 32), kBlack));
    EXPECT_LT(0, m_canvas.Count(CRect(34, 10, 34 + 12, 32), kBlack));
}

TEST_F(MyMenuPicture, TheFontIsTheMenusWhateverTheContextHolds)
{
    m_menu.AddIconEntry(NULL, kEntry, L"MMM", NULL, FALSE);
    DrawAnew(ODA_DRAWENTIRE, 0);
    const int pixels = m_canvas.Count(kText, kBlack);
    const HFONT huge = ::CreateFontW(40, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma");
    const HGDIOBJ before = ::SelectObject(m_canvas.Dc(), huge);
    DrawAnew(ODA_DRAWENTIRE, 0);
    EXPECT_EQ(pixels, m_canvas.Count(kText, kBlack));
    EXPECT_EQ(huge, ::GetCurrentObject(m_canvas.Dc(), OBJ_FONT));
    ::SelectObject(m_canvas.Dc(), before);
    ::DeleteObject(huge);
}

TEST_F(MyMenuPicture, ADisabledEntryIsNotDrawnInFullColour)
{
    const SampleIcon icon(16, 16, kRed);
    const SampleBitmap bitmap(16, 16, kRed);
    for (const UINT state : {ODS_GRAYED, ODS_DISABLED, ODS_GRAYED | ODS_SELECTED})
    {
        m_menu.AddIconEntry(NULL, kEntry, L"MMM", icon, FALSE);
        DrawAnew(ODA_DRAWENTIRE, state);
        EXPECT_EQ(0, m_canvas.Count(kPlace, kRed)) << state;
        EXPECT_EQ(0, m_canvas.Count(kText, kBlack)) << state;
        EXPECT_LT(0, m_canvas.Count(kText, ::GetSysColor(COLOR_BTNSHADOW))) << state;
        m_menu.AddBitmapEntry(NULL, kEntry, L"MMM", bitmap, FALSE);
        DrawAnew(ODA_DRAWENTIRE, state);
        EXPECT_EQ(0, m_canvas.Count(kPlace, kRed)) << state;
    }
}

TEST_F(MyMenuPicture, AnUnknownEntryIsDrawnEmpty)
{
    m_menu.AddIconEntry(NULL, kEntry, L"MMM", NULL, TRUE);
    DrawAnew(ODA_DRAWENTIRE, 0, kUnknown);
    EXPECT_TRUE(m_canvas.Near(0, 10, RGB(240, 240, 240), 0));
    const CRect rest(6, 10, 250, 32);
    EXPECT_EQ(rest.Width() * rest.Height(), m_canvas.Count(rest, ::GetSysColor(COLOR_MENU), 0));
}

TEST_F(MyMenuPicture, WhatIsNoImageLeavesItsColumnEmpty)
{
    m_menu.AddIconEntry(NULL, kEntry, L"", NULL, FALSE);
    DrawAnew(ODA_DRAWENTIRE, 0);
    std::vector<COLORREF> column;
    for (int x = 0; x < 22; ++x)
        column.push_back(m_canvas.Pixel(x, 21));
    m_menu.AddIconEntry(NULL, kEntry, L"", reinterpret_cast<HICON>(static_cast<UINT_PTR>(0x12345)), FALSE);
    DrawAnew(ODA_DRAWENTIRE, 0);
    for (int x = 0; x < 22; ++x)
        EXPECT_EQ(column[static_cast<size_t>(x)], m_canvas.Pixel(x, 21)) << x;
}

TEST_F(MyMenuPicture, TheDeviceContextIsLeftAsItWasAndNothingBehind)
{
    const SampleIcon icon(16, 16, kRed);
    m_menu.AddIconEntry(NULL, kEntry, L"MMM", icon, TRUE);
    const HDC dc = m_canvas.Dc();
    const HGDIOBJ pen = ::GetCurrentObject(dc, OBJ_PEN);
    const HGDIOBJ font = ::GetCurrentObject(dc, OBJ_FONT);
    size_t counted = 0;
    for (int round = 0; round < 4; ++round)
    {
        for (const UINT state : {0u, UINT(ODS_SELECTED), UINT(ODS_GRAYED)})
            DrawAnew(ODA_DRAWENTIRE, state);
        const size_t now = CountGdiObjects();
        EXPECT_TRUE(round < 2 || now == counted) << counted << " objects became " << now;
        counted = now;
    }
    EXPECT_EQ(pen, ::GetCurrentObject(dc, OBJ_PEN));
    EXPECT_EQ(font, ::GetCurrentObject(dc, OBJ_FONT));
    EXPECT_EQ(OPAQUE, ::GetBkMode(dc));
    EXPECT_EQ(kBlack, ::GetTextColor(dc));
}

// On the screen.

namespace
{

class RecordingMenu : public CMyMenu
{
public:
    std::vector<UINT> measured;
    std::vector<UINT> drawn;

    void MeasureItem(LPMEASUREITEMSTRUCT item) override
    {
        measured.push_back(item->itemID);
        CMyMenu::MeasureItem(item);
    }
    void DrawItem(LPDRAWITEMSTRUCT item) override
    {
        drawn.push_back(item->itemID);
        CMyMenu::DrawItem(item);
    }
};

class MyMenuOnScreen : public ComboButtonFixture
{
};

} // namespace

TEST_F(MyMenuOnScreen, AMenuOwnedByAButtonDrawsItsEntriesAndTheSystemDrawsSeparators)
{
    RecordingMenu menu;
    menu.CreatePopupMenu();
    for (const UINT id : {2001u, 2002u})
    {
        menu.AppendMenu(MF_OWNERDRAW, id, L"entry");
        menu.AddIconEntry(m_button.get(), id, L"entry", NULL, FALSE);
        if (id == 2001u)
            menu.AppendMenu(MF_SEPARATOR);
    }
    CRect entry;
    MenuScript script;
    script.When([&] { return menu.drawn.size() >= 2; },
                [&] {
                    ::GetMenuItemRect(MenuScript::MenuWindow(), menu, 0, &entry);
                    ::EndMenu();
                });
    menu.TrackPopupMenu(TPM_LEFTALIGN, 300, 300, m_button.get());
    EXPECT_TRUE(script.IsDone());
    EXPECT_EQ((std::vector<UINT>{2001, 2002}), menu.measured);
    for (const UINT id : menu.drawn)
        EXPECT_TRUE(id == 2001 || id == 2002) << id;
    MEASUREITEMSTRUCT size = {};
    size.itemID = 2001;
    menu.CMyMenu::MeasureItem(&size);
    EXPECT_EQ(static_cast<LONG>(size.itemHeight), entry.Height());
    EXPECT_LE(static_cast<LONG>(size.itemWidth), entry.Width());
}
