// DxfParser: reads the sections of a file into the context's drawing.
#pragma once

#include "DxfContext.h"

namespace arxdxf
{

class DxfParser
{
public:
    DxfParser(std::string_view data, DxfContext& context) : m_tokenizer(data), m_context(context) {}

    // The whole file. Throws DxfError.
    void Parse();

private:
    void CheckStart();
    // Passes over what is no record; records outside of sections are an error.
    void SkipBetweenSections();
    void ParseSection();
    void ParseHeader();
    void ParseHeaderVariable(std::string_view name);
    void ParseTables();
    void AddLayer(const DxfRecord& record);
    void ParseBlocks();
    void ParseBlock();
    void AddBlock(DxfBlock block, int flags);
    void ParseEntities();
    void SkipSection();

    // Reads one entity, with the records that belong to it, into the list; or counts it as skipped.
    void ParseEntity(std::vector<DxfEntity>& list);
    bool ParseOldPolyline(const DxfRecord& polyline, DxfEntity& entity);
    // Paper space for entities that say so, `list` for the others.
    std::vector<DxfEntity>& ListFor(const DxfEntity& entity, std::vector<DxfEntity>& list);

    // Reads the record whose (0, type) is the current group; the next such group is the current one afterwards.
    void ReadRecord(DxfRecord& record);
    // Moves on to the next group; its absence is an error, because files end with EOF.
    void Advance();
    bool At(std::string_view type) const { return m_group.Is(0, type); }
    // DxfError when the current section ends without ENDSEC here.
    void CheckInsideSection() const;

    DxfTokenizer m_tokenizer;
    DxfContext& m_context;
    DxfGroup m_group;
    DxfRecord m_record;
    std::wstring m_section;
    DxfNames m_definedBlocks;
};

} // namespace arxdxf
