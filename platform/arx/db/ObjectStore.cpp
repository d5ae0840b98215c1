#include "ObjectStore.h"

#include "Database.h"
#include "DatabaseImpl.h"

namespace arxdb
{

namespace
{

// Identifiers look like addresses of aligned objects: far from small numbers that a caller may have made up.
const Adesk::IntDbId kFirstId = 0x10000;
const Adesk::IntDbId kIdStep = 16;
const int kMaxReaders = 256;

} // namespace

ObjectStore& ObjectStore::Instance()
{
    // Never destroyed: objects may be asked for their identifiers while the process ends.
    static ObjectStore* const store = new ObjectStore;
    return *store;
}

ObjectRecord* ObjectStore::Find(AcDbObjectId id) const
{
    const Adesk::IntDbId offset = id.asOldId() - kFirstId;
    if (offset < 0 || offset % kIdStep != 0)
    {
        return nullptr;
    }
    const size_t index = static_cast<size_t>(offset / kIdStep);
    return index < m_records.size() ? m_records[index] : nullptr;
}

ObjectRecord& ObjectStore::Add(AcDbDatabase& database, AcDbObject& object)
{
    ObjectRecord* record = new ObjectRecord;
    record->database = &database;
    record->object = &object;
    record->id.setFromOldId(kFirstId + static_cast<Adesk::IntDbId>(m_records.size()) * kIdStep);
    record->writing = true;
    m_records.push_back(record);
    object.m_record = record;
    return *record;
}

void ObjectStore::Forget(ObjectRecord& record)
{
    const size_t index = static_cast<size_t>((record.id.asOldId() - kFirstId) / kIdStep);
    m_records[index] = nullptr;
    record.object->m_record = nullptr;
    delete &record;
}

Acad::ErrorStatus ObjectStore::Open(AcDbObject*& object, AcDbObjectId id, AcDb::OpenMode mode, bool openErased)
{
    object = nullptr;
    if (id.isNull())
    {
        return Acad::eNullObjectId;
    }
    ObjectRecord* record = Find(id);
    if (record == nullptr)
    {
        return Acad::eUnknownObjectId;
    }
    if (record->erased && !openErased)
    {
        return Acad::eWasErased;
    }
    const Acad::ErrorStatus es = Enter(*record, mode);
    if (es == Acad::eOk)
    {
        object = record->object;
    }
    return es;
}

Acad::ErrorStatus ObjectStore::Enter(ObjectRecord& record, AcDb::OpenMode mode)
{
    if (mode == AcDb::kForNotify)
    {
        if (record.notifying)
        {
            return Acad::eWasNotifying;
        }
        record.notifying = true;
        return Acad::eOk;
    }
    if (record.writing)
    {
        return Acad::eWasOpenForWrite;
    }
    if (mode == AcDb::kForWrite)
    {
        record.writing = record.readers == 0;
        return record.writing ? Acad::eOk : Acad::eWasOpenForRead;
    }
    if (record.readers == kMaxReaders)
    {
        return Acad::eAtMaxReaders;
    }
    ++record.readers;
    return Acad::eOk;
}

Acad::ErrorStatus ObjectStore::Close(ObjectRecord& record)
{
    if (record.writing)
    {
        record.writing = false;
        record.database->impl().TellChanges(record);
        return Acad::eOk;
    }
    if (record.readers > 0)
    {
        --record.readers;
        return Acad::eOk;
    }
    if (record.notifying)
    {
        record.notifying = false;
        return Acad::eOk;
    }
    return Acad::eNotOpenForRead;
}

} // namespace arxdb
