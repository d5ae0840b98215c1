// Drawing units and pixels.
#include "host/ViewTransform.h"

#include <gtest/gtest.h>

using namespace arxhost;

namespace
{

const double fine = 1e-9;

ViewTransform SampleView()
{
    return ViewTransform({100, 50}, 40, 800, 400); // ten pixels a unit
}

} // namespace

TEST(ViewTransform, CentreIsTheMiddleOfTheWindowAndYPointsUp)
{
    const ViewTransform view = SampleView();
    EXPECT_NEAR(0.1, view.UnitsPerPixel(), fine);
    const PixelPoint centre = view.ToPixel({100, 50});
    EXPECT_NEAR(400, centre.x, fine);
    EXPECT_NEAR(200, centre.y, fine);
    EXPECT_LT(view.ToPixel({100, 51}).y, centre.y);
    EXPECT_GT(view.ToPixel({101, 50}).x, centre.x);
}

TEST(ViewTransform, PixelsAndUnitsMapBack)
{
    const ViewTransform view = SampleView();
    const WorldPoint point = view.ToWorld(view.ToPixel({83.25, 61.5}));
    EXPECT_NEAR(83.25, point.x, fine);
    EXPECT_NEAR(61.5, point.y, fine);
}

TEST(ViewTransform, ZoomKeepsThePointUnderTheCursor)
{
    ViewTransform view = SampleView();
    const PixelPoint cursor{650, 90};
    const WorldPoint before = view.ToWorld(cursor);
    view.ZoomAt(cursor, 1.25);
    const WorldPoint after = view.ToWorld(cursor);
    EXPECT_NEAR(before.x, after.x, fine);
    EXPECT_NEAR(before.y, after.y, fine);
    EXPECT_NEAR(40 / 1.25, view.Height(), fine);
}

TEST(ViewTransform, PanMovesThePictureByPixels)
{
    ViewTransform view = SampleView();
    const PixelPoint before = view.ToPixel({90, 45});
    view.Pan(30, -20);
    const PixelPoint after = view.ToPixel({90, 45});
    EXPECT_NEAR(before.x + 30, after.x, fine);
    EXPECT_NEAR(before.y - 20, after.y, fine);
}

TEST(ViewTransform, FitShowsTheWholeBoxInTheMiddle)
{
    ViewTransform view = SampleView();
    view.Fit({{0, 0}, {420, 297}});
    const WorldBox visible = view.Visible();
    EXPECT_LT(visible.min.x, 0);
    EXPECT_LT(visible.min.y, 0);
    EXPECT_GT(visible.max.x, 420);
    EXPECT_GT(visible.max.y, 297);
    EXPECT_NEAR(210, view.Centre().x, fine);
    EXPECT_NEAR(148.5, view.Centre().y, fine);
    EXPECT_LT(view.Height(), 2 * 297);
}

TEST(ViewTransform, WideBoxIsFittedByItsWidth)
{
    ViewTransform view = SampleView();
    view.Fit({{0, 0}, {1000, 10}});
    EXPECT_LT(view.Visible().min.x, 0);
    EXPECT_GT(view.Visible().max.x, 1000);
}

TEST(ViewTransform, BoxOfOnePointKeepsTheScale)
{
    ViewTransform view = SampleView();
    view.Fit({{5, 6}, {5, 6}});
    EXPECT_NEAR(40, view.Height(), fine);
    EXPECT_NEAR(5, view.Centre().x, fine);
}

TEST(ViewTransform, EndlessZoomStaysFinite)
{
    ViewTransform view = SampleView();
    for (int i = 0; i < 2000; ++i)
        view.ZoomAt({400, 200}, 10);
    EXPECT_GT(view.Height(), 0);
    for (int i = 0; i < 4000; ++i)
        view.ZoomAt({400, 200}, 0.1);
    EXPECT_LT(view.Height(), 1e300);
}
