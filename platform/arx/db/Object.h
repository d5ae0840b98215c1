// AcDbObject: everything that lives in a drawing and has an identifier.
//
// An object made with `new` belongs to its maker until it is added to a drawing; from then on the drawing owns it, and
// it is reached through its identifier: acdbOpenObject(), use, close(). After being added an object is still open for
// writing, so the maker closes it as well. Nobody deletes an object of a drawing; erase() marks it, and it can be
// brought back by erase(false).
#pragma once

#include "rxobject.h"
#include "dbid.h"
#include "AcDb.h"

namespace arxdb
{
struct ObjectRecord;
class ObjectStore;
} // namespace arxdb

class ARX_API AcDbObject : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcDbObject);

    virtual ~AcDbObject();

    // Identity. Null answers while the object is in no drawing.
    AcDbObjectId objectId() const;
    AcDbObjectId id() const { return objectId(); }
    void getAcDbHandle(AcDbHandle& handle) const;
    AcDbDatabase* database() const;
    AcDbObjectId ownerId() const { return m_ownerId; }
    virtual Acad::ErrorStatus setOwnerId(AcDbObjectId ownerId);

    // Opening state
    bool isReadEnabled() const;
    bool isWriteEnabled() const;
    bool isNotifyEnabled() const;
    bool isModified() const;
    bool isNewObject() const;
    // eNotInDatabase outside a drawing. Objects that were open for writing tell the drawing's reactors what changed.
    Acad::ErrorStatus close();
    // eNotOpenForRead when it is not open, eWasOpenForRead when others read it too.
    Acad::ErrorStatus upgradeOpen();
    Acad::ErrorStatus downgradeOpen();

    // Needs write access. Erasing twice gives eWasErased, bringing back what is not erased eInvalidInput.
    Acad::ErrorStatus erase(bool erasing = true);
    bool isErased() const;

    // Called by members. An object of a drawing that is not open as needed is a mistake of the caller: the assertion
    // stops the program in debug builds.
    void assertReadEnabled() const;
    // Marks the object as modified.
    void assertWriteEnabled();

protected:
    AcDbObject();

private:
    friend class arxdb::ObjectStore;
    AcDbObject(const AcDbObject&);
    AcDbObject& operator=(const AcDbObject&);

    arxdb::ObjectRecord* m_record;
    AcDbObjectId m_ownerId;
};
