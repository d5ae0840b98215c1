// The commands typed so far, for the arrow keys and for Enter on an empty line.
#pragma once

#include <string>
#include <vector>

namespace arxhost
{

class CommandHistory
{
public:
    static const std::size_t limit = 200;

    // Remembers a line; the same line twice in a row is kept once. The browsing position goes behind the newest line.
    void Add(const std::wstring& line);

    // One line back or forward. Beyond the oldest line it stays; beyond the newest it is the empty line.
    std::wstring Previous();
    std::wstring Next();

    // The newest line, empty when there is none.
    std::wstring Last() const;

private:
    std::vector<std::wstring> m_lines;
    std::size_t m_position = 0;
};

} // namespace arxhost
