// Reading of slides: every record, both levels, both byte orders, and everything that can be wrong with them.
#include "suite/ZnQFCBaseU/Slide.h"

#include "SlideBytes.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>

using namespace Tevrin;

namespace
{

constexpr int kWidth = 100;
constexpr int kHeight = 60;

SlideResult Parse(const SlideBytes& bytes, Slide& slide)
{
    return slide.Parse(bytes.Bytes().data(), bytes.Bytes().size());
}

SlideBytes Empty()
{
    return SlideBytes(kWidth, kHeight);
}

// One of every record.
SlideBytes Sample(SlideBytes::Order order = SlideBytes::LowFirst)
{
    SlideBytes slide(kWidth, kHeight, 1.5, order);
    slide.Color(7).Vector(0, 0, 99, 59).Color(3).Offset(10, 12, 40, -10);
    slide.CommonEnd(-5, 20).Color(5).Area({{60, 5}, {90, 5}, {90, 25}, {60, 25}});
    slide.CommonEnd(20, -1).End();
    return slide;
}

std::string TextOf(const Slide& slide)
{
    std::string text;
    for (const SlideRun& run : slide.Runs())
    {
        text += (run.kind == SlideRun::kLines ? "L" : "A") + std::to_string(run.color);
        for (size_t i = run.first; i < run.first + run.count; ++i)
            text += " " + std::to_string(slide.Points()[i].x) + "," + std::to_string(slide.Points()[i].y);
        text += "; ";
    }
    return text;
}

} // namespace

TEST(Slide, ReadsEveryKindOfRecord)
{
    Slide slide;
    ASSERT_EQ(kSlideGood, Parse(Sample(), slide));
    EXPECT_EQ("L7 0,0 99,59; L3 10,12 40,-10 5,32 10,12; A5 60,5 90,5 90,25 60,25; L5 25,31 5,32; ", TextOf(slide));
    EXPECT_EQ(kWidth, slide.Width());
    EXPECT_EQ(kHeight, slide.Height());
    EXPECT_DOUBLE_EQ(1.5, slide.Aspect());
    EXPECT_EQ(2, slide.Level());
}

TEST(Slide, ReadsTheOtherByteOrderAlike)
{
    Slide low, high;
    ASSERT_EQ(kSlideGood, Parse(Sample(), low));
    ASSERT_EQ(kSlideGood, Parse(Sample(SlideBytes::HighFirst), high));
    EXPECT_EQ(TextOf(low), TextOf(high));
    EXPECT_EQ(kWidth, high.Width());
    EXPECT_EQ(kHeight, high.Height());
    EXPECT_DOUBLE_EQ(1.5, high.Aspect());
}

TEST(Slide, ReadsTheOldLevel)
{
    Slide slide;
    SlideBytes bytes = SlideBytes::Old(320, 200, 1.25);
    bytes.Color(2).Vector(1, 2, 300, 4).CommonEnd(1, 1).End();
    ASSERT_EQ(kSlideGood, Parse(bytes, slide));
    EXPECT_EQ("L2 1,2 300,4 2,3 1,2; ", TextOf(slide));
    EXPECT_EQ(1, slide.Level());
    EXPECT_EQ(320, slide.Width());
    EXPECT_EQ(200, slide.Height());
    EXPECT_DOUBLE_EQ(1.25, slide.Aspect());
}

TEST(Slide, ShortRecordsCountFromTheStartOfTheLastVector)
{
    Slide slide;
    SlideBytes bytes = Empty();
    bytes.Vector(50, 50, 90, 20).Offset(1, 2, 3, 4).Offset(1, 0, -128, 127).CommonEnd(-128, 127).End();
    ASSERT_EQ(kSlideGood, Parse(bytes, slide));
    EXPECT_EQ("L7 50,50 90,20 51,52 53,54 52,52 -77,179 -76,179 52,52; ", TextOf(slide));
}

TEST(Slide, AnAreaDoesNotMoveTheStartOfTheLastVector)
{
    Slide slide;
    SlideBytes bytes = Empty();
    bytes.Vector(50, 50, 90, 20).Area({{1, 1}, {5, 1}, {5, 5}}).CommonEnd(1, 1).End();
    ASSERT_EQ(kSlideGood, Parse(bytes, slide));
    EXPECT_EQ("L7 50,50 90,20; A7 1,1 5,1 5,5; L7 51,51 50,50; ", TextOf(slide));
}

