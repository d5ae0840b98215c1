// RTF text as the bytes of a rich edit's streams.
//
// RTF is plain ASCII: other characters stand in it as escapes. Writers of texts need not care: a character beyond ASCII
// is handed out as the escape of its UTF-16 unit, which holds whatever code page the text or the machine has.
#pragma once

#include <afxwin.h>

// Hands out a text from its front, piece by piece. What was handed out is skipped rather than removed, so that the
// whole takes time in proportion to the text.
class CRtfReader
{
public:
    // The characters must live as long as the reader.
    CRtfReader(const wchar_t* text, int length);

    // Fills the buffer with the next bytes; answers their number, at most `wanted`, 0 at the end.
    LONG Read(BYTE* buffer, LONG wanted);

private:
    bool NextByte(BYTE& byte);
    void Escape(wchar_t character);

    enum
    {
        LONGEST_ESCAPE = 16
    };

    const wchar_t* m_next;
    const wchar_t* m_end;
    char m_escape[LONGEST_ESCAPE]; // of the character before m_next
    int m_escapeLength;
    int m_escapeUsed;
};

// Makes room for the RTF of so many characters of mostly plain text, so that it is not moved while it grows. RTF that
// is longer than that may still be appended.
void ReserveRtf(CString& text, int characters);

// Appends bytes to a text that grows by its own size each time it is full, so that many pieces take time in proportion
// to the whole.
void AppendRtf(CString& text, const BYTE* bytes, LONG count);
