// The font that a dialog template names. Sizes in a template are measured by it, so a page whose font is another one
// than its sheet's does not fit into the room that the sheet keeps for it. Pure: templates are bytes in memory.
#pragma once

#include <afx.h>

#include <vector>

struct TemplateFont
{
    WORD points = 0; // 0: the template names none
    CString face;
};

// The template may be of either form; it must be well-formed.
TemplateFont FontOfTemplate(LPCDLGTEMPLATE dialogTemplate);

// A copy with this font, in regular weight; everything else is as it was.
std::vector<BYTE> TemplateWithFont(LPCDLGTEMPLATE dialogTemplate, const TemplateFont& font);
