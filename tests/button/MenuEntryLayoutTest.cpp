// The rules of the menu's entries: mnemonics, sizes, places, and what is drawn in which state.
#include "button/MenuEntryLayout.h"

#include <gtest/gtest.h>

// The character after the first "&", without the bit that makes letters small.

TEST(MenuMnemonic, IsTheCharacterAfterTheFirstAmpersand)
{
    const struct
    {
        const char* name;
        const wchar_t* text;
        UINT expected;
    } rows[] = {
        {"at the beginning", L"&Open", L'O'},
        {"inside, small", L"Op&en", L'E'},
        {"none", L"Open", 0},
        {"empty text", L"", 0},
        {"null text", NULL, 0},
        {"the first of two", L"&a&b", L'A'},
        {"the same letter twice", L"&Save &Shape", L'S'},
        {"a doubled one is a mnemonic like any other", L"R&&D", L'&' & ~0x20u},
        {"at the end nothing follows", L"Open&", 0},
        {"alone", L"&", 0},
        {"a digit loses the bit as well", L"&1 file", 0x11},
        {"a blank", L"a& b", 0},
        {"behind Chinese text", L"\u65B0\u5EFA(&n)", L'N'},
        {"a Chinese character", L"&\u65B0", 0x65B0 & ~0x20u},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.expected, MnemonicOf(row.text)) << row.name;
}

TEST(MenuMnemonic, TypedCharactersTakeTheSameForm)
{
    EXPECT_EQ(UINT(L'O'), MenuKeyOf(L'o'));
    EXPECT_EQ(UINT(L'O'), MenuKeyOf(L'O'));
    EXPECT_EQ(0x11u, MenuKeyOf(L'1'));
    EXPECT_EQ(0u, MenuKeyOf(L' '));
}

// Images are 16 to 160 pixels wide and high.

TEST(MenuImage, IsClampedEachWay)
{
    const struct
    {
        const char* name;
        CSize image, expected;
    } rows[] = {
        {"none", {0, 0}, {16, 16}},
        {"just too small", {15, 15}, {16, 16}},
        {"smallest", {16, 16}, {16, 16}},
        {"between", {17, 159}, {17, 159}},
        {"largest", {160, 160}, {160, 160}},
        {"just too large", {161, 161}, {160, 160}},
        {"long and flat", {300, 8}, {160, 16}},
        {"high and narrow", {8, 300}, {16, 160}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.expected, MenuImageSize(row.image)) << row.name;
}

TEST(MenuEntrySize, HasRoomForBothAndTheLargerHeight)
{
    EXPECT_EQ(CSize(50 + 16 + 18, 22), MeasureMenuEntry(CSize(16, 16), CSize(50, 13)));
    EXPECT_EQ(CSize(50 + 16 + 18, 26), MeasureMenuEntry(CSize(16, 16), CSize(50, 20)));
    EXPECT_EQ(CSize(16 + 18, 22), MeasureMenuEntry(CSize(16, 16), CSize(0, 0)));
}

TEST(MenuEntryPlaces, OfAnEntryInTheMiddleOfTheMenu)
{
    const CRect entry(0, 44, 200, 66);
    const MenuEntryLayout layout = LayOutMenuEntry(entry, CSize(16, 16), CSize(50, 13));
    EXPECT_EQ(CRect(0, 44, 22, 66), layout.imageColumn);
    EXPECT_EQ(CRect(22, 44, 200, 66), layout.textArea);
    EXPECT_EQ(CPoint(3, 55 - 8), layout.image);
    EXPECT_EQ(CPoint(34, 55 - 6), layout.text);
    const CPoint mark[] = {{25, 53}, {26, 54}, {27, 55}, {28, 54}, {29, 53}, {30, 52}, {31, 51}};
    for (int i = 0; i < MENU_MARK_STROKES; ++i)
        EXPECT_EQ(mark[i], layout.mark[i]) << i;
}

TEST(MenuEntryPlaces, WhatIsMeasuredHoldsWhatIsLaidOut)
{
    const CSize image(40, 24);
    const CSize text(73, 15);
    const CRect entry(CPoint(0, 0), MeasureMenuEntry(image, text));
    const MenuEntryLayout layout = LayOutMenuEntry(entry, image, text);
    EXPECT_EQ(entry.right, layout.text.x + text.cx);
    EXPECT_LE(layout.image.x + image.cx, layout.imageColumn.right);
    EXPECT_LE(entry.top, layout.image.y);
    EXPECT_GE(entry.bottom, layout.image.y + image.cy);
}

TEST(MenuEntryPlaces, TextsLineUpWithAndWithoutAnImageOfTheSmallestSize)
{
    const CRect entry(0, 0, 100, 22);
    const CSize without = MenuImageSize(CSize(0, 0));
    const CSize with = MenuImageSize(CSize(16, 16));
    EXPECT_EQ(LayOutMenuEntry(entry, with, CSize(9, 9)).text, LayOutMenuEntry(entry, without, CSize(9, 9)).text);
}

TEST(MenuEntryLook, FollowsActionAndState)
{
    const struct
    {
        const char* name;
        UINT action, state;
        bool fillsEntry, fillsTextArea, highlighted, disabled;
    } rows[] = {
        {"first time", ODA_DRAWENTIRE, 0, true, false, false, false},
        {"first time under the cursor", ODA_DRAWENTIRE, ODS_SELECTED, true, false, true, false},
        {"cursor comes", ODA_SELECT, ODS_SELECTED, false, false, true, false},
        {"cursor goes", ODA_SELECT, 0, false, true, false, false},
        {"focus alone", ODA_FOCUS, ODS_SELECTED, false, false, false, false},
        {"both actions", ODA_DRAWENTIRE | ODA_SELECT, 0, true, true, false, false},
        {"grey", ODA_DRAWENTIRE, ODS_GRAYED, true, false, false, true},
        {"disabled", ODA_DRAWENTIRE, ODS_DISABLED, true, false, false, true},
        {"grey under the cursor", ODA_SELECT, ODS_SELECTED | ODS_GRAYED, false, false, true, true},
    };
    for (const auto& row : rows)
    {
        const MenuEntryLook look = LookOfMenuEntry(row.action, row.state);
        EXPECT_EQ(row.fillsEntry, look.fillsEntry) << row.name;
        EXPECT_EQ(row.fillsTextArea, look.fillsTextArea) << row.name;
        EXPECT_EQ(row.highlighted, look.highlighted) << row.name;
        EXPECT_EQ(row.disabled, look.disabled) << row.name;
    }
}
