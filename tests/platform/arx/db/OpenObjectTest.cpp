#include "TestEntity.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

class OpenObject : public testing::Test
{
protected:
    Acad::ErrorStatus Open(AcDb::OpenMode mode, bool erased = false)
    {
        return acdbOpenAcDbEntity(entity, id, mode, erased);
    }

    AcDbDatabase database;
    AcDbObjectId id = AddToModelSpace(database, new BoxEntity(0, 0, 1, 1));
    AcDbEntity* entity = nullptr;
};

TEST_F(OpenObject, ManyMayRead)
{
    ASSERT_EQ(Open(AcDb::kForRead), Acad::eOk);
    AcDbEntity* again = nullptr;
    ASSERT_EQ(acdbOpenAcDbEntity(again, id, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(again, entity);
    EXPECT_TRUE(entity->isReadEnabled());
    EXPECT_FALSE(entity->isWriteEnabled());
    EXPECT_EQ(Open(AcDb::kForWrite), Acad::eWasOpenForRead);
    EXPECT_EQ(entity, nullptr);
    EXPECT_EQ(again->close(), Acad::eOk);
    EXPECT_EQ(again->close(), Acad::eOk);
    EXPECT_EQ(again->close(), Acad::eNotOpenForRead);
}

TEST_F(OpenObject, WriterIsAlone)
{
    ASSERT_EQ(Open(AcDb::kForWrite), Acad::eOk);
    AcDbEntity* other = nullptr;
    EXPECT_EQ(acdbOpenAcDbEntity(other, id, AcDb::kForRead), Acad::eWasOpenForWrite);
    EXPECT_EQ(acdbOpenAcDbEntity(other, id, AcDb::kForWrite), Acad::eWasOpenForWrite);
    EXPECT_EQ(other, nullptr);
    entity->close();
    EXPECT_EQ(Open(AcDb::kForRead), Acad::eOk);
    entity->close();
}

TEST_F(OpenObject, ReadersAreLimited)
{
    for (int i = 0; i < 256; ++i)
    {
        ASSERT_EQ(Open(AcDb::kForRead), Acad::eOk) << i;
    }
    AcDbEntity* const opened = entity;
    EXPECT_EQ(Open(AcDb::kForRead), Acad::eAtMaxReaders);
    opened->close();
    EXPECT_EQ(Open(AcDb::kForRead), Acad::eOk);
}

TEST_F(OpenObject, ErasedObjectIsOpenedOnRequestOnly)
{
    EraseEntity(id);
    EXPECT_EQ(Open(AcDb::kForRead), Acad::eWasErased);
    ASSERT_EQ(Open(AcDb::kForRead, true), Acad::eOk);
    EXPECT_TRUE(entity->isErased());
    entity->close();
}

TEST_F(OpenObject, NamesWhatIsMissing)
{
    AcDbObjectId unknown;
    EXPECT_EQ(acdbOpenAcDbEntity(entity, AcDbObjectId::kNull, AcDb::kForRead), Acad::eNullObjectId);
    EXPECT_EQ(acdbOpenAcDbEntity(entity, unknown.setFromOldId(77), AcDb::kForRead), Acad::eUnknownObjectId);
    EXPECT_EQ(acdbOpenAcDbEntity(entity, database.layerZero(), AcDb::kForRead), Acad::eNotAnEntity);
    AcDbLayerTableRecord* layer = nullptr;
    EXPECT_EQ(acdbOpenObject(layer, id), Acad::eNotThatKindOfClass);
    EXPECT_EQ(layer, nullptr);
    // Both refusals left the object closed.
    ASSERT_EQ(Open(AcDb::kForWrite), Acad::eOk);
    entity->close();
}

TEST_F(OpenObject, ReaderBecomesWriterWhenAlone)
{
    Open(AcDb::kForRead);
    AcDbEntity* second = nullptr;
    acdbOpenAcDbEntity(second, id, AcDb::kForRead);
    EXPECT_EQ(entity->upgradeOpen(), Acad::eWasOpenForRead);
    second->close();
    ASSERT_EQ(entity->upgradeOpen(), Acad::eOk);
    EXPECT_EQ(entity->upgradeOpen(), Acad::eWasOpenForWrite);
    ASSERT_EQ(entity->downgradeOpen(), Acad::eOk);
    EXPECT_EQ(entity->downgradeOpen(), Acad::eNotOpenForWrite);
    EXPECT_FALSE(entity->isWriteEnabled());
    entity->close();
}

TEST_F(OpenObject, NotifyingReadsBesideAWriter)
{
    ASSERT_EQ(Open(AcDb::kForWrite), Acad::eOk);
    AcDbEntity* notified = nullptr;
    EXPECT_EQ(acdbOpenAcDbEntity(notified, id, AcDb::kForNotify), Acad::eOk);
    EXPECT_TRUE(notified->isNotifyEnabled());
    AcDbEntity* again = nullptr;
    EXPECT_EQ(acdbOpenAcDbEntity(again, id, AcDb::kForNotify), Acad::eWasNotifying);
    entity->close();
    notified->close();
}

TEST_F(OpenObject, ErasingNeedsAWriter)
{
    Open(AcDb::kForRead);
    EXPECT_EQ(entity->erase(), Acad::eNotOpenForWrite);
    EXPECT_FALSE(entity->isErased());
    entity->close();
    BoxEntity loose;
    EXPECT_EQ(loose.erase(), Acad::eNotInDatabase);
    EXPECT_EQ(loose.close(), Acad::eNotInDatabase);
}

class Changes : public AcDbDatabaseReactor
{
public:
    void objectAppended(const AcDbDatabase*, const AcDbObject*) override { text += "appended,"; }
    void objectModified(const AcDbDatabase*, const AcDbObject*) override { text += "modified,"; }
    void objectErased(const AcDbDatabase*, const AcDbObject*, bool erased) override
    {
        text += erased ? "erased," : "unerased,";
    }
    void goodbye(const AcDbDatabase*) override { text += "goodbye,"; }

    std::string text;
};

TEST_F(OpenObject, ReactorsHearWhatAWriterDid)
{
    Changes changes;
    database.addReactor(&changes);
    database.addReactor(&changes);
    Open(AcDb::kForWrite);
    entity->setColorIndex(1);
    EXPECT_EQ(changes.text, "");
    entity->close();
    EXPECT_EQ(changes.text, "modified,");
    EraseEntity(id);
    EraseEntity(id, false);
    Open(AcDb::kForWrite);
    entity->close();
    Open(AcDb::kForRead);
    entity->close();
    EXPECT_EQ(changes.text, "modified,erased,unerased,");
    database.removeReactor(&changes);
    EraseEntity(id);
    EXPECT_EQ(changes.text, "modified,erased,unerased,");
}

TEST_F(OpenObject, AddedEntityIsTold)
{
    Changes changes;
    database.addReactor(&changes);
    AddToModelSpace(database, new BoxEntity);
    // The block has changed with it.
    EXPECT_EQ(changes.text, "appended,modified,");
    database.removeReactor(&changes);
}

TEST(DatabaseEnd, IsToldToReactors)
{
    Changes changes;
    {
        AcDbDatabase database;
        database.addReactor(&changes);
    }
    EXPECT_EQ(changes.text, "goodbye,");
}

} // namespace
