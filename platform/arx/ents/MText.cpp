#include "dbmtext.h"

#include "TextCodes.h"
#include "acutads.h"
#include "arx/gi/PieceSink.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbMText, AcDbEntity, 0, 0, 0, MTEXT, ARX)

namespace
{

constexpr double kLineDistance = 5.0 / 3.0;
constexpr int kColumnsOfAttachment = 3;

} // namespace

AcDbMText::AcDbMText()
    : m_normal(AcGeVector3d::kZAxis), m_direction(AcGeVector3d::kXAxis), m_width(0), m_height(0), m_lineSpacing(1),
      m_attachment(kTopLeft)
{
}

Acad::ErrorStatus AcDbMText::setLocation(const AcGePoint3d& location)
{
    assertWriteEnabled();
    m_location = location;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbMText::setNormal(const AcGeVector3d& normal)
{
    if (normal.isZeroLength())
    {
        return Acad::eInvalidInput;
    }
    assertWriteEnabled();
    m_normal = normal.normal();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbMText::setDirection(const AcGeVector3d& direction)
{
    if (direction.isZeroLength())
    {
        return Acad::eInvalidInput;
    }
    assertWriteEnabled();
    m_direction = direction.normal();
    return Acad::eOk;
}

ACHAR* AcDbMText::contents() const
{
    ACHAR* copy = NULL;
    acutNewString(m_contents.c_str(), copy);
    return copy;
}

Acad::ErrorStatus AcDbMText::setContents(const ACHAR* text)
{
    if (text == NULL)
    {
        return Acad::eInvalidInput;
    }
    assertWriteEnabled();
    m_contents = text;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbMText::setWidth(double width)
{
    assertWriteEnabled();
    m_width = width;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbMText::setTextHeight(double height)
{
    assertWriteEnabled();
    m_height = height;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbMText::setAttachment(AttachmentPoint attachment)
{
    if (attachment < kTopLeft || attachment > kBottomRight)
    {
        return Acad::eInvalidInput;
    }
    assertWriteEnabled();
    m_attachment = attachment;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbMText::setLineSpacingFactor(double factor)
{
    assertWriteEnabled();
    m_lineSpacing = factor;
    return Acad::eOk;
}

void AcDbMText::emitPieces(arxgi::PieceSink& sink) const
{
    const double width = m_height > 0 ? m_width / m_height : 0;
    const std::vector<std::wstring> lines = arxents::MTextLines(m_contents, width);
    const AcGeVector3d up = m_normal.crossProduct(m_direction);
    const double distance = m_height * kLineDistance * m_lineSpacing;
    const double total = m_height + distance * (lines.size() - 1);
    const double rowShare = (m_attachment - kTopLeft) / kColumnsOfAttachment * 0.5;
    const double columnShare = (m_attachment - kTopLeft) % kColumnsOfAttachment * 0.5;

    double baseLine = total * rowShare - m_height;
    for (const std::wstring& line : lines)
    {
        if (!line.empty())
        {
            arxgi::TextPiece piece;
            piece.text = line;
            piece.along = m_direction * (arxents::EstimatedWidth(line) * m_height);
            piece.up = up * m_height;
            piece.corner = m_location + up * baseLine - piece.along * columnShare;
            sink.AddText(piece);
        }
        baseLine -= distance;
    }
}
