// Which parts a combo button shows in which state, and where they stand.
#include "button/ComboButtonLayout.h"
#include "button/ComboButtonStyle.h"

#include <gtest/gtest.h>

namespace
{

const CRect kButton(0, 0, 120, 30);

ComboButtonState State(UINT style)
{
    ComboButtonState state = {};
    state.style = style;
    state.itemCount = 2;
    return state;
}

} // namespace

TEST(ComboButtonStyles, HaveTheirBits)
{
    EXPECT_EQ(0x01, CBTS_FLAT);
    EXPECT_EQ(0x02, CBTS_ROUND);
    EXPECT_EQ(0x04, CBTS_SEPARATORONHOT);
    EXPECT_EQ(0x08, CBTS_GRADIENT);
    EXPECT_EQ(0x10, CBTS_IMAGEANDTEXT);
    EXPECT_EQ(0x20, CBTS_SHOWIMAGE);
    EXPECT_EQ(0x40, CBTS_IMAGEABOVE);
    EXPECT_EQ(0x80, CBTS_HOTFRAME);
    EXPECT_EQ(170, CBTS_DEFAULT);
}

TEST(ComboButtonDropZone, ExistsFromTwoItemsOn)
{
    EXPECT_FALSE(HasDropZone(0));
    EXPECT_FALSE(HasDropZone(1));
    EXPECT_TRUE(HasDropZone(2));
    EXPECT_TRUE(HasDropZone(102));
    EXPECT_EQ(CRect(103, 0, 120, 30), DropZone(kButton));
    EXPECT_EQ(kButton, ContentArea(kButton, 1));
    EXPECT_EQ(CRect(0, 0, 103, 30), ContentArea(kButton, 2));
}

TEST(ComboButtonBorders, FollowStyleAndState)
{
    const struct
    {
        const char* name;
        UINT style;
        bool pressed, hot, menuShown;
        ComboButtonBorder expected;
    } rows[] = {
        {"round", CBTS_ROUND, false, false, false, BORDER_ROUND},
        {"round, pressed", CBTS_ROUND, true, false, false, BORDER_ROUND},
        {"raised", 0x100, false, false, false, BORDER_RAISED},
        {"sunken", 0x100, true, false, false, BORDER_SUNKEN},
        {"an open menu does not press the button", 0x100, false, false, true, BORDER_RAISED},
        {"flat at rest", CBTS_FLAT, false, false, false, BORDER_NONE},
        {"flat, pressed", CBTS_FLAT, true, false, false, BORDER_SUNKEN},
        {"flat, hot", CBTS_FLAT, false, true, false, BORDER_RAISED},
        {"flat, menu open", CBTS_FLAT, false, false, true, BORDER_RAISED},
        {"flat and round at rest", CBTS_FLAT | CBTS_ROUND, false, false, false, BORDER_NONE},
        {"flat and round, hot", CBTS_FLAT | CBTS_ROUND, false, true, false, BORDER_ROUND},
    };
    for (const auto& row : rows)
    {
        ComboButtonState state = State(row.style);
        state.pressed = row.pressed;
        state.hot = row.hot;
        state.menuShown = row.menuShown;
        EXPECT_EQ(row.expected, BorderOf(state)) << row.name;
    }
}

TEST(ComboButtonBorders, ABlackFrameStandsAroundTheRaisedBorderOfTheDefaultPushButtonWithTheFocus)
{
    const struct
    {
        const char* name;
        UINT style;
        bool pushDefault, focused, expected;
    } rows[] = {
        {"both", CBTS_GRADIENT, true, true, true},
        {"no focus", CBTS_GRADIENT, true, false, false},
        {"not the default", CBTS_GRADIENT, false, true, false},
        {"round", CBTS_ROUND, true, true, false},
        {"flat at rest", CBTS_FLAT, true, true, false},
    };
    for (const auto& row : rows)
    {
        ComboButtonState state = State(row.style);
        state.pushDefault = row.pushDefault;
        state.focused = row.focused;
        EXPECT_EQ(row.expected, ShowsBlackFrame(state)) << row.name;
        state.pressed = true;
        const bool flatPressed = row.style == CBTS_FLAT;
        EXPECT_EQ(row.expected || flatPressed, ShowsBlackFrame(state)) << row.name << ", pressed";
    }
}

