// AcDbDatabase: one drawing: its objects, its symbol tables and where it came from.
//
// Units are the drawing's own; nothing here knows of windows. Drawings that documents show belong to their document;
// others belong to whoever made them and may be deleted by `delete`.
#pragma once

#include "dbidar.h"
#include "gepnt2d.h"
#include "Extents.h"
#include "Object.h"

class AcDbBlockTable;
class AcDbDatabaseReactor;
class AcDbLayerTable;

namespace arxdb
{
class DatabaseImpl;
} // namespace arxdb

class ARX_API AcDbDatabase : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcDbDatabase);

    // With `buildDefaultDrawing` the drawing has its block table with model and paper space and layer "0" at once.
    // Without it has empty tables, for a reader to fill. `noDocument` is taken for compatibility only.
    explicit AcDbDatabase(bool buildDefaultDrawing = true, bool noDocument = false);
    // Forgets every object; their identifiers stay unknown for ever.
    virtual ~AcDbDatabase();

    // Symbol tables, opened as asked; close() them.
    Acad::ErrorStatus getBlockTable(AcDbBlockTable*& table, AcDb::OpenMode mode = AcDb::kForRead);
    Acad::ErrorStatus getLayerTable(AcDbLayerTable*& table, AcDb::OpenMode mode = AcDb::kForRead);
    Acad::ErrorStatus getSymbolTable(AcDbBlockTable*& table, AcDb::OpenMode mode);
    Acad::ErrorStatus getSymbolTable(AcDbLayerTable*& table, AcDb::OpenMode mode);
    AcDbObjectId blockTableId() const;
    AcDbObjectId layerTableId() const;

    // Model space: where commands draw.
    AcDbObjectId currentSpaceId() const;
    AcDbObjectId layerZero() const;
    // The layer of new entities.
    AcDbObjectId clayer() const;
    Acad::ErrorStatus setClayer(AcDbObjectId layerId);

    // Takes over an object that belongs to no table or block. The object stays open for writing. eAlreadyInDb for an
    // object of a drawing.
    Acad::ErrorStatus addAcDbObject(AcDbObject* object);
    Acad::ErrorStatus addAcDbObject(AcDbObjectId& id, AcDbObject* object);

    // The object that was stored under this handle; eUnknownHandle when there is none.
    Acad::ErrorStatus getAcDbObjectId(AcDbObjectId& id, bool createIfNotFound, const AcDbHandle& handle,
                                      Adesk::UInt32 xRefId = 0);
    // Gives a newly added object the handle that its file names. An object that got the same handle by itself gets
    // another one; eHandleInUse when it was assigned, too.
    Acad::ErrorStatus assignHandle(AcDbObjectId id, const AcDbHandle& handle);
    // Objects that are not erased, tables included.
    Adesk::Int32 approxNumObjects() const;

    // The box around the visible entities of model space; an empty box in an empty drawing.
    AcGePoint3d extmin() const;
    AcGePoint3d extmax() const;
    AcDbExtents modelExtents() const;

    // The drawing's limits, the sheet: LIMMIN and LIMMAX. Equal corners when the drawing has none.
    AcGePoint2d limmin() const { return m_limmin; }
    AcGePoint2d limmax() const { return m_limmax; }
    void setLimmin(const AcGePoint2d& corner) { m_limmin = corner; }
    void setLimmax(const AcGePoint2d& corner) { m_limmax = corner; }

    // Full path of the file; "" for a drawing that was never read. Valid until it changes.
    Acad::ErrorStatus getFilename(const ACHAR*& path) const;
    void setFilename(const ACHAR* path);

    // Null and doubles are ignored; the caller keeps the reactor's ownership.
    Acad::ErrorStatus addReactor(AcDbDatabaseReactor* reactor) const;
    Acad::ErrorStatus removeReactor(AcDbDatabaseReactor* reactor) const;

    arxdb::DatabaseImpl& impl() const { return *m_impl; }

private:
    AcDbDatabase(const AcDbDatabase&);
    AcDbDatabase& operator=(const AcDbDatabase&);

    arxdb::DatabaseImpl* m_impl;
    AcGePoint2d m_limmin;
    AcGePoint2d m_limmax;
};
