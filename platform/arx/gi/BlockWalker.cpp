#include "BlockWalker.h"

#include "dbents.h"
#include "dbobjptr.h"
#include "dbsymtb.h"

#include <algorithm>

namespace arxgi
{

void BlockWalker::WalkBlock(AcDbObjectId id)
{
    AcDbObjectPointer<AcDbBlockTableRecord> block(id);
    if (block.openStatus() != Acad::eOk || std::find(m_inside.begin(), m_inside.end(), id) != m_inside.end())
    {
        return;
    }
    m_inside.push_back(id);
    const AcDbObjectIdArray& ids = block->entityIds();
    for (int i = 0; i < ids.length() && !IsFull(); ++i)
    {
        AcDbEntityPointer entity(ids[i]);
        if (entity.openStatus() == Acad::eOk && EnterEntity(*entity.object()))
        {
            entity->emitPieces(*this);
            LeaveEntity();
        }
    }
    m_inside.pop_back();
}

void BlockWalker::AddBlock(const AcDbBlockReference& reference, const AcGeMatrix3d& transform)
{
    const AcGeMatrix3d outer = m_transform;
    m_transform = outer * transform;
    WalkBlock(reference.blockTableRecord());
    m_transform = outer;
}

} // namespace arxgi
