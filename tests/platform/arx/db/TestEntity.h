// An entity for tests: a box of the plane.
#pragma once

#include "dbobjptr.h"
#include "dbsymtb.h"

class BoxEntity : public AcDbEntity
{
public:
    ACRX_DECLARE_MEMBERS(BoxEntity);

    BoxEntity() {}
    BoxEntity(double left, double bottom, double right, double top)
        : m_box(AcGePoint3d(left, bottom, 0), AcGePoint3d(right, top, 0))
    {
    }

    Acad::ErrorStatus getGeomExtents(AcDbExtents& extents) const override
    {
        extents = m_box;
        return Acad::eOk;
    }

    void SetBox(const AcDbExtents& box)
    {
        assertWriteEnabled();
        m_box = box;
    }

private:
    AcDbExtents m_box;
};

// Adds the entity to model space and closes it.
inline AcDbObjectId AddToModelSpace(AcDbDatabase& database, AcDbEntity* entity)
{
    AcDbObjectPointer<AcDbBlockTableRecord> space(database.currentSpaceId(), AcDb::kForWrite);
    AcDbObjectId id;
    if (space.openStatus() != Acad::eOk || space->appendAcDbEntity(id, entity) != Acad::eOk)
    {
        delete entity;
        return AcDbObjectId::kNull;
    }
    entity->close();
    return id;
}

inline AcDbObjectId AddLayer(AcDbDatabase& database, const ACHAR* name)
{
    AcDbObjectPointer<AcDbLayerTable> table(database.layerTableId(), AcDb::kForWrite);
    AcDbLayerTableRecord* layer = new AcDbLayerTableRecord;
    layer->setName(name);
    AcDbObjectId id;
    if (table->add(id, layer) != Acad::eOk)
    {
        delete layer;
        return AcDbObjectId::kNull;
    }
    layer->close();
    return id;
}

inline Acad::ErrorStatus EraseEntity(AcDbObjectId id, bool erasing = true)
{
    const AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForWrite, true);
    return entity.openStatus() == Acad::eOk ? entity->erase(erasing) : entity.openStatus();
}
