// The text form of a palette's place: what is written can be read, and nothing else can.
#include "arx/ui/PaletteLayout.h"

#include <gtest/gtest.h>

using namespace arxui;

namespace
{

PaletteLayout SampleLayout()
{
    PaletteLayout layout;
    layout.side = DockSide::Right;
    layout.width = 320;
    layout.height = 180;
    layout.floating = RECT{-20, 200, 840, 390};
    layout.visible = true;
    layout.rolledUp = true;
    layout.autoRollUp = true;
    layout.activeTab = 2;
    return layout;
}

} // namespace

TEST(PaletteLayout, TextReadsBackAsTheSameLayout)
{
    const PaletteLayout written = SampleLayout();
    PaletteLayout read;
    ASSERT_TRUE(LayoutFromText(LayoutToText(written), read));
    EXPECT_EQ(written.side, read.side);
    EXPECT_EQ(written.width, read.width);
    EXPECT_EQ(written.height, read.height);
    EXPECT_TRUE(EqualRect(&written.floating, &read.floating));
    EXPECT_TRUE(read.visible);
    EXPECT_TRUE(read.rolledUp);
    EXPECT_TRUE(read.autoRollUp);
    EXPECT_EQ(2, read.activeTab);
}

TEST(PaletteLayout, UnknownFieldIsSkipped)
{
    PaletteLayout read;
    EXPECT_TRUE(LayoutFromText(LayoutToText(SampleLayout()) + L";opacity=50", read));
    EXPECT_EQ(320, read.width);
}

TEST(PaletteLayout, DamagedTextIsRefusedAndChangesNothing)
{
    const wchar_t* const damaged[] = {
        L"",
        L"side=left",
        L"side=middle;width=1;height=1;float=1,1,5,5;visible=1;rolled=0;auto=0;tab=0",
        L"side=left;width=-1;height=1;float=1,1,5,5;visible=1;rolled=0;auto=0;tab=0",
        L"side=left;width=1;height=1;float=5,5,5,9;visible=1;rolled=0;auto=0;tab=0",
        L"side=left;width=1;height=1;float=1,1,5;visible=1;rolled=0;auto=0;tab=0",
        L"side=left;width=1x;height=1;float=1,1,5,5;visible=1;rolled=0;auto=0;tab=0",
        L"side=left;width=1;height=1;float=1,1,5,5;visible=2;rolled=0;auto=0;tab=0",
        L"side=left;width=1;height=1;float=1,1,5,999999999;visible=1;rolled=0;auto=0;tab=0",
    };
    for (const wchar_t* text : damaged)
    {
        PaletteLayout read;
        read.width = 77;
        EXPECT_FALSE(LayoutFromText(text, read)) << std::string(text, text + wcslen(text));
        EXPECT_EQ(77, read.width);
    }
}

TEST(PaletteLayout, ThicknessIsTheWidthAtUprightSidesAndTheHeightElsewhere)
{
    PaletteLayout layout;
    layout.SetThickness(DockSide::Left, 300);
    layout.SetThickness(DockSide::Bottom, 150);
    EXPECT_EQ(300, layout.width);
    EXPECT_EQ(150, layout.height);
    EXPECT_EQ(300, layout.ThicknessAt(DockSide::Right));
    EXPECT_EQ(150, layout.ThicknessAt(DockSide::Top));
}
