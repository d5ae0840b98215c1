// The caption of a palette set: its parts and its picture come from one layout.
#include "arx/ui/CaptionStrip.h"

#include "arx/ui/Colours.h"
#include "arx/ui/GdiGuards.h"
#include "arx/ui/UiFont.h"

#include <gtest/gtest.h>

using namespace arxui;

namespace
{

const RECT area{0, 0, 300, 200};

POINT CentreOf(const RECT& rect)
{
    return POINT{(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

class CaptionPicture : public testing::Test
{
protected:
    CaptionPicture() : m_screen(GetDC(nullptr)), m_buffer(m_screen, area.right, area.bottom)
    {
        FillColour(m_buffer.Get(), area, RGB(255, 255, 255));
    }
    ~CaptionPicture() override { ReleaseDC(nullptr, m_screen); }

    void Draw(const CaptionStrip& caption, const CaptionLook& look)
    {
        DrawCaption(m_buffer.Get(), caption, look, UiFont());
    }
    COLORREF Pixel(int x, int y) const { return GetPixel(m_buffer.Get(), x, y); }

    int InkIn(const RECT& rect, COLORREF paper) const
    {
        int ink = 0;
        for (int y = rect.top; y < rect.bottom; ++y)
        {
            for (int x = rect.left; x < rect.right; ++x)
                ink += Pixel(x, y) != paper ? 1 : 0;
        }
        return ink;
    }

private:
    HDC m_screen;
    BackBuffer m_buffer;
};

} // namespace

TEST(CaptionStrip, ButtonsStandAtTheRightEndAndTheTitleTakesTheRest)
{
    const CaptionStrip caption = LayOutCaption(area, false, true, true);
    EXPECT_EQ(captionHeight, caption.strip.bottom);
    EXPECT_LT(caption.rollUp.right, caption.close.left + 1);
    EXPECT_LE(caption.title.right, caption.rollUp.left);
    EXPECT_EQ(area.left, caption.title.left);
}

TEST(CaptionStrip, PartUnderAPointIsFound)
{
    const CaptionStrip caption = LayOutCaption(area, false, true, true);
    EXPECT_EQ(CaptionPart::Close, CaptionPartAt(caption, CentreOf(caption.close)));
    EXPECT_EQ(CaptionPart::RollUp, CaptionPartAt(caption, CentreOf(caption.rollUp)));
    EXPECT_EQ(CaptionPart::Title, CaptionPartAt(caption, {10, 10}));
    EXPECT_EQ(CaptionPart::None, CaptionPartAt(caption, {10, captionHeight + 5}));
}

TEST(CaptionStrip, ButtonThatIsNotThereIsTitle)
{
    const CaptionStrip all = LayOutCaption(area, false, true, true);
    const CaptionStrip none = LayOutCaption(area, false, false, false);
    EXPECT_TRUE(IsRectEmpty(&none.close));
    EXPECT_EQ(CaptionPart::Title, CaptionPartAt(none, CentreOf(all.close)));
}

TEST(CaptionStrip, UprightStripHasItsButtonsAtTheTop)
{
    const CaptionStrip caption = LayOutCaption(area, true, true, true);
    EXPECT_EQ(captionHeight, caption.strip.right);
    EXPECT_LE(caption.close.bottom, caption.rollUp.top);
    EXPECT_LE(caption.rollUp.bottom, caption.title.top);
}

TEST_F(CaptionPicture, ChineseTitleLeavesInkOnTheStrip)
{
    const CaptionStrip caption = LayOutCaption(area, false, false, true);
    CaptionLook look;
    look.title = L"消息查看";
    Draw(caption, look);
    EXPECT_EQ(colours::captionInactive, Pixel(caption.title.right - 2, 2));
    EXPECT_GT(InkIn({6, 2, 70, captionHeight - 2}, colours::captionInactive), 60);
    EXPECT_EQ(RGB(255, 255, 255), Pixel(10, captionHeight + 1)) << "nothing below the strip";
}

TEST_F(CaptionPicture, ActiveStripHasItsOwnColour)
{
    const CaptionStrip caption = LayOutCaption(area, false, false, false);
    CaptionLook look;
    look.active = true;
    Draw(caption, look);
    EXPECT_EQ(colours::captionActive, Pixel(150, 10));
}

TEST_F(CaptionPicture, HotCloseButtonIsFilledAndCrossed)
{
    const CaptionStrip caption = LayOutCaption(area, false, false, true);
    CaptionLook look;
    look.hot = CaptionPart::Close;
    Draw(caption, look);
    EXPECT_EQ(colours::buttonHot, Pixel(caption.close.left + 1, caption.close.top + 1));
    EXPECT_GT(InkIn(caption.close, colours::buttonHot), 8);
}
