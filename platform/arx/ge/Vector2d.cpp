#include "gevec2d.h"

#include <cmath>

namespace
{

const double kTwoPi = 6.283185307179586;

} // namespace

const AcGeVector2d AcGeVector2d::kIdentity(0, 0);
const AcGeVector2d AcGeVector2d::kXAxis(1, 0);
const AcGeVector2d AcGeVector2d::kYAxis(0, 1);

double AcGeVector2d::angle() const
{
    const double angle = std::atan2(y, x);
    return angle < 0 ? angle + kTwoPi : angle;
}

double AcGeVector2d::length() const
{
    return std::hypot(x, y);
}

AcGeVector2d AcGeVector2d::normal() const
{
    const double size = length();
    return size == 0 ? *this : *this / size;
}

bool AcGeVector2d::isEqualTo(const AcGeVector2d& v, const AcGeTol& tol) const
{
    return (*this - v).length() <= tol.equalVector();
}
