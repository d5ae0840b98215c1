// DxfText: decodes the texts of a drawing file.
#pragma once

#include "arx/Api.h"

#include <string>
#include <string_view>

namespace arxdxf
{

// The Windows code page behind a name of the header variable $DWGCODEPAGE ("ANSI_936", "DOS437", "UTF-8" ...); 0 for an
// unknown name.
ARX_API unsigned int CodePageOf(std::string_view name);

class ARX_API DxfText
{
public:
    // Files before AC1021 use the code page, later ones UTF-8. 0 is a file that does not tell: what is valid UTF-8 is
    // taken for it, anything else for simplified Chinese.
    void SetCodePage(unsigned int codePage) { m_codePage = codePage; }
    void SetUtf8(bool utf8) { m_utf8 = utf8; }

    // Escapes \U+XXXX and \M+nXXXX are resolved. Bytes that do not suit the code page become U+FFFD; in a UTF-8 file
    // they are decoded by the code page instead, and `wasValid` is false.
    std::wstring Decode(std::string_view bytes, bool& wasValid) const;

private:
    std::wstring DecodeBytes(std::string_view bytes, bool& wasValid) const;

    unsigned int m_codePage = 0;
    bool m_utf8 = false;
};

} // namespace arxdxf
