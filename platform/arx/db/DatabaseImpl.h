// What AcDbDatabase keeps: its objects in the order of their coming, their handles, its tables.
#pragma once

#include "Database.h"
#include "DatabaseReactor.h"
#include "ObjectStore.h"
#include "arx/rx/ReactorList.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace arxdb
{

class DatabaseImpl
{
public:
    explicit DatabaseImpl(AcDbDatabase& database) : m_database(database) {}

    // The object is open for writing afterwards.
    AcDbObjectId Add(AcDbObject& object, AcDbObjectId ownerId);
    Acad::ErrorStatus AssignHandle(ObjectRecord& record, const AcDbHandle& handle);
    AcDbObjectId FindHandle(const AcDbHandle& handle) const;
    // The object goes by itself, without its drawing.
    void ObjectDeleted(ObjectRecord& record);
    void DeleteObjects();
    // Tells the reactors what a writer changed, and starts afresh.
    void TellChanges(ObjectRecord& record);

    const std::vector<AcDbObjectId>& ObjectIds() const { return m_ids; }

    AcDbObjectId blockTableId;
    AcDbObjectId layerTableId;
    AcDbObjectId currentLayerId;
    std::wstring filename;
    arxrx::ReactorList<AcDbDatabaseReactor> reactors;

private:
    AcDbHandle NextHandle();

    AcDbDatabase& m_database;
    std::vector<AcDbObjectId> m_ids;
    std::unordered_map<Adesk::UInt64, AcDbObjectId> m_handles;
    Adesk::UInt64 m_lastHandle = 0;
};

} // namespace arxdb
