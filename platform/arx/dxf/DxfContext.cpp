#include "DxfContext.h"

#include "DxfError.h"

#include <charconv>

namespace arxdxf
{

namespace
{

// More of them help nobody.
constexpr size_t kMaxWarnings = 100;
constexpr int kHandleCode = 5;
constexpr int kHexadecimal = 16;

} // namespace

void DxfContext::Warn(int line, const std::wstring& text)
{
    if (m_result.warnings.size() < kMaxWarnings)
    {
        m_result.warnings.push_back(WithLine(line, text));
    }
    else
    {
        ++m_unlistedWarnings;
    }
}

void DxfContext::CloseWarnings()
{
    if (m_unlistedWarnings > 0)
    {
        m_result.warnings.push_back(L"另有 " + std::to_wstring(m_unlistedWarnings) + L" 条警告");
        m_unlistedWarnings = 0;
    }
}

std::wstring DxfContext::Decode(std::string_view bytes, int line)
{
    bool wasValid = true;
    const std::wstring decoded = text.Decode(bytes, wasValid);
    if (!wasValid && !m_warnedOfText)
    {
        m_warnedOfText = true;
        Warn(line, L"文字不是有效的 UTF-8，已按代码页读取");
    }
    return decoded;
}

std::wstring DxfContext::TextOf(const DxfRecord& record, int code)
{
    const DxfGroup* group = record.Find(code);
    return group == nullptr ? std::wstring() : Decode(*group);
}

Adesk::UInt64 DxfContext::HandleOf(const DxfRecord& record)
{
    const DxfGroup* group = record.Find(kHandleCode);
    if (group == nullptr)
    {
        return 0;
    }
    const std::string_view digits = group->Trimmed();
    if (digits.empty())
    {
        Warn(group->ValueLine(), L"句柄为空，已分配新句柄");
        return 0;
    }
    Adesk::UInt64 handle = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), handle, kHexadecimal);
    if (error != std::errc() || end != digits.data() + digits.size() || handle == 0)
    {
        Warn(group->ValueLine(), L"句柄" + Quoted(digits) + L"无效，已分配新句柄");
        return 0;
    }
    if (!m_handles.insert(handle).second)
    {
        Warn(group->ValueLine(), L"句柄" + Quoted(digits) + L"重复，已分配新句柄");
        return 0;
    }
    return handle;
}

} // namespace arxdxf
