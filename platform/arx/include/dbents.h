// The simple entities of a drawing.
//
// Points are world coordinates, angles radians, counter-clockwise when looking against the entity's normal, measured
// from the x axis that belongs to this normal in object coordinates (AcGeMatrix3d::planeToWorld). A function that
// returns a non-const ACHAR* gives a copy that the caller frees with acutDelString.
#pragma once

#include "dbcurve.h"
#include "dbpl.h"
#include "dbelipse.h"
#include "dbspline.h"
#include "gescl3d.h"
#include "gept3dar.h"

#include <string>
#include <vector>

class ARX_API AcDbLine : public AcDbCurve
{
public:
    ACRX_DECLARE_MEMBERS(AcDbLine);

    AcDbLine() {}
    AcDbLine(const AcGePoint3d& start, const AcGePoint3d& end) : m_start(start), m_end(end) {}

    AcGePoint3d startPoint() const { return m_start; }
    Acad::ErrorStatus setStartPoint(const AcGePoint3d& point);
    AcGePoint3d endPoint() const { return m_end; }
    Acad::ErrorStatus setEndPoint(const AcGePoint3d& point);

    Adesk::Boolean isClosed() const { return false; }
    Acad::ErrorStatus getStartPoint(AcGePoint3d& point) const;
    Acad::ErrorStatus getEndPoint(AcGePoint3d& point) const;

    virtual void emitPieces(arxgi::PieceSink& sink) const;

private:
    AcGePoint3d m_start;
    AcGePoint3d m_end;
};

class ARX_API AcDbCircle : public AcDbCurve
{
public:
    ACRX_DECLARE_MEMBERS(AcDbCircle);

    AcDbCircle() : m_normal(AcGeVector3d::kZAxis), m_radius(0) {}
    AcDbCircle(const AcGePoint3d& center, const AcGeVector3d& normal, double radius)
        : m_center(center), m_normal(normal), m_radius(radius)
    {
    }

    AcGePoint3d center() const { return m_center; }
    Acad::ErrorStatus setCenter(const AcGePoint3d& center);
    double radius() const { return m_radius; }
    // A negative radius is eInvalidInput.
    Acad::ErrorStatus setRadius(double radius);
    AcGeVector3d normal() const { return m_normal; }
    Acad::ErrorStatus setNormal(const AcGeVector3d& normal);

    Adesk::Boolean isClosed() const { return true; }
    Acad::ErrorStatus getStartPoint(AcGePoint3d& point) const;
    Acad::ErrorStatus getEndPoint(AcGePoint3d& point) const { return getStartPoint(point); }

    virtual void emitPieces(arxgi::PieceSink& sink) const;

private:
    AcGePoint3d m_center;
    AcGeVector3d m_normal;
    double m_radius;
};

class ARX_API AcDbArc : public AcDbCurve
{
public:
    ACRX_DECLARE_MEMBERS(AcDbArc);

    AcDbArc() : m_normal(AcGeVector3d::kZAxis), m_radius(0), m_startAngle(0), m_endAngle(0) {}
    AcDbArc(const AcGePoint3d& center, double radius, double startAngle, double endAngle)
        : m_center(center), m_normal(AcGeVector3d::kZAxis), m_radius(radius), m_startAngle(startAngle),
          m_endAngle(endAngle)
    {
    }
    AcDbArc(const AcGePoint3d& center, const AcGeVector3d& normal, double radius, double startAngle, double endAngle)
        : m_center(center), m_normal(normal), m_radius(radius), m_startAngle(startAngle), m_endAngle(endAngle)
    {
    }

    AcGePoint3d center() const { return m_center; }
    Acad::ErrorStatus setCenter(const AcGePoint3d& center);
    double radius() const { return m_radius; }
    Acad::ErrorStatus setRadius(double radius);
    double startAngle() const { return m_startAngle; }
    Acad::ErrorStatus setStartAngle(double angle);
    double endAngle() const { return m_endAngle; }
    Acad::ErrorStatus setEndAngle(double angle);
    AcGeVector3d normal() const { return m_normal; }
    Acad::ErrorStatus setNormal(const AcGeVector3d& normal);
    // Angle from start to end in (0, 2 pi]; equal angles are a full circle.
    double totalAngle() const;
    double length() const { return m_radius * totalAngle(); }

    Adesk::Boolean isClosed() const { return false; }
    Acad::ErrorStatus getStartPoint(AcGePoint3d& point) const;
    Acad::ErrorStatus getEndPoint(AcGePoint3d& point) const;

    virtual void emitPieces(arxgi::PieceSink& sink) const;

private:
    AcGePoint3d pointAt(double angle) const;

    AcGePoint3d m_center;
    AcGeVector3d m_normal;
    double m_radius;
    double m_startAngle;
    double m_endAngle;
};

class ARX_API AcDbPoint : public AcDbEntity
{
public:
    ACRX_DECLARE_MEMBERS(AcDbPoint);

    AcDbPoint() {}
    explicit AcDbPoint(const AcGePoint3d& position) : m_position(position) {}

