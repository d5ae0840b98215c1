// AcDbExtents: a box parallel to the axes, in drawing units.
//
// A new box is empty: its minimum lies at +1e20, its maximum at -1e20 in every direction, so that the first addPoint()
// makes it the box of that point. Reading the corners of an empty box gives exactly these numbers.
#pragma once

#include "gemat3d.h"
#include "acadstrc.h"

class ARX_API AcDbExtents
{
public:
    AcDbExtents();
    // Empty when a component of `min` is greater than that of `max`.
    AcDbExtents(const AcGePoint3d& min, const AcGePoint3d& max);

    const AcGePoint3d& minPoint() const { return m_min; }
    const AcGePoint3d& maxPoint() const { return m_max; }

    // eInvalidInput when the corners are crossed; then nothing changes.
    Acad::ErrorStatus set(const AcGePoint3d& min, const AcGePoint3d& max);

    void addPoint(const AcGePoint3d& point);
    // An empty `other` adds nothing.
    void addExt(const AcDbExtents& other);
    // The union of the box and the box moved by `offset`: every side moves in the offset's direction only. An empty
    // box stays empty.
    void expandBy(const AcGeVector3d& offset);
    // The box around the transformed corners. An empty box stays empty.
    void transformBy(const AcGeMatrix3d& matrix);

    bool operator==(const AcDbExtents& other) const;
    bool operator!=(const AcDbExtents& other) const { return !(*this == other); }

private:
    bool IsEmpty() const;

    AcGePoint3d m_min;
    AcGePoint3d m_max;
};
