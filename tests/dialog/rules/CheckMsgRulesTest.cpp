// Where and when the check window shows itself.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "dialog/CheckMsgRules.h"

namespace
{

template<class ROW>
std::string NameOf(const testing::TestParamInfo<ROW>& row)
{
    return row.param.name;
}

struct DistanceRow
{
    const char* name;
    CPoint cursor;
    bool left;
};

class HasCursorLeftTable : public testing::TestWithParam<DistanceRow>
{
};

const CPoint kReference(100, 200);

TEST_P(HasCursorLeftTable, Decides)
{
    EXPECT_EQ(GetParam().left, HasCursorLeft(GetParam().cursor, kReference));
    EXPECT_EQ(GetParam().left, HasCursorLeft(kReference, GetParam().cursor));
}

const DistanceRow kDistances[] = {
    {"AtRest", {100, 200}, false},
    {"TenPixelsToTheRightAreNear", {110, 200}, false},
    {"ElevenPixelsToTheRightAreNot", {111, 200}, true},
    {"TenPixelsToTheLeftAreNear", {90, 200}, false},
    {"ElevenPixelsToTheLeftAreNot", {89, 200}, true},
    {"TenPixelsUpAreNear", {100, 190}, false},
    {"ElevenPixelsUpAreNot", {100, 189}, true},
    {"TenPixelsDownAreNear", {100, 210}, false},
    {"ElevenPixelsDownAreNot", {100, 211}, true},
    {"SixAndEightAreExactlyTen", {106, 208}, false},
    {"SevenAndSevenAreNear", {107, 207}, false},
    {"SevenAndEightAreNot", {107, 208}, true}, // 10.6 along the diagonal, less than ten each way
    {"TenAndOneAreNot", {110, 201}, true},
    {"AsFarAsItGets", {INT_MAX, INT_MIN}, true},
    {"AsFarTheOtherWay", {INT_MIN, INT_MAX}, true},
};

INSTANTIATE_TEST_SUITE_P(CheckMsg, HasCursorLeftTable, testing::ValuesIn(kDistances), NameOf<DistanceRow>);

struct PlaceRow
{
    const char* name;
    CPoint cursor; // and upper left corner of the window
    CSize window;
    CPoint place;
};

class PlaceBesideCursorTable : public testing::TestWithParam<PlaceRow>
{
};

TEST_P(PlaceBesideCursorTable, GivesTheStatedPlace)
{
    const CSize screen(1000, 800);
    const CPoint place = PlaceBesideCursor(GetParam().cursor, CRect(GetParam().cursor, GetParam().window), screen);
    EXPECT_EQ(GetParam().place.x, place.x);
    EXPECT_EQ(GetParam().place.y, place.y);
}

const PlaceRow kPlaces[] = {
    {"RightAndBelow", {100, 100}, {200, 150}, {102, 102}},
    {"InTheUpperLeftCorner", {0, 0}, {200, 150}, {2, 2}},
    {"EndingAtTheRightEdgeStaysRight", {800, 100}, {200, 150}, {802, 102}}, // two pixels are lost: the test is before
    {"CrossingTheRightEdgeGoesLeft", {801, 100}, {200, 150}, {601, 102}},
    {"EndingAtTheLowerMarginStaysBelow", {100, 625}, {200, 150}, {102, 627}},
    {"InsideTheLowerMarginGoesAbove", {100, 626}, {200, 150}, {102, 476}},
    {"InTheLowerRightCorner", {999, 799}, {200, 150}, {799, 649}},
    {"AWindowWiderThanTheScreenGoesLeft", {0, 100}, {1001, 150}, {-1001, 102}},
    {"AWindowHigherThanTheScreenGoesAbove", {100, 0}, {200, 776}, {102, -776}},
    {"OnAScreenAtTheLeftStaysRight", {-500, 100}, {200, 150}, {-498, 102}},
};

INSTANTIATE_TEST_SUITE_P(CheckMsg, PlaceBesideCursorTable, testing::ValuesIn(kPlaces), NameOf<PlaceRow>);

} // namespace

TEST(CheckMsgRules, EightHitTestsAreSizingBorders)
{
    const LRESULT first = HTERROR;
    const LRESULT last = HTHELP;
    for (LRESULT hit = first; hit <= last; ++hit)
        EXPECT_EQ(hit >= 10 && hit <= 17, IsSizingBorder(hit)) << hit;
}
