// DxfTokenizer: cuts the text of a drawing file into groups: a code on one line, its value on the next.
#pragma once

#include "arx/Api.h"

#include <string_view>

namespace arxdxf
{

// Codes have this range in every release.
const int kMinGroupCode = -5;
const int kMaxGroupCode = 1071;
const int kCommentCode = 999;

struct ARX_API DxfGroup
{
    int code = 0;
    // Into the tokenizer's data, without the line end; blanks are kept.
    std::string_view value;
    // Line of the code, from 1; the value stands on the next one.
    int line = 0;

    int ValueLine() const { return line + 1; }
    bool Is(int otherCode, std::string_view otherValue) const;
    std::string_view Trimmed() const;
};

class ARX_API DxfTokenizer
{
public:
    // `data` must outlive the tokenizer and its groups. Line ends may be LF, CR LF or CR. A byte-order mark is skipped.
    explicit DxfTokenizer(std::string_view data);

    // The next group that is no comment; false at the end of the data. Throws DxfError for a code that is no number or
    // out of range, bytes that are no text, and data that end between code and value.
    bool Next(DxfGroup& group);

    // Lines taken so far.
    int Line() const { return m_line; }
    // True when something else than blanks and the end mark of old systems (Ctrl-Z) is left.
    bool HasMore() const;

private:
    // False at the end of the data.
    bool NextLine(std::string_view& line);
    int ParseCode(std::string_view text) const;

    std::string_view m_rest;
    char m_lineEnd;
    int m_line = 0;
};

// Without blanks and tabs at both ends.
ARX_API std::string_view Trim(std::string_view text);

} // namespace arxdxf
