// AcGeVector3d: a direction with a length in space.
#pragma once

#include "getol.h"

class AcGeMatrix3d;

class ARX_API AcGeVector3d
{
public:
    AcGeVector3d() : x(0), y(0), z(0) {}
    AcGeVector3d(double xx, double yy, double zz) : x(xx), y(yy), z(zz) {}

    static const AcGeVector3d kIdentity;
    static const AcGeVector3d kXAxis;
    static const AcGeVector3d kYAxis;
    static const AcGeVector3d kZAxis;

    AcGeVector3d operator+(const AcGeVector3d& v) const { return AcGeVector3d(x + v.x, y + v.y, z + v.z); }
    AcGeVector3d operator-(const AcGeVector3d& v) const { return AcGeVector3d(x - v.x, y - v.y, z - v.z); }
    AcGeVector3d operator-() const { return AcGeVector3d(-x, -y, -z); }
    AcGeVector3d operator*(double scale) const { return AcGeVector3d(x * scale, y * scale, z * scale); }
    AcGeVector3d operator/(double divisor) const { return AcGeVector3d(x / divisor, y / divisor, z / divisor); }
    AcGeVector3d& operator+=(const AcGeVector3d& v) { return *this = *this + v; }
    AcGeVector3d& operator-=(const AcGeVector3d& v) { return *this = *this - v; }
    AcGeVector3d& operator*=(double scale) { return *this = *this * scale; }
    bool operator==(const AcGeVector3d& v) const { return isEqualTo(v); }
    bool operator!=(const AcGeVector3d& v) const { return !isEqualTo(v); }

    AcGeVector3d& set(double xx, double yy, double zz);
    AcGeVector3d& negate() { return *this = -*this; }
    double length() const;
    double lengthSqrd() const { return dotProduct(*this); }
    // Length 1; the null vector stays as it is.
    AcGeVector3d normal() const;
    AcGeVector3d& normalize() { return *this = normal(); }
    bool isZeroLength(const AcGeTol& tol = AcGeContext::gTol) const { return length() <= tol.equalVector(); }
    double dotProduct(const AcGeVector3d& v) const { return x * v.x + y * v.y + z * v.z; }
    AcGeVector3d crossProduct(const AcGeVector3d& v) const;
    // Some unit vector at a right angle: the x axis that belongs to this normal in object coordinates.
    AcGeVector3d perpVector() const;
    // Radians in [0, pi].
    double angleTo(const AcGeVector3d& v) const;
    // Radians in [0, 2 pi), counter-clockwise around `reference`.
    double angleTo(const AcGeVector3d& v, const AcGeVector3d& reference) const;
    AcGeVector3d& rotateBy(double angle, const AcGeVector3d& axis);
    AcGeVector3d& transformBy(const AcGeMatrix3d& matrix);
    bool isParallelTo(const AcGeVector3d& v, const AcGeTol& tol = AcGeContext::gTol) const;
    bool isEqualTo(const AcGeVector3d& v, const AcGeTol& tol = AcGeContext::gTol) const;

    double operator[](unsigned int i) const { return i == 0 ? x : i == 1 ? y : z; }
    double& operator[](unsigned int i) { return i == 0 ? x : i == 1 ? y : z; }

    double x;
    double y;
    double z;
};

inline AcGeVector3d operator*(double scale, const AcGeVector3d& v)
{
    return v * scale;
}
