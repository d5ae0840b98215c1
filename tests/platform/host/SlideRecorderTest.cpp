// Slides that the host writes, read back.
#include <afxwin.h>

#include "host/SlideRecorder.h"
#include "host/SlideWriter.h"
#include "suite/ZnQFCBaseU/Slide.h"

#include "dbents.h"
#include "dbhatch.h"
#include "dbobjptr.h"
#include "dbsymtb.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace arxhost;

namespace
{

constexpr int kWidth = 100;
constexpr int kHeight = 60;

Tevrin::Slide Read(const std::string& bytes)
{
    Tevrin::Slide slide;
    EXPECT_EQ(Tevrin::kSlideGood, slide.Parse(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()));
    return slide;
}

std::string TextOf(const Tevrin::Slide& slide)
{
    std::string text;
    for (const Tevrin::SlideRun& run : slide.Runs())
    {
        text += (run.kind == Tevrin::SlideRun::kLines ? "L" : "A") + std::to_string(run.color);
        for (size_t i = run.first; i < run.first + run.count; ++i)
            text += " " + std::to_string(slide.Points()[i].x) + "," + std::to_string(slide.Points()[i].y);
        text += "; ";
    }
    return text;
}

AcGePoint3d At(double x, double y)
{
    return AcGePoint3d(x, y, 0);
}

// A drawing seen with one unit a pixel: the point (x, y) is the dot (x, y - 1).
class SlideRecorderTest : public testing::Test
{
protected:
    SlideRecorderTest() : m_database(true) {}

    void Add(AcDbEntity* entity, int color)
    {
        AcDbObjectPointer<AcDbBlockTableRecord> block(m_database.currentSpaceId(), AcDb::kForWrite);
        entity->setColorIndex(static_cast<Adesk::UInt16>(color));
        AcDbObjectId id;
        block->appendAcDbEntity(id, entity);
        entity->close();
    }

    Tevrin::Slide Record()
    {
        arxgi::DisplayList list;
        list.Build(m_database, 1);
        const ViewTransform view({kWidth / 2.0, kHeight / 2.0}, kHeight, kWidth, kHeight);
        return Read(SlideRecorder(view, kWidth, kHeight).Record(list));
    }

    AcDbDatabase m_database;
};

} // namespace

TEST(SlideWriter, HeaderTellsTheSizeAndSquareDots)
{
    const Tevrin::Slide slide = Read(SlideWriter(572, 292).Finish());
    EXPECT_EQ(2, slide.Level());
    EXPECT_EQ(572, slide.Width());
    EXPECT_EQ(292, slide.Height());
    EXPECT_NEAR(572.0 / 292, slide.Aspect(), 1e-6);
    EXPECT_TRUE(slide.IsEmpty());
}

TEST(SlideWriter, ColoursAreWrittenWhenTheyChange)
{
    SlideWriter writer(kWidth, kHeight);
    writer.SetColor(1);
    writer.AddLine({0, 0}, {99, 59});
    const size_t recordSize = 2;
    writer.SetColor(1);
    writer.AddLine({5, 5}, {6, 6});
    writer.SetColor(255);
    writer.AddLine({7, 7}, {8, 8});
    const std::string bytes = writer.Finish();
    EXPECT_EQ("L1 0,0 99,59 5,5 6,6; L255 7,7 8,8; ", TextOf(Read(bytes)));
    EXPECT_EQ(31 + 3 * 8 + 2 * recordSize + recordSize, bytes.size());
}

TEST(SlideWriter, AreasHaveThreeToTenCorners)
{
    for (size_t corners = 0; corners < 13; ++corners)
    {
        SlideWriter writer(kWidth, kHeight);
        writer.SetColor(1);
        writer.AddArea(std::vector<SlideDot>(corners, SlideDot{1, 2}));
        const Tevrin::Slide slide = Read(writer.Finish());
        EXPECT_EQ(corners >= 3 && corners <= 10 ? corners : 0, slide.Points().size());
    }
}

TEST_F(SlideRecorderTest, AnEmptyDrawingIsAnEmptySlideOfTheViewsSize)
{
    const Tevrin::Slide slide = Record();
    EXPECT_TRUE(slide.IsEmpty());
    EXPECT_EQ(kWidth, slide.Width());
    EXPECT_EQ(kHeight, slide.Height());
}

