// Objects in the current drawing for tests.
#pragma once

#include <acdb.h>
#include <dbapserv.h>
#include <dbents.h>
#include <dbmain.h>
#include <dbsymtb.h>

// A line of model space of the current document.
inline AcDbObjectId AddLine(const AcGePoint3d& start, const AcGePoint3d& end)
{
    AcDbBlockTable* blocks = NULL;
    AcDbBlockTableRecord* space = NULL;
    acdbHostApplicationServices()->workingDatabase()->getSymbolTable(blocks, AcDb::kForRead);
    blocks->getAt(ACDB_MODEL_SPACE, space, AcDb::kForWrite);
    blocks->close();
    AcDbLine* const line = new AcDbLine(start, end);
    AcDbObjectId id;
    space->appendAcDbEntity(id, line);
    line->close();
    space->close();
    return id;
}

inline AcDbObjectId AddLine()
{
    return AddLine(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 1, 0));
}

inline AcArray<AcDbObjectId> Ids(const AcDbObjectId& first)
{
    AcArray<AcDbObjectId> ids;
    ids.append(first);
    return ids;
}
