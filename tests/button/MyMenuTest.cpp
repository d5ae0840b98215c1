// What the owner-drawn menu records of its entries, how it measures them and finds them by their keys.
#include "button/MyMenu.h"

#include "GdiCount.h"
#include "ImageSamples.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace
{

const UINT kOpen = 2001;
const UINT kSave = 2002;

class CommandWindow : public CWnd
{
public:
    CommandWindow() { CreateEx(0, AfxRegisterWndClass(0), L"commands", WS_POPUP, CRect(0, 0, 50, 50), NULL, 0); }
    ~CommandWindow() override { DestroyWindow(); }

    std::vector<WPARAM> commands;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        commands.push_back(wParam);
        EXPECT_EQ(0, lParam);
        return TRUE;
    }
};

class MyMenu : public testing::Test
{
protected:
    static MEASUREITEMSTRUCT Untouched(UINT id)
    {
        MEASUREITEMSTRUCT item = {};
        item.CtlType = ODT_MENU;
        item.itemID = id;
        item.itemWidth = 5000;
        item.itemHeight = 6000;
        return item;
    }

    CSize Measure(UINT id)
    {
        MEASUREITEMSTRUCT item = Untouched(id);
        m_menu.MeasureItem(&item);
        return CSize(static_cast<int>(item.itemWidth), static_cast<int>(item.itemHeight));
    }

    // How much wider or higher an entry is than one without text and image, whose size is known.
    CSize Growth(UINT id) { return Measure(id) - CSize(16 + 18, 16 + 6); }

    CommandWindow m_owner;
    CMyMenu m_menu;
};

// The extent of a text in the font that menus are written in.
CSize MenuTextSize(const wchar_t* text)
{
    NONCLIENTMETRICS metrics = {};
    metrics.cbSize = sizeof(metrics);
    ::SystemParametersInfo(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
    const HFONT font = ::CreateFontIndirect(&metrics.lfMenuFont);
    const HDC dc = ::GetDC(NULL);
    const HGDIOBJ before = ::SelectObject(dc, font);
    SIZE size = {};
    ::GetTextExtentPoint32(dc, text, static_cast<int>(::wcslen(text)), &size);
    ::SelectObject(dc, before);
    ::ReleaseDC(NULL, dc);
    ::DeleteObject(font);
    return size;
}

} // namespace

// Sizes.

TEST_F(MyMenu, AnEntryWithoutImageKeepsTheSmallestImageColumn)
{
    m_menu.AddIconEntry(&m_owner, kOpen, L"", NULL, FALSE);
    m_menu.AddBitmapEntry(&m_owner, kSave, L"", NULL, FALSE);
    EXPECT_EQ(CSize(16 + 18, 16 + 6), Measure(kOpen));
    EXPECT_EQ(CSize(16 + 18, 16 + 6), Measure(kSave));
}

TEST_F(MyMenu, TheTextIsMeasuredInTheMenuFontWithItsAmpersand)
{
    const wchar_t* const text = L"&Wide text of an entry";
    m_menu.AddIconEntry(&m_owner, kOpen, text, NULL, FALSE);
    const CSize size = MenuTextSize(text);
    EXPECT_EQ(16 + 18 + size.cx, Measure(kOpen).cx);
    EXPECT_EQ(6 + (size.cy > 16 ? size.cy : 16), Measure(kOpen).cy);
}

TEST_F(MyMenu, ImagesAreMeasuredAndClamped)
{
    const struct
    {
        const char* name;
        int width, height;
        CSize growth;
    } rows[] = {
        {"as the smallest", 16, 16, {0, 0}}, {"too small", 4, 5, {0, 0}},         {"between", 40, 24, {24, 8}},
        {"long and flat", 300, 8, {144, 0}}, {"too large", 161, 200, {144, 144}},
    };
    for (const auto& row : rows)
    {
        const SampleBitmap bitmap(row.width, row.height, RGB(255, 0, 0));
        const SampleIcon icon(row.width, row.height, RGB(255, 0, 0));
        m_menu.AddBitmapEntry(&m_owner, kOpen, L"", bitmap, FALSE);
        m_menu.AddIconEntry(&m_owner, kSave, L"", icon, FALSE);
        EXPECT_EQ(row.growth, Growth(kOpen)) << row.name << ", bitmap";
        EXPECT_EQ(row.growth, Growth(kSave)) << row.name << ", icon";
    }
}

