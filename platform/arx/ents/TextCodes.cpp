#include "TextCodes.h"

#include <algorithm>
#include <cwchar>
#include <cwctype>

namespace arxents
{

namespace
{

constexpr double kNarrowWidth = 0.6;
constexpr double kWideWidth = 1.0;
constexpr size_t kCharacterCodeDigits = 3;

struct CodeRange
{
    wchar_t first;
    wchar_t last;
};

// Ideographs, kana, Hangul and full-width forms. The two halves of a character beyond U+FFFF are half an ideograph.
constexpr CodeRange kWideRanges[] = {{0x1100, 0x115F}, {0x2E80, 0xA4CF}, {0xAC00, 0xD7A3}, {0xF900, 0xFAFF},
                                     {0xFE30, 0xFE6F}, {0xFF00, 0xFF60}, {0xFFE0, 0xFFE6}};
constexpr wchar_t kFirstSurrogate = 0xD800;
constexpr wchar_t kLastSurrogate = 0xDFFF;

bool IsWide(wchar_t c)
{
    return std::any_of(std::begin(kWideRanges), std::end(kWideRanges),
                       [c](const CodeRange& range) { return c >= range.first && c <= range.last; });
}

double WidthOf(wchar_t c)
{
    if (c >= kFirstSurrogate && c <= kLastSurrogate)
    {
        return kWideWidth / 2;
    }
    return IsWide(c) ? kWideWidth : kNarrowWidth;
}

bool IsDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

// The character of %%nnn, which must be three digits; 0 for anything else.
wchar_t NumberedCharacter(const std::wstring& text, size_t at)
{
    if (at + kCharacterCodeDigits > text.size() || !std::all_of(text.begin() + at, text.begin() + at + 3, IsDigit))
    {
        return 0;
    }
    return static_cast<wchar_t>(std::wcstol(text.substr(at, kCharacterCodeDigits).c_str(), nullptr, 10));
}

// Resolves the code after "%%" at `at` and moves `at` behind it; false when there is none.
bool AppendControlCode(const std::wstring& text, size_t& at, std::wstring& plain)
{
    const wchar_t code = at < text.size() ? static_cast<wchar_t>(std::towlower(text[at])) : 0;
    switch (code)
    {
    case L'c':
        plain += L'\u00D8';
        break;
    case L'd':
        plain += L'\u00B0';
        break;
    case L'p':
        plain += L'\u00B1';
        break;
    case L'%':
        plain += L'%';
        break;
    case L'u':
    case L'o':
    case L'k':
        break;
    default:
        if (const wchar_t character = NumberedCharacter(text, at))
        {
            plain += character;
            at += kCharacterCodeDigits;
            return true;
        }
        return false;
    }
    ++at;
    return true;
}

// Reads paragraph text character by character.
class MTextParser
{
public:
    explicit MTextParser(const std::wstring& contents) : m_text(contents) {}

    std::vector<std::wstring> Parse()
    {
        while (m_at < m_text.size())
        {
            Step(m_text[m_at++]);
        }
        m_lines.push_back(m_line);
        return m_lines;
    }

private:
    void Step(wchar_t c)
    {
        switch (c)
        {
        case L'{':
        case L'}':
            break;
        case L'\\':
            Escape();
            break;
        case L'^':
            Caret();
            break;
        case L'\n':
            EndLine();
            break;
        case L'\r':
            break;
        default:
            m_line += c;
        }
    }

    void Escape()
    {
        const wchar_t code = m_at < m_text.size() ? m_text[m_at++] : L'\\';
        switch (code)
        {
        case L'P':
        case L'N':
        case L'X':
            EndLine();
            break;
        case L'~':
            m_line += L' ';
            break;
        case L'S':
            Stack();
            break;
        case L'L':
        case L'l':
        case L'O':
        case L'o':
        case L'K':
        case L'k':
            break;
        case L'A':
        case L'C':
        case L'c':
        case L'F':
        case L'f':
        case L'H':
        case L'p':
        case L'Q':
        case L'T':
        case L'W':
            TakeArgument();
            break;
        default:
            m_line += code;
        }
    }

    // Control characters are stored as a caret and a letter; a blank follows a caret that is meant.
    void Caret()
    {
        const wchar_t code = m_at < m_text.size() ? m_text[m_at] : 0;
        switch (code)
        {
        case L'I':
            m_line += L' ';
            break;
        case L'J':
            EndLine();
            break;
        case L'M':
            break;
        case L' ':
            m_line += L'^';
            break;
        default:
            m_line += L'^';
            return;
        }
        ++m_at;
    }

    void Stack()
    {
        for (wchar_t c : TakeArgument())
        {
            m_line += c == L'^' || c == L'#' ? L'/' : c;
        }
    }

    // Up to the semicolon; the whole rest when there is none.
    std::wstring TakeArgument()
    {
        const size_t end = std::min(m_text.find(L';', m_at), m_text.size());
        const std::wstring argument = m_text.substr(m_at, end - m_at);
        m_at = std::min(end + 1, m_text.size());
        return argument;
    }

    void EndLine()
    {
        m_lines.push_back(m_line);
        m_line.clear();
    }

    const std::wstring& m_text;
    size_t m_at = 0;
    std::wstring m_line;
    std::vector<std::wstring> m_lines;
};

// Where the line that starts at `start` may be broken so that it fits; its end when it fits whole.
size_t FindBreak(const std::wstring& line, size_t start, double width)
{
    double used = 0;
    size_t candidate = start;
    for (size_t i = start; i < line.size(); ++i)
    {
        used += WidthOf(line[i]);
        if (used > width && i > start && line[i] != L' ')
        {
            return candidate > start ? candidate : line.size();
        }
        if (line[i] == L' ' || IsWide(line[i]))
        {
            candidate = i + 1;
        }
    }
    return line.size();
}

void AppendBroken(const std::wstring& line, double width, std::vector<std::wstring>& broken)
{
    size_t start = 0;
    do
    {
        const size_t end = FindBreak(line, start, width);
        broken.push_back(line.substr(start, end - start));
        start = end;
    } while (start < line.size());
}

} // namespace

std::wstring ResolveControlCodes(const std::wstring& text)
{
    std::wstring plain;
    for (size_t at = 0; at < text.size();)
    {
        size_t code = at + 2;
        if (text.compare(at, 2, L"%%") == 0 && AppendControlCode(text, code, plain))
        {
            at = code;
        }
        else
        {
            plain += text[at++];
        }
    }
    return plain;
}

std::vector<std::wstring> MTextLines(const std::wstring& contents, double width)
{
    const std::wstring resolved = ResolveControlCodes(contents);
    const std::vector<std::wstring> lines = MTextParser(resolved).Parse();
    if (!(width > 0))
    {
        return lines;
    }
    std::vector<std::wstring> broken;
    for (const std::wstring& line : lines)
    {
        AppendBroken(line, width, broken);
    }
    return broken;
}

double EstimatedWidth(const std::wstring& text)
{
    double width = 0;
    for (wchar_t c : text)
    {
        width += WidthOf(c);
    }
    return width;
}

} // namespace arxents
