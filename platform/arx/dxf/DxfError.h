// DxfError: why a file cannot be read. Thrown inside the reader only; ReadDxf() turns it into its result.
#pragma once

#include <string>
#include <string_view>

namespace arxdxf
{

struct DxfError
{
    int line = 0; // 0 where none applies
    std::wstring text;
};

// "第 12 行：text", or the text alone for line 0.
std::wstring WithLine(int line, const std::wstring& text);

// Raw bytes of a file for a message, in quotation marks: short, and without characters that cannot be shown.
std::wstring Quoted(std::string_view bytes);
// A decoded name in quotation marks.
std::wstring Quoted(const std::wstring& name);

} // namespace arxdxf
