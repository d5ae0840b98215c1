// AcDbDatabaseReactor: hears what happens to the objects of a drawing. Register it with AcDbDatabase::addReactor().
#pragma once

#include "rxobject.h"

class AcDbDatabase;
class AcDbObject;

class ARX_API AcDbDatabaseReactor : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcDbDatabaseReactor);

    virtual ~AcDbDatabaseReactor();

    // Each comes when the object is closed after the change.
    virtual void objectAppended(const AcDbDatabase* database, const AcDbObject* object);
    virtual void objectModified(const AcDbDatabase* database, const AcDbObject* object);
    // `erased` is false when the object was brought back.
    virtual void objectErased(const AcDbDatabase* database, const AcDbObject* object, bool erased);
    // The drawing is about to be destroyed; the reactor is forgotten afterwards.
    virtual void goodbye(const AcDbDatabase* database);
};