TEST_F(MyMenu, AnIconWithoutColoursCountsOnce)
{
    const HICON icon = SampleIcon::CreateMonochrome(32);
    m_menu.AddIconEntry(&m_owner, kOpen, L"", icon, FALSE);
    EXPECT_EQ(CSize(16, 16), Growth(kOpen));
    ::DestroyIcon(icon);
}

TEST_F(MyMenu, WhatIsNoImageCountsAsNone)
{
    const HICON gone = SampleIcon::CreateMonochrome(48);
    ::DestroyIcon(gone);
    const HBRUSH brush = ::CreateSolidBrush(RGB(1, 2, 3));
    const HICON icons[] = {gone, reinterpret_cast<HICON>(static_cast<UINT_PTR>(0x12345)),
                           reinterpret_cast<HICON>(m_owner.m_hWnd)};
    for (const HICON icon : icons)
    {
        m_menu.AddIconEntry(&m_owner, kOpen, L"", icon, FALSE);
        EXPECT_EQ(CSize(0, 0), Growth(kOpen));
    }
    const HBITMAP bitmaps[] = {reinterpret_cast<HBITMAP>(brush),
                               reinterpret_cast<HBITMAP>(static_cast<UINT_PTR>(0x12345))};
    for (const HBITMAP bitmap : bitmaps)
    {
        m_menu.AddBitmapEntry(&m_owner, kOpen, L"", bitmap, FALSE);
        EXPECT_EQ(CSize(0, 0), Growth(kOpen));
    }
    ::DeleteObject(brush);
}

TEST_F(MyMenu, AnUnknownEntryIsNotMeasured)
{
    m_menu.AddIconEntry(&m_owner, kOpen, L"Open", NULL, FALSE);
    EXPECT_EQ(CSize(5000, 6000), Measure(kSave));
}

TEST_F(MyMenu, ALaterRecordReplacesTheEarlierOne)
{
    const SampleBitmap bitmap(40, 24, RGB(255, 0, 0));
    m_menu.AddBitmapEntry(&m_owner, kOpen, L"A long text that is no more", bitmap, FALSE);
    m_menu.AddIconEntry(&m_owner, kOpen, L"", NULL, FALSE);
    EXPECT_EQ(CSize(0, 0), Growth(kOpen));
}

TEST_F(MyMenu, ANullTextIsEmptyAndANullOwnerIsTheScreen)
{
    m_menu.AddIconEntry(NULL, kOpen, NULL, NULL, FALSE);
    m_menu.AddBitmapEntry(NULL, kSave, NULL, NULL, FALSE);
    EXPECT_EQ(CSize(0, 0), Growth(kOpen));
    EXPECT_EQ(CSize(0, 0), Growth(kSave));
}

TEST_F(MyMenu, RecordingLeavesNoObjectBehind)
{
    const SampleIcon icon(32, 32, RGB(255, 0, 0));
    const HICON monochrome = SampleIcon::CreateMonochrome(32);
    const SampleBitmap bitmap(32, 32, RGB(255, 0, 0));
    size_t counted = 0;
    for (int round = 0; round < 3; ++round)
    {
        std::unique_ptr<CMyMenu> menu(new CMyMenu);
        for (UINT id = 1; id <= 20; ++id)
        {
            menu->AddIconEntry(&m_owner, id, L"text", icon, FALSE);
            menu->AddIconEntry(&m_owner, id + 100, L"text", monochrome, FALSE);
            menu->AddBitmapEntry(&m_owner, id + 200, L"text", bitmap, FALSE);
        }
        menu.reset();
        const size_t now = CountGdiObjects();
        EXPECT_TRUE(round == 0 || now == counted) << counted << " objects became " << now;
        counted = now;
    }
    ::DestroyIcon(monochrome);
}

// Mnemonics.

