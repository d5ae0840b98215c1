#include "afx/dialog/TemplateFont.h"

#include "afx/dialog/ExtendedTemplate.h"

namespace
{

const WORD NumberMark = 0xFFFF; // a number follows, where a name could be
const size_t ItemAlignment = sizeof(DWORD);
const size_t ItemHead = sizeof(DLGITEMTEMPLATE);
const size_t ExtendedItemHead = 24;

// In front of the name of the font; the plain form has the points only.
struct ExtendedFontHead
{
    WORD points;
    WORD weight;
    BYTE italic;
    BYTE charSet;
};

// Where the parts of a template lie, in bytes from its beginning.
class TemplateLayout
{
public:
    explicit TemplateLayout(LPCDLGTEMPLATE dialogTemplate)
        : m_bytes(reinterpret_cast<const BYTE*>(dialogTemplate)), m_extended(ExtendedTemplate::Of(dialogTemplate))
    {
        size_t at = m_extended != nullptr ? sizeof(ExtendedTemplate) : sizeof(DLGTEMPLATE);
        for (int name = 0; name < 3; ++name) // menu, class, caption
            at = AfterName(at);
        m_font = at;
        m_afterFont = HasFont() ? AfterName(at + FontHead()) : at;
    }

    bool IsExtended() const { return m_extended != nullptr; }
    bool HasFont() const { return (Style() & DS_SETFONT) != 0; }
    size_t FontHead() const { return IsExtended() ? sizeof(ExtendedFontHead) : sizeof(WORD); }
    size_t Font() const { return m_font; }
    size_t Items() const { return Aligned(m_afterFont); }
    WORD WordAt(size_t at) const { return *reinterpret_cast<const WORD*>(m_bytes + at); }
    const wchar_t* TextAt(size_t at) const { return reinterpret_cast<const wchar_t*>(m_bytes + at); }
    const BYTE* At(size_t at) const { return m_bytes + at; }

    size_t End() const
    {
        size_t at = m_afterFont;
        for (int left = Count(); left > 0; --left)
        {
            at = AfterName(AfterName(Aligned(at) + (IsExtended() ? ExtendedItemHead : ItemHead)));
            at += sizeof(WORD) + WordAt(at); // what the control is given at its creation
        }
        return at;
    }

    static size_t Aligned(size_t at) { return (at + ItemAlignment - 1) / ItemAlignment * ItemAlignment; }

private:
    const DLGTEMPLATE& Plain() const { return *reinterpret_cast<const DLGTEMPLATE*>(m_bytes); }
    DWORD Style() const { return IsExtended() ? m_extended->style : Plain().style; }
    int Count() const { return IsExtended() ? m_extended->items : Plain().cdit; }

    size_t AfterName(size_t at) const
    {
        if (WordAt(at) == NumberMark)
            return at + 2 * sizeof(WORD);
        return at + (wcslen(TextAt(at)) + 1) * sizeof(wchar_t);
    }

    const BYTE* m_bytes;
    const ExtendedTemplate* m_extended;
    size_t m_font;
    size_t m_afterFont;
};

void Append(std::vector<BYTE>& bytes, const void* data, size_t size)
{
    const BYTE* const begin = static_cast<const BYTE*>(data);
    bytes.insert(bytes.end(), begin, begin + size);
}

} // namespace

TemplateFont FontOfTemplate(LPCDLGTEMPLATE dialogTemplate)
{
    const TemplateLayout layout(dialogTemplate);
    TemplateFont font;
    if (!layout.HasFont())
        return font;
    font.points = layout.WordAt(layout.Font());
    font.face = layout.TextAt(layout.Font() + layout.FontHead());
    return font;
}

std::vector<BYTE> TemplateWithFont(LPCDLGTEMPLATE dialogTemplate, const TemplateFont& font)
{
    const TemplateLayout layout(dialogTemplate);
    const ExtendedFontHead head = {font.points, FW_NORMAL, FALSE, DEFAULT_CHARSET};
    std::vector<BYTE> result(layout.At(0), layout.At(layout.Font()));
    Append(result, &head, layout.FontHead());
    Append(result, font.face.GetString(), (font.face.GetLength() + 1) * sizeof(wchar_t));
    result.resize(TemplateLayout::Aligned(result.size()));
    if (layout.End() > layout.Items())
        Append(result, layout.At(layout.Items()), layout.End() - layout.Items());

    if (ExtendedTemplate* const extended = ExtendedTemplate::Of(result.data()))
        extended->style |= DS_SETFONT;
    else
        reinterpret_cast<DLGTEMPLATE*>(result.data())->style |= DS_SETFONT;
    return result;
}
