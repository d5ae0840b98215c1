// The entities of a drawing's model space for the tests, opened and closed again.
#pragma once

#include "acutads.h"
#include "dbents.h"
#include "dbobjptr.h"
#include "dbsymtb.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

inline std::vector<AcDbObjectId> ModelSpaceOf(AcDbDatabase& database)
{
    AcDbObjectPointer<AcDbBlockTableRecord> space(database.currentSpaceId());
    std::vector<AcDbObjectId> ids;
    AcDbBlockTableRecordIterator* iterator = NULL;
    space->newIterator(iterator);
    for (; !iterator->done(); iterator->step())
    {
        AcDbObjectId id;
        iterator->getEntityId(id);
        ids.push_back(id);
    }
    delete iterator;
    return ids;
}

// Opens the entity at `index` of model space as T and hands it to `check`.
template<class T, class Check>
void WithEntity(AcDbDatabase& database, size_t index, Check check)
{
    const std::vector<AcDbObjectId> ids = ModelSpaceOf(database);
    ASSERT_LT(index, ids.size());
    AcDbObjectPointer<T> entity(ids[index]);
    ASSERT_EQ(entity.openStatus(), Acad::eOk);
    check(*entity.object());
}

inline std::wstring LayerOf(const AcDbEntity& entity)
{
    ACHAR* name = entity.layer();
    const std::wstring copy = name;
    acutDelString(name);
    return copy;
}
