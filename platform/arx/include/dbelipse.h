// AcDbEllipse: an ellipse or an arc of one.
#pragma once

#include "dbcurve.h"

class ARX_API AcDbEllipse : public AcDbCurve
{
public:
    ACRX_DECLARE_MEMBERS(AcDbEllipse);

    AcDbEllipse();
    // `majorAxis` reaches from the centre to the end of the longer axis; `radiusRatio` is in (0, 1]. The angles are
    // parameters: the point is centre + majorAxis * cos(angle) + minorAxis() * sin(angle).
    AcDbEllipse(const AcGePoint3d& center, const AcGeVector3d& unitNormal, const AcGeVector3d& majorAxis,
                double radiusRatio, double startAngle = 0.0, double endAngle = 6.28318530717958647692);

    AcGePoint3d center() const { return m_center; }
    Acad::ErrorStatus setCenter(const AcGePoint3d& center);
    AcGeVector3d normal() const { return m_normal; }
    AcGeVector3d majorAxis() const { return m_majorAxis; }
    AcGeVector3d minorAxis() const;
    double radiusRatio() const { return m_radiusRatio; }
    double startAngle() const { return m_startAngle; }
    double endAngle() const { return m_endAngle; }
    // eInvalidInput, and nothing changes, for a null axis or a ratio outside (0, 1].
    Acad::ErrorStatus set(const AcGePoint3d& center, const AcGeVector3d& unitNormal, const AcGeVector3d& majorAxis,
                          double radiusRatio, double startAngle = 0.0, double endAngle = 6.28318530717958647692);

    // True for a whole ellipse.
    Adesk::Boolean isClosed() const;
    Acad::ErrorStatus getStartPoint(AcGePoint3d& point) const;
    Acad::ErrorStatus getEndPoint(AcGePoint3d& point) const;

    virtual void emitPieces(arxgi::PieceSink& sink) const;

private:
    AcGePoint3d pointAt(double angle) const;

    AcGePoint3d m_center;
    AcGeVector3d m_normal;
    AcGeVector3d m_majorAxis;
    double m_radiusRatio;
    double m_startAngle;
    double m_endAngle;
};
