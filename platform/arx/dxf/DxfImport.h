// DxfImport: puts a drawing that was read and checked into a database.
#pragma once

#include "DxfDrawing.h"

class AcDbDatabase;

namespace arxdxf
{

class DxfImport
{
public:
    DxfImport(DxfDrawing& drawing, AcDbDatabase& database, DxfResult& result)
        : m_drawing(drawing), m_database(database), m_result(result)
    {
    }

    // Moves everything; the drawing is empty afterwards.
    void Run();

private:
    void AddLayers();
    void AddBlocks();
    // The record of this name, new or already there; a new one is a placeholder when the file does not define it.
    AcDbObjectId BlockRecord(const std::wstring& name, bool isDefined);
    AcDbObjectId LayerRecord(const DxfLayer& layer, bool isDefined);
    void AddEntities(AcDbObjectId block, std::vector<DxfEntity>& entities);
    void NoteMissing(const DxfEntity& entity, AcDbObjectId id);

    DxfDrawing& m_drawing;
    AcDbDatabase& m_database;
    DxfResult& m_result;
    // By the numbers of the drawing's names.
    std::vector<AcDbObjectId> m_layers;
    std::vector<AcDbObjectId> m_blocks;
    std::vector<bool> m_layerDefined;
    std::vector<bool> m_blockDefined;
};

} // namespace arxdxf
