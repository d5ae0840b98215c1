// DxfContext: what all parts of the reader share while one file is read.
#pragma once

#include "DxfDrawing.h"
#include "DxfRecord.h"
#include "DxfText.h"

#include <unordered_set>

namespace arxdxf
{

class DxfContext
{
public:
    explicit DxfContext(DxfResult& result) : m_result(result) {}

    // Adds a warning; from a certain number on they are only counted, and CloseWarnings() adds that count.
    void Warn(int line, const std::wstring& text);
    void CloseWarnings();

    std::wstring Decode(const DxfGroup& group) { return Decode(group.Trimmed(), group.ValueLine()); }
    std::wstring Decode(std::string_view bytes, int line);
    // The text of the record's group with this code; "" when it has none.
    std::wstring TextOf(const DxfRecord& record, int code);

    // The record's handle, 0 when it has none that can be used. Each is given once.
    Adesk::UInt64 HandleOf(const DxfRecord& record);

    DxfResult& Result() { return m_result; }

    DxfText text;
    DxfDrawing drawing;

private:
    DxfResult& m_result;
    std::unordered_set<Adesk::UInt64> m_handles;
    size_t m_unlistedWarnings = 0;
    bool m_warnedOfText = false;
};

} // namespace arxdxf
