// AcGeScale3d: scale factors along the three axes.
#pragma once

#include "gemat3d.h"

class ARX_API AcGeScale3d
{
public:
    AcGeScale3d() : sx(1), sy(1), sz(1) {}
    explicit AcGeScale3d(double factor) : sx(factor), sy(factor), sz(factor) {}
    AcGeScale3d(double xFactor, double yFactor, double zFactor) : sx(xFactor), sy(yFactor), sz(zFactor) {}

    AcGeScale3d& set(double xFactor, double yFactor, double zFactor);
    // True when the three sizes are the same; signs (mirroring) do not count.
    bool isProportional(const AcGeTol& tol = AcGeContext::gTol) const;
    bool isEqualTo(const AcGeScale3d& other, const AcGeTol& tol = AcGeContext::gTol) const;
    bool operator==(const AcGeScale3d& other) const { return isEqualTo(other); }
    bool operator!=(const AcGeScale3d& other) const { return !isEqualTo(other); }
    double operator[](unsigned int i) const { return i == 0 ? sx : i == 1 ? sy : sz; }
    double& operator[](unsigned int i) { return i == 0 ? sx : i == 1 ? sy : sz; }

    double sx;
    double sy;
    double sz;
};
