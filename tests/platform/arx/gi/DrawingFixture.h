// A drawing made in the process, for tests of what is drawn of it.
#pragma once

#include "dbents.h"
#include "dbobjptr.h"
#include "dbsymtb.h"

#include <gtest/gtest.h>

class DrawingFixture : public ::testing::Test
{
protected:
    DrawingFixture() : m_database(true) {}

    AcDbObjectId AddLayer(const wchar_t* name, int color, bool isOff = false, bool isFrozen = false)
    {
        AcDbObjectPointer<AcDbLayerTable> table(m_database.layerTableId(), AcDb::kForWrite);
        AcDbLayerTableRecord* layer = new AcDbLayerTableRecord;
        layer->setName(name);
        AcCmColor aci;
        aci.setColorIndex(static_cast<Adesk::UInt16>(color));
        layer->setColor(aci);
        layer->setIsOff(isOff);
        layer->setIsFrozen(isFrozen);
        AcDbObjectId id;
        table->add(id, layer);
        layer->close();
        return id;
    }

    AcDbObjectId AddBlock(const wchar_t* name, const AcGePoint3d& origin = AcGePoint3d())
    {
        AcDbObjectPointer<AcDbBlockTable> table(m_database.blockTableId(), AcDb::kForWrite);
        AcDbBlockTableRecord* block = new AcDbBlockTableRecord;
        block->setName(name);
        block->setOrigin(origin);
        AcDbObjectId id;
        table->add(id, block);
        block->close();
        return id;
    }

    // Takes the entity over.
    AcDbObjectId AddTo(AcDbObjectId blockId, AcDbEntity* entity, AcDbObjectId layer = AcDbObjectId(), int color = 256)
    {
        AcDbObjectPointer<AcDbBlockTableRecord> block(blockId, AcDb::kForWrite);
        entity->setColorIndex(static_cast<Adesk::UInt16>(color));
        AcDbObjectId id;
        block->appendAcDbEntity(id, entity);
        if (!layer.isNull())
        {
            entity->setLayer(layer);
        }
        entity->close();
        return id;
    }

    AcDbObjectId Add(AcDbEntity* entity, AcDbObjectId layer = AcDbObjectId(), int color = 256)
    {
        return AddTo(m_database.currentSpaceId(), entity, layer, color);
    }

    AcDbObjectId AddLine(double x1, double y1, double x2, double y2)
    {
        return Add(new AcDbLine(AcGePoint3d(x1, y1, 0), AcGePoint3d(x2, y2, 0)));
    }

    AcDbExtents BoxOf(AcDbObjectId id)
    {
        AcDbExtents box;
        AcDbEntityPointer entity(id);
        EXPECT_EQ(entity->getGeomExtents(box), Acad::eOk);
        return box;
    }

    AcDbDatabase m_database;
};
