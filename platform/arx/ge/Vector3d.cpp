#include "gemat3d.h"

#include <algorithm>
#include <cmath>

namespace
{

const double kTwoPi = 6.283185307179586;

} // namespace

AcGeTol AcGeContext::gTol;

const AcGeVector3d AcGeVector3d::kIdentity(0, 0, 0);
const AcGeVector3d AcGeVector3d::kXAxis(1, 0, 0);
const AcGeVector3d AcGeVector3d::kYAxis(0, 1, 0);
const AcGeVector3d AcGeVector3d::kZAxis(0, 0, 1);

AcGeVector3d& AcGeVector3d::set(double xx, double yy, double zz)
{
    x = xx;
    y = yy;
    z = zz;
    return *this;
}

double AcGeVector3d::length() const
{
    return std::sqrt(lengthSqrd());
}

AcGeVector3d AcGeVector3d::normal() const
{
    const double size = length();
    return size == 0 ? *this : *this / size;
}

AcGeVector3d AcGeVector3d::crossProduct(const AcGeVector3d& v) const
{
    return AcGeVector3d(y * v.z - z * v.y, z * v.x - x * v.z, x * v.y - y * v.x);
}

AcGeVector3d AcGeVector3d::perpVector() const
{
    // The arbitrary-axis rule of drawing files: near the z axis the y axis is the helper.
    const double nearZAxis = 1.0 / 64;
    const AcGeVector3d unit = normal();
    const bool steep = std::fabs(unit.x) < nearZAxis && std::fabs(unit.y) < nearZAxis;
    return (steep ? kYAxis : kZAxis).crossProduct(unit).normal();
}

double AcGeVector3d::angleTo(const AcGeVector3d& v) const
{
    const double sizes = length() * v.length();
    return sizes == 0 ? 0 : std::acos(std::clamp(dotProduct(v) / sizes, -1.0, 1.0));
}

double AcGeVector3d::angleTo(const AcGeVector3d& v, const AcGeVector3d& reference) const
{
    const double angle = angleTo(v);
    return crossProduct(v).dotProduct(reference) < 0 ? kTwoPi - angle : angle;
}

AcGeVector3d& AcGeVector3d::rotateBy(double angle, const AcGeVector3d& axis)
{
    return transformBy(AcGeMatrix3d::rotation(angle, axis));
}

AcGeVector3d& AcGeVector3d::transformBy(const AcGeMatrix3d& matrix)
{
    return *this = matrix * *this;
}

bool AcGeVector3d::isParallelTo(const AcGeVector3d& v, const AcGeTol& tol) const
{
    return normal().crossProduct(v.normal()).length() <= tol.equalVector();
}

bool AcGeVector3d::isEqualTo(const AcGeVector3d& v, const AcGeTol& tol) const
{
    return (*this - v).length() <= tol.equalVector();
}
