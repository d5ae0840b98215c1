#include "TestEntity.h"

#include "arx/db/AdsNames.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{

TEST(ObjectId, IsNullAtFirst)
{
    const AcDbObjectId id;
    EXPECT_TRUE(id.isNull());
    EXPECT_TRUE(id == AcDbObjectId::kNull);
    EXPECT_FALSE(id.isValid());
    EXPECT_FALSE(id.isErased());
    EXPECT_EQ(id.asOldId(), 0);
    EXPECT_EQ(id.database(), nullptr);
    EXPECT_EQ(id.objectClass(), nullptr);
    EXPECT_TRUE(id.handle().isNull());
}

TEST(ObjectId, KnowsItsObject)
{
    AcDbDatabase database;
    const AcDbObjectId id = AddToModelSpace(database, new BoxEntity(0, 0, 1, 1));
    ASSERT_TRUE(id.isValid());
    EXPECT_EQ(id.database(), &database);
    EXPECT_EQ(id.objectClass(), BoxEntity::desc());
    EXPECT_FALSE(id.handle().isNull());
    AcDbObjectId same;
    EXPECT_TRUE(same.setFromOldId(id.asOldId()) == id);
}

TEST(ObjectId, MadeUpNumbersAreUnknown)
{
    AcDbDatabase database;
    for (const Adesk::IntDbId number : {-16, 1, 16, 0x10001, 0x7FFFFFF0})
    {
        AcDbObjectId id;
        id.setFromOldId(number);
        EXPECT_FALSE(id.isValid()) << number;
        EXPECT_EQ(id.database(), nullptr) << number;
    }
}

TEST(ObjectId, TellsErasedObjects)
{
    AcDbDatabase database;
    const AcDbObjectId id = AddToModelSpace(database, new BoxEntity);
    ASSERT_EQ(EraseEntity(id), Acad::eOk);
    EXPECT_TRUE(id.isErased());
    EXPECT_TRUE(id.isValid());
    EXPECT_EQ(EraseEntity(id), Acad::eWasErased);
    ASSERT_EQ(EraseEntity(id, false), Acad::eOk);
    EXPECT_FALSE(id.isErased());
}

TEST(ObjectId, MemberOfAnErasedBlockIsEffectivelyErased)
{
    AcDbDatabase database;
    const AcDbObjectId id = AddToModelSpace(database, new BoxEntity);
    AcDbObjectPointer<AcDbBlockTableRecord> space(database.currentSpaceId(), AcDb::kForWrite);
    space->erase();
    EXPECT_TRUE(id.isEffectivelyErased());
    EXPECT_FALSE(id.isErased());
}

TEST(ObjectId, OfAClosedDrawingStaysUnknown)
{
    std::unique_ptr<AcDbDatabase> database(new AcDbDatabase);
    const AcDbObjectId id = AddToModelSpace(*database, new BoxEntity);
    database.reset();
    EXPECT_FALSE(id.isValid());
    EXPECT_FALSE(id.isErased());
    EXPECT_FALSE(id.isNull());
    AcDbDatabase next;
    EXPECT_NE(AddToModelSpace(next, new BoxEntity), id);
    EXPECT_FALSE(id.isValid());
}

TEST(AdsName, LeadsToTheObjectAndBack)
{
    AcDbDatabase database;
    const AcDbObjectId id = AddToModelSpace(database, new BoxEntity);
    ads_name name;
    ASSERT_EQ(acdbGetAdsName(name, id), Acad::eOk);
    EXPECT_FALSE(ads_name_nil(name));
    AcDbObjectId found;
    ASSERT_EQ(acdbGetObjectId(found, name), Acad::eOk);
    EXPECT_TRUE(found == id);
}

TEST(AdsName, IsNotWrittenForWhatCannotBeNamed)
{
    AcDbDatabase database;
    const AcDbObjectId id = AddToModelSpace(database, new BoxEntity);
    EraseEntity(id);
    ads_name name = {1, 2};
    EXPECT_EQ(acdbGetAdsName(name, AcDbObjectId::kNull), Acad::eNullObjectId);
    EXPECT_EQ(acdbGetAdsName(name, id), Acad::eWasErased);
    AcDbObjectId unknown;
    EXPECT_EQ(acdbGetAdsName(name, unknown.setFromOldId(5)), Acad::eUnknownObjectId);
    EXPECT_EQ(name[0], 1);
    EXPECT_EQ(name[1], 2);
}

TEST(AdsName, OfNothingGivesNoObject)
{
    AcDbDatabase database;
    AcDbObjectId id = AddToModelSpace(database, new BoxEntity);
    const AcDbObjectId before = id;
    ads_name name;
    acdbGetAdsName(name, id);
    EraseEntity(id);
    EXPECT_EQ(acdbGetObjectId(id, name), Acad::eWasErased);
    ads_name_clear(name);
    EXPECT_EQ(acdbGetObjectId(id, name), Acad::eInvalidAdsName);
    EXPECT_EQ(acdbGetObjectId(id, nullptr), Acad::eInvalidAdsName);
    EXPECT_TRUE(id == before);
}

TEST(Handle, ReadsAndWritesHexadecimalDigits)
{
    ACHAR text[AcDbHandle::kStrSiz];
    EXPECT_EQ(AcDbHandle(L"1F").value(), 31u);
    ASSERT_TRUE(AcDbHandle(L"00ff").getIntoAsciiBuffer(text, AcDbHandle::kStrSiz));
    EXPECT_STREQ(text, L"FF");
    EXPECT_TRUE(AcDbHandle(L"FFFFFFFFFFFFFFFF").getIntoAsciiBuffer(text, AcDbHandle::kStrSiz));
    EXPECT_STREQ(text, L"FFFFFFFFFFFFFFFF");
    EXPECT_FALSE(AcDbHandle(L"FF").getIntoAsciiBuffer(text, 2));
    for (const ACHAR* bad : {L"", L"xyz", L"1 2", L"11112222333344445"})
    {
        EXPECT_TRUE(AcDbHandle(bad).isNull()) << bad;
    }
}

} // namespace
