// AcGePoint2d: a position in the plane.
#pragma once

#include "gevec2d.h"

class ARX_API AcGePoint2d
{
public:
    AcGePoint2d() : x(0), y(0) {}
    AcGePoint2d(double xx, double yy) : x(xx), y(yy) {}

    static const AcGePoint2d kOrigin;

    AcGePoint2d operator+(const AcGeVector2d& v) const { return AcGePoint2d(x + v.x, y + v.y); }
    AcGePoint2d operator-(const AcGeVector2d& v) const { return AcGePoint2d(x - v.x, y - v.y); }
    AcGeVector2d operator-(const AcGePoint2d& p) const { return AcGeVector2d(x - p.x, y - p.y); }
    bool operator==(const AcGePoint2d& p) const { return isEqualTo(p); }
    bool operator!=(const AcGePoint2d& p) const { return !isEqualTo(p); }

    AcGePoint2d& set(double xx, double yy);
    AcGeVector2d asVector() const { return AcGeVector2d(x, y); }
    double distanceTo(const AcGePoint2d& p) const { return (*this - p).length(); }
    bool isEqualTo(const AcGePoint2d& p, const AcGeTol& tol = AcGeContext::gTol) const;

    double operator[](unsigned int i) const { return i == 0 ? x : y; }
    double& operator[](unsigned int i) { return i == 0 ? x : y; }

    double x;
    double y;
};
