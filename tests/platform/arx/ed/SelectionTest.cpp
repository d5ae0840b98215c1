#include "HostFixture.h"

#include "adslib.h"

#include <vector>

namespace
{

const int kMostSets = 128;

class Selection : public HostTest
{
protected:
    void SetUp() override
    {
        HostTest::SetUp();
        document = arxhost::NewDocument();
    }

    AcDbObjectId Add(double left, double bottom, double right, double top)
    {
        return AddToModelSpace(*document->database(), new BoxEntity(left, bottom, right, top));
    }

    static int Length(const ads_name set)
    {
        Adesk::Int32 length = -1;
        return acedSSLength(set, &length) == RTNORM ? length : -1;
    }

    static std::vector<AcDbObjectId> Members(const ads_name set)
    {
        std::vector<AcDbObjectId> ids;
        ads_name name;
        for (int i = 0; acedSSName(set, i, name) == RTNORM; ++i)
        {
            AcDbObjectId id;
            ids.push_back(id.setFromOldId(name[0]));
        }
        return ids;
    }

    // Members of what acedSSGet() finds; empty when it finds nothing.
    static std::vector<AcDbObjectId> Get(const ACHAR* mode, const void* point1 = nullptr, const void* point2 = nullptr,
                                         const resbuf* filter = nullptr)
    {
        ads_name set;
        if (acedSSGet(mode, point1, point2, filter, set) != RTNORM)
        {
            return std::vector<AcDbObjectId>();
        }
        const std::vector<AcDbObjectId> ids = Members(set);
        acedSSFree(set);
        return ids;
    }

