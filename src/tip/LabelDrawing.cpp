#include "tip/LabelDrawing.h"

#include "tip/LabelRuns.h"

namespace
{

const double kSmallPart = 0.75;

// Guard: the smaller font of a label.
class CSmallFont
{
public:
    explicit CSmallFont(HFONT normal) : m_font(NULL)
    {
        LOGFONT description = {};
        if (::GetObject(normal, sizeof(description), &description) == 0)
            return;
        description.lfHeight = static_cast<LONG>(description.lfHeight * kSmallPart);
        m_font = ::CreateFontIndirect(&description);
    }

    ~CSmallFont()
    {
        if (m_font != NULL)
            ::DeleteObject(m_font);
    }

    HFONT Get() const { return m_font; }

private:
    CSmallFont(const CSmallFont&);
    CSmallFont& operator=(const CSmallFont&);

    HFONT m_font;
};

// Guard: font and mode of a device context are put back.
class CSavedText
{
public:
    explicit CSavedText(HDC dc)
        : m_dc(dc), m_font(::GetCurrentObject(dc, OBJ_FONT)), m_mode(::SetBkMode(dc, TRANSPARENT))
    {
    }

    ~CSavedText()
    {
        ::SetBkMode(m_dc, m_mode);
        ::SelectObject(m_dc, m_font);
    }

private:
    CSavedText(const CSavedText&);
    CSavedText& operator=(const CSavedText&);

    HDC m_dc;
    HGDIOBJ m_font;
    int m_mode;
};

} // namespace

int DrawLabel(CDC& dc, const wchar_t* text, HFONT normal)
{
    const CSmallFont small(normal);
    const CSavedText saved(dc);
    ::SelectObject(dc, normal);
    const int lowering = LabelLowering(dc.GetTextExtent(L"o", 1).cy);
    CRect clip;
    dc.GetClipBox(&clip);
    const std::vector<LabelRun> runs = ParseLabel(text);
    int x = 0;
    for (std::vector<LabelRun>::const_iterator run = runs.begin(); run != runs.end() && x < clip.right; ++run)
    {
        const wchar_t* const part = text + run->begin;
        ::SelectObject(dc, run->smallFont ? small.Get() : normal);
        if (run->kind != LABEL_GAP)
            dc.TextOut(x, run->kind == LABEL_LOWERED ? lowering : 0, part, run->length);
        x += dc.GetTextExtent(part, run->length).cx;
    }
    return x;
}
