#include "DxfText.h"

#include <algorithm>
#include <cctype>
#include <charconv>

#include <windows.h>

namespace arxdxf
{

namespace
{

constexpr unsigned int kSimplifiedChinese = 936;
constexpr unsigned int kLatin = 1252;
constexpr wchar_t kReplacement = 0xFFFD;
constexpr size_t kEscapeDigits = 4;

struct NamedCodePage
{
    const char* name;
    unsigned int codePage;
};

// Names that do not tell their number.
constexpr NamedCodePage kNamedCodePages[] = {{"ASCII", kLatin},    {"GB2312", 936},      {"GBK", 936},
                                             {"BIG5", 950},        {"KSC5601", 949},     {"JOHAB", 1361},
                                             {"UTF-8", 65001},     {"UTF8", 65001},      {"8859_1", 28591},
                                             {"ISO8859-1", 28591}, {"ISO8859-2", 28592}, {"ISO8859-5", 28595}};

// Code pages behind the digit of \M+nXXXX, from 1.
constexpr unsigned int kMultiByteEscapePages[] = {932, 950, 949, 1361, 936};

bool IsHexText(std::string_view text)
{
    return text.size() == kEscapeDigits &&
           std::all_of(text.begin(), text.end(), [](unsigned char c) { return std::isxdigit(c) != 0; });
}

unsigned int HexValue(std::string_view digits)
{
    unsigned int value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    return value;
}

// False when the bytes do not suit the code page, for those pages that can tell.
bool Convert(unsigned int codePage, std::string_view bytes, DWORD flags, std::wstring& text)
{
    const int size = static_cast<int>(bytes.size());
    const int length = MultiByteToWideChar(codePage, flags, bytes.data(), size, NULL, 0);
    text.resize(static_cast<size_t>(std::max(length, 0)));
    return length > 0 && MultiByteToWideChar(codePage, flags, bytes.data(), size, &text[0], length) == length;
}

// By a code page that may be missing on the machine: then only ASCII survives.
std::wstring ConvertLeniently(unsigned int codePage, std::string_view bytes)
{
    std::wstring text;
    if (Convert(codePage, bytes, MB_ERR_INVALID_CHARS, text))
    {
        return text;
    }
    text.clear();
    for (size_t i = 0; i < bytes.size(); ++i)
    {
        std::wstring character;
        const bool isPair = i + 1 < bytes.size() && IsDBCSLeadByteEx(codePage, static_cast<BYTE>(bytes[i]));
        if (isPair && Convert(codePage, bytes.substr(i, 2), MB_ERR_INVALID_CHARS, character))
        {
            ++i;
        }
        else if (!Convert(codePage, bytes.substr(i, 1), MB_ERR_INVALID_CHARS, character))
        {
            character = static_cast<unsigned char>(bytes[i]) < 0x80 ? static_cast<wchar_t>(bytes[i]) : kReplacement;
        }
        text += character;
    }
    return text;
}

// The text of an escape that starts at `at`, which moves behind it; empty when there is none.
std::wstring TakeEscape(const std::wstring& text, size_t& at)
{
    const bool isUnicode = text.compare(at, 3, L"\\U+") == 0 || text.compare(at, 3, L"\\u+") == 0;
    const bool isMultiByte = text.compare(at, 3, L"\\M+") == 0 || text.compare(at, 3, L"\\m+") == 0;
    const size_t digitsAt = at + (isMultiByte ? 4 : 3);
    if ((!isUnicode && !isMultiByte) || digitsAt + kEscapeDigits > text.size())
    {
        return {};
    }
    std::string digits;
    for (wchar_t c : text.substr(digitsAt, kEscapeDigits))
    {
        digits += c < 0x80 ? static_cast<char>(c) : '?';
    }
    if (!IsHexText(digits) || HexValue(digits) == 0)
    {
        return {};
    }
    std::wstring resolved(1, static_cast<wchar_t>(HexValue(digits)));
    if (isMultiByte)
    {
        const unsigned int page = static_cast<unsigned int>(text[at + 3] - L'1');
        if (page >= std::size(kMultiByteEscapePages))
        {
            return {};
        }
        const char bytes[] = {static_cast<char>(HexValue(digits) >> 8), static_cast<char>(HexValue(digits))};
        resolved = ConvertLeniently(kMultiByteEscapePages[page], std::string_view(bytes, std::size(bytes)));
    }
    at = digitsAt + kEscapeDigits;
    return resolved;
}

std::wstring ResolveEscapes(const std::wstring& text)
{
    std::wstring resolved;
    for (size_t at = 0; at < text.size();)
    {
        const std::wstring character = text[at] == L'\\' ? TakeEscape(text, at) : std::wstring();
        if (character.empty())
        {
            resolved += text[at++];
        }
        resolved += character;
    }
    return resolved;
}

} // namespace

unsigned int CodePageOf(std::string_view name)
{
    std::string upper(name);
    std::transform(upper.begin(), upper.end(), upper.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    for (const NamedCodePage& known : kNamedCodePages)
    {
        if (upper == known.name)
        {
            return known.codePage;
        }
    }
    for (const std::string_view prefix : {"ANSI_", "DOS", "CP", "WINDOWS-"})
    {
        unsigned int codePage = 0;
        const char* end = upper.data() + upper.size();
        if (upper.compare(0, prefix.size(), prefix) == 0 &&
            std::from_chars(upper.data() + prefix.size(), end, codePage).ptr == end && IsValidCodePage(codePage))
        {
            return codePage;
        }
    }
    return 0;
}

std::wstring DxfText::Decode(std::string_view bytes, bool& wasValid) const
{
    const std::wstring text = DecodeBytes(bytes, wasValid);
    return text.find(L'\\') == std::wstring::npos ? text : ResolveEscapes(text);
}

std::wstring DxfText::DecodeBytes(std::string_view bytes, bool& wasValid) const
{
    wasValid = true;
    const bool isAscii = std::all_of(bytes.begin(), bytes.end(), [](unsigned char c) { return c < 0x80; });
    if (isAscii)
    {
        return std::wstring(bytes.begin(), bytes.end());
    }
    std::wstring text;
    if ((m_utf8 || m_codePage == 0) && Convert(CP_UTF8, bytes, MB_ERR_INVALID_CHARS, text))
    {
        return text;
    }
    wasValid = !m_utf8;
    const bool isUsable = m_codePage != 0 && m_codePage != CP_UTF8;
    return ConvertLeniently(isUsable ? m_codePage : kSimplifiedChinese, bytes);
}

} // namespace arxdxf
