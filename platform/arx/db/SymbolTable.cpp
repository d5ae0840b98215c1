#include "dbsymtb.h"

#include "DatabaseImpl.h"
#include "NameTable.h"
#include "acutads.h"
#include "arx/rx/Names.h"

#include <algorithm>

using arxdb::ObjectStore;

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbSymbolTableRecord, AcDbObject)
ACRX_NO_CONS_DEFINE_MEMBERS(AcDbSymbolTable, AcDbObject)

AcDbSymbolTableRecord::AcDbSymbolTableRecord() : m_name(nullptr)
{
    acutNewString(ACRX_T(""), m_name);
}

AcDbSymbolTableRecord::~AcDbSymbolTableRecord()
{
    acutDelString(m_name);
}

Acad::ErrorStatus AcDbSymbolTableRecord::getName(ACHAR*& name) const
{
    acutNewString(m_name, name);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTableRecord::getName(const ACHAR*& name) const
{
    name = m_name;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTableRecord::setName(const ACHAR* name)
{
    assertWriteEnabled();
    if (name == nullptr || name[0] == 0)
    {
        return Acad::eInvalidInput;
    }
    arxdb::ObjectRecord* owner = ObjectStore::Instance().Find(ownerId());
    AcDbSymbolTable* table = owner == nullptr ? nullptr : AcDbSymbolTable::cast(owner->object);
    if (table != nullptr)
    {
        const AcDbObjectId holder = table->m_records->Find(name);
        if (!holder.isNull() && holder != objectId() && !holder.isErased())
        {
            return Acad::eDuplicateKey;
        }
        table->m_records->Rename(m_name, name, objectId());
    }
    ACHAR* copy = nullptr;
    acutNewString(name, copy);
    acutDelString(m_name);
    m_name = copy;
    return Acad::eOk;
}

AcDbSymbolTableIterator::AcDbSymbolTableIterator(const AcDbObjectId* ids, int count)
    : m_ids(new AcDbObjectId[static_cast<size_t>(count)]), m_count(count), m_position(0)
{
    std::copy(ids, ids + count, m_ids);
}

AcDbSymbolTableIterator::~AcDbSymbolTableIterator()
{
    delete[] m_ids;
}

void AcDbSymbolTableIterator::start(bool atBeginning, bool skipDeleted)
{
    m_position = atBeginning ? 0 : m_count - 1;
    Skip(atBeginning, skipDeleted);
}

bool AcDbSymbolTableIterator::done() const
{
    return m_position < 0 || m_position >= m_count;
}

void AcDbSymbolTableIterator::step(bool forward, bool skipDeleted)
{
    if (!done())
    {
        m_position += forward ? 1 : -1;
        Skip(forward, skipDeleted);
    }
}

void AcDbSymbolTableIterator::Skip(bool forward, bool skipDeleted)
{
    while (skipDeleted && !done() && m_ids[m_position].isErased())
    {
        m_position += forward ? 1 : -1;
    }
}

Acad::ErrorStatus AcDbSymbolTableIterator::getRecordId(AcDbObjectId& id) const
{
    if (done())
    {
        return Acad::eInvalidInput;
    }
    id = m_ids[m_position];
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTableIterator::getRecord(AcDbSymbolTableRecord*& record, AcDb::OpenMode mode,
                                                     bool openErased) const
{
    record = nullptr;
    return done() ? Acad::eInvalidInput : acdbOpenObject(record, m_ids[m_position], mode, openErased);
}

AcDbSymbolTable::AcDbSymbolTable() : m_records(new arxdb::NameTable) {}

AcDbSymbolTable::~AcDbSymbolTable()
{
    delete m_records;
}

Acad::ErrorStatus AcDbSymbolTable::getAt(const ACHAR* name, AcDbObjectId& id, bool getErasedRecord) const
{
    assertReadEnabled();
    const AcDbObjectId found = m_records->Find(name);
    if (found.isNull())
    {
        return Acad::eKeyNotFound;
    }
    if (found.isErased() && !getErasedRecord)
    {
        return Acad::eWasErased;
    }
    id = found;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTable::getAt(const ACHAR* name, AcDbSymbolTableRecord*& record, AcDb::OpenMode mode,
                                         bool openErasedRecord) const
{
    record = nullptr;
    AcDbObjectId id;
    const Acad::ErrorStatus es = getAt(name, id, openErasedRecord);
    return es == Acad::eOk ? acdbOpenObject(record, id, mode, openErasedRecord) : es;
}

bool AcDbSymbolTable::has(const ACHAR* name) const
{
    AcDbObjectId id;
    return getAt(name, id) == Acad::eOk;
}

bool AcDbSymbolTable::has(AcDbObjectId id) const
{
    assertReadEnabled();
    const auto& ids = m_records->Ids();
    return std::find(ids.begin(), ids.end(), id) != ids.end() && !id.isErased();
}

AcDbObjectId AcDbSymbolTable::Find(const ACHAR* name) const
{
    return m_records->Find(name);
}

Acad::ErrorStatus AcDbSymbolTable::add(AcDbSymbolTableRecord* record)
{
    AcDbObjectId id;
    return add(id, record);
}

Acad::ErrorStatus AcDbSymbolTable::add(AcDbObjectId& id, AcDbSymbolTableRecord* record)
{
    if (record == nullptr)
    {
        return Acad::eNullObjectPointer;
    }
    if (!record->isKindOf(recordClass()))
    {
        return Acad::eWrongObjectType;
    }
    if (database() == nullptr || record->database() != nullptr)
    {
        return record->database() != nullptr ? Acad::eAlreadyInDb : Acad::eNoDatabase;
    }
    if (!isWriteEnabled())
    {
        return Acad::eNotOpenForWrite;
    }
    const ACHAR* name = nullptr;
    record->getName(name);
    if (name[0] == 0 || has(name))
    {
        return name[0] == 0 ? Acad::eInvalidInput : Acad::eDuplicateKey;
    }
    assertWriteEnabled();
    id = database()->impl().Add(*record, objectId());
    m_records->Add(name, id);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTable::newIterator(AcDbSymbolTableIterator*& iterator, bool atBeginning,
                                               bool skipDeleted) const
{
    assertReadEnabled();
    const auto& ids = m_records->Ids();
    iterator = new AcDbSymbolTableIterator(ids.data(), static_cast<int>(ids.size()));
    iterator->start(atBeginning, skipDeleted);
    return Acad::eOk;
}
