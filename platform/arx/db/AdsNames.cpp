#include "AdsNames.h"

#include "ObjectStore.h"

Acad::ErrorStatus acdbGetAdsName(ads_name& objName, AcDbObjectId objId)
{
    if (objId.isNull() || !objId.isValid())
    {
        return objId.isNull() ? Acad::eNullObjectId : Acad::eUnknownObjectId;
    }
    if (objId.isErased())
    {
        return Acad::eWasErased;
    }
    objName[0] = objId.asOldId();
    objName[1] = 0;
    return Acad::eOk;
}

Acad::ErrorStatus acdbGetObjectId(AcDbObjectId& objId, const ads_name objName)
{
    AcDbObjectId id;
    // Selection sets have a mark in the second element.
    if (objName == nullptr || objName[1] != 0 || !id.setFromOldId(objName[0]).isValid())
    {
        return Acad::eInvalidAdsName;
    }
    if (id.isErased())
    {
        return Acad::eWasErased;
    }
    objId = id;
    return Acad::eOk;
}
