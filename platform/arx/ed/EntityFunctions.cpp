// Entities of the C interface by name.
#include "DocumentManager.h"
#include "acedads.h"
#include "arx/db/AdsNames.h"
#include "dbobjptr.h"
#include "dbsymtb.h"

#include <algorithm>

namespace
{

typedef AcDbObjectPointer<AcDbBlockTableRecord> BlockPointer;

AcDbObjectId CurrentSpace()
{
    const arxed::Document* document = arxed::DocumentManager::Instance().Current();
    return document == nullptr ? AcDbObjectId() : document->database()->currentSpaceId();
}

int NameOf(AcDbObjectId id, ads_name result)
{
    if (result == nullptr)
    {
        return RTERROR;
    }
    ads_name name;
    if (acdbGetAdsName(name, id) != Acad::eOk)
    {
        return RTERROR;
    }
    ads_name_set(name, result);
    return RTNORM;
}

// The first from `position` on that is not erased.
AcDbObjectId NextLiving(const AcDbObjectId* position, const AcDbObjectId* end)
{
    const AcDbObjectId* found = std::find_if(position, end, [](const AcDbObjectId& id) { return !id.isErased(); });
    return found == end ? AcDbObjectId() : *found;
}

} // namespace

int acdbEntLast(ads_name result)
{
    const BlockPointer space(CurrentSpace());
    if (space.openStatus() != Acad::eOk)
    {
        return RTERROR;
    }
    const AcDbObjectIdArray& ids = space->entityIds();
    for (int i = ids.length() - 1; i >= 0; --i)
    {
        if (!ids[i].isErased())
        {
            return NameOf(ids[i], result);
        }
    }
    return RTERROR;
}

int acdbEntNext(const ads_name ename, ads_name result)
{
    AcDbObjectId last;
    AcDbObjectId owner = CurrentSpace();
    if (ename != nullptr)
    {
        const AcDbEntityPointer entity(last.setFromOldId(ename[0]), AcDb::kForRead, true);
        if (ename[1] != 0 || entity.openStatus() != Acad::eOk)
        {
            return RTERROR;
        }
        owner = entity->blockId();
    }
    const BlockPointer block(owner);
    if (block.openStatus() != Acad::eOk)
    {
        return RTERROR;
    }
    const AcDbObjectIdArray& ids = block->entityIds();
    const AcDbObjectId* const end = ids.asArrayPtr() + ids.length();
    // Identifiers are counted up, so a block's list is sorted.
    return NameOf(NextLiving(std::upper_bound(ids.asArrayPtr(), end, last), end), result);
}

int acdbEntDel(const ads_name ename)
{
    AcDbObjectId id;
    if (ename == nullptr || ename[1] != 0)
    {
        return RTERROR;
    }
    const AcDbEntityPointer entity(id.setFromOldId(ename[0]), AcDb::kForWrite, true);
    const bool done = entity.openStatus() == Acad::eOk && entity->erase(!entity->isErased()) == Acad::eOk;
    return done ? RTNORM : RTERROR;
}

int acdbHandEnt(const ACHAR* handle, ads_name result)
{
    const arxed::Document* document = arxed::DocumentManager::Instance().Current();
    AcDbObjectId id;
    const bool found =
        document != nullptr && document->database()->getAcDbObjectId(id, false, AcDbHandle(handle)) == Acad::eOk;
    return found ? NameOf(id, result) : RTERROR;
}