TEST(Slide, LinesOfOneColourAreOneRun)
{
    Slide slide;
    SlideBytes bytes = Empty();
    bytes.Color(1).Vector(0, 0, 1, 1).Color(1).Vector(2, 2, 3, 3).Color(2).Vector(4, 4, 5, 5).End();
    ASSERT_EQ(kSlideGood, Parse(bytes, slide));
    EXPECT_EQ("L1 0,0 1,1 2,2 3,3; L2 4,4 5,5; ", TextOf(slide));
}

TEST(Slide, ASlideWithoutAnyRecordIsGoodAndEmpty)
{
    Slide slide;
    ASSERT_EQ(kSlideGood, Parse(Empty().End(), slide));
    EXPECT_TRUE(slide.IsEmpty());
    EXPECT_EQ(kWidth, slide.Width());
}

TEST(Slide, WhatStandsBehindTheEndDoesNotCount)
{
    Slide slide;
    EXPECT_EQ(kSlideGood, Parse(Empty().Vector(0, 0, 5, 5).End().Field(0x90, 0).Byte(1), slide));
    EXPECT_EQ("L7 0,0 5,5; ", TextOf(slide));
}

TEST(Slide, VectorsReachToTheLargestCoordinates)
{
    Slide slide;
    ASSERT_EQ(kSlideGood, Parse(Empty().Vector(0x7fff, 0x7fff, -1, -32768).End(), slide));
    EXPECT_EQ("L7 32767,32767 -1,-32768; ", TextOf(slide));
}

TEST(Slide, WrongSlidesAreToldApart)
{
    struct Row
    {
        const char* name;
        SlideResult expected;
        std::function<SlideBytes()> make;
    };
    const SlideBytes::Corners eleven(11, {1, 1});
    const Row rows[] = {
        {"no bytes at all", kSlideEmpty, [] { return Empty().CutTo(0); }},
        {"another signature", kSlideForeign, [] { return Empty().End().Set(0, 'B'); }},
        {"a damaged end of the signature", kSlideForeign, [] { return Empty().End().Set(16, 1); }},
        {"another type", kSlideForeign, [] { return Empty().End().Set(17, 0x57); }},
        {"level 0", kSlideUnknownLevel, [] { return Empty().End().Set(18, 0); }},
        {"level 3", kSlideUnknownLevel, [] { return Empty().End().Set(18, 3); }},
        {"a damaged test number", kSlideUnknownLevel, [] { return Empty().End().Set(29, 0x35); }},
        {"a header without its end", kSlideCutOff, [] { return Empty().CutTo(30); }},
        {"an old header without its end", kSlideCutOff, [] { return SlideBytes::Old(9, 9, 1).CutTo(33); }},
        {"the beginning of the signature only", kSlideCutOff, [] { return Empty().CutTo(5); }},
        {"no record and no end", kSlideCutOff, [] { return Empty(); }},
        {"half a field", kSlideCutOff, [] { return Empty().Byte(0); }},
        {"a vector without its end", kSlideCutOff, [] { return Empty().Vector(1, 1, 2, 2).CutTo(38); }},
        {"an offset vector without its end", kSlideCutOff, [] { return Empty().Field(0xfb, 1).Byte(1).Byte(1); }},
        {"a common end without its end", kSlideCutOff, [] { return Empty().Field(0xfe, 1); }},
        {"a missing end record", kSlideCutOff, [] { return Empty().Vector(1, 1, 2, 2); }},
        {"an area that is never closed", kSlideCutOff, [] { return Empty().AreaMark(4, -2).AreaMark(1, 1); }},
        {"an opening area record without its end", kSlideCutOff, [] { return Empty().AreaMark(4, -2).CutTo(36); }},
        {"type 80", kSlideUnknownRecord, [] { return Empty().Field(0x80, 0).End(); }},
        {"type FA", kSlideUnknownRecord, [] { return Empty().Field(0xfa, 0).End(); }},
        {"an area without an opening record", kSlideBadArea, [] { return Empty().AreaMark(1, 1).End(); }},
        {"an area of two corners", kSlideBadArea,
         [] {
             return Empty().Area({{1, 1}, {2, 2}}).End();
         }},
        {"an area of eleven corners", kSlideBadArea, [&] { return Empty().Area(eleven).End(); }},
        {"a vector inside an area", kSlideBadArea,
         [] { return Empty().AreaMark(4, -2).AreaMark(1, 1).Vector(1, 1, 2, 2).End(); }},
        {"an area that says more corners than the file has", kSlideCutOff,
         [] { return Empty().AreaMark(30000, -2).AreaMark(1, 1).AreaMark(2, 2); }},
    };
    for (const Row& row : rows)
    {
        Slide slide;
        Parse(Sample(), slide);
        EXPECT_EQ(row.expected, Parse(row.make(), slide)) << row.name;
        EXPECT_TRUE(slide.IsEmpty()) << row.name;
        EXPECT_EQ(0, slide.Width()) << row.name;
        EXPECT_STRNE(L"", DescribeSlideResult(row.expected)) << row.name;
    }
}

