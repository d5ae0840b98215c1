// The rubber band of a window selection.
#include "host/SelectionBand.h"

#include <gtest/gtest.h>

using arxhost::SelectionBand;

TEST(SelectionBand, TrembleIsNoDrag)
{
    SelectionBand band;
    band.Start({100, 100});
    EXPECT_TRUE(band.IsActive());
    EXPECT_FALSE(band.IsDragged());
    band.MoveTo({103, 98});
    EXPECT_FALSE(band.IsDragged());
    band.MoveTo({100, 110});
    EXPECT_TRUE(band.IsDragged());
}

TEST(SelectionBand, DraggedToTheLeftItCrosses)
{
    SelectionBand band;
    band.Start({100, 100});
    band.MoveTo({150, 60});
    EXPECT_FALSE(band.IsCrossing());
    band.MoveTo({50, 160});
    EXPECT_TRUE(band.IsCrossing());
}

TEST(SelectionBand, BoxIsInOrderWhicheverWayItWasDragged)
{
    SelectionBand band;
    band.Start({100, 100});
    band.MoveTo({50, 160});
    const RECT box = band.Box();
    EXPECT_EQ(50, box.left);
    EXPECT_EQ(100, box.top);
    EXPECT_EQ(100, box.right);
    EXPECT_EQ(160, box.bottom);
    band.Stop();
    EXPECT_FALSE(band.IsActive());
}
