#include "dbelipse.h"
#include "dbspline.h"

#include "Angles.h"
#include "arx/gi/PieceSink.h"

#include <cmath>

ACRX_DXF_DEFINE_MEMBERS(AcDbEllipse, AcDbCurve, 0, 0, 0, ELLIPSE, ARX)
ACRX_DXF_DEFINE_MEMBERS(AcDbSpline, AcDbCurve, 0, 0, 0, SPLINE, ARX)

namespace
{

// Files round the angles of whole ellipses.
constexpr double kFullTurnSlack = 1e-6;

} // namespace

AcDbEllipse::AcDbEllipse()
    : m_normal(AcGeVector3d::kZAxis), m_majorAxis(AcGeVector3d::kXAxis), m_radiusRatio(1), m_startAngle(0),
      m_endAngle(arxents::kTwoPi)
{
}

AcDbEllipse::AcDbEllipse(const AcGePoint3d& center, const AcGeVector3d& unitNormal, const AcGeVector3d& majorAxis,
                         double radiusRatio, double startAngle, double endAngle)
    : AcDbEllipse()
{
    set(center, unitNormal, majorAxis, radiusRatio, startAngle, endAngle);
}

Acad::ErrorStatus AcDbEllipse::setCenter(const AcGePoint3d& center)
{
    assertWriteEnabled();
    m_center = center;
    return Acad::eOk;
}

AcGeVector3d AcDbEllipse::minorAxis() const
{
    return m_normal.crossProduct(m_majorAxis) * m_radiusRatio;
}

Acad::ErrorStatus AcDbEllipse::set(const AcGePoint3d& center, const AcGeVector3d& unitNormal,
                                   const AcGeVector3d& majorAxis, double radiusRatio, double startAngle,
                                   double endAngle)
{
    if (unitNormal.isZeroLength() || majorAxis.isZeroLength() || !(radiusRatio > 0) || radiusRatio > 1)
    {
        return Acad::eInvalidInput;
    }
    assertWriteEnabled();
    m_center = center;
    m_normal = unitNormal.normal();
    m_majorAxis = majorAxis;
    m_radiusRatio = radiusRatio;
    m_startAngle = startAngle;
    m_endAngle = endAngle;
    return Acad::eOk;
}

Adesk::Boolean AcDbEllipse::isClosed() const
{
    return std::fabs(arxents::SweepBetween(m_startAngle, m_endAngle) - arxents::kTwoPi) < kFullTurnSlack;
}

Acad::ErrorStatus AcDbEllipse::getStartPoint(AcGePoint3d& point) const
{
    point = pointAt(m_startAngle);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbEllipse::getEndPoint(AcGePoint3d& point) const
{
    point = pointAt(m_endAngle);
    return Acad::eOk;
}

void AcDbEllipse::emitPieces(arxgi::PieceSink& sink) const
{
    arxgi::Arc arc;
    arc.center = m_center;
    arc.u = m_majorAxis;
    arc.v = minorAxis();
    arc.start = m_startAngle;
    arc.sweep = arxents::SweepBetween(m_startAngle, m_endAngle);
    if (isClosed())
    {
        sink.AddCurve(arxgi::ClosedArcPath(arc));
        return;
    }
    arxgi::Path path;
    path.AddArc(arc);
    sink.AddCurve(path);
}

AcGePoint3d AcDbEllipse::pointAt(double angle) const
{
    return m_center + m_majorAxis * std::cos(angle) + minorAxis() * std::sin(angle);
}

Acad::ErrorStatus AcDbSpline::setNurbsData(const arxents::Spline& data)
{
    if (!data.IsValid())
    {
        return Acad::eInvalidInput;
    }
    assertWriteEnabled();
    m_data = data;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSpline::setFitPoints(const AcGePoint3dArray& points)
{
    const std::vector<AcGePoint3d> fitPoints(points.asArrayPtr(), points.asArrayPtr() + points.length());
    const arxents::Spline curve = arxents::SplineThroughPoints(fitPoints);
    if (!curve.IsValid())
    {
        return Acad::eInvalidInput;
    }
    assertWriteEnabled();
    m_data = curve;
    m_fitPoints = fitPoints;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSpline::getControlPointAt(int index, AcGePoint3d& point) const
{
    if (index < 0 || index >= numControlPoints())
    {
        return Acad::eInvalidIndex;
    }
    point = m_data.points[index];
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSpline::getFitPointAt(int index, AcGePoint3d& point) const
{
    if (index < 0 || index >= numFitPoints())
    {
        return Acad::eInvalidIndex;
    }
    point = m_fitPoints[index];
    return Acad::eOk;
}

Adesk::Boolean AcDbSpline::isClosed() const
{
    AcGePoint3d start, end;
    return getStartPoint(start) == Acad::eOk && getEndPoint(end) == Acad::eOk && start.isEqualTo(end);
}

Acad::ErrorStatus AcDbSpline::getStartPoint(AcGePoint3d& point) const
{
    if (!m_data.IsValid())
    {
        return Acad::eDegenerateGeometry;
    }
    point = m_data.At(m_data.First());
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSpline::getEndPoint(AcGePoint3d& point) const
{
    if (!m_data.IsValid())
    {
        return Acad::eDegenerateGeometry;
    }
    point = m_data.At(m_data.Last());
    return Acad::eOk;
}

void AcDbSpline::emitPieces(arxgi::PieceSink& sink) const
{
    arxgi::Path path;
    path.points = m_data.Tessellate();
    if (!path.points.empty())
    {
        sink.AddCurve(path);
    }
}
