#include "host/CommandHistory.h"

namespace arxhost
{

void CommandHistory::Add(const std::wstring& line)
{
    if (!line.empty() && (m_lines.empty() || m_lines.back() != line))
        m_lines.push_back(line);
    if (m_lines.size() > limit)
        m_lines.erase(m_lines.begin());
    m_position = m_lines.size();
}

std::wstring CommandHistory::Previous()
{
    if (m_lines.empty())
        return std::wstring();
    if (m_position > 0)
        --m_position;
    return m_lines[m_position];
}

std::wstring CommandHistory::Next()
{
    if (m_position < m_lines.size())
        ++m_position;
    return m_position < m_lines.size() ? m_lines[m_position] : std::wstring();
}

std::wstring CommandHistory::Last() const
{
    return m_lines.empty() ? std::wstring() : m_lines.back();
}

} // namespace arxhost
