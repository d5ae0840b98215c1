#include "TestEntity.h"

ACRX_DXF_DEFINE_MEMBERS(BoxEntity, AcDbEntity, 0, 0, 0, TESTBOX, tests)
