// BlockWalker: a sink that follows block references to the entities behind them and keeps the way there: the transform
// and which entities are around. A block that contains itself is entered once.
#pragma once

#include "PieceSink.h"

#include "dbid.h"

#include <vector>

class AcDbEntity;

namespace arxgi
{

class BlockWalker : public PieceSink
{
public:
    // Lets every entity of the block that can be opened for reading give its pieces.
    void WalkBlock(AcDbObjectId block);

    virtual void AddBlock(const AcDbBlockReference& reference, const AcGeMatrix3d& transform);

protected:
    // From the current block to the outermost one.
    const AcGeMatrix3d& Transform() const { return m_transform; }
    // 0 in the outermost block.
    size_t Depth() const { return m_inside.empty() ? 0 : m_inside.size() - 1; }

    // Before and after an entity gives its pieces; false leaves it out, and LeaveEntity() is not called then.
    virtual bool EnterEntity(const AcDbEntity& entity) = 0;
    virtual void LeaveEntity() {}

private:
    std::vector<AcDbObjectId> m_inside;
    AcGeMatrix3d m_transform;
};

} // namespace arxgi
