#include "dbents.h"

#include "dbsymtb.h"
#include "dbobjptr.h"
#include "arx/gi/PieceSink.h"

#include <vector>

ACRX_DXF_DEFINE_MEMBERS(AcDbBlockReference, AcDbEntity, 0, 0, 0, INSERT, ARX)
ACRX_DXF_DEFINE_MEMBERS(AcDbMInsertBlock, AcDbBlockReference, 0, 0, 0, INSERT, ARX)

namespace
{

// The indices along one direction of a block array that a sink needs.
std::vector<int> Places(int count, bool onlyEnds)
{
    if (count == 1)
    {
        return {0};
    }
    if (onlyEnds)
    {
        return {0, count - 1};
    }
    std::vector<int> all(count);
    for (int i = 0; i < count; ++i)
    {
        all[i] = i;
    }
    return all;
}

} // namespace

AcDbBlockReference::AcDbBlockReference(const AcGePoint3d& position, AcDbObjectId blockTableRecord)
    : m_block(blockTableRecord), m_position(position), m_normal(AcGeVector3d::kZAxis), m_rotation(0)
{
}

Acad::ErrorStatus AcDbBlockReference::setBlockTableRecord(AcDbObjectId block)
{
    assertWriteEnabled();
    m_block = block;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockReference::setPosition(const AcGePoint3d& position)
{
    assertWriteEnabled();
    m_position = position;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockReference::setScaleFactors(const AcGeScale3d& scale)
{
    if (scale.sx == 0 || scale.sy == 0 || scale.sz == 0)
    {
        return Acad::eInvalidInput;
    }
    assertWriteEnabled();
    m_scale = scale;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockReference::setRotation(double angle)
{
    assertWriteEnabled();
    m_rotation = angle;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockReference::setNormal(const AcGeVector3d& normal)
{
    if (normal.isZeroLength())
    {
        return Acad::eInvalidInput;
    }
    assertWriteEnabled();
    m_normal = normal.normal();
    return Acad::eOk;
}

AcGeMatrix3d AcDbBlockReference::blockTransform() const
{
    AcGeMatrix3d scaling;
    scaling(0, 0) = m_scale.sx;
    scaling(1, 1) = m_scale.sy;
    scaling(2, 2) = m_scale.sz;
    AcGePoint3d origin;
    AcDbObjectPointer<AcDbBlockTableRecord> block(m_block);
    if (block.openStatus() == Acad::eOk)
    {
        origin = block->origin();
    }
    return AcGeMatrix3d::translation(m_position.asVector()) * AcGeMatrix3d::planeToWorld(m_normal) *
           AcGeMatrix3d::rotation(m_rotation, AcGeVector3d::kZAxis) * scaling *
           AcGeMatrix3d::translation(-origin.asVector());
}

void AcDbBlockReference::emitPieces(arxgi::PieceSink& sink) const
{
    sink.AddBlock(*this, blockTransform());
}

AcDbMInsertBlock::AcDbMInsertBlock(const AcGePoint3d& position, AcDbObjectId blockTableRecord, Adesk::UInt16 columns,
                                   Adesk::UInt16 rows, double columnSpacing, double rowSpacing)
    : AcDbBlockReference(position, blockTableRecord), m_columns(columns == 0 ? 1 : columns),
      m_rows(rows == 0 ? 1 : rows), m_columnSpacing(columnSpacing), m_rowSpacing(rowSpacing)
{
}

Acad::ErrorStatus AcDbMInsertBlock::setColumns(Adesk::UInt16 columns)
{
    if (columns == 0)
    {
        return Acad::eInvalidInput;
    }
    assertWriteEnabled();
    m_columns = columns;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbMInsertBlock::setRows(Adesk::UInt16 rows)
{
    if (rows == 0)
    {
        return Acad::eInvalidInput;
    }
    assertWriteEnabled();
    m_rows = rows;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbMInsertBlock::setColumnSpacing(double spacing)
{
    assertWriteEnabled();
    m_columnSpacing = spacing;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbMInsertBlock::setRowSpacing(double spacing)
{
    assertWriteEnabled();
    m_rowSpacing = spacing;
    return Acad::eOk;
}

void AcDbMInsertBlock::emitPieces(arxgi::PieceSink& sink) const
{
    const AcGeMatrix3d first = blockTransform();
    const AcGeMatrix3d axes =
        AcGeMatrix3d::planeToWorld(normal()) * AcGeMatrix3d::rotation(rotation(), AcGeVector3d::kZAxis);
    const bool onlyEnds = sink.WantsArrayCorners();
    for (int row : Places(m_rows, onlyEnds))
    {
        for (int column : Places(m_columns, onlyEnds))
        {
            const AcGeVector3d offset = axes * AcGeVector3d(column * m_columnSpacing, row * m_rowSpacing, 0);
            sink.AddBlock(*this, AcGeMatrix3d::translation(offset) * first);
            if (sink.IsFull())
            {
                return;
            }
        }
    }
}
