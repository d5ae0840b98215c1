#include "dialog/RtfText.h"

#include <algorithm>

namespace
{

const wchar_t kFirstBeyondAscii = 0x80;
const int kRtfHead = 1024;      // tables of fonts and colours
const int kCharactersAWord = 4; // one more character in so many for the words of the markup
const int kLargestHint = 1 << 28;

} // namespace

CRtfReader::CRtfReader(const wchar_t* text, int length)
    : m_next(text), m_end(text + length), m_escapeLength(0), m_escapeUsed(0)
{
}

LONG CRtfReader::Read(BYTE* buffer, LONG wanted)
{
    LONG count = 0;
    while (count < wanted && NextByte(buffer[count]))
        ++count;
    return count;
}

bool CRtfReader::NextByte(BYTE& byte)
{
    if (m_escapeUsed == m_escapeLength)
    {
        if (m_next == m_end)
            return false;
        const wchar_t character = *m_next++;
        if (character < kFirstBeyondAscii)
        {
            byte = static_cast<BYTE>(character);
            return true;
        }
        Escape(character);
    }
    byte = static_cast<BYTE>(m_escape[m_escapeUsed++]);
    return true;
}

// The number is a signed one of 16 bits; the question mark is what readers without Unicode show.
void CRtfReader::Escape(wchar_t character)
{
    m_escapeLength = ::wsprintfA(m_escape, "\\u%d?", static_cast<int>(static_cast<short>(character)));
    m_escapeUsed = 0;
}

void ReserveRtf(CString& text, int characters)
{
    const int hint = std::max(0, std::min(characters, kLargestHint));
    text.Preallocate(kRtfHead + hint + hint / kCharactersAWord);
}

void AppendRtf(CString& text, const BYTE* bytes, LONG count)
{
    const int length = text.GetLength();
    const int needed = length + static_cast<int>(count);
    if (needed > text.GetAllocLength())
        text.Preallocate(needed + length);
    wchar_t* const end = text.GetBuffer(needed) + length;
    for (LONG i = 0; i < count; ++i)
        end[i] = bytes[i];
    text.ReleaseBufferSetLength(needed);
}
