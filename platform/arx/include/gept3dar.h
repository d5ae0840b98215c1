// Arrays of points.
#pragma once

#include "acarray.h"
#include "gepnt2d.h"
#include "gepnt3d.h"

typedef AcArray<AcGePoint2d> AcGePoint2dArray;
typedef AcArray<AcGePoint3d> AcGePoint3dArray;
