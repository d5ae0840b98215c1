// Symbol tables: named records of a drawing. Names are compared without regard to case.
#pragma once

#include "Object.h"

namespace arxdb
{
class NameTable;
} // namespace arxdb

class ARX_API AcDbSymbolTableRecord : public AcDbObject
{
public:
    ACRX_DECLARE_MEMBERS(AcDbSymbolTableRecord);

    virtual ~AcDbSymbolTableRecord();

    // A copy that the caller frees with acutDelString().
    Acad::ErrorStatus getName(ACHAR*& name) const;
    // Valid until the name changes.
    Acad::ErrorStatus getName(const ACHAR*& name) const;
    // eInvalidInput for an empty name, eDuplicateKey when the table has another record of that name.
    virtual Acad::ErrorStatus setName(const ACHAR* name);

    // A record that is not resolved is a placeholder: entities refer to it, the file has no definition of it. Such a
    // record is dependent as well.
    bool isDependent() const { return !m_resolved; }
    bool isResolved() const { return m_resolved; }
    // How the bundled drawing reader keeps the name of a missing block or layer; modules never call it.
    void markUnresolved() { m_resolved = false; }

protected:
    AcDbSymbolTableRecord();

private:
    ACHAR* m_name;
    bool m_resolved = true;
};

// Walks the records in the order in which they were added. Made by newIterator(), deleted by the caller.
class ARX_API AcDbSymbolTableIterator
{
public:
    virtual ~AcDbSymbolTableIterator();

    void start(bool atBeginning = true, bool skipDeleted = true);
    bool done() const;
    void step(bool forward = true, bool skipDeleted = true);
    Acad::ErrorStatus getRecordId(AcDbObjectId& id) const;
    Acad::ErrorStatus getRecord(AcDbSymbolTableRecord*& record, AcDb::OpenMode mode = AcDb::kForRead,
                                bool openErased = false) const;

protected:
    friend class AcDbSymbolTable;
    AcDbSymbolTableIterator(const AcDbObjectId* ids, int count);

private:
    AcDbSymbolTableIterator(const AcDbSymbolTableIterator&);
    AcDbSymbolTableIterator& operator=(const AcDbSymbolTableIterator&);
    void Skip(bool forward, bool skipDeleted);

    AcDbObjectId* m_ids;
    int m_count;
    int m_position;
};

class ARX_API AcDbSymbolTable : public AcDbObject
{
public:
    ACRX_DECLARE_MEMBERS(AcDbSymbolTable);

    virtual ~AcDbSymbolTable();

    // eKeyNotFound when there is no such record, eWasErased when it is erased and `getErasedRecord` is false.
    Acad::ErrorStatus getAt(const ACHAR* name, AcDbObjectId& id, bool getErasedRecord = false) const;
    Acad::ErrorStatus getAt(const ACHAR* name, AcDbSymbolTableRecord*& record, AcDb::OpenMode mode,
                            bool openErasedRecord = false) const;
    bool has(const ACHAR* name) const;
    bool has(AcDbObjectId id) const;

    // The drawing takes the record over, which stays open for writing. eInvalidInput without a name, eDuplicateKey
    // for a name in use, eWrongObjectType for a record of another table.
    Acad::ErrorStatus add(AcDbSymbolTableRecord* record);
    Acad::ErrorStatus add(AcDbObjectId& id, AcDbSymbolTableRecord* record);

    Acad::ErrorStatus newIterator(AcDbSymbolTableIterator*& iterator, bool atBeginning = true,
                                  bool skipDeleted = true) const;

protected:
    AcDbSymbolTable();

    // The class of records that this table takes.
    virtual AcRxClass* recordClass() const = 0;

private:
    friend class AcDbDatabase;
    friend class AcDbSymbolTableRecord;

    // Null when there is none; asks nothing of the opening state.
    AcDbObjectId Find(const ACHAR* name) const;

    arxdb::NameTable* m_records;
};