TEST_F(MyMenu, ATypedMnemonicSendsTheCommandAndClosesTheMenu)
{
    m_menu.AddIconEntry(&m_owner, kOpen, L"&Open", NULL, FALSE);
    m_menu.AddIconEntry(&m_owner, kSave, L"Op&en more", NULL, FALSE);
    const struct
    {
        wchar_t typed;
        WPARAM command;
    } rows[] = {{L'o', kOpen}, {L'O', kOpen}, {L'e', kSave}, {L'E', kSave}};
    for (const auto& row : rows)
    {
        m_owner.commands.clear();
        EXPECT_EQ(MAKELRESULT(0, MNC_CLOSE), m_menu.HandleMenuChar(&m_owner, row.typed, MF_POPUP)) << row.typed;
        EXPECT_EQ(std::vector<WPARAM>{row.command}, m_owner.commands) << row.typed;
    }
}

TEST_F(MyMenu, OtherCharactersAreIgnored)
{
    EXPECT_EQ(0, m_menu.HandleMenuChar(&m_owner, L'o', MF_POPUP));
    m_menu.AddIconEntry(&m_owner, kOpen, L"&Open", NULL, FALSE);
    for (const wchar_t typed : {L'p', L'1', L' ', L'&', L'\u65B0'})
        EXPECT_EQ(0, m_menu.HandleMenuChar(&m_owner, typed, MF_POPUP)) << static_cast<int>(typed);
    EXPECT_TRUE(m_owner.commands.empty());
}

TEST_F(MyMenu, WithoutAnOwnerNothingIsChosen)
{
    m_menu.AddIconEntry(&m_owner, kOpen, L"&Open", NULL, FALSE);
    EXPECT_EQ(0, m_menu.HandleMenuChar(NULL, L'o', 0));
}

TEST_F(MyMenu, ARepeatedMnemonicChoosesOneOfItsEntriesAlwaysTheSame)
{
    m_menu.AddIconEntry(&m_owner, kOpen, L"&Same", NULL, FALSE);
    m_menu.AddIconEntry(&m_owner, kSave, L"&same", NULL, FALSE);
    m_menu.HandleMenuChar(&m_owner, L's', MF_POPUP);
    m_menu.HandleMenuChar(&m_owner, L'S', MF_POPUP);
    ASSERT_EQ(2u, m_owner.commands.size());
    EXPECT_EQ(m_owner.commands[0], m_owner.commands[1]);
    EXPECT_TRUE(m_owner.commands[0] == kOpen || m_owner.commands[0] == kSave);
}

// The form that mnemonics are compared in does not tell these from letters and digits.
TEST_F(MyMenu, ADoubledAmpersandIsItsOwnMnemonic)
{
    m_menu.AddIconEntry(&m_owner, kOpen, L"R&&D", NULL, FALSE);
    EXPECT_EQ(MAKELRESULT(0, MNC_CLOSE), m_menu.HandleMenuChar(&m_owner, L'&', MF_POPUP));
    EXPECT_EQ(0, m_menu.HandleMenuChar(&m_owner, L'd', MF_POPUP));
}

// A blank loses the only bit it has, and so it means the entries that have no mnemonic.
TEST_F(MyMenu, ABlankChoosesAnEntryWithoutMnemonic)
{
    m_menu.AddIconEntry(&m_owner, kOpen, L"&Open", NULL, FALSE);
    m_menu.AddIconEntry(&m_owner, kSave, L"Save", NULL, FALSE);
    EXPECT_EQ(MAKELRESULT(0, MNC_CLOSE), m_menu.HandleMenuChar(&m_owner, L' ', MF_POPUP));
    EXPECT_EQ(std::vector<WPARAM>{kSave}, m_owner.commands);
}

TEST_F(MyMenu, SeparatorsAreNotRecorded)
{
    m_menu.CreatePopupMenu();
    m_menu.AppendMenu(MF_SEPARATOR);
    EXPECT_EQ(0, m_menu.HandleMenuChar(&m_owner, L' ', MF_POPUP));
    EXPECT_TRUE(m_owner.commands.empty());
}
