// The rest of a typed line, from which commands take their answers.
#pragma once

#include <string>

namespace arxed
{

class Answers
{
public:
    explicit Answers(const std::wstring& line) : m_line(line) {}

    // The next answer: up to a space, or the rest of the line. Quotation marks hold an answer with spaces together and
    // are taken off. False when nothing is left.
    bool Take(bool wholeLine, std::wstring& answer);
    // What was not taken yet, as it was typed.
    std::wstring Rest() const { return m_line.substr(m_position); }

private:
    std::wstring m_line;
    size_t m_position = 0;
};

// The answer as Take() reads it back: quoted when it is empty or holds spaces.
std::wstring Quoted(const std::wstring& answer);

} // namespace arxed
