#include "TestEntity.h"

#include "acutads.h"
#include "dbapserv.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace
{

std::vector<std::wstring> LayerNames(AcDbDatabase& database)
{
    std::vector<std::wstring> names;
    const AcDbObjectPointer<AcDbLayerTable> table(database.layerTableId());
    AcDbSymbolTableIterator* iterator = nullptr;
    table->newIterator(iterator);
    const std::unique_ptr<AcDbSymbolTableIterator> owner(iterator);
    for (; !iterator->done(); iterator->step())
    {
        AcDbSymbolTableRecord* record = nullptr;
        if (iterator->getRecord(record) == Acad::eOk)
        {
            const ACHAR* name = nullptr;
            record->getName(name);
            names.push_back(name);
            record->close();
        }
    }
    return names;
}

TEST(Database, StartsWithSpacesAndLayerZero)
{
    AcDbDatabase database;
    AcDbBlockTable* blocks = nullptr;
    ASSERT_EQ(database.getSymbolTable(blocks, AcDb::kForRead), Acad::eOk);
    AcDbBlockTableRecord* space = nullptr;
    ASSERT_EQ(blocks->getAt(ACDB_MODEL_SPACE, space, AcDb::kForRead), Acad::eOk);
    EXPECT_TRUE(space->objectId() == database.currentSpaceId());
    EXPECT_TRUE(space->isLayout());
    EXPECT_FALSE(space->isAnonymous());
    space->close();
    EXPECT_TRUE(blocks->has(L"*PAPER_SPACE"));
    blocks->close();
    EXPECT_EQ(LayerNames(database), std::vector<std::wstring>{L"0"});
    EXPECT_TRUE(database.clayer() == database.layerZero());
    EXPECT_EQ(database.approxNumObjects(), 5);
}

TEST(SymbolTable, FindsNamesWithoutRegardToCase)
{
    AcDbDatabase database;
    const AcDbObjectId id = AddLayer(database, L"Walls");
    const AcDbObjectPointer<AcDbLayerTable> table(database.layerTableId());
    AcDbObjectId found;
    EXPECT_EQ(table->getAt(L"WALLS", found), Acad::eOk);
    EXPECT_TRUE(found == id);
    EXPECT_EQ(table->getAt(L"Doors", found), Acad::eKeyNotFound);
    EXPECT_TRUE(table->has(id));
    EXPECT_FALSE(table->has(database.currentSpaceId()));
}

TEST(SymbolTable, RefusesWhatDoesNotBelong)
{
    AcDbDatabase database;
    AddLayer(database, L"Walls");
    AcDbObjectPointer<AcDbLayerTable> table(database.layerTableId(), AcDb::kForWrite);
    AcDbLayerTableRecord layer;
    EXPECT_EQ(table->add(&layer), Acad::eInvalidInput);
    layer.setName(L"walls");
    EXPECT_EQ(table->add(&layer), Acad::eDuplicateKey);
    AcDbBlockTableRecord block;
    block.setName(L"Block");
    EXPECT_EQ(table->add(&block), Acad::eWrongObjectType);
    EXPECT_EQ(table->add(nullptr), Acad::eNullObjectPointer);
    layer.setName(L"Other");
    table->downgradeOpen();
    EXPECT_EQ(table->add(&layer), Acad::eNotOpenForWrite);
}

TEST(SymbolTable, NameOfAnErasedRecordIsFree)
{
    AcDbDatabase database;
    const AcDbObjectId old = AddLayer(database, L"Walls");
    {
        const AcDbObjectPointer<AcDbLayerTableRecord> layer(old, AcDb::kForWrite);
        layer->erase();
    }
    {
        const AcDbObjectPointer<AcDbLayerTable> table(database.layerTableId());
        AcDbObjectId found;
        EXPECT_EQ(table->getAt(L"Walls", found), Acad::eWasErased);
        EXPECT_EQ(table->getAt(L"Walls", found, true), Acad::eOk);
    }
    const AcDbObjectId next = AddLayer(database, L"Walls");
    EXPECT_FALSE(next.isNull());
    EXPECT_EQ(LayerNames(database), (std::vector<std::wstring>{L"0", L"Walls"}));
}

TEST(SymbolTable, RecordIsFoundByItsNewName)
{
    AcDbDatabase database;
    const AcDbObjectId id = AddLayer(database, L"Walls");
    AddLayer(database, L"Doors");
    {
        const AcDbObjectPointer<AcDbLayerTableRecord> layer(id, AcDb::kForWrite);
        EXPECT_EQ(layer->setName(L"DOORS"), Acad::eDuplicateKey);
        EXPECT_EQ(layer->setName(L""), Acad::eInvalidInput);
        EXPECT_EQ(layer->setName(L"Windows"), Acad::eOk);
    }
    const AcDbObjectPointer<AcDbLayerTable> table(database.layerTableId());
    EXPECT_TRUE(table->has(L"windows"));
    EXPECT_FALSE(table->has(L"Walls"));
}

TEST(Block, ListsItsEntitiesInOrderWithoutErasedOnes)
{
    AcDbDatabase database;
    std::vector<AcDbObjectId> ids;
    for (int i = 0; i < 4; ++i)
    {
        ids.push_back(AddToModelSpace(database, new BoxEntity(i, 0, i + 1, 1)));
    }
    EraseEntity(ids[0]);
    EraseEntity(ids[2]);
    const AcDbObjectPointer<AcDbBlockTableRecord> space(database.currentSpaceId());
    AcDbBlockTableRecordIterator* iterator = nullptr;
    space->newIterator(iterator);
    const std::unique_ptr<AcDbBlockTableRecordIterator> owner(iterator);
    std::vector<AcDbObjectId> seen;
    for (; !iterator->done(); iterator->step())
    {
        AcDbEntity* entity = nullptr;
        ASSERT_EQ(iterator->getEntity(entity), Acad::eOk);
        seen.push_back(entity->objectId());
        EXPECT_TRUE(entity->blockId() == database.currentSpaceId());
        entity->close();
    }
    EXPECT_EQ(seen, (std::vector<AcDbObjectId>{ids[1], ids[3]}));
    iterator->start(false, false);
    AcDbObjectId last;
    EXPECT_EQ(iterator->getEntityId(last), Acad::eOk);
    EXPECT_TRUE(last == ids[3]);
    iterator->step(false, false);
    iterator->getEntityId(last);
    EXPECT_TRUE(last == ids[2]);
}

TEST(Block, TakesAnEntityOnce)
{
    AcDbDatabase database;
    AcDbDatabase other;
    const AcDbObjectId id = AddToModelSpace(database, new BoxEntity);
    AcDbObjectPointer<AcDbBlockTableRecord> space(other.currentSpaceId(), AcDb::kForWrite);
    const AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForWrite);
    EXPECT_EQ(space->appendAcDbEntity(entity.object()), Acad::eAlreadyInDb);
    EXPECT_EQ(space->appendAcDbEntity(nullptr), Acad::eNullEntityPointer);
    BoxEntity loose;
    loose.setLayer(database.layerZero());
    EXPECT_EQ(space->appendAcDbEntity(&loose), Acad::eWrongDatabase);
    AcDbBlockTableRecord nowhere;
    EXPECT_EQ(nowhere.appendAcDbEntity(&loose), Acad::eNoDatabase);
}

