// AcDbPolyline: the plane polyline of straight segments and arcs ("lightweight polyline").
#pragma once

#include "dbcurve.h"
#include "arx/ents/BulgePath.h"

class ARX_API AcDbPolyline : public AcDbCurve
{
public:
    ACRX_DECLARE_MEMBERS(AcDbPolyline);

    enum SegType
    {
        kLine,
        kArc,
        kCoincident, // both ends are the same point
        kPoint,      // the only vertex
        kEmpty       // no vertices
    };

    AcDbPolyline() {}
    explicit AcDbPolyline(unsigned int expectedVertices) { m_path.vertices.reserve(expectedVertices); }

    unsigned int numVerts() const { return static_cast<unsigned int>(m_path.vertices.size()); }

    // Inserts before `index`, which may be numVerts(). The bulge belongs to the segment that starts at the vertex: the
    // tangent of a quarter of its arc's angle, positive counter-clockwise. Widths are accepted and not drawn.
    Acad::ErrorStatus addVertexAt(unsigned int index, const AcGePoint2d& point, double bulge = 0,
                                  double startWidth = -1, double endWidth = -1);
    Acad::ErrorStatus removeVertexAt(unsigned int index);

    // World coordinates. All functions with an index give eInvalidIndex beyond the last vertex.
    Acad::ErrorStatus getPointAt(unsigned int index, AcGePoint3d& point) const;
    // Object coordinates of the normal.
    Acad::ErrorStatus getPointAt(unsigned int index, AcGePoint2d& point) const;
    Acad::ErrorStatus setPointAt(unsigned int index, const AcGePoint2d& point);
    Acad::ErrorStatus getBulgeAt(unsigned int index, double& bulge) const;
    Acad::ErrorStatus setBulgeAt(unsigned int index, double bulge);
    SegType segType(unsigned int index) const;

    void setClosed(Adesk::Boolean closed);
    double elevation() const { return m_path.elevation; }
    Acad::ErrorStatus setElevation(double elevation);
    AcGeVector3d normal() const { return m_path.normal; }
    Acad::ErrorStatus setNormal(const AcGeVector3d& normal);
    Adesk::Boolean isOnlyLines() const;
    Adesk::Boolean hasBulges() const { return !isOnlyLines(); }

    Adesk::Boolean isClosed() const { return m_path.closed; }
    Acad::ErrorStatus getStartPoint(AcGePoint3d& point) const;
    Acad::ErrorStatus getEndPoint(AcGePoint3d& point) const;

    virtual void emitPieces(arxgi::PieceSink& sink) const;

private:
    arxents::BulgePath m_path;
};