    AcApDocument* document = nullptr;
};

typedef std::vector<AcDbObjectId> Ids;

TEST_F(Selection, EmptySetHasNoMembers)
{
    ads_name set;
    ads_name name;
    ASSERT_EQ(acedSSAdd(nullptr, nullptr, set), RTNORM);
    EXPECT_EQ(Length(set), 0);
    EXPECT_EQ(acedSSName(set, 0, name), RTERROR);
    EXPECT_EQ(acedSSFree(set), RTNORM);
    EXPECT_EQ(acedSSFree(set), RTERROR);
    EXPECT_EQ(Length(set), -1);
}

TEST_F(Selection, CollectsEntitiesOnce)
{
    const EntityName first(Add(0, 0, 1, 1));
    const EntityName second(Add(2, 2, 3, 3));
    ads_name set;
    ASSERT_EQ(acedSSAdd(first.name, nullptr, set), RTNORM);
    EXPECT_EQ(acedSSAdd(second.name, set, set), RTNORM);
    EXPECT_EQ(acedSSAdd(first.name, set, set), RTNORM);
    EXPECT_EQ(Length(set), 2);
    EXPECT_EQ(acedSSMemb(first.name, set), RTNORM);
    EXPECT_EQ(acedSSDel(first.name, set), RTNORM);
    EXPECT_EQ(acedSSDel(first.name, set), RTERROR);
    EXPECT_EQ(acedSSMemb(first.name, set), RTERROR);
    EXPECT_EQ(Length(set), 1);
    acedSSFree(set);
}

TEST_F(Selection, TakesNoErasedOrUnknownEntity)
{
    const AcDbObjectId id = Add(0, 0, 1, 1);
    const EntityName erased(id);
    EraseEntity(id);
    const ads_name unknown = {12345, 0};
    ads_name set;
    EXPECT_EQ(acedSSAdd(erased.name, nullptr, set), RTERROR);
    EXPECT_EQ(acedSSAdd(unknown, nullptr, set), RTERROR);
    ASSERT_EQ(acedSSAdd(nullptr, nullptr, set), RTNORM);
    EXPECT_EQ(acedSSAdd(erased.name, set, set), RTERROR);
    EXPECT_EQ(acedSSAdd(set, set, set), RTERROR);
    acedSSFree(set);
}

TEST_F(Selection, ErasedMemberStaysUntilTheSetIsFreed)
{
    const AcDbObjectId id = Add(0, 0, 1, 1);
    ads_name set;
    acedSSAdd(EntityName(id).name, nullptr, set);
    EraseEntity(id);
    EXPECT_EQ(Length(set), 1);
    EXPECT_EQ(Members(set), Ids{id});
    acedSSFree(set);
}

TEST_F(Selection, SetsAreLimitedAndComeBackWhenFreed)
{
    std::vector<EntityName> sets;
    for (int i = 0; i < kMostSets; ++i)
    {
        ads_name set;
        ASSERT_EQ(acedSSAdd(nullptr, nullptr, set), RTNORM) << i;
        EntityName kept{AcDbObjectId()};
        ads_name_set(set, kept.name);
        sets.push_back(kept);
    }
    ads_name more;
    EXPECT_EQ(acedSSAdd(nullptr, nullptr, more), RTERROR);
    Add(0, 0, 1, 1);
    EXPECT_EQ(acedSSGet(L"X", nullptr, nullptr, nullptr, more), RTERROR);
    EXPECT_EQ(acedSSFree(sets[5].name), RTNORM);
    EXPECT_EQ(acedSSGet(L"X", nullptr, nullptr, nullptr, more), RTNORM);
    EXPECT_EQ(acedSSAdd(nullptr, nullptr, more), RTERROR);
    // A freed name stays unknown, though its place is taken.
    EXPECT_EQ(acedSSFree(sets[5].name), RTERROR);
}

TEST_F(Selection, PickfirstOutlivesItsSet)
{
    const AcDbObjectId id = Add(0, 0, 1, 1);
    ads_name set;
    acedSSAdd(nullptr, nullptr, set);
    acedSSAdd(EntityName(id).name, set, set);
    EXPECT_EQ(acedSSSetFirst(set, nullptr), RTNORM);
    acedSSFree(set);
    EXPECT_EQ(arxhost::GetPickfirst(document), arxhost::ObjectIds{id});
    EXPECT_EQ(Get(L"_I"), Ids{id});
    EXPECT_EQ(acedSSSetFirst(nullptr, nullptr), RTNORM);
    EXPECT_TRUE(arxhost::GetPickfirst(document).empty());
    EXPECT_EQ(acedSSSetFirst(set, nullptr), RTERROR);
}

TEST_F(Selection, PickfirstIsHandedOutAsASet)
{
    resbuf* grips = nullptr;
    resbuf* pickfirst = nullptr;
    EXPECT_EQ(acedSSGetFirst(&grips, &pickfirst), RTERROR);
    EXPECT_EQ(pickfirst, nullptr);
    const AcDbObjectId id = Add(0, 0, 1, 1);
    arxhost::SetPickfirst(document, {id});
    ASSERT_EQ(acedSSGetFirst(&grips, &pickfirst), RTNORM);
    EXPECT_EQ(grips, nullptr);
    EXPECT_EQ(pickfirst->restype, RTPICKS);
    EXPECT_EQ(Members(pickfirst->resval.rlname), Ids{id});
    EXPECT_EQ(acedSSFree(pickfirst->resval.rlname), RTNORM);
    acutRelRb(pickfirst);
}

TEST_F(Selection, AllLeavesOutErasedEntitiesOnly)
{
    const AcDbObjectId shown = Add(0, 0, 1, 1);
    const AcDbObjectId invisible = Add(2, 2, 3, 3);
    EraseEntity(Add(4, 4, 5, 5));
    {
        const AcDbEntityPointer entity(invisible, AcDb::kForWrite);
        entity->setVisibility(AcDb::kInvisible);
    }
    EXPECT_EQ(Get(L"X"), (Ids{shown, invisible}));
    EXPECT_EQ(Get(L"_x"), (Ids{shown, invisible}));
    EXPECT_EQ(Get(L"A"), Ids{shown});
    EXPECT_EQ(Get(L"_L"), Ids{shown});
}

TEST_F(Selection, WindowHoldsAndCrossingTouches)
{
    const AcDbObjectId inside = Add(1, 1, 2, 2);
    const AcDbObjectId across = Add(4, 4, 6, 6);
    Add(8, 8, 9, 9);
    const ads_point corner1 = {5, 5, 0};
    const ads_point corner2 = {0, 0, 0};
    EXPECT_EQ(Get(L"W", corner1, corner2), Ids{inside});
    EXPECT_EQ(Get(L"P"), Ids{inside});
    EXPECT_EQ(Get(L"C", corner1, corner2), (Ids{inside, across}));
    EXPECT_EQ(Get(L"_P"), (Ids{inside, across}));
    EXPECT_TRUE(Get(L"W", corner1, nullptr).empty());
}

TEST_F(Selection, FilterLimitsByRecordLayerAndColor)
{
    const AcDbObjectId plain = Add(0, 0, 1, 1);
    const AcDbObjectId red = Add(2, 2, 3, 3);
    const AcDbObjectId layer = AddLayer(*document->database(), L"Walls-1");
    {
        const AcDbEntityPointer entity(red, AcDb::kForWrite);
        entity->setColorIndex(1);
        entity->setLayer(layer);
    }
    resbuf* byRecord = acutBuildList(RTDXF0, L"LINE,TESTBOX", 0);
    EXPECT_EQ(Get(L"X", nullptr, nullptr, byRecord), (Ids{plain, red}));
    resbuf* byLayer = acutBuildList(8, L"walls-?", 62, 1, 0);
    EXPECT_EQ(Get(L"X", nullptr, nullptr, byLayer), Ids{red});
    resbuf* byNothing = acutBuildList(RTDXF0, L"CIRCLE", 0);
    EXPECT_TRUE(Get(L"X", nullptr, nullptr, byNothing).empty());
    for (resbuf* list : {byRecord, byLayer, byNothing})
    {
        acutRelRb(list);
    }
}

TEST_F(Selection, UnknownModesAreRejected)
{
    ads_name set;
    EXPECT_EQ(acedSSGet(L"Q", nullptr, nullptr, nullptr, set), RTREJ);
    EXPECT_EQ(acedSSGet(L"_:S", nullptr, nullptr, nullptr, set), RTREJ);
    EXPECT_EQ(acedSSGet(nullptr, nullptr, nullptr, nullptr, set), RTCAN);
    EXPECT_EQ(acedSSGet(L"X", nullptr, nullptr, nullptr, set), RTERROR);
    arxhost::CloseDocument(document);
    EXPECT_EQ(acedSSGet(L"X", nullptr, nullptr, nullptr, set), RTERROR);
}

class Picker : public arxhost::IHostUi
{
public:
    bool SelectObjects(arxhost::ObjectIds& ids) override
    {
        ids = answer;
        return true;
    }

