// AcDbSpline: a (rational) B-spline curve.
#pragma once

#include "dbcurve.h"
#include "gept3dar.h"
#include "arx/ents/Spline.h"

class ARX_API AcDbSpline : public AcDbCurve
{
public:
    ACRX_DECLARE_MEMBERS(AcDbSpline);

    AcDbSpline() {}

    // `knots` holds controlPoints + degree + 1 ascending values; `weights` one for each control point, or none.
    // eInvalidInput, and nothing changes, when the numbers do not fit together.
    Acad::ErrorStatus setNurbsData(const arxents::Spline& data);
    // A curve through the points, for drawings that keep only these. It is a smooth cubic; the original's tangents are
    // not known.
    Acad::ErrorStatus setFitPoints(const AcGePoint3dArray& points);

    int degree() const { return m_data.degree; }
    Adesk::Boolean isRational() const { return !m_data.weights.empty(); }
    int numControlPoints() const { return static_cast<int>(m_data.points.size()); }
    // eInvalidIndex outside the range.
    Acad::ErrorStatus getControlPointAt(int index, AcGePoint3d& point) const;
    int numFitPoints() const { return static_cast<int>(m_fitPoints.size()); }
    Acad::ErrorStatus getFitPointAt(int index, AcGePoint3d& point) const;

    // True when the curve ends where it starts.
    Adesk::Boolean isClosed() const;
    Acad::ErrorStatus getStartPoint(AcGePoint3d& point) const;
    Acad::ErrorStatus getEndPoint(AcGePoint3d& point) const;

    virtual void emitPieces(arxgi::PieceSink& sink) const;

private:
    arxents::Spline m_data;
    std::vector<AcGePoint3d> m_fitPoints;
};
