// Places of icon and caption, and colour arithmetic.
#include "xtp/button/ButtonLayout.h"

#include <gtest/gtest.h>

namespace
{
const RECT kButton = {0, 0, 100, 40};
const SIZE kIcon = {16, 16};
const SIZE kText = {40, 12};
const SIZE kNothing = {0, 0};

void ExpectRect(const char* name, const RECT& expected, const RECT& actual)
{
    EXPECT_TRUE(::EqualRect(&expected, &actual))
        << name << ": " << actual.left << ',' << actual.top << ',' << actual.right << ',' << actual.bottom;
}
} // namespace

TEST(ButtonLayout, IconAloneStandsInTheMiddle)
{
    ExpectRect("icon", RECT{42, 12, 58, 28}, xtp::LayOutButton(kButton, kIcon, kNothing, false).icon);
    ExpectRect("stacked", RECT{42, 12, 58, 28}, xtp::LayOutButton(kButton, kIcon, kNothing, true).icon);
}

TEST(ButtonLayout, CaptionAloneStandsInTheMiddle)
{
    ExpectRect("text", RECT{30, 14, 70, 26}, xtp::LayOutButton(kButton, kNothing, kText, false).text);
}

TEST(ButtonLayout, IconAndCaptionAreCentredAsOneGroup)
{
    const xtp::ButtonLayout layout = xtp::LayOutButton(kButton, kIcon, kText, false);
    ExpectRect("icon", RECT{20, 12, 36, 28}, layout.icon);
    ExpectRect("text", RECT{40, 14, 80, 26}, layout.text);
}

TEST(ButtonLayout, StackedPutsTheIconAboveTheCaption)
{
    const xtp::ButtonLayout layout = xtp::LayOutButton(kButton, kIcon, kText, true);
    ExpectRect("icon", RECT{42, 4, 58, 20}, layout.icon);
    ExpectRect("text", RECT{30, 24, 70, 36}, layout.text);
}

TEST(ButtonLayout, ACaptionTooWideIsCutToTheRoomLeft)
{
    const xtp::ButtonLayout layout = xtp::LayOutButton(kButton, kIcon, SIZE{500, 12}, false);
    EXPECT_EQ(0, layout.icon.left);
    EXPECT_EQ(100, layout.text.right);
    EXPECT_EQ(100, xtp::LayOutButton(kButton, kNothing, SIZE{500, 12}, true).text.right);
}

TEST(ButtonLayout, BlendRunsFromOneColourToTheOther)
{
    EXPECT_EQ(RGB(10, 20, 30), xtp::BlendColors(RGB(10, 20, 30), RGB(110, 220, 130), 0));
    EXPECT_EQ(RGB(60, 120, 80), xtp::BlendColors(RGB(10, 20, 30), RGB(110, 220, 130), 50));
    EXPECT_EQ(RGB(110, 220, 130), xtp::BlendColors(RGB(10, 20, 30), RGB(110, 220, 130), 100));
}

TEST(ButtonLayout, LuminanceOfGreysIsTheirValue)
{
    EXPECT_EQ(0, xtp::Luminance(RGB(0, 0, 0)));
    EXPECT_EQ(128, xtp::Luminance(RGB(128, 128, 128)));
    EXPECT_EQ(255, xtp::Luminance(RGB(255, 255, 255)));
    EXPECT_GT(xtp::Luminance(RGB(0, 255, 0)), xtp::Luminance(RGB(0, 0, 255)));
}
