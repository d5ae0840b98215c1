// DxfDrawing: a whole drawing file as it was read, before anything of it enters a database.
#pragma once

#include "DxfResult.h"

#include "dbents.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace arxdxf
{

struct DxfLayer
{
    std::wstring name;
    AcCmColor color;
    bool isOff = false;
    bool isFrozen = false;
    bool isLocked = false;
};

struct DxfEntity
{
    std::unique_ptr<AcDbEntity> entity;
    size_t layer = 0; // into DxfDrawing::layerNames
    size_t block = 0; // of a block reference, into DxfDrawing::blockNames
    bool isReference = false;
    bool isPaperSpace = false;
    Adesk::UInt64 handle = 0; // 0 for none
    int line = 0;
    // How many times a reference shows its block.
    double copies = 1;
};

struct DxfBlock
{
    std::wstring name;
    AcGePoint3d origin;
    std::vector<DxfEntity> entities;
    int line = 0;
};

// Gives each name one number, whatever its case.
class DxfNames
{
public:
    size_t NumberOf(const std::wstring& name);
    // npos for a name that was never given a number.
    size_t Find(const std::wstring& name) const;
    // As it was spelt first.
    const std::wstring& operator[](size_t number) const { return m_names[number]; }
    size_t size() const { return m_names.size(); }

    static const size_t npos = static_cast<size_t>(-1);

private:
    std::map<std::wstring, size_t> m_numbers; // by upper case
    std::vector<std::wstring> m_names;
};

struct DxfDrawing
{
    std::vector<DxfLayer> layers;
    // Small files have no table of layers: then every name that entities use is a layer.
    bool hasLayerTable = false;
    DxfNames layerNames;
    DxfNames blockNames;
    std::vector<DxfBlock> blocks; // model and paper space are not among them
    std::vector<DxfEntity> modelSpace;
    std::vector<DxfEntity> paperSpace;
    AcGePoint2d limmin;
    AcGePoint2d limmax;
};

} // namespace arxdxf
