#include "DxfImport.h"

#include "dbobjptr.h"
#include "dbsymtb.h"

namespace arxdxf
{

void DxfImport::Run()
{
    m_database.setLimmin(m_drawing.limmin);
    m_database.setLimmax(m_drawing.limmax);
    AddLayers();
    AddBlocks();
}

void DxfImport::AddLayers()
{
    // Every drawing has this layer, whether its table says so or not.
    m_drawing.layerNames.NumberOf(L"0");
    m_layers.resize(m_drawing.layerNames.size());
    m_layerDefined.assign(m_drawing.layerNames.size(), !m_drawing.hasLayerTable);
    m_layerDefined[m_drawing.layerNames.Find(L"0")] = true;
    for (const DxfLayer& layer : m_drawing.layers)
    {
        const size_t number = m_drawing.layerNames.Find(layer.name);
        m_layerDefined[number] = true;
        m_layers[number] = LayerRecord(layer, true);
    }
    for (size_t i = 0; i < m_layers.size(); ++i)
    {
        if (m_layers[i].isNull())
        {
            DxfLayer plain;
            plain.name = m_drawing.layerNames[i];
            plain.color.setColorIndex(AcCmEntityColor::kACIforeground);
            m_layers[i] = LayerRecord(plain, m_layerDefined[i]);
        }
    }
}

AcDbObjectId DxfImport::LayerRecord(const DxfLayer& layer, bool isDefined)
{
    AcDbObjectPointer<AcDbLayerTable> table(m_database.layerTableId(), AcDb::kForWrite);
    AcDbObjectId id;
    AcDbLayerTableRecord* record = NULL;
    if (table->getAt(layer.name.c_str(), record, AcDb::kForWrite) != Acad::eOk)
    {
        record = new AcDbLayerTableRecord;
        record->setName(layer.name.c_str());
        table->add(record);
    }
    id = record->objectId();
    record->setColor(layer.color);
    record->setIsOff(layer.isOff);
    record->setIsFrozen(layer.isFrozen);
    record->setIsLocked(layer.isLocked);
    if (!isDefined)
    {
        record->markUnresolved();
    }
    record->close();
    return id;
}

void DxfImport::AddBlocks()
{
    for (const DxfBlock& block : m_drawing.blocks)
    {
        m_drawing.blockNames.NumberOf(block.name);
    }
    m_blocks.resize(m_drawing.blockNames.size());
    m_blockDefined.resize(m_drawing.blockNames.size());
    for (const DxfBlock& block : m_drawing.blocks)
    {
        const size_t number = m_drawing.blockNames.Find(block.name);
        m_blockDefined[number] = true;
        m_blocks[number] = BlockRecord(block.name, true);
        AcDbObjectPointer<AcDbBlockTableRecord>(m_blocks[number], AcDb::kForWrite)->setOrigin(block.origin);
    }
    for (size_t i = 0; i < m_blocks.size(); ++i)
    {
        if (m_blocks[i].isNull())
        {
            m_blocks[i] = BlockRecord(m_drawing.blockNames[i], false);
        }
    }
    // All records first: a block may name one that comes after it.
    for (DxfBlock& block : m_drawing.blocks)
    {
        AddEntities(m_blocks[m_drawing.blockNames.Find(block.name)], block.entities);
    }
    AddEntities(BlockRecord(ACDB_MODEL_SPACE, true), m_drawing.modelSpace);
    AddEntities(BlockRecord(ACDB_PAPER_SPACE, true), m_drawing.paperSpace);
}

AcDbObjectId DxfImport::BlockRecord(const std::wstring& name, bool isDefined)
{
    AcDbObjectPointer<AcDbBlockTable> table(m_database.blockTableId(), AcDb::kForWrite);
    AcDbObjectId id;
    if (table->getAt(name.c_str(), id) == Acad::eOk)
    {
        return id;
    }
    AcDbBlockTableRecord* record = new AcDbBlockTableRecord;
    record->setName(name.c_str());
    table->add(id, record);
    if (!isDefined)
    {
        record->markUnresolved();
    }
    record->close();
    return id;
}

void DxfImport::AddEntities(AcDbObjectId blockId, std::vector<DxfEntity>& entities)
{
    AcDbObjectPointer<AcDbBlockTableRecord> block(blockId, AcDb::kForWrite);
    for (DxfEntity& entity : entities)
    {
        AcDbEntity* added = entity.entity.release();
        AcDbObjectId id;
        block->appendAcDbEntity(id, added);
        added->setLayer(m_layers[entity.layer]);
        if (entity.isReference)
        {
            AcDbBlockReference::cast(added)->setBlockTableRecord(m_blocks[entity.block]);
        }
        if (entity.handle != 0)
        {
            m_database.assignHandle(id, AcDbHandle(entity.handle));
        }
        added->close();
        NoteMissing(entity, id);
    }
    entities.clear();
}

void DxfImport::NoteMissing(const DxfEntity& entity, AcDbObjectId id)
{
    MissingReference missing;
    missing.entity = id;
    missing.line = entity.line;
    if (entity.isReference && !m_blockDefined[entity.block])
    {
        missing.kind = MissingReference::kBlock;
        missing.name = m_drawing.blockNames[entity.block];
        m_result.missing.push_back(missing);
    }
    if (!m_layerDefined[entity.layer])
    {
        missing.kind = MissingReference::kLayer;
        missing.name = m_drawing.layerNames[entity.layer];
        m_result.missing.push_back(missing);
    }
}

} // namespace arxdxf
