#include "gescl3d.h"

#include <cmath>

AcGeScale3d& AcGeScale3d::set(double xFactor, double yFactor, double zFactor)
{
    sx = xFactor;
    sy = yFactor;
    sz = zFactor;
    return *this;
}

bool AcGeScale3d::isProportional(const AcGeTol& tol) const
{
    return std::fabs(std::fabs(sx) - std::fabs(sy)) <= tol.equalVector() &&
           std::fabs(std::fabs(sy) - std::fabs(sz)) <= tol.equalVector();
}

bool AcGeScale3d::isEqualTo(const AcGeScale3d& other, const AcGeTol& tol) const
{
    return AcGeVector3d(sx, sy, sz).isEqualTo(AcGeVector3d(other.sx, other.sy, other.sz), tol);
}
