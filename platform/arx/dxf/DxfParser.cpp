#include "DxfParser.h"

#include "DxfEntities.h"
#include "DxfError.h"

#include <cstdlib>

namespace arxdxf
{

namespace
{

constexpr int kEmbeddedObjectCode = 101;
constexpr int kExternalFlag = 4;
constexpr int kMaxColorIndex = 255;
constexpr int kForeground = 7;

// From this version on texts are UTF-8. Versions before AC1002 are named like "AC2.10".
constexpr std::string_view kVersionPrefix = "AC1";
constexpr std::string_view kFirstUtf8Version = "AC1021";

std::wstring Wide(std::string_view ascii)
{
    return std::wstring(ascii.begin(), ascii.end());
}

bool IsName(const std::wstring& name, const wchar_t* other)
{
    return _wcsicmp(name.c_str(), other) == 0;
}

bool IsModelSpace(const std::wstring& name)
{
    return IsName(name, L"*Model_Space") || IsName(name, L"$MODEL_SPACE");
}

bool IsPaperSpace(const std::wstring& name)
{
    return IsName(name, L"*Paper_Space") || IsName(name, L"$PAPER_SPACE");
}

} // namespace

void DxfParser::Parse()
{
    CheckStart();
    while (!At("EOF"))
    {
        if (!At("SECTION"))
        {
            SkipBetweenSections();
            continue;
        }
        ParseSection();
    }
    if (m_tokenizer.HasMore())
    {
        m_context.Warn(m_tokenizer.Line() + 1, L"EOF 之后还有内容，已忽略");
    }
}

void DxfParser::CheckStart()
{
    const DxfError notDxf = {1, L"不是 DXF 文件"};
    try
    {
        if (!m_tokenizer.Next(m_group))
        {
            throw notDxf;
        }
    }
    catch (const DxfError&)
    {
        // Whatever is wrong with the first lines: the file is another kind of file.
        throw notDxf;
    }
    if (!At("SECTION") && !At("EOF"))
    {
        throw notDxf;
    }
}

void DxfParser::SkipBetweenSections()
{
    // Old versions of one library end the header too early and go on with its variables.
    m_context.Warn(m_group.line, L"节之外的内容已忽略");
    while (!At("SECTION") && !At("EOF"))
    {
        if (m_group.code == 0 && !At("ENDSEC"))
        {
            throw DxfError{m_group.line, L"此处应为 SECTION 或 EOF，却是" + Quoted(m_group.Trimmed())};
        }
        Advance();
    }
}

void DxfParser::ParseSection()
{
    Advance();
    if (m_group.code != 2)
    {
        throw DxfError{m_group.line, L"SECTION 没有名称"};
    }
    m_section = Wide(m_group.Trimmed());
    Advance();
    if (m_section == L"HEADER")
    {
        ParseHeader();
    }
    else if (m_section == L"TABLES")
    {
        ParseTables();
    }
    else if (m_section == L"BLOCKS")
    {
        ParseBlocks();
    }
    else if (m_section == L"ENTITIES")
    {
        ParseEntities();
    }
    else
    {
        SkipSection();
    }
    Advance();
}

void DxfParser::ParseHeader()
{
    std::string_view variable;
    while (!At("ENDSEC"))
    {
        CheckInsideSection();
        if (m_group.code == 9)
        {
            variable = m_group.Trimmed();
        }
        else
        {
            ParseHeaderVariable(variable);
        }
        Advance();
    }
}

void DxfParser::ParseHeaderVariable(std::string_view name)
{
    DxfDrawing& drawing = m_context.drawing;
    if (name == "$ACADVER" && m_group.code == 1)
    {
        const std::string_view version = m_group.Trimmed();
        m_context.text.SetUtf8(version.substr(0, kVersionPrefix.size()) == kVersionPrefix &&
                               version >= kFirstUtf8Version);
    }
    else if (name == "$DWGCODEPAGE" && m_group.code == 3)
    {
        const unsigned int codePage = CodePageOf(m_group.Trimmed());
        if (codePage == 0)
        {
            m_context.Warn(m_group.ValueLine(), L"未知的代码页" + Quoted(m_group.Trimmed()));
        }
        m_context.text.SetCodePage(codePage);
    }
    else if (name == "$LIMMIN" || name == "$LIMMAX")
    {
        AcGePoint2d& corner = name == "$LIMMIN" ? drawing.limmin : drawing.limmax;
        if (m_group.code == 10 || m_group.code == 20)
        {
            corner[m_group.code / 10 - 1] = ToDouble(m_group);
        }
    }
}

void DxfParser::ParseTables()
{
    while (!At("ENDSEC"))
    {
        CheckInsideSection();
        if (At("LAYER"))
        {
            ReadRecord(m_record);
            AddLayer(m_record);
        }
        else if (At("TABLE"))
        {
            ReadRecord(m_record);
            const DxfGroup* name = m_record.Find(2);
            m_context.drawing.hasLayerTable |= name != nullptr && name->Trimmed() == "LAYER";
        }
        else
        {
            Advance();
        }
    }
}

void DxfParser::AddLayer(const DxfRecord& record)
{
    constexpr int kFrozen = 1;
    constexpr int kLocked = 4;
    DxfLayer layer;
    layer.name = m_context.TextOf(record, 2);
    if (layer.name.empty())
    {
        m_context.Warn(record.Line(), L"图层没有名称，已忽略");
        return;
    }
    const int color = record.Int(62, kForeground);
    const int index = std::abs(color);
    const int flags = record.Int(70, 0);
    layer.color.setColorIndex(static_cast<Adesk::UInt16>(index >= 1 && index <= kMaxColorIndex ? index : kForeground));
    layer.isOff = color < 0;
    layer.isFrozen = (flags & kFrozen) != 0;
    layer.isLocked = (flags & kLocked) != 0;
    if (const DxfGroup* trueColor = record.Find(420))
    {
        const unsigned int rgb = static_cast<unsigned int>(ToInt(*trueColor));
        layer.color.setRGB(static_cast<Adesk::UInt8>(rgb >> 16), static_cast<Adesk::UInt8>(rgb >> 8),
                           static_cast<Adesk::UInt8>(rgb));
    }
    if (m_context.drawing.layerNames.Find(layer.name) != DxfNames::npos)
    {
        m_context.Warn(record.Line(), L"图层" + Quoted(layer.name) + L"重复定义，后一个已忽略");
        return;
    }
    m_context.drawing.layerNames.NumberOf(layer.name);
    m_context.drawing.layers.push_back(layer);
}

void DxfParser::ParseBlocks()
{
    while (!At("ENDSEC"))
    {
        CheckInsideSection();
        if (!At("BLOCK"))
        {
            throw DxfError{m_group.line, L"此处应为 BLOCK，却是" + Quoted(m_group.Trimmed())};
        }
        ParseBlock();
    }
}

void DxfParser::ParseBlock()
{
    ReadRecord(m_record);
    DxfBlock block;
    block.name = m_context.TextOf(m_record, 2);
    block.origin = m_record.Point(10);
    block.line = m_record.Line();
    const int flags = m_record.Int(70, 0);
    if (block.name.empty())
    {
        m_record.Fail(L"没有图块名");
    }
    std::vector<DxfEntity>& list = IsModelSpace(block.name)   ? m_context.drawing.modelSpace
                                   : IsPaperSpace(block.name) ? m_context.drawing.paperSpace
                                                              : block.entities;
    while (!At("ENDBLK"))
    {
        if (At("BLOCK") || At("ENDSEC") || At("EOF"))
        {
            throw DxfError{m_group.line, L"图块" + Quoted(block.name) + L"没有 ENDBLK"};
        }
        ParseEntity(list);
    }
    ReadRecord(m_record);
    if (&list == &block.entities)
    {
        AddBlock(std::move(block), flags);
    }
}

void DxfParser::AddBlock(DxfBlock block, int flags)
{
    if ((flags & kExternalFlag) != 0)
    {
        m_context.Warn(block.line, L"外部参照" + Quoted(block.name) + L"没有读入");
    }
    if (m_definedBlocks.Find(block.name) != DxfNames::npos)
    {
        m_context.Warn(block.line, L"图块" + Quoted(block.name) + L"重复定义，后一个已忽略");
        return;
    }
    m_definedBlocks.NumberOf(block.name);
    m_context.drawing.blocks.push_back(std::move(block));
}

void DxfParser::ParseEntities()
{
    while (!At("ENDSEC"))
    {
        CheckInsideSection();
        ParseEntity(m_context.drawing.modelSpace);
    }
}

void DxfParser::SkipSection()
{
    while (!At("ENDSEC"))
    {
        CheckInsideSection();
        Advance();
    }
}

void DxfParser::ParseEntity(std::vector<DxfEntity>& list)
{
    ReadRecord(m_record);
    const std::wstring type = Wide(m_record.Type());
    DxfEntity entity;
    const bool isMade =
        m_record.Type() == "POLYLINE" ? ParseOldPolyline(m_record, entity) : MakeEntity(m_record, m_context, entity);
    if (!isMade)
    {
        // Ends of sequences draw nothing anyway.
        if (type != L"SEQEND")
        {
            ++m_context.Result().skipped[type];
        }
        return;
    }
    ReadCommon(m_record, m_context, entity);
    ++m_context.Result().read[type];
    std::vector<DxfEntity>& target = ListFor(entity, list);
    target.push_back(std::move(entity));
}

bool DxfParser::ParseOldPolyline(const DxfRecord& polyline, DxfEntity& entity)
{
    std::vector<DxfRecord> vertices;
    while (At("VERTEX"))
    {
        vertices.emplace_back();
        ReadRecord(vertices.back());
    }
    if (!At("SEQEND"))
    {
        polyline.Fail(L"没有 SEQEND");
    }
    DxfRecord end;
    ReadRecord(end);
    return MakeOldPolyline(polyline, vertices, entity);
}

std::vector<DxfEntity>& DxfParser::ListFor(const DxfEntity& entity, std::vector<DxfEntity>& list)
{
    const bool isModelSpace = &list == &m_context.drawing.modelSpace;
    return isModelSpace && entity.isPaperSpace ? m_context.drawing.paperSpace : list;
}

void DxfParser::ReadRecord(DxfRecord& record)
{
    if (m_group.code != 0)
    {
        throw DxfError{m_group.line, L"此处应为组码 0，却是 " + std::to_wstring(m_group.code)};
    }
    record.Start(m_group);
    Advance();
    // Newer releases append an object with groups of its own, which would be taken for the entity's.
    bool isOwn = true;
    for (; m_group.code != 0; Advance())
    {
        isOwn = isOwn && m_group.code != kEmbeddedObjectCode;
        if (isOwn)
        {
            record.Add(m_group);
        }
    }
}

void DxfParser::Advance()
{
    if (!m_tokenizer.Next(m_group))
    {
        throw DxfError{m_tokenizer.Line(), L"文件不完整，没有 EOF"};
    }
}

void DxfParser::CheckInsideSection() const
{
    if (At("SECTION") || At("EOF"))
    {
        throw DxfError{m_group.line, m_section + L" 节没有 ENDSEC"};
    }
}

} // namespace arxdxf