    AcGePoint3d position() const { return m_position; }
    Acad::ErrorStatus setPosition(const AcGePoint3d& position);

    virtual void emitPieces(arxgi::PieceSink& sink) const;

private:
    AcGePoint3d m_position;
};

// A filled triangle or quadrilateral. The order of the corners is that of drawing files: the third and the fourth lie
// opposite the first and the second, so the outline runs 0, 1, 3, 2.
class ARX_API AcDbSolid : public AcDbEntity
{
public:
    ACRX_DECLARE_MEMBERS(AcDbSolid);

    enum
    {
        kCorners = 4
    };

    AcDbSolid() {}
    AcDbSolid(const AcGePoint3d& pt0, const AcGePoint3d& pt1, const AcGePoint3d& pt2, const AcGePoint3d& pt3);
    AcDbSolid(const AcGePoint3d& pt0, const AcGePoint3d& pt1, const AcGePoint3d& pt2);

    // eInvalidIndex unless index is 0 to 3.
    Acad::ErrorStatus getPointAt(Adesk::UInt16 index, AcGePoint3d& point) const;
    Acad::ErrorStatus setPointAt(Adesk::UInt16 index, const AcGePoint3d& point);

    virtual void emitPieces(arxgi::PieceSink& sink) const;

private:
    AcGePoint3d m_corners[kCorners];
};

// One line of text. Its box is estimated with fixed character widths, so that extents do not depend on the fonts of
// the machine: 0.6 of the height for a narrow character, the whole height for an ideograph.
class ARX_API AcDbText : public AcDbEntity
{
public:
    ACRX_DECLARE_MEMBERS(AcDbText);

    AcDbText();
    AcDbText(const AcGePoint3d& position, const ACHAR* text, double height = 0, double rotation = 0);

    // The text as the file holds it: control codes such as %%c are not resolved.
    ACHAR* textString() const;
    const ACHAR* textStringConst() const { return m_text.c_str(); }
    Acad::ErrorStatus setTextString(const ACHAR* text);

    // Left end of the base line; what counts when the text is left-aligned on the base line.
    AcGePoint3d position() const { return m_position; }
    Acad::ErrorStatus setPosition(const AcGePoint3d& position);
    // What counts with every other alignment.
    AcGePoint3d alignmentPoint() const { return m_alignmentPoint; }
    Acad::ErrorStatus setAlignmentPoint(const AcGePoint3d& point);
    AcDb::TextHorzMode horizontalMode() const { return m_horizontalMode; }
    Acad::ErrorStatus setHorizontalMode(AcDb::TextHorzMode mode);
    AcDb::TextVertMode verticalMode() const { return m_verticalMode; }
    Acad::ErrorStatus setVerticalMode(AcDb::TextVertMode mode);

    double height() const { return m_height; }
    Acad::ErrorStatus setHeight(double height);
    double rotation() const { return m_rotation; }
    Acad::ErrorStatus setRotation(double angle);
    double widthFactor() const { return m_widthFactor; }
    Acad::ErrorStatus setWidthFactor(double factor);
    double oblique() const { return m_oblique; }
    Acad::ErrorStatus setOblique(double angle);
    AcGeVector3d normal() const { return m_normal; }
    Acad::ErrorStatus setNormal(const AcGeVector3d& normal);

    virtual void emitPieces(arxgi::PieceSink& sink) const;

private:
    std::wstring m_text;
    AcGePoint3d m_position;
    AcGePoint3d m_alignmentPoint;
    AcGeVector3d m_normal;
    double m_height;
    double m_rotation;
    double m_widthFactor;
    double m_oblique;
    AcDb::TextHorzMode m_horizontalMode;
    AcDb::TextVertMode m_verticalMode;
};

// A block inserted at a place. The object coordinates of the normal carry rotation and scale; position() is world.
class ARX_API AcDbBlockReference : public AcDbEntity
{
public:
    ACRX_DECLARE_MEMBERS(AcDbBlockReference);

    AcDbBlockReference() : m_normal(AcGeVector3d::kZAxis), m_rotation(0) {}
    AcDbBlockReference(const AcGePoint3d& position, AcDbObjectId blockTableRecord);

    // A block that the drawing's file names without defining it is an empty placeholder (isResolved() is false).
    AcDbObjectId blockTableRecord() const { return m_block; }
    Acad::ErrorStatus setBlockTableRecord(AcDbObjectId block);

    AcGePoint3d position() const { return m_position; }
    Acad::ErrorStatus setPosition(const AcGePoint3d& position);
    AcGeScale3d scaleFactors() const { return m_scale; }
    // A factor of zero is eInvalidInput.
    Acad::ErrorStatus setScaleFactors(const AcGeScale3d& scale);
    double rotation() const { return m_rotation; }
    Acad::ErrorStatus setRotation(double angle);
    AcGeVector3d normal() const { return m_normal; }
    Acad::ErrorStatus setNormal(const AcGeVector3d& normal);

    // From coordinates of the block, with its origin taken off, to world coordinates.
    AcGeMatrix3d blockTransform() const;

