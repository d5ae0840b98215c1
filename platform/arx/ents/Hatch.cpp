#include "dbhatch.h"

#include "EntityPaths.h"
#include "arx/gi/PieceSink.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbHatch, AcDbEntity, 0, 0, 0, HATCH, ARX)

AcDbHatch::AcDbHatch() : m_normal(AcGeVector3d::kZAxis), m_elevation(0), m_solid(false) {}

Acad::ErrorStatus AcDbHatch::setNormal(const AcGeVector3d& normal)
{
    if (normal.isZeroLength())
    {
        return Acad::eInvalidInput;
    }
    assertWriteEnabled();
    m_normal = normal.normal();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbHatch::setElevation(double elevation)
{
    assertWriteEnabled();
    m_elevation = elevation;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbHatch::setPatternName(const ACHAR* name)
{
    if (name == NULL)
    {
        return Acad::eInvalidInput;
    }
    assertWriteEnabled();
    m_patternName = name;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbHatch::setSolidFill(bool solid)
{
    assertWriteEnabled();
    m_solid = solid;
    return Acad::eOk;
}

Adesk::Int32 AcDbHatch::loopTypeAt(int index) const
{
    return index < 0 || index >= numLoops() ? 0 : m_loops[index].type;
}

int AcDbHatch::numEdgesAt(int index) const
{
    if (index < 0 || index >= numLoops())
    {
        return 0;
    }
    return m_loops[index].isPolyline ? 1 : static_cast<int>(m_loops[index].edges.size());
}

Acad::ErrorStatus AcDbHatch::appendLoop(const arxents::HatchLoop& loop)
{
    assertWriteEnabled();
    m_loops.push_back(loop);
    return Acad::eOk;
}

void AcDbHatch::emitPieces(arxgi::PieceSink& sink) const
{
    const AcGeMatrix3d toWorld =
        AcGeMatrix3d::planeToWorld(m_normal) * AcGeMatrix3d::translation(AcGeVector3d(0, 0, m_elevation));
    std::vector<arxgi::Path> boundary;
    for (const arxents::HatchLoop& loop : m_loops)
    {
        arxgi::Path path = arxents::PathOf(loop);
        if (path.points.empty())
        {
            continue;
        }
        path.Transform(toWorld);
        if (m_solid)
        {
            boundary.push_back(path);
        }
        else
        {
            sink.AddCurve(path);
        }
    }
    if (!boundary.empty())
    {
        sink.AddArea(boundary);
    }
}