    arxhost::ObjectIds answer;
};

TEST_F(Selection, WithoutModeTheUserIsAsked)
{
    Picker picker;
    picker.answer = {Add(0, 0, 1, 1)};
    arxhost::SetHostUi(&picker);
    EXPECT_EQ(Get(nullptr), picker.answer);
    EXPECT_EQ(Get(L""), picker.answer);
    arxhost::SetHostUi(nullptr);
}

TEST_F(Selection, EntitiesAreWalkedByName)
{
    ads_name name;
    EXPECT_EQ(acdbEntNext(nullptr, name), RTERROR);
    EXPECT_EQ(acdbEntLast(name), RTERROR);
    const AcDbObjectId first = Add(0, 0, 1, 1);
    EraseEntity(Add(1, 1, 2, 2));
    const AcDbObjectId third = Add(2, 2, 3, 3);
    ASSERT_EQ(acdbEntNext(nullptr, name), RTNORM);
    EXPECT_EQ(name[0], first.asOldId());
    ASSERT_EQ(acdbEntNext(name, name), RTNORM);
    EXPECT_EQ(name[0], third.asOldId());
    EXPECT_EQ(acdbEntNext(name, name), RTERROR);
    EXPECT_EQ(acdbEntDel(EntityName(third).name), RTNORM);
    EXPECT_TRUE(third.isErased());
    ASSERT_EQ(acdbEntLast(name), RTNORM);
    EXPECT_EQ(name[0], first.asOldId());
    EXPECT_EQ(acdbEntDel(EntityName(third).name), RTNORM);
    EXPECT_FALSE(third.isErased());
}

TEST_F(Selection, EntityIsFoundByHandle)
{
    const AcDbObjectId id = Add(0, 0, 1, 1);
    ACHAR handle[AcDbHandle::kStrSiz];
    id.handle().getIntoAsciiBuffer(handle, AcDbHandle::kStrSiz);
    ads_name name;
    ASSERT_EQ(acdbHandEnt(handle, name), RTNORM);
    EXPECT_EQ(name[0], id.asOldId());
    EXPECT_EQ(acdbHandEnt(L"no handle", name), RTERROR);
}

} // namespace
