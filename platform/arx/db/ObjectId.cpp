#include "dbid.h"

#include "ObjectStore.h"

using arxdb::ObjectRecord;
using arxdb::ObjectStore;

const AcDbObjectId AcDbObjectId::kNull;

bool AcDbObjectId::isValid() const
{
    return ObjectStore::Instance().Find(*this) != nullptr;
}

bool AcDbObjectId::isErased() const
{
    const ObjectRecord* record = ObjectStore::Instance().Find(*this);
    return record != nullptr && record->erased;
}

bool AcDbObjectId::isEffectivelyErased() const
{
    const ObjectRecord* record = ObjectStore::Instance().Find(*this);
    return record != nullptr && (record->erased || record->object->ownerId().isEffectivelyErased());
}

AcDbHandle AcDbObjectId::handle() const
{
    const ObjectRecord* record = ObjectStore::Instance().Find(*this);
    return record == nullptr ? AcDbHandle() : record->handle;
}

AcDbDatabase* AcDbObjectId::database() const
{
    const ObjectRecord* record = ObjectStore::Instance().Find(*this);
    return record == nullptr ? nullptr : record->database;
}

AcRxClass* AcDbObjectId::objectClass() const
{
    const ObjectRecord* record = ObjectStore::Instance().Find(*this);
    return record == nullptr ? nullptr : record->object->isA();
}
