// Blocks: named lists of entities. Model space is the block ACDB_MODEL_SPACE.
#pragma once

#include "SymbolTable.h"
#include "dbidar.h"
#include "gepnt3d.h"

class AcDbEntity;
class AcDbBlockTableRecordIterator;

class ARX_API AcDbBlockTableRecord : public AcDbSymbolTableRecord
{
public:
    ACRX_DECLARE_MEMBERS(AcDbBlockTableRecord);

    AcDbBlockTableRecord();
    virtual ~AcDbBlockTableRecord();

    // The drawing takes the entity over, which stays open for writing. The block must be in a drawing and open for
    // writing. eAlreadyInDb for an entity of a drawing.
    Acad::ErrorStatus appendAcDbEntity(AcDbEntity* entity);
    Acad::ErrorStatus appendAcDbEntity(AcDbObjectId& id, AcDbEntity* entity);

    Acad::ErrorStatus newIterator(AcDbBlockTableRecordIterator*& iterator, bool atBeginning = true,
                                  bool skipDeleted = true) const;
    // Identifiers in drawing order, erased ones included.
    const AcDbObjectIdArray& entityIds() const { return m_entities; }

    AcGePoint3d origin() const { return m_origin; }
    Acad::ErrorStatus setOrigin(const AcGePoint3d& origin);

    // Anonymous blocks have a name that begins with a star; layouts are model and paper space.
    bool isAnonymous() const;
    bool isLayout() const;

private:
    AcDbObjectIdArray m_entities;
    AcGePoint3d m_origin;
};

// Walks the entities of a block in drawing order. Made by newIterator(), deleted by the caller.
class ARX_API AcDbBlockTableRecordIterator
{
public:
    virtual ~AcDbBlockTableRecordIterator();

    void start(bool atBeginning = true, bool skipDeleted = true);
    bool done() const;
    void step(bool forward = true, bool skipDeleted = true);
    Acad::ErrorStatus getEntityId(AcDbObjectId& id) const;
    Acad::ErrorStatus getEntity(AcDbEntity*& entity, AcDb::OpenMode mode = AcDb::kForRead,
                                bool openErased = false) const;

private:
    friend class AcDbBlockTableRecord;
    explicit AcDbBlockTableRecordIterator(const AcDbObjectIdArray& ids);
    void Skip(bool forward, bool skipDeleted);

    AcDbObjectIdArray m_ids;
    int m_position;
};

class ARX_API AcDbBlockTable : public AcDbSymbolTable
{
public:
    ACRX_DECLARE_MEMBERS(AcDbBlockTable);

    AcDbBlockTable();
    virtual ~AcDbBlockTable();

    using AcDbSymbolTable::getAt;
    Acad::ErrorStatus getAt(const ACHAR* name, AcDbBlockTableRecord*& record, AcDb::OpenMode mode,
                            bool openErasedRecord = false) const;

protected:
    virtual AcRxClass* recordClass() const;
};
