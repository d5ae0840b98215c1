#include "host/SlideWriter.h"

#include <cmath>

namespace arxhost
{
namespace
{

const char signature[] = "AutoCAD Slide\r\n\x1a"; // with its terminating zero
const char slideType = 0x56;
const char level = 2;
const double unitsOfAspect = 1e7;
const int areasAreFilled = 2;
const int testNumber = 0x1234;

const int endRecord = 0xfc;
const int areaRecord = 0xfd;
const int colorRecord = 0xff;
// Heights that open and close an area.
const int areaBegins = -2;
const int areaEnds = -1;

const int bitsOfByte = 8;
const int byteMask = 0xff;

} // namespace

SlideWriter::SlideWriter(int width, int height) : m_bytes(signature, sizeof(signature))
{
    m_bytes += slideType;
    m_bytes += level;
    AddWord(width - 1);
    AddWord(height - 1);
    const unsigned aspect = static_cast<unsigned>(std::lround(unitsOfAspect * width / height));
    AddWord(static_cast<int>(aspect));
    AddWord(static_cast<int>(aspect >> 2 * bitsOfByte));
    AddWord(areasAreFilled);
    AddWord(testNumber);
}

void SlideWriter::SetColor(int index)
{
    if (index == m_color)
        return;
    m_color = index;
    AddRecord(colorRecord, index);
}

void SlideWriter::AddLine(const SlideDot& from, const SlideDot& to)
{
    for (const int value : {from.x, from.y, to.x, to.y})
        AddWord(value);
}

void SlideWriter::AddArea(const std::vector<SlideDot>& corners)
{
    if (corners.size() < kFewestCorners || corners.size() > kMostCorners)
        return;
    const int count = static_cast<int>(corners.size());
    AddCorner(count, areaBegins);
    for (const SlideDot& corner : corners)
        AddCorner(corner.x, corner.y);
    AddCorner(count, areaEnds);
}

const std::string& SlideWriter::Finish()
{
    AddRecord(endRecord, 0);
    return m_bytes;
}

void SlideWriter::AddRecord(int type, int low)
{
    AddWord(type << bitsOfByte | low);
}

void SlideWriter::AddCorner(int x, int y)
{
    AddRecord(areaRecord, 0);
    AddWord(x);
    AddWord(y);
}

void SlideWriter::AddWord(int value)
{
    m_bytes += static_cast<char>(value & byteMask);
    m_bytes += static_cast<char>(value >> bitsOfByte & byteMask);
}

} // namespace arxhost
