// Drawing objects: identifiers, boxes, AcDbObject, AcDbEntity, AcDbDatabase, and opening by identifier.
#pragma once

#include "acarray.h"
#include "dbcolor.h"
#include "dbid.h"
#include "dbidar.h"
#include "gemat3d.h"
#include "rxobject.h"

#include "arx/db/AcDb.h"
#include "arx/db/Extents.h"
#include "arx/db/Object.h"
#include "arx/db/Entity.h"
#include "arx/db/DatabaseReactor.h"
#include "arx/db/Database.h"
#include "arx/db/OpenObject.h"
#include "arx/db/AdsNames.h"
