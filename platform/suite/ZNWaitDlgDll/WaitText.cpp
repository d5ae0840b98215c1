#include "suite/ZNWaitDlgDll/WaitText.h"

#include <algorithm>
#include <emmintrin.h>
#include <stdint.h>
#include <wchar.h>

namespace wait
{
namespace
{
const unsigned long long kSecond = 1000;
const unsigned long long kSixty = 60;

std::wstring TwoDigits(unsigned long long value)
{
    return (value < 10 ? L"0" : L"") + std::to_wstring(value);
}

// The end of a text, sixteen bytes a step: a text of ten thousand lines must not keep the calling thread for long. An
// aligned step never reaches into a page that the text is not in.
const wchar_t* EndOf(const wchar_t* text)
{
    const __m128i zero = _mm_setzero_si128();
    const size_t step = sizeof(__m128i);
    while (reinterpret_cast<uintptr_t>(text) % step != 0)
    {
        if (*text == L'\0')
            return text;
        ++text;
    }
    while (_mm_movemask_epi8(_mm_cmpeq_epi16(_mm_load_si128(reinterpret_cast<const __m128i*>(text)), zero)) == 0)
        text += step / sizeof(wchar_t);
    return text + wcslen(text);
}

// Where the last kMostLines lines begin.
const wchar_t* StartOfLastLines(const wchar_t* text, const wchar_t* end)
{
    int lines = 1;
    for (const wchar_t* at = end; at != text; --at)
    {
        if (at[-1] == L'\n' && ++lines > kMostLines)
            return at;
    }
    return text;
}
} // namespace

std::wstring LastLines(const wchar_t* text)
{
    std::wstring result;
    if (text == nullptr)
        return result;
    const wchar_t* const end = EndOf(text);
    for (const wchar_t* line = StartOfLastLines(text, end);;)
    {
        const wchar_t* const lineEnd = std::find(line, end, L'\n');
        const bool carriage = lineEnd != line && lineEnd[-1] == L'\r';
        result.append(line, std::min<size_t>(lineEnd - line - carriage, kLongestLine));
        if (lineEnd == end)
            return result;
        result += L'\n';
        line = lineEnd + 1;
    }
}

int CountLines(const std::wstring& text)
{
    return text.empty() ? 0 : static_cast<int>(std::count(text.begin(), text.end(), L'\n')) + 1;
}

std::wstring ElapsedText(unsigned long long milliseconds)
{
    const unsigned long long seconds = milliseconds / kSecond;
    const unsigned long long minutes = seconds / kSixty;
    const unsigned long long hours = minutes / kSixty;
    const std::wstring front =
        hours == 0 ? std::to_wstring(minutes) : std::to_wstring(hours) + L":" + TwoDigits(minutes % kSixty);
    return L"已用时间 " + front + L":" + TwoDigits(seconds % kSixty);
}
} // namespace wait
