// DxfResult: what came of reading a drawing file. All texts are Simplified Chinese, for the user.
#pragma once

#include "dbid.h"
#include "arx/Api.h"

#include <map>
#include <string>
#include <vector>

namespace arxdxf
{

// An entity of any block that names a block or layer which the file does not define. The entity is kept; the name
// becomes a placeholder in its table, empty and with isResolved() false.
struct MissingReference
{
    enum Kind
    {
        kBlock,
        kLayer
    };

    AcDbObjectId entity;
    Kind kind = kBlock;
    std::wstring name;
    int line = 0; // of the entity in the file
};

struct ARX_API DxfResult
{
    // Sums of the counts below.
    int ReadCount() const;
    int SkippedCount() const;

    // Why nothing was read, with the line where there is one ("第 12 行：..."); empty after success.
    std::wstring error;
    // The error's line in the file, from 1; 0 where none applies.
    int errorLine = 0;
    // Faults that reading could mend, one text each; many of them end in one text that counts the rest.
    std::vector<std::wstring> warnings;

    // Entities by their name in the file (LINE, INSERT ...), those of blocks included.
    std::map<std::wstring, int> read;
    // Entities that this program cannot draw and left out.
    std::map<std::wstring, int> skipped;
    std::vector<MissingReference> missing;
};

} // namespace arxdxf
