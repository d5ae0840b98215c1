// What the texts of drawings say once their codes are resolved, and how wide they are about.
#pragma once

#include "arx/Api.h"

#include <string>
#include <vector>

namespace arxents
{

// Resolves the codes of single-line texts: %%c diameter, %%d degree, %%p plus/minus, %%% percent, %%nnn the character
// with this number; the switches for lines above, below and through the text (%%o %%u %%k) vanish.
ARX_API std::wstring ResolveControlCodes(const std::wstring& text);

// The lines of a paragraph text without its formatting: fonts, heights and colours vanish, stacked fractions become
// "a/b". Lines wider than `width` (in multiples of the text height) are broken at blanks and beside ideographs;
// 0 breaks nothing.
ARX_API std::vector<std::wstring> MTextLines(const std::wstring& contents, double width);

// Estimated width in multiples of the text height; the same on every machine.
ARX_API double EstimatedWidth(const std::wstring& text);

} // namespace arxents
