// Lines are cut to the visible part before they become pixels.
#include "host/LineClip.h"

#include <gtest/gtest.h>

using namespace arxhost;

namespace
{

const WorldBox box{{0, 0}, {10, 10}};

struct Row
{
    const char* name;
    WorldPoint from;
    WorldPoint to;
    bool touches;
    WorldPoint start;
    WorldPoint end;
};

const Row rows[] = {
    {"inside stays as it is", {1, 2}, {8, 9}, true, {1, 2}, {8, 9}},
    {"crossing is cut at both sides", {-10, 5}, {20, 5}, true, {0, 5}, {10, 5}},
    {"one end inside", {5, 5}, {5, 30}, true, {5, 5}, {5, 10}},
    {"past a corner", {-6, 0}, {0, 20}, false, {}, {}},
    {"beside, parallel", {-1, 0}, {-1, 10}, false, {}, {}},
    {"along the border", {0, -5}, {0, 5}, true, {0, 0}, {0, 5}},
    {"point inside", {3, 3}, {3, 3}, true, {3, 3}, {3, 3}},
    {"point outside", {30, 3}, {30, 3}, false, {}, {}},
    {"very long", {-1e12, -1e12}, {1e12, 1e12}, true, {0, 0}, {10, 10}},
};

} // namespace

TEST(LineClip, LineIsCutToTheBox)
{
    for (const Row& row : rows)
    {
        SCOPED_TRACE(row.name);
        WorldPoint from = row.from;
        WorldPoint to = row.to;
        ASSERT_EQ(row.touches, ClipLine(from, to, box));
        if (!row.touches)
            continue;
        const double close = 1e-3;
        EXPECT_NEAR(row.start.x, from.x, close);
        EXPECT_NEAR(row.start.y, from.y, close);
        EXPECT_NEAR(row.end.x, to.x, close);
        EXPECT_NEAR(row.end.y, to.y, close);
    }
}
