#include "dbents.h"

#include "EntityPaths.h"
#include "arx/gi/PieceSink.h"

ACRX_DXF_DEFINE_MEMBERS(AcDb2dPolyline, AcDbCurve, 0, 0, 0, POLYLINE, ARX)
ACRX_DXF_DEFINE_MEMBERS(AcDb3dPolyline, AcDbCurve, 0, 0, 0, POLYLINE, ARX)

Acad::ErrorStatus AcDb2dPolyline::setPolyType(AcDb::Poly2dType type)
{
    assertWriteEnabled();
    m_type = type;
    return Acad::eOk;
}

Acad::ErrorStatus AcDb2dPolyline::setElevation(double elevation)
{
    assertWriteEnabled();
    m_path.elevation = elevation;
    return Acad::eOk;
}

Acad::ErrorStatus AcDb2dPolyline::setNormal(const AcGeVector3d& normal)
{
    if (normal.isZeroLength())
    {
        return Acad::eInvalidInput;
    }
    assertWriteEnabled();
    m_path.normal = normal.normal();
    return Acad::eOk;
}

Acad::ErrorStatus AcDb2dPolyline::makeClosed()
{
    assertWriteEnabled();
    m_path.closed = true;
    return Acad::eOk;
}

Acad::ErrorStatus AcDb2dPolyline::makeOpen()
{
    assertWriteEnabled();
    m_path.closed = false;
    return Acad::eOk;
}

Acad::ErrorStatus AcDb2dPolyline::appendVertex(const AcGePoint2d& point, double bulge)
{
    assertWriteEnabled();
    m_path.vertices.emplace_back(point, bulge);
    return Acad::eOk;
}

Acad::ErrorStatus AcDb2dPolyline::getPointAt(unsigned int index, AcGePoint3d& point) const
{
    if (index >= numVerts())
    {
        return Acad::eInvalidIndex;
    }
    point = m_path.WorldPoint(index);
    return Acad::eOk;
}

Acad::ErrorStatus AcDb2dPolyline::getBulgeAt(unsigned int index, double& bulge) const
{
    if (index >= numVerts())
    {
        return Acad::eInvalidIndex;
    }
    bulge = m_path.vertices[index].bulge;
    return Acad::eOk;
}

Acad::ErrorStatus AcDb2dPolyline::getStartPoint(AcGePoint3d& point) const
{
    return getPointAt(0, point) == Acad::eOk ? Acad::eOk : Acad::eDegenerateGeometry;
}

Acad::ErrorStatus AcDb2dPolyline::getEndPoint(AcGePoint3d& point) const
{
    if (m_path.closed || numVerts() == 0)
    {
        return getStartPoint(point);
    }
    return getPointAt(numVerts() - 1, point);
}

void AcDb2dPolyline::emitPieces(arxgi::PieceSink& sink) const
{
    if (numVerts() > 0)
    {
        sink.AddCurve(arxents::PathOf(m_path));
    }
}

AcDb3dPolyline::AcDb3dPolyline(AcDb::Poly3dType type, const AcGePoint3dArray& vertices, Adesk::Boolean closed)
    : m_type(type), m_closed(closed)
{
    for (int i = 0; i < vertices.length(); ++i)
    {
        m_vertices.push_back(vertices[i]);
    }
}

Acad::ErrorStatus AcDb3dPolyline::setPolyType(AcDb::Poly3dType type)
{
    assertWriteEnabled();
    m_type = type;
    return Acad::eOk;
}

Acad::ErrorStatus AcDb3dPolyline::makeClosed()
{
    assertWriteEnabled();
    m_closed = true;
    return Acad::eOk;
}

Acad::ErrorStatus AcDb3dPolyline::makeOpen()
{
    assertWriteEnabled();
    m_closed = false;
    return Acad::eOk;
}

Acad::ErrorStatus AcDb3dPolyline::appendVertex(const AcGePoint3d& point)
{
    assertWriteEnabled();
    m_vertices.push_back(point);
    return Acad::eOk;
}

Acad::ErrorStatus AcDb3dPolyline::getPointAt(unsigned int index, AcGePoint3d& point) const
{
    if (index >= numVerts())
    {
        return Acad::eInvalidIndex;
    }
    point = m_vertices[index];
    return Acad::eOk;
}

Acad::ErrorStatus AcDb3dPolyline::getStartPoint(AcGePoint3d& point) const
{
    return getPointAt(0, point) == Acad::eOk ? Acad::eOk : Acad::eDegenerateGeometry;
}

Acad::ErrorStatus AcDb3dPolyline::getEndPoint(AcGePoint3d& point) const
{
    if (m_closed || m_vertices.empty())
    {
        return getStartPoint(point);
    }
    point = m_vertices.back();
    return Acad::eOk;
}

void AcDb3dPolyline::emitPieces(arxgi::PieceSink& sink) const
{
    if (m_vertices.empty())
    {
        return;
    }
    arxgi::Path path;
    path.points = m_vertices;
    path.closed = m_closed;
    sink.AddCurve(path);
}
