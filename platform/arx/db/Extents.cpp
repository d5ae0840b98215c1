#include "Extents.h"

#include <algorithm>

namespace
{

const double kFar = 1e20;

bool IsCrossed(const AcGePoint3d& min, const AcGePoint3d& max)
{
    return min.x > max.x || min.y > max.y || min.z > max.z;
}

} // namespace

AcDbExtents::AcDbExtents() : m_min(kFar, kFar, kFar), m_max(-kFar, -kFar, -kFar) {}

AcDbExtents::AcDbExtents(const AcGePoint3d& min, const AcGePoint3d& max)
    : m_min(kFar, kFar, kFar), m_max(-kFar, -kFar, -kFar)
{
    set(min, max);
}

Acad::ErrorStatus AcDbExtents::set(const AcGePoint3d& min, const AcGePoint3d& max)
{
    if (IsCrossed(min, max))
    {
        return Acad::eInvalidInput;
    }
    m_min = min;
    m_max = max;
    return Acad::eOk;
}

void AcDbExtents::addPoint(const AcGePoint3d& point)
{
    m_min.set(std::min(m_min.x, point.x), std::min(m_min.y, point.y), std::min(m_min.z, point.z));
    m_max.set(std::max(m_max.x, point.x), std::max(m_max.y, point.y), std::max(m_max.z, point.z));
}

void AcDbExtents::addExt(const AcDbExtents& other)
{
    if (!other.IsEmpty())
    {
        // Copies, because the box may be added to itself.
        const AcGePoint3d min = other.m_min;
        const AcGePoint3d max = other.m_max;
        addPoint(min);
        addPoint(max);
    }
}

void AcDbExtents::expandBy(const AcGeVector3d& offset)
{
    if (!IsEmpty())
    {
        const AcDbExtents moved(m_min + offset, m_max + offset);
        addExt(moved);
    }
}

void AcDbExtents::transformBy(const AcGeMatrix3d& matrix)
{
    if (IsEmpty())
    {
        return;
    }
    AcDbExtents box;
    for (const double x : {m_min.x, m_max.x})
    {
        for (const double y : {m_min.y, m_max.y})
        {
            box.addPoint(matrix * AcGePoint3d(x, y, m_min.z));
            box.addPoint(matrix * AcGePoint3d(x, y, m_max.z));
        }
    }
    *this = box;
}

bool AcDbExtents::operator==(const AcDbExtents& other) const
{
    return m_min == other.m_min && m_max == other.m_max;
}

bool AcDbExtents::IsEmpty() const
{
    return IsCrossed(m_min, m_max);
}
