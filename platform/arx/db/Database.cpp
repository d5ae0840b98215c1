#include "dbsymtb.h"

#include "DatabaseImpl.h"
#include "Visibility.h"
#include "dbapserv.h"
#include "dbobjptr.h"

using arxdb::ObjectStore;

namespace
{

void AddBlock(AcDbDatabase& database, const ACHAR* name)
{
    AcDbObjectPointer<AcDbBlockTable> table(database.blockTableId(), AcDb::kForWrite);
    AcDbBlockTableRecord* block = new AcDbBlockTableRecord;
    block->setName(name);
    table->add(block);
    block->close();
}

AcDbObjectId AddLayerZero(AcDbDatabase& database)
{
    AcDbObjectPointer<AcDbLayerTable> table(database.layerTableId(), AcDb::kForWrite);
    AcDbLayerTableRecord* layer = new AcDbLayerTableRecord;
    layer->setName(ACRX_T("0"));
    AcDbObjectId added;
    table->add(added, layer);
    layer->close();
    return added;
}

// An entity that somebody has open for writing is read as it stands.
void AddShownExtents(AcDbObjectId id, AcDbExtents& box)
{
    const arxdb::ObjectRecord* record = ObjectStore::Instance().Find(id);
    const AcDbEntity* entity = record == nullptr ? nullptr : AcDbEntity::cast(record->object);
    if (entity == nullptr || !arxdb::IsShown(*entity))
    {
        return;
    }
    const AcDbEntityPointer opened(id);
    AcDbExtents part;
    if (entity->isReadEnabled() && entity->getGeomExtents(part) == Acad::eOk)
    {
        box.addExt(part);
    }
}

} // namespace

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbDatabase, AcRxObject)

AcDbDatabase::AcDbDatabase(bool buildDefaultDrawing, bool /*noDocument*/) : m_impl(new arxdb::DatabaseImpl(*this))
{
    AcDbBlockTable* blocks = new AcDbBlockTable;
    m_impl->blockTableId = m_impl->Add(*blocks, AcDbObjectId());
    blocks->close();
    AcDbLayerTable* layers = new AcDbLayerTable;
    m_impl->layerTableId = m_impl->Add(*layers, AcDbObjectId());
    layers->close();
    if (buildDefaultDrawing)
    {
        AddBlock(*this, ACDB_MODEL_SPACE);
        AddBlock(*this, ACDB_PAPER_SPACE);
        m_impl->currentLayerId = AddLayerZero(*this);
    }
}

AcDbDatabase::~AcDbDatabase()
{
    m_impl->reactors.Tell([this](AcDbDatabaseReactor& reactor) { reactor.goodbye(this); });
    m_impl->reactors.Clear();
    m_impl->DeleteObjects();
    if (acdbHostApplicationServices()->workingDatabase() == this)
    {
        acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    }
    delete m_impl;
}

Acad::ErrorStatus AcDbDatabase::getBlockTable(AcDbBlockTable*& table, AcDb::OpenMode mode)
{
    return acdbOpenObject(table, m_impl->blockTableId, mode);
}

Acad::ErrorStatus AcDbDatabase::getLayerTable(AcDbLayerTable*& table, AcDb::OpenMode mode)
{
    return acdbOpenObject(table, m_impl->layerTableId, mode);
}

Acad::ErrorStatus AcDbDatabase::getSymbolTable(AcDbBlockTable*& table, AcDb::OpenMode mode)
{
    return getBlockTable(table, mode);
}

Acad::ErrorStatus AcDbDatabase::getSymbolTable(AcDbLayerTable*& table, AcDb::OpenMode mode)
{
    return getLayerTable(table, mode);
}

AcDbObjectId AcDbDatabase::blockTableId() const
{
    return m_impl->blockTableId;
}

AcDbObjectId AcDbDatabase::layerTableId() const
{
    return m_impl->layerTableId;
}

