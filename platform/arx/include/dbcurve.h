// AcDbCurve: base of the entities that are one connected curve.
#pragma once

#include "dbmain.h"

class ARX_API AcDbCurve : public AcDbEntity
{
public:
    ACRX_DECLARE_MEMBERS(AcDbCurve);

    // A closed curve ends where it starts: the answer of isClosed() is about the curve's kind or flag, except for
    // splines and ellipses, where the ends decide.
    virtual Adesk::Boolean isClosed() const = 0;
    virtual Adesk::Boolean isPeriodic() const { return isClosed(); }

    // Ends in world coordinates; eDegenerateGeometry for a curve without vertices.
    virtual Acad::ErrorStatus getStartPoint(AcGePoint3d& point) const = 0;
    virtual Acad::ErrorStatus getEndPoint(AcGePoint3d& point) const = 0;

protected:
    AcDbCurve() {}
};