TEST(Entity, GetsLayerZeroAndColorByLayer)
{
    AcDbDatabase database;
    const AcDbEntityPointer entity(AddToModelSpace(database, new BoxEntity));
    ACHAR* layer = entity->layer();
    EXPECT_STREQ(layer, L"0");
    acutDelString(layer);
    EXPECT_EQ(layer, nullptr);
    EXPECT_TRUE(entity->color().isByLayer());
    EXPECT_EQ(entity->colorIndex(), 256);
    EXPECT_EQ(entity->visibility(), AcDb::kVisible);
}

TEST(Entity, ChangesItsLayerByName)
{
    AcDbDatabase database;
    AcDbDatabase other;
    const AcDbObjectId walls = AddLayer(database, L"Walls");
    const AcDbEntityPointer entity(AddToModelSpace(database, new BoxEntity), AcDb::kForWrite);
    EXPECT_EQ(entity->setLayer(L"walls"), Acad::eOk);
    EXPECT_TRUE(entity->layerId() == walls);
    EXPECT_EQ(entity->setLayer(L"Doors"), Acad::eKeyNotFound);
    EXPECT_EQ(entity->setLayer(other.layerZero()), Acad::eWrongDatabase);
    EXPECT_EQ(entity->setLayer(database.currentSpaceId()), Acad::eInvalidInput);
    EXPECT_TRUE(entity->layerId() == walls);
}

