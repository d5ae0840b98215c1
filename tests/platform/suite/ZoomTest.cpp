// Extents of objects, and moving the view to a box.
#include <ZnAcadUiBase.h>

#include "DrawingFixture.h"
#include "suite/ZnAcadUiBase/ZoomMath.h"

namespace
{
class Extents : public DrawingFixture
{
};

class Zoom : public DrawingFixture
{
protected:
    static AcDbExtents Box(double minX, double minY, double maxX, double maxY)
    {
        return AcDbExtents(AcGePoint3d(minX, minY, 0), AcGePoint3d(maxX, maxY, 0));
    }

    arxhost::ViewState View() const { return arxhost::GetView(m_document); }
};
} // namespace

TEST_F(Extents, AreTheBoxAroundAllObjects)
{
    AcArray<AcDbObjectId> ids;
    ids.append(AddLine(AcGePoint3d(0, 0, 0), AcGePoint3d(10, 5, 0)));
    ids.append(AddLine(AcGePoint3d(-3, 8, 0), AcGePoint3d(2, 9, 0)));
    AcDbExtents extents;
    ASSERT_TRUE(ZnAcadUiBase::GetExtents(ids, extents));
    EXPECT_EQ(AcDbExtents(AcGePoint3d(-3, 0, 0), AcGePoint3d(10, 9, 0)), extents);
}

TEST_F(Extents, ReplaceWhatTheBoxHeldBefore)
{
    AcArray<AcDbObjectId> ids;
    ids.append(AddLine(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 1, 0)));
    AcDbExtents extents(AcGePoint3d(-100, -100, 0), AcGePoint3d(100, 100, 0));
    ASSERT_TRUE(ZnAcadUiBase::GetExtents(ids, extents));
    EXPECT_EQ(AcDbExtents(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 1, 0)), extents);
}

TEST_F(Extents, LeaveOutObjectsThatAreGone)
{
    AcArray<AcDbObjectId> ids;
    ids.append(AddLine(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 1, 0)));
    ids.append(AddLine(AcGePoint3d(0, 0, 0), AcGePoint3d(50, 50, 0)));
    ids.append(AcDbObjectId());
    arxhost::Erase({ids[1]});
    AcDbExtents extents;
    ASSERT_TRUE(ZnAcadUiBase::GetExtents(ids, extents));
    EXPECT_EQ(AcDbExtents(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 1, 0)), extents);
}

TEST_F(Extents, OfNothingAreNone)
{
    const AcDbExtents before(AcGePoint3d(1, 2, 3), AcGePoint3d(4, 5, 6));
    AcDbExtents extents = before;
    AcArray<AcDbObjectId> ids;
    EXPECT_FALSE(ZnAcadUiBase::GetExtents(ids, extents));
    ids.append(AcDbObjectId());
    EXPECT_FALSE(ZnAcadUiBase::GetExtents(ids, extents));
    EXPECT_EQ(before, extents);
}

TEST_F(Zoom, ShowsTheBoxWithAMargin)
{
    ASSERT_TRUE(ZnAcadUiBase::ZoomTo(Box(100, 200, 140, 300)));
    EXPECT_DOUBLE_EQ(120, View().centre.x);
    EXPECT_DOUBLE_EQ(250, View().centre.y);
    EXPECT_NEAR(110, View().height, 1e-9);
}

TEST_F(Zoom, AWideBoxDecidesByItsWidth)
{
    // Without a drawing window the view counts as square.
    ASSERT_TRUE(ZnAcadUiBase::ZoomTo(Box(0, 0, 400, 10)));
    EXPECT_NEAR(440, View().height, 1e-9);
}

TEST_F(Zoom, APointIsCentredAtTheSameHeight)
{
    ASSERT_TRUE(ZnAcadUiBase::ZoomTo(Box(0, 0, 100, 100)));
    const double height = View().height;
    ASSERT_TRUE(ZnAcadUiBase::ZoomTo(Box(7, 8, 7, 8)));
    EXPECT_DOUBLE_EQ(7, View().centre.x);
    EXPECT_DOUBLE_EQ(8, View().centre.y);
    EXPECT_DOUBLE_EQ(height, View().height);
}

TEST_F(Zoom, AnInvalidBoxMovesNothing)
{
    ASSERT_TRUE(ZnAcadUiBase::ZoomTo(Box(0, 0, 100, 100)));
    EXPECT_FALSE(ZnAcadUiBase::ZoomTo(AcDbExtents()));
    EXPECT_DOUBLE_EQ(50, View().centre.x);
}

TEST_F(Zoom, MovesTheCurrentDocumentAlone)
{
    ASSERT_TRUE(ZnAcadUiBase::ZoomTo(Box(0, 0, 10, 10)));
    AcApDocument* other = arxhost::NewDocument();
    ASSERT_TRUE(ZnAcadUiBase::ZoomTo(Box(500, 500, 600, 600)));
    EXPECT_DOUBLE_EQ(5, View().centre.x);
    EXPECT_DOUBLE_EQ(550, arxhost::GetView(other).centre.x);
}

TEST_F(Zoom, NeedsADocument)
{
    arxhost::Reset();
    EXPECT_FALSE(ZnAcadUiBase::ZoomTo(Box(0, 0, 10, 10)));
}

TEST(ZoomMath, TheLargerOfHeightAndWidthAtTheWindowsAspectDecides)
{
    const zoom::Box box = {0, 0, 400, 100};
    EXPECT_NEAR(220, zoom::FitBox(box, 2, 1).height, 1e-9);
    EXPECT_NEAR(110, zoom::FitBox(box, 5, 1).height, 1e-9);
    EXPECT_NEAR(880, zoom::FitBox(box, 0.5, 1).height, 1e-9);
}

TEST(ZoomMath, ALineIsShownByItsOneLength)
{
    EXPECT_NEAR(110, zoom::FitBox(zoom::Box{0, 0, 0, 100}, 2, 1).height, 1e-9);
    EXPECT_NEAR(55, zoom::FitBox(zoom::Box{0, 0, 100, 0}, 2, 1).height, 1e-9);
}
