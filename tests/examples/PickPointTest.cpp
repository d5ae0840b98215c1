// The text beside the pointer while a point is asked for.
#include "drawing_check/PickPointCommand.h"

#include <gtest/gtest.h>

using drawing_check::CoordinateText;

TEST(PickPoint, CoordinatesAreTwoLinesOfTwoDecimals)
{
    EXPECT_STREQ(L"X: 12.35\nY: -3.00", CoordinateText(AcGePoint3d(12.346, -3, 0)));
    EXPECT_STREQ(L"X: 0.00\nY: 1234567.90", CoordinateText(AcGePoint3d(0, 1234567.9, 0)));
}

TEST(PickPoint, ThirdCoordinateIsLeftOut)
{
    EXPECT_STREQ(L"X: 1.00\nY: 2.00", CoordinateText(AcGePoint3d(1, 2, 3)));
}
