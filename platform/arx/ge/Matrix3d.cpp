#include "gemat3d.h"

#include <cmath>

namespace
{

const unsigned int kSize = 4;
const unsigned int kAxes = 3;
const unsigned int kOriginColumn = 3;

// The map `linear` with its fixed point moved from the origin to `center`.
AcGeMatrix3d About(const AcGePoint3d& center, const AcGeMatrix3d& linear)
{
    const AcGeVector3d offset = center.asVector();
    return AcGeMatrix3d::translation(offset) * linear * AcGeMatrix3d::translation(-offset);
}

} // namespace

const AcGeMatrix3d AcGeMatrix3d::kIdentity;

AcGeMatrix3d::AcGeMatrix3d()
{
    setToIdentity();
}

AcGeMatrix3d AcGeMatrix3d::translation(const AcGeVector3d& offset)
{
    AcGeMatrix3d matrix;
    for (unsigned int row = 0; row < kAxes; ++row)
    {
        matrix.entry[row][kOriginColumn] = offset[row];
    }
    return matrix;
}

AcGeMatrix3d AcGeMatrix3d::scaling(double scale, const AcGePoint3d& center)
{
    AcGeMatrix3d matrix;
    for (unsigned int axis = 0; axis < kAxes; ++axis)
    {
        matrix.entry[axis][axis] = scale;
    }
    return About(center, matrix);
}

AcGeMatrix3d AcGeMatrix3d::rotation(double angle, const AcGeVector3d& axis, const AcGePoint3d& center)
{
    const AcGeVector3d n = axis.normal();
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    // Rodrigues: v cos + (n x v) sin + n (n.v)(1 - cos), column by column.
    const AcGeVector3d axes[kAxes] = {AcGeVector3d(1, 0, 0), AcGeVector3d(0, 1, 0), AcGeVector3d(0, 0, 1)};
    AcGeVector3d images[kAxes];
    for (unsigned int i = 0; i < kAxes; ++i)
    {
        images[i] = axes[i] * c + n.crossProduct(axes[i]) * s + n * (n[i] * (1 - c));
    }
    AcGeMatrix3d matrix;
    matrix.setCoordSystem(AcGePoint3d(), images[0], images[1], images[2]);
    return About(center, matrix);
}

AcGeMatrix3d AcGeMatrix3d::planeToWorld(const AcGeVector3d& normal)
{
    const AcGeVector3d zAxis = normal.normal();
    const AcGeVector3d xAxis = zAxis.perpVector();
    AcGeMatrix3d matrix;
    matrix.setCoordSystem(AcGePoint3d(), xAxis, zAxis.crossProduct(xAxis), zAxis);
    return matrix;
}

AcGeMatrix3d& AcGeMatrix3d::setToIdentity()
{
    for (unsigned int row = 0; row < kSize; ++row)
    {
        for (unsigned int column = 0; column < kSize; ++column)
        {
            entry[row][column] = row == column ? 1 : 0;
        }
    }
    return *this;
}

AcGeMatrix3d& AcGeMatrix3d::setCoordSystem(const AcGePoint3d& origin, const AcGeVector3d& xAxis,
                                           const AcGeVector3d& yAxis, const AcGeVector3d& zAxis)
{
    setToIdentity();
    for (unsigned int row = 0; row < kAxes; ++row)
    {
        entry[row][0] = xAxis[row];
        entry[row][1] = yAxis[row];
        entry[row][2] = zAxis[row];
        entry[row][kOriginColumn] = origin[row];
    }
    return *this;
}

void AcGeMatrix3d::getCoordSystem(AcGePoint3d& origin, AcGeVector3d& xAxis, AcGeVector3d& yAxis,
                                  AcGeVector3d& zAxis) const
{
    for (unsigned int row = 0; row < kAxes; ++row)
    {
        xAxis[row] = entry[row][0];
        yAxis[row] = entry[row][1];
        zAxis[row] = entry[row][2];
        origin[row] = entry[row][kOriginColumn];
    }
}

AcGeMatrix3d AcGeMatrix3d::operator*(const AcGeMatrix3d& right) const
{
    AcGeMatrix3d product;
    for (unsigned int row = 0; row < kSize; ++row)
    {
        for (unsigned int column = 0; column < kSize; ++column)
        {
            product.entry[row][column] = 0;
            for (unsigned int i = 0; i < kSize; ++i)
            {
                product.entry[row][column] += entry[row][i] * right.entry[i][column];
            }
        }
    }
    return product;
}

AcGePoint3d AcGeMatrix3d::operator*(const AcGePoint3d& point) const
{
    const AcGeVector3d moved = *this * point.asVector();
    return AcGePoint3d(moved.x + entry[0][kOriginColumn], moved.y + entry[1][kOriginColumn],
                       moved.z + entry[2][kOriginColumn]);
}

AcGeVector3d AcGeMatrix3d::operator*(const AcGeVector3d& vector) const
{
    AcGeVector3d image;
    for (unsigned int row = 0; row < kAxes; ++row)
    {
        image[row] = entry[row][0] * vector.x + entry[row][1] * vector.y + entry[row][2] * vector.z;
    }
    return image;
}

double AcGeMatrix3d::det() const
{
    AcGePoint3d origin;
    AcGeVector3d x;
    AcGeVector3d y;
    AcGeVector3d z;
    getCoordSystem(origin, x, y, z);
    return x.dotProduct(y.crossProduct(z));
}

bool AcGeMatrix3d::isSingular(const AcGeTol& tol) const
{
    return std::fabs(det()) <= tol.equalVector();
}

AcGeMatrix3d AcGeMatrix3d::inverse() const
{
    const double determinant = det();
    if (determinant == 0)
    {
        return AcGeMatrix3d();
    }
    AcGePoint3d origin;
    AcGeVector3d x;
    AcGeVector3d y;
    AcGeVector3d z;
    getCoordSystem(origin, x, y, z);
    // The rows of the inverse are the cross products of the columns.
    const AcGeVector3d rows[kAxes] = {y.crossProduct(z) / determinant, z.crossProduct(x) / determinant,
                                      x.crossProduct(y) / determinant};
    AcGeMatrix3d result;
    for (unsigned int row = 0; row < kAxes; ++row)
    {
        for (unsigned int column = 0; column < kAxes; ++column)
        {
            result.entry[row][column] = rows[row][column];
        }
        result.entry[row][kOriginColumn] = -rows[row].dotProduct(origin.asVector());
    }
    return result;
}

bool AcGeMatrix3d::isEqualTo(const AcGeMatrix3d& other, const AcGeTol& tol) const
{
    for (unsigned int row = 0; row < kSize; ++row)
    {
        for (unsigned int column = 0; column < kSize; ++column)
        {
            if (std::fabs(entry[row][column] - other.entry[row][column]) > tol.equalPoint())
            {
                return false;
            }
        }
    }
    return true;
}
