#include "ZnAcadUiBase.h"

#include <dbmain.h>

namespace
{
typedef Acad::ErrorStatus (AcDbEntity::*HighlightFunction)() const;

// Identifiers of erased objects and closed drawings don't open, which is all that skipping them takes.
bool CallEntity(const AcDbObjectId& id, HighlightFunction function)
{
    AcDbEntity* entity = nullptr;
    if (acdbOpenObject(entity, id, AcDb::kForRead) != Acad::eOk)
        return false;
    const Acad::ErrorStatus result = (entity->*function)();
    entity->close();
    return result == Acad::eOk;
}
} // namespace

namespace ZnAcadUiBase
{
CHighlighter::CHighlighter() = default;

CHighlighter::~CHighlighter()
{
    for (const AcDbObjectId& id : m_ids)
        CallEntity(id, &AcDbEntity::unhighlight);
}

void CHighlighter::Add(const AcDbObjectId& id)
{
    if (m_ids.count(id) == 0 && CallEntity(id, &AcDbEntity::highlight))
        m_ids.insert(id);
}
} // namespace ZnAcadUiBase
