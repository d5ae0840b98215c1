#include "dbents.h"

#include "Angles.h"
#include "EntityPaths.h"
#include "arx/gi/PieceSink.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbCircle, AcDbCurve, 0, 0, 0, CIRCLE, ARX)
ACRX_DXF_DEFINE_MEMBERS(AcDbArc, AcDbCurve, 0, 0, 0, ARC, ARX)

Acad::ErrorStatus AcDbCircle::setCenter(const AcGePoint3d& center)
{
    assertWriteEnabled();
    m_center = center;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbCircle::setRadius(double radius)
{
    if (radius < 0)
    {
        return Acad::eInvalidInput;
    }
    assertWriteEnabled();
    m_radius = radius;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbCircle::setNormal(const AcGeVector3d& normal)
{
    if (normal.isZeroLength())
    {
        return Acad::eInvalidInput;
    }
    assertWriteEnabled();
    m_normal = normal.normal();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbCircle::getStartPoint(AcGePoint3d& point) const
{
    point = arxents::CircularArc(m_center, m_normal, m_radius, 0, arxents::kTwoPi).At(0);
    return Acad::eOk;
}

void AcDbCircle::emitPieces(arxgi::PieceSink& sink) const
{
    sink.AddCurve(arxgi::ClosedArcPath(arxents::CircularArc(m_center, m_normal, m_radius, 0, arxents::kTwoPi)));
}

Acad::ErrorStatus AcDbArc::setCenter(const AcGePoint3d& center)
{
    assertWriteEnabled();
    m_center = center;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::setRadius(double radius)
{
    if (radius < 0)
    {
        return Acad::eInvalidInput;
    }
    assertWriteEnabled();
    m_radius = radius;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::setStartAngle(double angle)
{
    assertWriteEnabled();
    m_startAngle = angle;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::setEndAngle(double angle)
{
    assertWriteEnabled();
    m_endAngle = angle;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::setNormal(const AcGeVector3d& normal)
{
    if (normal.isZeroLength())
    {
        return Acad::eInvalidInput;
    }
    assertWriteEnabled();
    m_normal = normal.normal();
    return Acad::eOk;
}

double AcDbArc::totalAngle() const
{
    return arxents::SweepBetween(m_startAngle, m_endAngle);
}

Acad::ErrorStatus AcDbArc::getStartPoint(AcGePoint3d& point) const
{
    point = pointAt(m_startAngle);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::getEndPoint(AcGePoint3d& point) const
{
    point = pointAt(m_endAngle);
    return Acad::eOk;
}

void AcDbArc::emitPieces(arxgi::PieceSink& sink) const
{
    arxgi::Path path;
    path.AddArc(arxents::CircularArc(m_center, m_normal, m_radius, m_startAngle, totalAngle()));
    sink.AddCurve(path);
}

AcGePoint3d AcDbArc::pointAt(double angle) const
{
    return arxents::CircularArc(m_center, m_normal, m_radius, angle, 0).At(angle);
}
