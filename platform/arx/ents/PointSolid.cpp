#include "dbents.h"

#include "arx/gi/PieceSink.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbPoint, AcDbEntity, 0, 0, 0, POINT, ARX)
ACRX_DXF_DEFINE_MEMBERS(AcDbSolid, AcDbEntity, 0, 0, 0, SOLID, ARX)

Acad::ErrorStatus AcDbPoint::setPosition(const AcGePoint3d& position)
{
    assertWriteEnabled();
    m_position = position;
    return Acad::eOk;
}

void AcDbPoint::emitPieces(arxgi::PieceSink& sink) const
{
    sink.AddPoint(m_position);
}

AcDbSolid::AcDbSolid(const AcGePoint3d& pt0, const AcGePoint3d& pt1, const AcGePoint3d& pt2, const AcGePoint3d& pt3)
    : m_corners{pt0, pt1, pt2, pt3}
{
}

AcDbSolid::AcDbSolid(const AcGePoint3d& pt0, const AcGePoint3d& pt1, const AcGePoint3d& pt2)
    : m_corners{pt0, pt1, pt2, pt2}
{
}

Acad::ErrorStatus AcDbSolid::getPointAt(Adesk::UInt16 index, AcGePoint3d& point) const
{
    if (index >= kCorners)
    {
        return Acad::eInvalidIndex;
    }
    point = m_corners[index];
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSolid::setPointAt(Adesk::UInt16 index, const AcGePoint3d& point)
{
    if (index >= kCorners)
    {
        return Acad::eInvalidIndex;
    }
    assertWriteEnabled();
    m_corners[index] = point;
    return Acad::eOk;
}

void AcDbSolid::emitPieces(arxgi::PieceSink& sink) const
{
    arxgi::Path outline;
    outline.points = {m_corners[0], m_corners[1], m_corners[3], m_corners[2]};
    outline.closed = true;
    sink.AddArea({outline});
}
