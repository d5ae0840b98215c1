#include "host/ScriptText.h"

#include <windows.h>

#include <cwctype>

namespace arxhost
{
namespace
{

const UINT chineseCodePage = 936;

bool StartsWith(const std::string& bytes, const char* mark)
{
    return bytes.compare(0, std::char_traits<char>::length(mark), mark) == 0;
}

std::wstring Convert(const std::string& bytes, UINT codePage, DWORD flags)
{
    const int size = static_cast<int>(bytes.size());
    const int length = MultiByteToWideChar(codePage, flags, bytes.data(), size, nullptr, 0);
    std::wstring text(static_cast<std::size_t>(length), L'\0');
    if (length > 0)
        MultiByteToWideChar(codePage, flags, bytes.data(), size, &text[0], length);
    return text;
}

std::wstring DecodeWide(const std::string& bytes)
{
    std::wstring text;
    for (std::size_t i = 2; i + 1 < bytes.size(); i += 2)
    {
        const unsigned low = static_cast<unsigned char>(bytes[i]);
        const unsigned high = static_cast<unsigned char>(bytes[i + 1]);
        text.push_back(static_cast<wchar_t>(high << 8 | low));
    }
    return text;
}

std::wstring Trim(const std::wstring& text)
{
    std::size_t begin = 0;
    std::size_t end = text.size();
    while (begin < end && std::iswspace(text[begin]))
        ++begin;
    while (end > begin && std::iswspace(text[end - 1]))
        --end;
    return text.substr(begin, end - begin);
}

// Reads a quoted word that begins at `position` (behind the opening quote). False when it does not end.
bool ReadQuoted(const std::wstring& line, std::size_t& position, std::wstring& word)
{
    for (; position < line.size(); ++position)
    {
        if (line[position] != L'"')
            word.push_back(line[position]);
        else if (position + 1 < line.size() && line[position + 1] == L'"')
            word.push_back(line[position++]);
        else
            return ++position, true;
    }
    return false;
}

} // namespace

std::wstring DecodeText(const std::string& bytes)
{
    if (StartsWith(bytes, "\xFF\xFE"))
        return DecodeWide(bytes);
    const std::string plain = StartsWith(bytes, "\xEF\xBB\xBF") ? bytes.substr(3) : bytes;
    const std::wstring text = Convert(plain, CP_UTF8, MB_ERR_INVALID_CHARS);
    return text.empty() && !plain.empty() ? Convert(plain, chineseCodePage, 0) : text;
}

std::vector<ScriptLine> ScriptLines(const std::wstring& text)
{
    std::vector<ScriptLine> lines;
    std::size_t begin = 0;
    for (int number = 1; begin <= text.size(); ++number)
    {
        std::size_t end = text.find(L'\n', begin);
        if (end == std::wstring::npos)
            end = text.size();
        const std::wstring line = Trim(text.substr(begin, end - begin));
        if (!line.empty() && line[0] != L';')
            lines.push_back({number, line});
        begin = end + 1;
    }
    return lines;
}

bool SplitWords(const std::wstring& line, std::vector<std::wstring>& words)
{
    words.clear();
    std::size_t position = 0;
    while (position < line.size())
    {
        if (std::iswspace(line[position]))
        {
            ++position;
            continue;
        }
        std::wstring word;
        while (position < line.size() && !std::iswspace(line[position]))
        {
            if (line[position] != L'"')
                word.push_back(line[position++]);
            else if (!ReadQuoted(line, ++position, word))
                return false;
        }
        words.push_back(word);
    }
    return true;
}

} // namespace arxhost
