// From the identifiers of the database to the names of the C interface and back.
#pragma once

#include "adsdef.h"
#include "dbid.h"

// eNullObjectId for null, eWasErased for erased, eUnknownObjectId for unknown identifiers; then nothing is written.
ARX_API Acad::ErrorStatus acdbGetAdsName(ads_name& objName, AcDbObjectId objId);

// eInvalidAdsName for names that are no object's, eWasErased for erased objects; then nothing is written.
ARX_API Acad::ErrorStatus acdbGetObjectId(AcDbObjectId& objId, const ads_name objName);
