#include "dbents.h"

#include "TextCodes.h"
#include "acutads.h"
#include "arx/gi/PieceSink.h"

#include <cmath>

ACRX_DXF_DEFINE_MEMBERS(AcDbText, AcDbEntity, 0, 0, 0, TEXT, ARX)

namespace
{

// Distance of the alignment point from the text's base line, as a share of the height.
double HeightShare(AcDb::TextHorzMode horizontal, AcDb::TextVertMode vertical)
{
    if (horizontal == AcDb::kTextMid)
    {
        return 0.5;
    }
    return vertical == AcDb::kTextTop ? 1 : vertical == AcDb::kTextVertMid ? 0.5 : 0;
}

double WidthShare(AcDb::TextHorzMode horizontal)
{
    switch (horizontal)
    {
    case AcDb::kTextCenter:
    case AcDb::kTextMid:
        return 0.5;
    case AcDb::kTextRight:
        return 1;
    default:
        return 0;
    }
}

} // namespace

AcDbText::AcDbText()
    : m_normal(AcGeVector3d::kZAxis), m_height(0), m_rotation(0), m_widthFactor(1), m_oblique(0),
      m_horizontalMode(AcDb::kTextLeft), m_verticalMode(AcDb::kTextBase)
{
}

AcDbText::AcDbText(const AcGePoint3d& position, const ACHAR* text, double height, double rotation) : AcDbText()
{
    m_position = position;
    m_text = text == NULL ? L"" : text;
    m_height = height;
    m_rotation = rotation;
}

ACHAR* AcDbText::textString() const
{
    ACHAR* copy = NULL;
    acutNewString(m_text.c_str(), copy);
    return copy;
}

Acad::ErrorStatus AcDbText::setTextString(const ACHAR* text)
{
    if (text == NULL)
    {
        return Acad::eInvalidInput;
    }
    assertWriteEnabled();
    m_text = text;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setPosition(const AcGePoint3d& position)
{
    assertWriteEnabled();
    m_position = position;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setAlignmentPoint(const AcGePoint3d& point)
{
    assertWriteEnabled();
    m_alignmentPoint = point;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setHorizontalMode(AcDb::TextHorzMode mode)
{
    assertWriteEnabled();
    m_horizontalMode = mode;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setVerticalMode(AcDb::TextVertMode mode)
{
    assertWriteEnabled();
    m_verticalMode = mode;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setHeight(double height)
{
    assertWriteEnabled();
    m_height = height;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setRotation(double angle)
{
    assertWriteEnabled();
    m_rotation = angle;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setWidthFactor(double factor)
{
    assertWriteEnabled();
    m_widthFactor = factor;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setOblique(double angle)
{
    assertWriteEnabled();
    m_oblique = angle;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbText::setNormal(const AcGeVector3d& normal)
{
    if (normal.isZeroLength())
    {
        return Acad::eInvalidInput;
    }
    assertWriteEnabled();
    m_normal = normal.normal();
    return Acad::eOk;
}

void AcDbText::emitPieces(arxgi::PieceSink& sink) const
{
    arxgi::TextPiece piece;
    piece.text = arxents::ResolveControlCodes(m_text);
    if (piece.text.empty())
    {
        return;
    }
    const AcGeMatrix3d plane = AcGeMatrix3d::planeToWorld(m_normal);
    const AcGeVector3d right = plane * AcGeVector3d(std::cos(m_rotation), std::sin(m_rotation), 0);
    const AcGeVector3d upright = m_normal.crossProduct(right);
    const double width = arxents::EstimatedWidth(piece.text) * m_height * m_widthFactor;
    const bool isSpanned = m_horizontalMode == AcDb::kTextAlign || m_horizontalMode == AcDb::kTextFit;

    piece.along = right * width;
    piece.up = (upright + right * std::tan(m_oblique)) * m_height;
    piece.corner = m_position;
    if (isSpanned && !m_alignmentPoint.isEqualTo(m_position))
    {
        piece.along = m_alignmentPoint - m_position;
        piece.up = m_normal.crossProduct(piece.along.normal()) * m_height;
    }
    else if (!isSpanned && (m_horizontalMode != AcDb::kTextLeft || m_verticalMode != AcDb::kTextBase))
    {
        piece.corner = m_alignmentPoint - piece.along * WidthShare(m_horizontalMode) -
                       upright * (m_height * HeightShare(m_horizontalMode, m_verticalMode));
    }
    sink.AddText(piece);
}
