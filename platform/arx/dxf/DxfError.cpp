#include "DxfError.h"

namespace arxdxf
{

namespace
{

constexpr size_t kMaxQuoted = 24;

std::wstring InQuotes(std::wstring text)
{
    if (text.size() > kMaxQuoted)
    {
        text.resize(kMaxQuoted);
        text += L"…";
    }
    return L"“" + text + L"”";
}

} // namespace

std::wstring WithLine(int line, const std::wstring& text)
{
    return line == 0 ? text : L"第 " + std::to_wstring(line) + L" 行：" + text;
}

std::wstring Quoted(std::string_view bytes)
{
    std::wstring shown;
    for (char c : bytes.substr(0, kMaxQuoted + 1))
    {
        shown += c >= ' ' && c <= '~' ? static_cast<wchar_t>(c) : L'?';
    }
    return InQuotes(shown);
}

std::wstring Quoted(const std::wstring& name)
{
    return InQuotes(name);
}

} // namespace arxdxf
