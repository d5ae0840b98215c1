#include "DxfTokenizer.h"

#include "DxfError.h"

#include <charconv>

namespace arxdxf
{

namespace
{

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kBlanks = " \t";
constexpr char kCtrlZ = '\x1A';

// Files of old Macintosh programs end lines by CR alone.
char DetectLineEnd(std::string_view data)
{
    return data.find('\n') == std::string_view::npos ? '\r' : '\n';
}

} // namespace

std::string_view Trim(std::string_view text)
{
    const size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
    {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool DxfGroup::Is(int otherCode, std::string_view otherValue) const
{
    return code == otherCode && Trimmed() == otherValue;
}

std::string_view DxfGroup::Trimmed() const
{
    return Trim(value);
}

DxfTokenizer::DxfTokenizer(std::string_view data) : m_rest(data), m_lineEnd(DetectLineEnd(data))
{
    if (m_rest.substr(0, kByteOrderMark.size()) == kByteOrderMark)
    {
        m_rest.remove_prefix(kByteOrderMark.size());
    }
}

bool DxfTokenizer::Next(DxfGroup& group)
{
    std::string_view code;
    do
    {
        if (!NextLine(code))
        {
            return false;
        }
        group.line = m_line;
        group.code = ParseCode(code);
        if (!NextLine(group.value))
        {
            throw DxfError{m_line, L"文件不完整，组码 " + std::to_wstring(group.code) + L" 之后没有值"};
        }
    } while (group.code == kCommentCode);
    return true;
}

bool DxfTokenizer::HasMore() const
{
    for (char c : m_rest)
    {
        if (c != ' ' && c != '\t' && c != '\r' && c != '\n' && c != kCtrlZ)
        {
            return true;
        }
    }
    return false;
}

bool DxfTokenizer::NextLine(std::string_view& line)
{
    if (m_rest.empty() || m_rest.front() == kCtrlZ)
    {
        return false;
    }
    ++m_line;
    const size_t end = m_rest.find(m_lineEnd);
    line = m_rest.substr(0, end);
    m_rest.remove_prefix(end == std::string_view::npos ? m_rest.size() : end + 1);
    if (!line.empty() && line.back() == '\r')
    {
        line.remove_suffix(1);
    }
    if (line.find('\0') != std::string_view::npos)
    {
        throw DxfError{m_line, L"含有二进制数据，不是文本"};
    }
    return true;
}

int DxfTokenizer::ParseCode(std::string_view text) const
{
    const std::string_view digits = Trim(text);
    if (digits.empty())
    {
        throw DxfError{m_line, L"组码为空"};
    }
    int code = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), code);
    if (error == std::errc::invalid_argument || end != digits.data() + digits.size())
    {
        throw DxfError{m_line, L"组码" + Quoted(digits) + L"不是数字"};
    }
    if (error != std::errc() || code < kMinGroupCode || code > kMaxGroupCode)
    {
        throw DxfError{m_line, L"组码" + Quoted(digits) + L"无效"};
    }
    return code;
}

} // namespace arxdxf
