#include "SlideParser.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace Tevrin
{
namespace
{
const char kSignature[] = "AutoCAD Slide\r\n\x1a"; // with its terminating zero
const size_t kSignatureSize = sizeof(kSignature);
const int kSlideType = 0x56;

// Places in the header.
const size_t kTypeAt = 17;
const size_t kLevelAt = 18;
const size_t kSizeAt = 19;
const size_t kAspectAt = 23;
const size_t kTestNumberAt = 29;
const size_t kHeaderSize = 31;
const size_t kOldHeaderSize = 34;

const int kTestNumber = 0x1234;
const int kSwappedTestNumber = 0x3412;
const double kAspectUnit = 1e7;

// A picture longer than this is taken for a damaged number.
const double kLargestAspect = 100;

// Types of records, and the bytes behind the field that holds the type.
const int kLastVectorType = 0x7f;
const int kOffsetVector = 0xfb;
const int kEnd = 0xfc;
const int kArea = 0xfd;
const int kCommonEndVector = 0xfe;
const int kColor = 0xff;
const size_t kFieldSize = 2;
const size_t kVectorRest = 6;
const size_t kOffsetVectorRest = 3;
const size_t kCommonEndVectorRest = 1;
const size_t kCornerRest = 4;

const size_t kFewestCorners = 3;
const size_t kMostCorners = 10;
const int kForeground = 7;
} // namespace

SlideParser::SlideParser(const unsigned char* bytes, size_t count, Slide& slide)
    : m_bytes(bytes), m_count(count), m_at(0), m_highFirst(false), m_color(kForeground), m_last(), m_slide(slide)
{
}

SlideResult SlideParser::Run()
{
    if (m_count == 0)
        return kSlideEmpty;
    if (std::memcmp(m_bytes, kSignature, std::min(m_count, kSignatureSize)) != 0)
        return kSlideForeign;
    if (m_count <= kLevelAt)
        return kSlideCutOff;
    if (m_bytes[kTypeAt] != kSlideType)
        return kSlideForeign;
    const int level = m_bytes[kLevelAt];
    if (level != 1 && level != 2)
        return kSlideUnknownLevel;
    m_slide.m_level = level;
    const SlideResult result = level == 1 ? ReadOldHeader() : ReadHeader();
    return result == kSlideGood ? ReadRecords() : result;
}

SlideResult SlideParser::ReadHeader()
{
    if (!Has(kHeaderSize))
        return kSlideCutOff;
    m_at = kTestNumberAt;
    const int testNumber = Word();
    if (testNumber != kTestNumber && testNumber != kSwappedTestNumber)
        return kSlideUnknownLevel;
    m_highFirst = testNumber == kSwappedTestNumber;
    // The aspect ratio alone has its low byte first in every slide.
    const unsigned char* const aspect = m_bytes + kAspectAt;
    const unsigned int stored = aspect[0] | aspect[1] << 8 | aspect[2] << 16 | static_cast<unsigned>(aspect[3]) << 24;
    m_at = kSizeAt;
    const int highestX = Word();
    SetSize(highestX, Word(), stored / kAspectUnit);
    m_at = kHeaderSize;
    return kSlideGood;
}

// Written by programs of one machine for the same machine: the low byte comes first.
SlideResult SlideParser::ReadOldHeader()
{
    if (!Has(kOldHeaderSize))
        return kSlideCutOff;
    double aspect = 0;
    std::memcpy(&aspect, m_bytes + kAspectAt, sizeof(aspect));
    m_at = kSizeAt;
    const int highestX = Word();
    SetSize(highestX, Word(), aspect);
    m_at = kOldHeaderSize;
    return kSlideGood;
}

void SlideParser::SetSize(int highestX, int highestY, double aspect)
{
    m_slide.m_width = highestX + 1;
    m_slide.m_height = highestY + 1;
    const bool isSensible = std::isfinite(aspect) && aspect >= 1 / kLargestAspect && aspect <= kLargestAspect;
    m_slide.m_aspect = isSensible ? aspect : static_cast<double>(m_slide.m_width) / m_slide.m_height;
}

SlideResult SlideParser::ReadRecords()
{
    bool ended = false;
    SlideResult result = kSlideGood;
    while (!ended && result == kSlideGood)
        result = ReadRecord(ended);
    return result;
}

SlideResult SlideParser::ReadRecord(bool& ended)
{
    if (!Has(kFieldSize))
        return kSlideCutOff;
    const int field = Word();
    const int low = field & 0xff;
    const int type = field >> 8;
    if (type <= kLastVectorType)
        return ReadVector(field);
    switch (type)
    {
    case kOffsetVector:
        return ReadOffsetVector(static_cast<signed char>(low));
    case kCommonEndVector:
        return ReadCommonEndVector(static_cast<signed char>(low));
    case kArea:
        return ReadArea();
    case kColor:
        m_color = low;
        return kSlideGood;
    case kEnd:
        ended = true;
        return kSlideGood;
    default:
        return kSlideUnknownRecord;
    }
}

SlideResult SlideParser::ReadVector(int firstX)
{
    if (!Has(kVectorRest))
        return kSlideCutOff;
    const SlidePoint from = {firstX, SignedWord()};
    const int toX = SignedWord();
    const SlidePoint to = {toX, SignedWord()};
    AddLine(from, to);
    return kSlideGood;
}

SlideResult SlideParser::ReadOffsetVector(int firstByte)
{
    if (!Has(kOffsetVectorRest))
        return kSlideCutOff;
    const SlidePoint from = {m_last.x + firstByte, m_last.y + SignedByte()};
    const int toX = m_last.x + SignedByte();
    const SlidePoint to = {toX, m_last.y + SignedByte()};
    AddLine(from, to);
    return kSlideGood;
}

SlideResult SlideParser::ReadCommonEndVector(int firstByte)
{
    if (!Has(kCommonEndVectorRest))
        return kSlideCutOff;
    const SlidePoint from = {m_last.x + firstByte, m_last.y + SignedByte()};
    AddLine(from, m_last);
    return kSlideGood;
}

// The record that opens an area and the one that closes it have a negative height; the corners stand between.
SlideResult SlideParser::ReadArea()
{
    if (!Has(kCornerRest))
        return kSlideCutOff;
    if (ReadCorner().y >= 0)
        return kSlideBadArea;
    SlideRun run = {SlideRun::kArea, m_color, m_slide.m_points.size(), 0};
    for (;;)
    {
        if (!Has(kFieldSize + kCornerRest))
            return kSlideCutOff;
        if (Word() >> 8 != kArea)
            return kSlideBadArea;
        const SlidePoint corner = ReadCorner();
        if (corner.y < 0)
            break;
        if (++run.count > kMostCorners)
            return kSlideBadArea;
        m_slide.m_points.push_back(corner);
    }
    if (run.count < kFewestCorners)
        return kSlideBadArea;
    m_slide.m_runs.push_back(run);
    return kSlideGood;
}

SlidePoint SlideParser::ReadCorner()
{
    const int x = SignedWord();
    const SlidePoint corner = {x, SignedWord()};
    return corner;
}

void SlideParser::AddLine(SlidePoint from, SlidePoint to)
{
    std::vector<SlideRun>& runs = m_slide.m_runs;
    if (runs.empty() || runs.back().kind != SlideRun::kLines || runs.back().color != m_color)
        runs.push_back({SlideRun::kLines, m_color, m_slide.m_points.size(), 0});
    m_slide.m_points.push_back(from);
    m_slide.m_points.push_back(to);
    runs.back().count += 2;
    m_last = from;
}

int SlideParser::Word()
{
    const int first = m_bytes[m_at];
    const int second = m_bytes[m_at + 1];
    m_at += kFieldSize;
    return m_highFirst ? first << 8 | second : second << 8 | first;
}

int SlideParser::SignedWord()
{
    return static_cast<short>(Word());
}

int SlideParser::SignedByte()
{
    return static_cast<signed char>(m_bytes[m_at++]);
}
} // namespace Tevrin