TEST(Entity, RefusesIndicesThatAreNoColors)
{
    BoxEntity entity;
    EXPECT_EQ(entity.setColorIndex(257), Acad::eInvalidInput);
    EXPECT_EQ(entity.setColorIndex(0), Acad::eOk);
    EXPECT_TRUE(entity.color().isByBlock());
    EXPECT_EQ(entity.setColorIndex(3), Acad::eOk);
    EXPECT_TRUE(entity.color().isByACI());
}

TEST(Entity, OutsideADrawingHasNoIdentity)
{
    BoxEntity entity;
    AcDbHandle handle(5);
    entity.getAcDbHandle(handle);
    EXPECT_TRUE(handle.isNull());
    EXPECT_TRUE(entity.objectId().isNull());
    EXPECT_EQ(entity.database(), nullptr);
    EXPECT_EQ(entity.highlight(), Acad::eNotInDatabase);
}

TEST(Layer, HasNoColorByLayer)
{
    AcDbLayerTableRecord layer;
    AcCmColor color;
    color.setColorMethod(AcCmEntityColor::kByLayer);
    EXPECT_EQ(layer.setColor(color), Acad::eInvalidInput);
    EXPECT_EQ(layer.color().colorIndex(), 7);
    color.setColorIndex(1);
    EXPECT_EQ(layer.setColor(color), Acad::eOk);
    EXPECT_EQ(layer.color().red(), 255);
}

TEST(Database, ExtentsAreThoseOfVisibleEntities)
{
    AcDbDatabase database;
    EXPECT_TRUE(database.modelExtents() == AcDbExtents());
    AddToModelSpace(database, new BoxEntity(0, 0, 10, 5));
    const AcDbObjectId far = AddToModelSpace(database, new BoxEntity(100, 100, 200, 200));
    EXPECT_DOUBLE_EQ(database.extmax().x, 200);
    const AcDbObjectId off = AddLayer(database, L"Off");
    {
        const AcDbObjectPointer<AcDbLayerTableRecord> layer(off, AcDb::kForWrite);
        layer->setIsOff(true);
        const AcDbEntityPointer entity(far, AcDb::kForWrite);
        entity->setLayer(off);
    }
    EXPECT_DOUBLE_EQ(database.extmax().x, 10);
    EXPECT_DOUBLE_EQ(database.extmin().y, 0);
}

TEST(Database, ExtentsCountEntitiesThatAreBeingChanged)
{
    AcDbDatabase database;
    const AcDbObjectId id = AddToModelSpace(database, new BoxEntity(0, 0, 1, 1));
    const AcDbObjectPointer<BoxEntity> entity(id, AcDb::kForWrite);
    entity->SetBox(AcDbExtents(AcGePoint3d(0, 0, 0), AcGePoint3d(7, 7, 0)));
    EXPECT_DOUBLE_EQ(database.extmax().x, 7);
    EXPECT_TRUE(entity->isWriteEnabled());
}

TEST(Database, KeepsHandlesOfAFile)
{
    AcDbDatabase database;
    const AcDbObjectId first = AddToModelSpace(database, new BoxEntity);
    const AcDbObjectId second = AddToModelSpace(database, new BoxEntity);
    const AcDbHandle taken = first.handle();
    // The first got this handle by itself, so it gives way.
    EXPECT_EQ(database.assignHandle(second, taken), Acad::eOk);
    EXPECT_TRUE(second.handle() == taken);
    EXPECT_TRUE(first.handle() != taken);
    EXPECT_FALSE(first.handle().isNull());
    EXPECT_EQ(database.assignHandle(first, taken), Acad::eHandleInUse);
    EXPECT_EQ(database.assignHandle(first, AcDbHandle()), Acad::eNullHandle);
    AcDbObjectId found;
    EXPECT_EQ(database.getAcDbObjectId(found, false, taken), Acad::eOk);
    EXPECT_TRUE(found == second);
    EXPECT_EQ(database.getAcDbObjectId(found, false, AcDbHandle(L"ABCDEF")), Acad::eUnknownHandle);
    EXPECT_EQ(database.getAcDbObjectId(found, false, first.handle()), Acad::eOk);
    EXPECT_TRUE(found == first);
}

TEST(Database, WorkingDatabaseIsForgottenWithIt)
{
    {
        AcDbDatabase database;
        acdbHostApplicationServices()->setWorkingDatabase(&database);
    }
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), nullptr);
}

} // namespace
