#include "dbents.h"

#include "arx/gi/PieceSink.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbLine, AcDbCurve, 0, 0, 0, LINE, ARX)

Acad::ErrorStatus AcDbLine::setStartPoint(const AcGePoint3d& point)
{
    assertWriteEnabled();
    m_start = point;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::setEndPoint(const AcGePoint3d& point)
{
    assertWriteEnabled();
    m_end = point;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::getStartPoint(AcGePoint3d& point) const
{
    point = m_start;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::getEndPoint(AcGePoint3d& point) const
{
    point = m_end;
    return Acad::eOk;
}

void AcDbLine::emitPieces(arxgi::PieceSink& sink) const
{
    arxgi::Path path;
    path.points = {m_start, m_end};
    sink.AddCurve(path);
}
