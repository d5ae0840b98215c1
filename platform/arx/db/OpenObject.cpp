#include "OpenObject.h"

#include "ObjectStore.h"

Acad::ErrorStatus acdbOpenAcDbObject(AcDbObject*& object, AcDbObjectId id, AcDb::OpenMode mode, bool openErased)
{
    return arxdb::ObjectStore::Instance().Open(object, id, mode, openErased);
}

Acad::ErrorStatus acdbOpenAcDbEntity(AcDbEntity*& entity, AcDbObjectId id, AcDb::OpenMode mode, bool openErased)
{
    const Acad::ErrorStatus es = acdbOpenObject(entity, id, mode, openErased);
    return es == Acad::eNotThatKindOfClass ? Acad::eNotAnEntity : es;
}
