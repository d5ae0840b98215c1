#include "gepnt2d.h"

const AcGePoint2d AcGePoint2d::kOrigin(0, 0);

AcGePoint2d& AcGePoint2d::set(double xx, double yy)
{
    x = xx;
    y = yy;
    return *this;
}

bool AcGePoint2d::isEqualTo(const AcGePoint2d& p, const AcGeTol& tol) const
{
    return distanceTo(p) <= tol.equalPoint();
}
