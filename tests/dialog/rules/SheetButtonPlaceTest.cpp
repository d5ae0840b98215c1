// Where the buttons of a property sheet without Help stand.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>

#include "dialog/SheetButtonPlace.h"

namespace
{

struct PlaceRow
{
    const char* name;
    CRect place;
    bool showApply;
    CRect expected;
};

class SheetButtonPlaceTable : public testing::TestWithParam<PlaceRow>
{
};

TEST_P(SheetButtonPlaceTable, MovesTheButton)
{
    EXPECT_EQ(GetParam().expected, SheetButtonPlace(GetParam().place, GetParam().showApply));
}

const PlaceRow kRows[] = {
    {"OneWidthAndSixWithApply", {100, 200, 175, 223}, true, {181, 200, 256, 223}},
    {"TwoWidthsAndTwelveWithoutApply", {100, 200, 175, 223}, false, {262, 200, 337, 223}},
    {"EachButtonGoesByItsOwnWidth", {10, 5, 20, 15}, true, {26, 5, 36, 15}},
    {"AButtonWithoutWidthMovesByTheGap", {7, 0, 7, 9}, true, {13, 0, 13, 9}},
    {"AButtonWithoutWidthMovesByTwoGaps", {7, 0, 7, 9}, false, {19, 0, 19, 9}},
    {"BeyondTheLeftEdge", {-90, 3, -20, 26}, true, {-14, 3, 56, 26}},
};

INSTANTIATE_TEST_SUITE_P(Row, SheetButtonPlaceTable, testing::ValuesIn(kRows),
                         [](const testing::TestParamInfo<PlaceRow>& row) { return std::string(row.param.name); });

} // namespace
