#include "dbsymtb.h"

#include "DatabaseImpl.h"
#include "arx/rx/Names.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbBlockTableRecord, AcDbSymbolTableRecord, 0, 0, 0, BLOCK_RECORD, host)
ACRX_NO_CONS_DEFINE_MEMBERS(AcDbBlockTable, AcDbSymbolTable)

AcDbBlockTableRecord::AcDbBlockTableRecord() {}

AcDbBlockTableRecord::~AcDbBlockTableRecord() {}

Acad::ErrorStatus AcDbBlockTableRecord::appendAcDbEntity(AcDbEntity* entity)
{
    AcDbObjectId id;
    return appendAcDbEntity(id, entity);
}

Acad::ErrorStatus AcDbBlockTableRecord::appendAcDbEntity(AcDbObjectId& id, AcDbEntity* entity)
{
    if (entity == nullptr)
    {
        return Acad::eNullEntityPointer;
    }
    if (database() == nullptr || entity->database() != nullptr)
    {
        return entity->database() != nullptr ? Acad::eAlreadyInDb : Acad::eNoDatabase;
    }
    if (!isWriteEnabled())
    {
        return Acad::eNotOpenForWrite;
    }
    if (!entity->layerId().isNull() && entity->layerId().database() != database())
    {
        return Acad::eWrongDatabase;
    }
    assertWriteEnabled();
    id = database()->impl().Add(*entity, objectId());
    if (entity->layerId().isNull())
    {
        entity->setLayer(database()->layerZero());
    }
    m_entities.append(id);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockTableRecord::newIterator(AcDbBlockTableRecordIterator*& iterator, bool atBeginning,
                                                    bool skipDeleted) const
{
    assertReadEnabled();
    iterator = new AcDbBlockTableRecordIterator(m_entities);
    iterator->start(atBeginning, skipDeleted);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockTableRecord::setOrigin(const AcGePoint3d& origin)
{
    assertWriteEnabled();
    m_origin = origin;
    return Acad::eOk;
}

bool AcDbBlockTableRecord::isAnonymous() const
{
    const ACHAR* name = nullptr;
    getName(name);
    return name[0] == L'*' && !isLayout();
}

bool AcDbBlockTableRecord::isLayout() const
{
    const ACHAR* name = nullptr;
    getName(name);
    return arxrx::SameName(name, ACDB_MODEL_SPACE) || arxrx::SameName(name, ACDB_PAPER_SPACE);
}

AcDbBlockTableRecordIterator::AcDbBlockTableRecordIterator(const AcDbObjectIdArray& ids) : m_ids(ids), m_position(0) {}

AcDbBlockTableRecordIterator::~AcDbBlockTableRecordIterator() {}

void AcDbBlockTableRecordIterator::start(bool atBeginning, bool skipDeleted)
{
    m_position = atBeginning ? 0 : m_ids.length() - 1;
    Skip(atBeginning, skipDeleted);
}

bool AcDbBlockTableRecordIterator::done() const
{
    return m_position < 0 || m_position >= m_ids.length();
}

void AcDbBlockTableRecordIterator::step(bool forward, bool skipDeleted)
{
    if (!done())
    {
        m_position += forward ? 1 : -1;
        Skip(forward, skipDeleted);
    }
}

void AcDbBlockTableRecordIterator::Skip(bool forward, bool skipDeleted)
{
    while (skipDeleted && !done() && m_ids[m_position].isErased())
    {
        m_position += forward ? 1 : -1;
    }
}

Acad::ErrorStatus AcDbBlockTableRecordIterator::getEntityId(AcDbObjectId& id) const
{
    if (done())
    {
        return Acad::eInvalidInput;
    }
    id = m_ids[m_position];
    return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockTableRecordIterator::getEntity(AcDbEntity*& entity, AcDb::OpenMode mode,
                                                          bool openErased) const
{
    entity = nullptr;
    return done() ? Acad::eInvalidInput : acdbOpenAcDbEntity(entity, m_ids[m_position], mode, openErased);
}

AcDbBlockTable::AcDbBlockTable() {}

AcDbBlockTable::~AcDbBlockTable() {}

Acad::ErrorStatus AcDbBlockTable::getAt(const ACHAR* name, AcDbBlockTableRecord*& record, AcDb::OpenMode mode,
                                        bool openErasedRecord) const
{
    record = nullptr;
    AcDbObjectId id;
    const Acad::ErrorStatus es = getAt(name, id, openErasedRecord);
    return es == Acad::eOk ? acdbOpenObject(record, id, mode, openErasedRecord) : es;
}

AcRxClass* AcDbBlockTable::recordClass() const
{
    return AcDbBlockTableRecord::desc();
}
