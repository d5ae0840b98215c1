#include "tip/LabelDrawing.h"

#include "base/SavedDC.h"
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

} // namespace

int DrawLabel(CDC& dc, const wchar_t* text, HFONT normal)
{
    const CSmallFont small(normal);
    const CSavedDC saved(dc);
    dc.SetBkMode(TRANSPARENT);
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
