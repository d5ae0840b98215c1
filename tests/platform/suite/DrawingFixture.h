// A document with entities to point at.
#pragma once

#include <acdocman.h>
#include <dbents.h>
#include <dbmain.h>
#include <dbsymtb.h>

#include "arx/ed/HostServices.h"

#include <gtest/gtest.h>

class DrawingFixture : public testing::Test
{
protected:
    void SetUp() override
    {
        arxhost::Reset();
        m_document = arxhost::NewDocument();
        ASSERT_NE(nullptr, m_document);
    }
    void TearDown() override { arxhost::Reset(); }

    // A line of the document's model space.
    AcDbObjectId AddLine(const AcGePoint3d& start, const AcGePoint3d& end)
    {
        return Add(m_document, new AcDbLine(start, end));
    }

    static AcDbObjectId Add(AcApDocument* document, AcDbEntity* entity)
    {
        AcDbBlockTable* blocks = nullptr;
        AcDbBlockTableRecord* space = nullptr;
        AcDbObjectId id;
        EXPECT_EQ(Acad::eOk, document->database()->getSymbolTable(blocks, AcDb::kForRead));
        EXPECT_EQ(Acad::eOk, blocks->getAt(ACDB_MODEL_SPACE, space, AcDb::kForWrite));
        EXPECT_EQ(Acad::eOk, space->appendAcDbEntity(id, entity));
        entity->close();
        space->close();
        blocks->close();
        return id;
    }

    AcApDocument* m_document = nullptr;
};