AcDbObjectId AcDbDatabase::currentSpaceId() const
{
    const arxdb::ObjectRecord* table = ObjectStore::Instance().Find(m_impl->blockTableId);
    return AcDbSymbolTable::cast(table->object)->Find(ACDB_MODEL_SPACE);
}

AcDbObjectId AcDbDatabase::layerZero() const
{
    const arxdb::ObjectRecord* table = ObjectStore::Instance().Find(m_impl->layerTableId);
    return AcDbSymbolTable::cast(table->object)->Find(ACRX_T("0"));
}

AcDbObjectId AcDbDatabase::clayer() const
{
    return m_impl->currentLayerId.isNull() ? layerZero() : m_impl->currentLayerId;
}

Acad::ErrorStatus AcDbDatabase::setClayer(AcDbObjectId layerId)
{
    if (layerId.objectClass() != AcDbLayerTableRecord::desc())
    {
        return Acad::eInvalidInput;
    }
    if (layerId.database() != this)
    {
        return Acad::eWrongDatabase;
    }
    m_impl->currentLayerId = layerId;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbDatabase::addAcDbObject(AcDbObject* object)
{
    AcDbObjectId id;
    return addAcDbObject(id, object);
}

Acad::ErrorStatus AcDbDatabase::addAcDbObject(AcDbObjectId& id, AcDbObject* object)
{
    if (object == nullptr)
    {
        return Acad::eNullObjectPointer;
    }
    if (object->database() != nullptr)
    {
        return Acad::eAlreadyInDb;
    }
    id = m_impl->Add(*object, AcDbObjectId());
    return Acad::eOk;
}

Acad::ErrorStatus AcDbDatabase::getAcDbObjectId(AcDbObjectId& id, bool createIfNotFound, const AcDbHandle& handle,
                                                Adesk::UInt32 /*xRefId*/)
{
    if (createIfNotFound)
    {
        return Acad::eNotImplementedYet;
    }
    const AcDbObjectId found = m_impl->FindHandle(handle);
    if (found.isNull())
    {
        return handle.isNull() ? Acad::eNullHandle : Acad::eUnknownHandle;
    }
    id = found;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbDatabase::assignHandle(AcDbObjectId id, const AcDbHandle& handle)
{
    arxdb::ObjectRecord* record = ObjectStore::Instance().Find(id);
    if (record == nullptr || record->database != this)
    {
        return record == nullptr ? Acad::eUnknownObjectId : Acad::eWrongDatabase;
    }
    return m_impl->AssignHandle(*record, handle);
}

Adesk::Int32 AcDbDatabase::approxNumObjects() const
{
    Adesk::Int32 count = 0;
    for (const AcDbObjectId& id : m_impl->ObjectIds())
    {
        count += id.isValid() && !id.isErased() ? 1 : 0;
    }
    return count;
}

AcGePoint3d AcDbDatabase::extmin() const
{
    return modelExtents().minPoint();
}

AcGePoint3d AcDbDatabase::extmax() const
{
    return modelExtents().maxPoint();
}

AcDbExtents AcDbDatabase::modelExtents() const
{
    AcDbExtents box;
    const arxdb::ObjectRecord* space = ObjectStore::Instance().Find(currentSpaceId());
    if (space == nullptr)
    {
        return box;
    }
    const AcDbObjectIdArray& ids = AcDbBlockTableRecord::cast(space->object)->entityIds();
    for (int i = 0; i < ids.length(); ++i)
    {
        AddShownExtents(ids[i], box);
    }
    return box;
}

Acad::ErrorStatus AcDbDatabase::getFilename(const ACHAR*& path) const
{
    path = m_impl->filename.c_str();
    return Acad::eOk;
}

void AcDbDatabase::setFilename(const ACHAR* path)
{
    m_impl->filename = path == nullptr ? L"" : path;
}

Acad::ErrorStatus AcDbDatabase::addReactor(AcDbDatabaseReactor* reactor) const
{
    m_impl->reactors.Add(reactor);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbDatabase::removeReactor(AcDbDatabaseReactor* reactor) const
{
    m_impl->reactors.Remove(reactor);
    return Acad::eOk;
}
