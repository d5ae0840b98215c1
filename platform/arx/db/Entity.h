// AcDbEntity: an object with a picture: layer, colour, visibility, extents, highlighting.
#pragma once

#include "Extents.h"
#include "Object.h"
#include "dbcolor.h"

namespace arxgi
{
class PieceSink;
} // namespace arxgi

class ARX_API AcDbEntity : public AcDbObject
{
public:
    ACRX_DECLARE_MEMBERS(AcDbEntity);

    virtual ~AcDbEntity();

    // The block that holds the entity; null while it is in none.
    AcDbObjectId blockId() const { return ownerId(); }

    // Colour; by layer at first.
    AcCmColor color() const;
    Adesk::UInt16 colorIndex() const;
    AcCmEntityColor entityColor() const;
    virtual Acad::ErrorStatus setColor(const AcCmColor& color, bool doSubents = true);
    // eInvalidInput above 256.
    virtual Acad::ErrorStatus setColorIndex(Adesk::UInt16 index, bool doSubents = true);

    // Layer; "0" at first. layer() gives a copy that the caller frees with acutDelString().
    ACHAR* layer() const;
    AcDbObjectId layerId() const { return m_layerId; }
    // eKeyNotFound when the drawing has no such layer, eNoDatabase without a drawing to look in.
    virtual Acad::ErrorStatus setLayer(const ACHAR* name, bool doSubents = true);
    virtual Acad::ErrorStatus setLayer(AcDbObjectId layerId, bool doSubents = true);

    AcDb::Visibility visibility() const { return m_visibility; }
    virtual Acad::ErrorStatus setVisibility(AcDb::Visibility visibility, bool doSubents = true);

    // Colour and layer that new entities of the drawing get; null is the working database.
    void setDatabaseDefaults(AcDbDatabase* database = NULL);

    // The box around the entity in drawing units; eNullExtents for entities without a picture.
    virtual Acad::ErrorStatus getGeomExtents(AcDbExtents& extents) const;
    virtual Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix);

    // Drawing in the highlighted manner, until it is taken back. Erased entities are not highlighted.
    virtual Acad::ErrorStatus highlight() const;
    virtual Acad::ErrorStatus unhighlight() const;

    // Gives the pieces of the entity's picture to the sink, in the coordinates of its block; nothing for entities
    // without a picture. This is how the bundled host draws and how extents are found; modules never call it.
    virtual void emitPieces(arxgi::PieceSink& sink) const;

protected:
    AcDbEntity();

private:
    AcCmColor m_color;
    AcDbObjectId m_layerId;
    AcDb::Visibility m_visibility;
};
