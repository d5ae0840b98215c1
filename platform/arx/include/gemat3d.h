// AcGeMatrix3d: an affine map of space. entry[row][column]; columns 0 to 2 are the images of the axes, column 3 is the
// image of the origin. `a * b` applies b first.
#pragma once

#include "gepnt3d.h"

class ARX_API AcGeMatrix3d
{
public:
    // The identity.
    AcGeMatrix3d();

    static const AcGeMatrix3d kIdentity;

    static AcGeMatrix3d translation(const AcGeVector3d& offset);
    static AcGeMatrix3d scaling(double scale, const AcGePoint3d& center = AcGePoint3d::kOrigin);
    // `angle` in radians, counter-clockwise when looking against `axis`.
    static AcGeMatrix3d rotation(double angle, const AcGeVector3d& axis,
                                 const AcGePoint3d& center = AcGePoint3d::kOrigin);
    // From object coordinates of the plane with this normal (through the origin) to world coordinates, by the
    // arbitrary-axis rule of drawing files.
    static AcGeMatrix3d planeToWorld(const AcGeVector3d& normal);

    AcGeMatrix3d& setToIdentity();
    AcGeMatrix3d& setToTranslation(const AcGeVector3d& offset) { return *this = translation(offset); }
    AcGeMatrix3d& setToScaling(double scale, const AcGePoint3d& center = AcGePoint3d::kOrigin)
    {
        return *this = scaling(scale, center);
    }
    AcGeMatrix3d& setToRotation(double angle, const AcGeVector3d& axis,
                                const AcGePoint3d& center = AcGePoint3d::kOrigin)
    {
        return *this = rotation(angle, axis, center);
    }
    AcGeMatrix3d& setCoordSystem(const AcGePoint3d& origin, const AcGeVector3d& xAxis, const AcGeVector3d& yAxis,
                                 const AcGeVector3d& zAxis);
    void getCoordSystem(AcGePoint3d& origin, AcGeVector3d& xAxis, AcGeVector3d& yAxis, AcGeVector3d& zAxis) const;

    AcGeMatrix3d operator*(const AcGeMatrix3d& right) const;
    AcGeMatrix3d& operator*=(const AcGeMatrix3d& right) { return *this = *this * right; }
    AcGePoint3d operator*(const AcGePoint3d& point) const;
    AcGeVector3d operator*(const AcGeVector3d& vector) const;
    AcGeMatrix3d& preMultBy(const AcGeMatrix3d& left) { return *this = left * *this; }
    AcGeMatrix3d& postMultBy(const AcGeMatrix3d& right) { return *this = *this * right; }

    // Determinant of the linear part.
    double det() const;
    bool isSingular(const AcGeTol& tol = AcGeContext::gTol) const;
    // The inverse map; a singular matrix gives the identity.
    AcGeMatrix3d inverse() const;
    AcGeMatrix3d& invert() { return *this = inverse(); }
    bool isEqualTo(const AcGeMatrix3d& other, const AcGeTol& tol = AcGeContext::gTol) const;
    bool operator==(const AcGeMatrix3d& other) const { return isEqualTo(other); }
    bool operator!=(const AcGeMatrix3d& other) const { return !isEqualTo(other); }

    double operator()(unsigned int row, unsigned int column) const { return entry[row][column]; }
    double& operator()(unsigned int row, unsigned int column) { return entry[row][column]; }

    double entry[4][4];
};
