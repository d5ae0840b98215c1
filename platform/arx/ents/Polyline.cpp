#include "dbpl.h"

#include "EntityPaths.h"
#include "arx/gi/PieceSink.h"

#include <algorithm>

ACRX_DXF_DEFINE_MEMBERS(AcDbPolyline, AcDbCurve, 0, 0, 0, LWPOLYLINE, ARX)

Acad::ErrorStatus AcDbPolyline::addVertexAt(unsigned int index, const AcGePoint2d& point, double bulge, double, double)
{
    if (index > numVerts())
    {
        return Acad::eInvalidIndex;
    }
    assertWriteEnabled();
    m_path.vertices.insert(m_path.vertices.begin() + index, arxents::BulgeVertex(point, bulge));
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::removeVertexAt(unsigned int index)
{
    if (index >= numVerts())
    {
        return Acad::eInvalidIndex;
    }
    assertWriteEnabled();
    m_path.vertices.erase(m_path.vertices.begin() + index);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getPointAt(unsigned int index, AcGePoint3d& point) const
{
    if (index >= numVerts())
    {
        return Acad::eInvalidIndex;
    }
    point = m_path.WorldPoint(index);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getPointAt(unsigned int index, AcGePoint2d& point) const
{
    if (index >= numVerts())
    {
        return Acad::eInvalidIndex;
    }
    point = m_path.vertices[index].point;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::setPointAt(unsigned int index, const AcGePoint2d& point)
{
    if (index >= numVerts())
    {
        return Acad::eInvalidIndex;
    }
    assertWriteEnabled();
    m_path.vertices[index].point = point;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getBulgeAt(unsigned int index, double& bulge) const
{
    if (index >= numVerts())
    {
        return Acad::eInvalidIndex;
    }
    bulge = m_path.vertices[index].bulge;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::setBulgeAt(unsigned int index, double bulge)
{
    if (index >= numVerts())
    {
        return Acad::eInvalidIndex;
    }
    assertWriteEnabled();
    m_path.vertices[index].bulge = bulge;
    return Acad::eOk;
}

AcDbPolyline::SegType AcDbPolyline::segType(unsigned int index) const
{
    const unsigned int count = numVerts();
    if (index >= count)
    {
        return kEmpty;
    }
    if (count == 1 || (index == count - 1 && !m_path.closed))
    {
        return kPoint;
    }
    const arxents::BulgeVertex& from = m_path.vertices[index];
    if (from.point.isEqualTo(m_path.vertices[(index + 1) % count].point))
    {
        return kCoincident;
    }
    return from.bulge == 0 ? kLine : kArc;
}

void AcDbPolyline::setClosed(Adesk::Boolean closed)
{
    assertWriteEnabled();
    m_path.closed = closed;
}

Acad::ErrorStatus AcDbPolyline::setElevation(double elevation)
{
    assertWriteEnabled();
    m_path.elevation = elevation;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::setNormal(const AcGeVector3d& normal)
{
    if (normal.isZeroLength())
    {
        return Acad::eInvalidInput;
    }
    assertWriteEnabled();
    m_path.normal = normal.normal();
    return Acad::eOk;
}

Adesk::Boolean AcDbPolyline::isOnlyLines() const
{
    return std::all_of(m_path.vertices.begin(), m_path.vertices.end(),
                       [](const arxents::BulgeVertex& vertex) { return vertex.bulge == 0; });
}

Acad::ErrorStatus AcDbPolyline::getStartPoint(AcGePoint3d& point) const
{
    return getPointAt(0, point) == Acad::eOk ? Acad::eOk : Acad::eDegenerateGeometry;
}

Acad::ErrorStatus AcDbPolyline::getEndPoint(AcGePoint3d& point) const
{
    if (m_path.closed || numVerts() == 0)
    {
        return getStartPoint(point);
    }
    return getPointAt(numVerts() - 1, point);
}

void AcDbPolyline::emitPieces(arxgi::PieceSink& sink) const
{
    if (numVerts() > 0)
    {
        sink.AddCurve(arxents::PathOf(m_path));
    }
}
