// AcGeVector2d: a direction with a length in the plane.
#pragma once

#include "getol.h"

class ARX_API AcGeVector2d
{
public:
    AcGeVector2d() : x(0), y(0) {}
    AcGeVector2d(double xx, double yy) : x(xx), y(yy) {}

    static const AcGeVector2d kIdentity;
    static const AcGeVector2d kXAxis;
    static const AcGeVector2d kYAxis;

    AcGeVector2d operator+(const AcGeVector2d& v) const { return AcGeVector2d(x + v.x, y + v.y); }
    AcGeVector2d operator-(const AcGeVector2d& v) const { return AcGeVector2d(x - v.x, y - v.y); }
    AcGeVector2d operator-() const { return AcGeVector2d(-x, -y); }
    AcGeVector2d operator*(double scale) const { return AcGeVector2d(x * scale, y * scale); }
    AcGeVector2d operator/(double divisor) const { return AcGeVector2d(x / divisor, y / divisor); }
    bool operator==(const AcGeVector2d& v) const { return isEqualTo(v); }
    bool operator!=(const AcGeVector2d& v) const { return !isEqualTo(v); }

    // Radians in [0, 2 pi) from the x axis, counter-clockwise; 0 for the null vector.
    double angle() const;
    double length() const;
    // The null vector stays as it is.
    AcGeVector2d normal() const;
    AcGeVector2d perpVector() const { return AcGeVector2d(-y, x); }
    double dotProduct(const AcGeVector2d& v) const { return x * v.x + y * v.y; }
    bool isEqualTo(const AcGeVector2d& v, const AcGeTol& tol = AcGeContext::gTol) const;

    double operator[](unsigned int i) const { return i == 0 ? x : y; }
    double& operator[](unsigned int i) { return i == 0 ? x : y; }

    double x;
    double y;
};
