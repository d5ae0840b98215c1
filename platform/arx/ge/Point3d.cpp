#include "gemat3d.h"
#include "gepnt3d.h"

const AcGePoint3d AcGePoint3d::kOrigin(0, 0, 0);

AcGePoint3d& AcGePoint3d::set(double xx, double yy, double zz)
{
    x = xx;
    y = yy;
    z = zz;
    return *this;
}

AcGePoint3d& AcGePoint3d::transformBy(const AcGeMatrix3d& matrix)
{
    return *this = matrix * *this;
}

bool AcGePoint3d::isEqualTo(const AcGePoint3d& p, const AcGeTol& tol) const
{
    return distanceTo(p) <= tol.equalPoint();
}
