// Where the viewer's controls stand.
#include <gtest/gtest.h>

#include "msg/MsgViewLayout.h"

namespace
{

CMsgViewRects Before()
{
    CMsgViewRects rects;
    rects.tab = CRect(4, 5, 150, 180);
    rects.tree = CRect(9, 30, 145, 174);
    rects.list = CRect(155, 31, 635, 180);
    rects.count = CRect(320, 10, 635, 24);
    return rects;
}

} // namespace

TEST(MsgViewLayout, ListReachesFivePixelsFromTheEdges)
{
    const CMsgViewRects after = LayOutMsgView(Before(), 500, 300);
    EXPECT_EQ(CRect(155, 31, 495, 295), after.list);
}

TEST(MsgViewLayout, TabEndsWithTheListAndTheTreeSixPixelsAbove)
{
    const CMsgViewRects after = LayOutMsgView(Before(), 500, 300);
    EXPECT_EQ(CRect(4, 5, 150, 295), after.tab);
    EXPECT_EQ(CRect(9, 30, 145, 289), after.tree);
}

TEST(MsgViewLayout, CountLabelEndsWithTheList)
{
    const CMsgViewRects after = LayOutMsgView(Before(), 500, 300);
    EXPECT_EQ(CRect(320, 10, 495, 24), after.count);
}

TEST(MsgViewLayout, NothingTurnsInsideOutInATinyViewer)
{
    const CMsgViewRects after = LayOutMsgView(Before(), 1, 1);
    EXPECT_EQ(0, after.list.Width());
    EXPECT_EQ(0, after.list.Height());
    EXPECT_EQ(0, after.count.Width());
    EXPECT_EQ(26, after.tab.Height());
    EXPECT_EQ(0, after.tree.Height());
}

TEST(MsgViewLayout, DescriptionTakesWhatTheOthersLeave)
{
    EXPECT_EQ(480 - 17 - 220, DescriptionWidth(480, 17));
    EXPECT_EQ(101, DescriptionWidth(338, 17));
}

TEST(MsgViewLayout, DescriptionHasAtLeastAHundredPixels)
{
    EXPECT_EQ(100, DescriptionWidth(337, 17));
    EXPECT_EQ(100, DescriptionWidth(0, 17));
}

TEST(MsgViewLayout, HidingTheTreeMovesTheListToTheTab)
{
    EXPECT_EQ(4 - 155, ShiftThatHidesTree(Before()));
}

TEST(MsgViewLayout, ShowingTheTreeMovesTheListBesideTheTab)
{
    EXPECT_EQ(146 + 5, ShiftThatShowsTree(Before()));
}