TEST_F(SlideRecorderTest, LinesKeepTheirPlacesAndColours)
{
    Add(new AcDbLine(At(10, 10), At(20, 11)), 1);
    Add(new AcDbLine(At(30, 40), At(50, 40)), 3);
    EXPECT_EQ("L1 10,9 20,10; L3 30,39 50,39; ", TextOf(Record()));
}

TEST_F(SlideRecorderTest, TheForegroundStaysTheForeground)
{
    Add(new AcDbLine(At(10, 10), At(20, 10)), 7);
    EXPECT_EQ("L7 10,9 20,9; ", TextOf(Record()));
}

TEST_F(SlideRecorderTest, EveryIndexOfThePaletteIsFoundAgainByItsColour)
{
    for (int index = 1; index <= 255; ++index)
    {
        if (index != 7)
            Add(new AcDbLine(At(10, 10), At(20, 10)), index);
    }
    const Tevrin::Slide slide = Record();
    ASSERT_LT(200u, slide.Runs().size());
    std::vector<COLORREF> expected;
    for (int index = 1; index <= 255; ++index)
    {
        const COLORREF color = Tevrin::GetRGBFromACI(index);
        if (index != 7 && (expected.empty() || expected.back() != color))
            expected.push_back(color);
    }
    ASSERT_EQ(expected.size(), slide.Runs().size());
    for (size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ(expected[i], Tevrin::GetRGBFromACI(slide.Runs()[i].color)) << i;
}

TEST_F(SlideRecorderTest, WhatReachesOutOfTheViewIsCut)
{
    Add(new AcDbLine(At(-50, 20), At(500, 20)), 1);
    Add(new AcDbLine(At(200, 20), At(500, 20)), 2);
    Add(new AcDbLine(At(-5, 200), At(5, 200)), 2);
    EXPECT_EQ("L1 0,19 99,19; ", TextOf(Record()));
}

TEST_F(SlideRecorderTest, AnAreaOfFewCornersStaysAnArea)
{
    Add(new AcDbSolid(At(10, 10), At(20, 10), At(15, 20)), 2);
    const Tevrin::Slide slide = Record();
    ASSERT_EQ(1u, slide.Runs().size());
    EXPECT_EQ(Tevrin::SlideRun::kArea, slide.Runs()[0].kind);
    EXPECT_EQ(2, slide.Runs()[0].color);
    EXPECT_EQ(10, slide.Points()[0].x);
    EXPECT_EQ(9, slide.Points()[0].y);
}

TEST_F(SlideRecorderTest, AnAreaThatReachesOutIsCutIntoRows)
{
    Add(new AcDbSolid(At(-10, 10.5), At(20, 10.5), At(-10, 14.5), At(20, 14.5)), 2);
    const Tevrin::Slide slide = Record();
    EXPECT_EQ("L2 0,10 20,10 0,11 20,11 0,12 20,12 0,13 20,13; ", TextOf(slide));
}

TEST_F(SlideRecorderTest, APointIsACross)
{
    Add(new AcDbPoint(At(30, 30)), 5);
    EXPECT_EQ("L5 27,29 33,29 30,26 30,32; ", TextOf(Record()));
}

TEST_F(SlideRecorderTest, LettersAreDrawnWhereTheTextStands)
{
    Add(new AcDbText(At(20, 20), L"HHH", 20), 4);
    const Tevrin::Slide slide = Record();
    ASSERT_LT(10u, slide.Points().size());
    for (const Tevrin::SlidePoint& point : slide.Points())
    {
        EXPECT_LE(15, point.x);
        EXPECT_LE(15, point.y);
        EXPECT_GE(50, point.y);
    }
    for (const Tevrin::SlideRun& run : slide.Runs())
        EXPECT_EQ(4, run.color);
}

TEST_F(SlideRecorderTest, ATextTooSmallToReadIsItsBaseLine)
{
    Add(new AcDbText(At(20, 20), L"HHH", 1), 4);
    const Tevrin::Slide slide = Record();
    ASSERT_EQ(2u, slide.Points().size());
    EXPECT_EQ(slide.Points()[0].y, slide.Points()[1].y);
}

TEST_F(SlideRecorderTest, ViewsOfNoSizeAndOfHugeSizeAreWritten)
{
    arxgi::DisplayList list;
    list.Build(m_database, 1);
    EXPECT_EQ(1, Read(SlideRecorder(ViewTransform({0, 0}, 1, 0, 0), 0, 0).Record(list)).Width());
    EXPECT_EQ(32767, Read(SlideRecorder(ViewTransform({0, 0}, 1, 99999, 9), 99999, 9).Record(list)).Width());
}