    virtual void emitPieces(arxgi::PieceSink& sink) const;

private:
    AcDbObjectId m_block;
    AcGePoint3d m_position;
    AcGeScale3d m_scale;
    AcGeVector3d m_normal;
    double m_rotation;
};

// A block inserted in rows and columns, which run along the rotated axes.
class ARX_API AcDbMInsertBlock : public AcDbBlockReference
{
public:
    ACRX_DECLARE_MEMBERS(AcDbMInsertBlock);

    AcDbMInsertBlock() : m_columns(1), m_rows(1), m_columnSpacing(0), m_rowSpacing(0) {}
    AcDbMInsertBlock(const AcGePoint3d& position, AcDbObjectId blockTableRecord, Adesk::UInt16 columns,
                     Adesk::UInt16 rows, double columnSpacing, double rowSpacing);

    // Counts are at least 1; 0 is eInvalidInput.
    Adesk::UInt16 columns() const { return m_columns; }
    Acad::ErrorStatus setColumns(Adesk::UInt16 columns);
    Adesk::UInt16 rows() const { return m_rows; }
    Acad::ErrorStatus setRows(Adesk::UInt16 rows);
    // Not scaled by the scale factors.
    double columnSpacing() const { return m_columnSpacing; }
    Acad::ErrorStatus setColumnSpacing(double spacing);
    double rowSpacing() const { return m_rowSpacing; }
    Acad::ErrorStatus setRowSpacing(double spacing);

    virtual void emitPieces(arxgi::PieceSink& sink) const;

private:
    Adesk::UInt16 m_columns;
    Adesk::UInt16 m_rows;
    double m_columnSpacing;
    double m_rowSpacing;
};

// The polyline of old drawings: a plane curve with arcs.
//
// The real interface keeps every vertex as an object of its own; here they live in the polyline and are reached by
// index. Vertices that only steer a fitted curve are not among them.
class ARX_API AcDb2dPolyline : public AcDbCurve
{
public:
    ACRX_DECLARE_MEMBERS(AcDb2dPolyline);

    AcDb2dPolyline() : m_type(AcDb::k2dSimplePoly) {}

    AcDb::Poly2dType polyType() const { return m_type; }
    Acad::ErrorStatus setPolyType(AcDb::Poly2dType type);
    double elevation() const { return m_path.elevation; }
    Acad::ErrorStatus setElevation(double elevation);
    AcGeVector3d normal() const { return m_path.normal; }
    Acad::ErrorStatus setNormal(const AcGeVector3d& normal);
    Acad::ErrorStatus makeClosed();
    Acad::ErrorStatus makeOpen();

    // `point` is in object coordinates of the normal. The bulge belongs to the segment that starts here: the tangent of
    // a quarter of its arc's angle, positive counter-clockwise.
    Acad::ErrorStatus appendVertex(const AcGePoint2d& point, double bulge = 0);
    unsigned int numVerts() const { return static_cast<unsigned int>(m_path.vertices.size()); }
    // World coordinates; eInvalidIndex beyond the last vertex.
    Acad::ErrorStatus getPointAt(unsigned int index, AcGePoint3d& point) const;
    Acad::ErrorStatus getBulgeAt(unsigned int index, double& bulge) const;

    Adesk::Boolean isClosed() const { return m_path.closed; }
    Acad::ErrorStatus getStartPoint(AcGePoint3d& point) const;
    Acad::ErrorStatus getEndPoint(AcGePoint3d& point) const;

    virtual void emitPieces(arxgi::PieceSink& sink) const;

private:
    arxents::BulgePath m_path;
    AcDb::Poly2dType m_type;
};

// A polyline in space, of straight segments. Vertices as with AcDb2dPolyline.
class ARX_API AcDb3dPolyline : public AcDbCurve
{
public:
    ACRX_DECLARE_MEMBERS(AcDb3dPolyline);

    AcDb3dPolyline() : m_type(AcDb::k3dSimplePoly), m_closed(false) {}
    AcDb3dPolyline(AcDb::Poly3dType type, const AcGePoint3dArray& vertices, Adesk::Boolean closed = false);

    AcDb::Poly3dType polyType() const { return m_type; }
    Acad::ErrorStatus setPolyType(AcDb::Poly3dType type);
    Acad::ErrorStatus makeClosed();
    Acad::ErrorStatus makeOpen();

    Acad::ErrorStatus appendVertex(const AcGePoint3d& point);
    unsigned int numVerts() const { return static_cast<unsigned int>(m_vertices.size()); }
    // eInvalidIndex beyond the last vertex.
    Acad::ErrorStatus getPointAt(unsigned int index, AcGePoint3d& point) const;

    Adesk::Boolean isClosed() const { return m_closed; }
    Acad::ErrorStatus getStartPoint(AcGePoint3d& point) const;
    Acad::ErrorStatus getEndPoint(AcGePoint3d& point) const;

    virtual void emitPieces(arxgi::PieceSink& sink) const;

private:
    std::vector<AcGePoint3d> m_vertices;
    AcDb::Poly3dType m_type;
    bool m_closed;
};
