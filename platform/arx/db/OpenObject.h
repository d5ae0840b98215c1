// Opening objects by identifier. Every successful open needs a close() on the object.
//
// Results: eNullObjectId and eUnknownObjectId for identifiers that name nothing, eWasErased for erased objects unless
// `openErased`, eWasOpenForWrite while a writer has it, eWasOpenForRead when a writer meets readers, eAtMaxReaders
// beyond 256 readers, eNotThatKindOfClass (eNotAnEntity) when it is of another class; it is closed again then.
#pragma once

#include "Entity.h"
#include "Object.h"

#include <stddef.h>

ARX_API Acad::ErrorStatus acdbOpenAcDbObject(AcDbObject*& object, AcDbObjectId id, AcDb::OpenMode mode,
                                             bool openErased = false);
ARX_API Acad::ErrorStatus acdbOpenAcDbEntity(AcDbEntity*& entity, AcDbObjectId id, AcDb::OpenMode mode,
                                             bool openErased = false);

template<class T>
Acad::ErrorStatus acdbOpenObject(T*& object, AcDbObjectId id, AcDb::OpenMode mode = AcDb::kForRead,
                                 bool openErased = false)
{
    object = NULL;
    AcDbObject* opened = NULL;
    const Acad::ErrorStatus es = acdbOpenAcDbObject(opened, id, mode, openErased);
    if (es != Acad::eOk)
    {
        return es;
    }
    object = T::cast(opened);
    if (object == NULL)
    {
        opened->close();
        return Acad::eNotThatKindOfClass;
    }
    return Acad::eOk;
}
