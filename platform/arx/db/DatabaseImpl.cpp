#include "DatabaseImpl.h"

namespace arxdb
{

AcDbObjectId DatabaseImpl::Add(AcDbObject& object, AcDbObjectId ownerId)
{
    ObjectRecord& record = ObjectStore::Instance().Add(m_database, object);
    record.handle = NextHandle();
    m_handles[record.handle.value()] = record.id;
    m_ids.push_back(record.id);
    object.setOwnerId(ownerId);
    return record.id;
}

AcDbHandle DatabaseImpl::NextHandle()
{
    do
    {
        ++m_lastHandle;
    } while (m_handles.count(m_lastHandle) != 0);
    return AcDbHandle(m_lastHandle);
}

Acad::ErrorStatus DatabaseImpl::AssignHandle(ObjectRecord& record, const AcDbHandle& handle)
{
    if (handle.isNull())
    {
        return Acad::eNullHandle;
    }
    ObjectRecord* other = ObjectStore::Instance().Find(FindHandle(handle));
    if (other != nullptr && other != &record)
    {
        if (other->handleAssigned)
        {
            return Acad::eHandleInUse;
        }
        other->handle = NextHandle();
        m_handles[other->handle.value()] = other->id;
    }
    if (record.handle != handle)
    {
        m_handles.erase(record.handle.value());
    }
    record.handle = handle;
    record.handleAssigned = true;
    m_handles[handle.value()] = record.id;
    return Acad::eOk;
}

AcDbObjectId DatabaseImpl::FindHandle(const AcDbHandle& handle) const
{
    const auto found = m_handles.find(handle.value());
    return found == m_handles.end() ? AcDbObjectId() : found->second;
}

void DatabaseImpl::ObjectDeleted(ObjectRecord& record)
{
    m_handles.erase(record.handle.value());
    ObjectStore::Instance().Forget(record);
}

void DatabaseImpl::DeleteObjects()
{
    // The last first: members before the tables and blocks that list them.
    for (auto id = m_ids.rbegin(); id != m_ids.rend(); ++id)
    {
        if (ObjectRecord* record = ObjectStore::Instance().Find(*id))
        {
            AcDbObject* object = record->object;
            ObjectStore::Instance().Forget(*record);
            delete object;
        }
    }
    m_ids.clear();
    m_handles.clear();
}

void DatabaseImpl::TellChanges(ObjectRecord& record)
{
    const bool appended = record.isNew;
    const bool eraseChanged = record.eraseChanged;
    const bool modified = record.modified;
    const bool erased = record.erased;
    record.isNew = false;
    record.eraseChanged = false;
    record.modified = false;
    const AcDbObject* object = record.object;
    if (appended)
    {
        reactors.Tell([&](AcDbDatabaseReactor& reactor) { reactor.objectAppended(&m_database, object); });
    }
    else if (modified)
    {
        reactors.Tell([&](AcDbDatabaseReactor& reactor) { reactor.objectModified(&m_database, object); });
    }
    if (eraseChanged)
    {
        reactors.Tell([&](AcDbDatabaseReactor& reactor) { reactor.objectErased(&m_database, object, erased); });
    }
}

} // namespace arxdb
