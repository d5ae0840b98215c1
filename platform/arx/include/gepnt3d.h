// AcGePoint3d: a position in space.
#pragma once

#include "gevec3d.h"

class ARX_API AcGePoint3d
{
public:
    AcGePoint3d() : x(0), y(0), z(0) {}
    AcGePoint3d(double xx, double yy, double zz) : x(xx), y(yy), z(zz) {}

    static const AcGePoint3d kOrigin;

    AcGePoint3d operator+(const AcGeVector3d& v) const { return AcGePoint3d(x + v.x, y + v.y, z + v.z); }
    AcGePoint3d operator-(const AcGeVector3d& v) const { return AcGePoint3d(x - v.x, y - v.y, z - v.z); }
    AcGeVector3d operator-(const AcGePoint3d& p) const { return AcGeVector3d(x - p.x, y - p.y, z - p.z); }
    AcGePoint3d operator*(double scale) const { return AcGePoint3d(x * scale, y * scale, z * scale); }
    AcGePoint3d operator/(double divisor) const { return AcGePoint3d(x / divisor, y / divisor, z / divisor); }
    AcGePoint3d& operator+=(const AcGeVector3d& v) { return *this = *this + v; }
    AcGePoint3d& operator-=(const AcGeVector3d& v) { return *this = *this - v; }
    bool operator==(const AcGePoint3d& p) const { return isEqualTo(p); }
    bool operator!=(const AcGePoint3d& p) const { return !isEqualTo(p); }

    AcGePoint3d& set(double xx, double yy, double zz);
    AcGeVector3d asVector() const { return AcGeVector3d(x, y, z); }
    double distanceTo(const AcGePoint3d& p) const { return (*this - p).length(); }
    AcGePoint3d& transformBy(const AcGeMatrix3d& matrix);
    bool isEqualTo(const AcGePoint3d& p, const AcGeTol& tol = AcGeContext::gTol) const;

    double operator[](unsigned int i) const { return i == 0 ? x : i == 1 ? y : z; }
    double& operator[](unsigned int i) { return i == 0 ? x : i == 1 ? y : z; }

    double x;
    double y;
    double z;
};

// A point as the C interface passes it.
inline double* asDblArray(AcGePoint3d& point)
{
    return &point.x;
}

inline const double* asDblArray(const AcGePoint3d& point)
{
    return &point.x;
}
