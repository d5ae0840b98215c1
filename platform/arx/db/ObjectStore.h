// All objects of all open drawings by identifier. Identifiers are numbers that are counted up and never given out
// again, so that one of a closed drawing can be told from every later one.
#pragma once

#include "Object.h"

#include <vector>

namespace arxdb
{

struct ObjectRecord
{
    AcDbDatabase* database = nullptr;
    AcDbObject* object = nullptr;
    AcDbObjectId id;
    AcDbHandle handle;
    // The file named the handle; otherwise the drawing chose it and may choose another.
    bool handleAssigned = false;
    int readers = 0;
    bool writing = false;
    bool notifying = false;
    bool erased = false;
    // What to tell the reactors at the next close.
    bool isNew = true;
    bool modified = false;
    bool eraseChanged = false;
};

class ObjectStore
{
public:
    static ObjectStore& Instance();

    // Null for null and unknown identifiers.
    ObjectRecord* Find(AcDbObjectId id) const;

    // The new object is open for writing.
    ObjectRecord& Add(AcDbDatabase& database, AcDbObject& object);
    // Ends the record's life; the object is no longer in a drawing.
    void Forget(ObjectRecord& record);

    Acad::ErrorStatus Open(AcDbObject*& object, AcDbObjectId id, AcDb::OpenMode mode, bool openErased);
    Acad::ErrorStatus Close(ObjectRecord& record);

private:
    ObjectStore() = default;
    static Acad::ErrorStatus Enter(ObjectRecord& record, AcDb::OpenMode mode);

    std::vector<ObjectRecord*> m_records;
};

} // namespace arxdb
