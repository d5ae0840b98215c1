#include "tip/LabelRuns.h"

#include <cstddef>
#include <cwchar>

namespace
{

const wchar_t kOpen = L'{';
const wchar_t kClose = L'}';
const int kShortestMarkup = 3; // brace, letter and at least one character
const int kMarkupHead = 2;     // brace and letter

LabelRunKind KindOf(wchar_t letter)
{
    switch (letter)
    {
    case L'B':
        return LABEL_LOWERED;
    case L'U':
        return LABEL_RAISED;
    default:
        return LABEL_GAP;
    }
}

int Find(const wchar_t* text, int from, int length, wchar_t character)
{
    const wchar_t* const found = wcschr(text + from, character);
    return found == NULL ? length : static_cast<int>(found - text);
}

class CLabelParser
{
public:
    explicit CLabelParser(const wchar_t* text)
        : m_text(text), m_length(static_cast<int>(wcslen(text))), m_position(0), m_smallFont(false)
    {
    }

    std::vector<LabelRun> Parse()
    {
        while (m_position < m_length)
        {
            const int open = Find(m_text, m_position, m_length, kOpen);
            if (open > m_position)
            {
                m_smallFont = false;
                Add(LABEL_NORMAL, m_position, open);
            }
            m_position = m_length - open < kShortestMarkup ? m_length : ParseMarkup(open);
        }
        return m_runs;
    }

private:
    // Answers where the text goes on.
    int ParseMarkup(int open)
    {
        const int close = Find(m_text, open, m_length, kClose);
        const LabelRunKind kind = KindOf(m_text[open + 1]);
        if (kind != LABEL_GAP)
            m_smallFont = true;
        Add(kind, open + kMarkupHead, close);
        return close == m_length ? m_length : close + 1;
    }

    void Add(LabelRunKind kind, int begin, int end)
    {
        const LabelRun run = {kind, begin, end - begin, m_smallFont};
        if (run.length > 0)
            m_runs.push_back(run);
    }

    const wchar_t* m_text;
    int m_length;
    int m_position;
    bool m_smallFont;
    std::vector<LabelRun> m_runs;
};

} // namespace

std::vector<LabelRun> ParseLabel(const wchar_t* text)
{
    return CLabelParser(text == NULL ? L"" : text).Parse();
}

int LabelLowering(int height)
{
    const int evenCorrection = 1;
    const int oddCorrection = 2;
    return height / 2 - (height % 2 != 0 ? oddCorrection : evenCorrection);
}
