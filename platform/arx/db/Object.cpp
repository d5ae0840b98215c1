#include "dbmain.h"

#include "DatabaseImpl.h"
#include "ObjectStore.h"

#include <cassert>

using arxdb::ObjectStore;

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbObject, AcRxObject)

AcDbObject::AcDbObject() : m_record(nullptr) {}

AcDbObject::~AcDbObject()
{
    if (m_record != nullptr)
    {
        m_record->database->impl().ObjectDeleted(*m_record);
    }
}

AcDbObjectId AcDbObject::objectId() const
{
    return m_record == nullptr ? AcDbObjectId() : m_record->id;
}

void AcDbObject::getAcDbHandle(AcDbHandle& handle) const
{
    handle = m_record == nullptr ? AcDbHandle() : m_record->handle;
}

AcDbDatabase* AcDbObject::database() const
{
    return m_record == nullptr ? nullptr : m_record->database;
}

Acad::ErrorStatus AcDbObject::setOwnerId(AcDbObjectId ownerId)
{
    assertWriteEnabled();
    m_ownerId = ownerId;
    return Acad::eOk;
}

bool AcDbObject::isReadEnabled() const
{
    return m_record == nullptr || m_record->readers > 0 || m_record->writing;
}

bool AcDbObject::isWriteEnabled() const
{
    return m_record == nullptr || m_record->writing;
}

bool AcDbObject::isNotifyEnabled() const
{
    return m_record != nullptr && m_record->notifying;
}

bool AcDbObject::isModified() const
{
    return m_record != nullptr && m_record->modified;
}

bool AcDbObject::isNewObject() const
{
    return m_record != nullptr && m_record->isNew;
}

Acad::ErrorStatus AcDbObject::close()
{
    return m_record == nullptr ? Acad::eNotInDatabase : ObjectStore::Instance().Close(*m_record);
}

Acad::ErrorStatus AcDbObject::upgradeOpen()
{
    if (m_record == nullptr)
    {
        return Acad::eNotInDatabase;
    }
    if (m_record->writing)
    {
        return Acad::eWasOpenForWrite;
    }
    if (m_record->readers != 1)
    {
        return m_record->readers == 0 ? Acad::eNotOpenForRead : Acad::eWasOpenForRead;
    }
    m_record->readers = 0;
    m_record->writing = true;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::downgradeOpen()
{
    if (m_record == nullptr)
    {
        return Acad::eNotInDatabase;
    }
    if (!m_record->writing)
    {
        return Acad::eNotOpenForWrite;
    }
    m_record->writing = false;
    m_record->readers = 1;
    m_record->database->impl().TellChanges(*m_record);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::erase(bool erasing)
{
    if (m_record == nullptr)
    {
        return Acad::eNotInDatabase;
    }
    if (!m_record->writing)
    {
        return Acad::eNotOpenForWrite;
    }
    if (m_record->erased == erasing)
    {
        return erasing ? Acad::eWasErased : Acad::eInvalidInput;
    }
    m_record->erased = erasing;
    m_record->eraseChanged = !m_record->eraseChanged;
    return Acad::eOk;
}

bool AcDbObject::isErased() const
{
    return m_record != nullptr && m_record->erased;
}

void AcDbObject::assertReadEnabled() const
{
    assert(isReadEnabled() || isNotifyEnabled());
}

void AcDbObject::assertWriteEnabled()
{
    assert(isWriteEnabled());
    if (m_record != nullptr)
    {
        m_record->modified = true;
    }
}