TEST(ComboButtonHotFrame, NeedsTheMouseAndTheStyle)
{
    ComboButtonState state = State(CBTS_HOTFRAME);
    EXPECT_FALSE(ShowsHotFrame(state));
    state.hot = true;
    EXPECT_TRUE(ShowsHotFrame(state));
    state.style = CBTS_DEFAULT & ~CBTS_HOTFRAME;
    EXPECT_FALSE(ShowsHotFrame(state));
}

TEST(ComboButtonSeparator, IsShownUnlessItWaitsForTheMouse)
{
    ComboButtonState state = State(CBTS_GRADIENT);
    EXPECT_TRUE(ShowsSeparator(state));
    state.style = CBTS_SEPARATORONHOT;
    EXPECT_FALSE(ShowsSeparator(state));
    state.pressed = true;
    EXPECT_FALSE(ShowsSeparator(state));
    state.hot = true;
    EXPECT_TRUE(ShowsSeparator(state));
    state.hot = false;
    state.menuShown = true;
    EXPECT_TRUE(ShowsSeparator(state));
}

TEST(ComboButtonDropZone, LooksPressedWithTheButtonOrTheMenu)
{
    ComboButtonState state = State(CBTS_DEFAULT);
    state.hot = true;
    EXPECT_FALSE(IsDropZonePressed(state));
    state.pressed = true;
    EXPECT_TRUE(IsDropZonePressed(state));
    state.pressed = false;
    state.menuShown = true;
    EXPECT_TRUE(IsDropZonePressed(state));
}

TEST(ComboButtonContents, StandWhereTheStyleSays)
{
    const UINT both = CBTS_SHOWIMAGE | CBTS_IMAGEANDTEXT;
    const CSize image(16, 16);
    const struct
    {
        const char* name;
        UINT style;
        bool hasImage, showsImage, showsCaption;
        CPoint imageAt, captionAt;
    } rows[] = {
        // The area's centre is (51, 15), the caption 41 by 13.
        {"caption alone", CBTS_GRADIENT, true, false, true, {0, 0}, {31, 9}},
        {"image in place of the caption", CBTS_SHOWIMAGE, true, true, false, {43, 7}, {0, 0}},
        {"nothing to show as image", CBTS_SHOWIMAGE, false, false, true, {0, 0}, {31, 9}},
        {"nothing to show beside the caption", both, false, false, true, {0, 0}, {31, 9}},
        {"image beside the caption", both, true, true, true, {21, 7}, {40, 9}},
        {"image above the caption", both | CBTS_IMAGEABOVE, true, true, true, {43, -1}, {31, 18}},
        {"above means nothing without both", CBTS_SHOWIMAGE | CBTS_IMAGEABOVE, true, true, false, {43, 7}, {0, 0}},
        {"both mean nothing without an image", CBTS_IMAGEANDTEXT, true, false, true, {0, 0}, {31, 9}},
    };
    for (const auto& row : rows)
    {
        const CSize* const shown = row.hasImage ? &image : NULL;
        for (const int shift : {0, 1})
        {
            const CRect area(0, 0, 103, 30);
            const ComboButtonContent content = LayOutContent(area, row.style, shown, CSize(41, 13), shift == 1);
            EXPECT_EQ(row.showsImage, content.showsImage) << row.name;
            EXPECT_EQ(row.showsCaption, content.showsCaption) << row.name;
            EXPECT_TRUE(!row.showsImage || row.imageAt + CPoint(shift, shift) == content.image) << row.name;
            EXPECT_TRUE(!row.showsCaption || row.captionAt + CPoint(shift, shift) == content.caption) << row.name;
        }
    }
}

TEST(ComboButtonArrowPlace, IsInTheMiddleOfTheDropZone)
{
    const ComboButtonArrow arrow = ArrowOf(kButton);
    EXPECT_EQ(CPoint(107, 13), CPoint(arrow.corners[0]));
    EXPECT_EQ(CPoint(115, 13), CPoint(arrow.corners[1]));
    EXPECT_EQ(CPoint(111, 17), CPoint(arrow.corners[2]));
}