TEST(Slide, AreasOfThreeToTenCornersAreGood)
{
    for (size_t corners = 3; corners <= 10; ++corners)
    {
        Slide slide;
        ASSERT_EQ(kSlideGood, Parse(Empty().Area(SlideBytes::Corners(corners, {1, 1})).End(), slide)) << corners;
        EXPECT_EQ(corners, slide.Points().size());
    }
}

TEST(Slide, EveryBeginningOfASlideIsCutOff)
{
    const SlideBytes whole = Sample();
    for (size_t size = 1; size < whole.Bytes().size(); ++size)
    {
        Slide slide;
        EXPECT_EQ(kSlideCutOff, Parse(SlideBytes(whole).CutTo(size), slide)) << size;
    }
}

TEST(Slide, DamagedBytesNeverDoHarm)
{
    std::mt19937 random(20);
    const std::vector<unsigned char> whole = Sample().Bytes();
    for (int i = 0; i < 20000; ++i)
    {
        std::vector<unsigned char> damaged = whole;
        for (int change = 0; change < 3; ++change)
            damaged[random() % damaged.size()] = static_cast<unsigned char>(random());
        Slide slide;
        const SlideResult result = slide.Parse(damaged.data(), damaged.size());
        EXPECT_EQ(result != kSlideGood, slide.Width() == 0);
        EXPECT_LE(slide.Points().size(), damaged.size());
    }
}

TEST(Slide, AbsurdSizesAndAspectsAreMadeSensible)
{
    Slide slide;
    ASSERT_EQ(kSlideGood, Parse(SlideBytes(65536, 65536).End(), slide));
    EXPECT_EQ(65536, slide.Width());
    ASSERT_EQ(kSlideGood, Parse(SlideBytes(1, 1).End(), slide));
    EXPECT_DOUBLE_EQ(1, slide.Aspect());
    for (const double aspect : {0.0001, 200.0, 400.0})
    {
        ASSERT_EQ(kSlideGood, Parse(SlideBytes(kWidth, kHeight, aspect).End(), slide));
        EXPECT_DOUBLE_EQ(1.0 * kWidth / kHeight, slide.Aspect()) << aspect;
    }
    for (const double aspect : {0.0, -1.0, 1e300, static_cast<double>(NAN), static_cast<double>(INFINITY)})
    {
        ASSERT_EQ(kSlideGood, Parse(SlideBytes::Old(kWidth, kHeight, aspect).End(), slide));
        EXPECT_DOUBLE_EQ(1.0 * kWidth / kHeight, slide.Aspect()) << aspect;
    }
}

TEST(Slide, ReadsAFileWithAChineseNameAndClosesIt)
{
    const TemporaryFolder folder;
    const CString path = folder.File(L"平面图.sld");
    ASSERT_TRUE(Sample().Save(path.GetString()));
    Slide slide;
    EXPECT_EQ(kSlideGood, slide.Read(path));
    EXPECT_FALSE(slide.IsEmpty());
    EXPECT_TRUE(::DeleteFileW(path));
}

TEST(Slide, FilesThatAreNoneAreTold)
{
    const TemporaryFolder folder;
    Slide slide;
    EXPECT_EQ(kSlideNotOpened, slide.Read(folder.File(L"missing.sld")));
    EXPECT_EQ(kSlideNotOpened, slide.Read(folder.Path())) << "a folder";
    EXPECT_EQ(kSlideNotOpened, slide.Read(L""));
    EXPECT_EQ(kSlideNotOpened, slide.Read(L"Q:\\<>|\\x.sld"));
    ASSERT_TRUE(Empty().CutTo(0).Save(folder.File(L"zero.sld").GetString()));
    EXPECT_EQ(kSlideEmpty, slide.Read(folder.File(L"zero.sld")));
}

TEST(Slide, FilesTooLargeForASlideAreNotRead)
{
    const TemporaryFolder folder;
    const CString path = folder.File(L"large.sld");
    const HANDLE file = ::CreateFileW(path, GENERIC_WRITE, 0, NULL, CREATE_ALWAYS, 0, NULL);
    ::SetFilePointer(file, static_cast<LONG>(Slide::kLargestSlide + 1), NULL, FILE_BEGIN);
    ::SetEndOfFile(file);
    ::CloseHandle(file);
    Slide slide;
    EXPECT_EQ(kSlideTooLarge, slide.Read(path));
}
