#include "Answers.h"

namespace arxed
{

namespace
{

const wchar_t kQuote = L'"';
const wchar_t* const kBlanks = L" \t\r\n";

std::wstring WithoutQuotes(const std::wstring& text)
{
    const bool quoted = text.size() > 1 && text.front() == kQuote && text.back() == kQuote;
    return quoted ? text.substr(1, text.size() - 2) : text;
}

} // namespace

bool Answers::Take(bool wholeLine, std::wstring& answer)
{
    const size_t start = m_line.find_first_not_of(kBlanks, m_position);
    if (start == std::wstring::npos)
    {
        m_position = m_line.size();
        return false;
    }
    size_t end = m_line.size();
    if (wholeLine)
    {
        end = m_line.find_last_not_of(kBlanks) + 1;
    }
    else if (m_line[start] == kQuote)
    {
        const size_t closing = m_line.find(kQuote, start + 1);
        end = closing == std::wstring::npos ? m_line.size() : closing + 1;
    }
    else if (m_line.find_first_of(kBlanks, start) != std::wstring::npos)
    {
        end = m_line.find_first_of(kBlanks, start);
    }
    answer = WithoutQuotes(m_line.substr(start, end - start));
    m_position = end;
    return true;
}

std::wstring Quoted(const std::wstring& answer)
{
    const bool plain = !answer.empty() && answer.find_first_of(kBlanks) == std::wstring::npos;
    return plain ? answer : kQuote + answer + kQuote;
}

} // namespace arxed
