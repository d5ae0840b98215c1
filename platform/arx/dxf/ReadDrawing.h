// Reading a drawing file into an empty drawing.
#pragma once

#include "dbmain.h"

#include <string>

namespace arxdxf
{

struct ReadResult
{
    Acad::ErrorStatus status = Acad::eOk;
    // Of the file, from 1; 0 when the failure belongs to no line.
    int line = 0;
    // Chinese sentence for the user; empty after success.
    std::wstring message;
};

// Reads the ASCII DXF file at `path` into `database`, which was made with AcDbDatabase(false) or (true). False after a
// failure; the drawing then holds an unknown part of the file and must be thrown away.
ARX_API bool ReadDrawing(AcDbDatabase& database, const wchar_t* path, ReadResult& result);

} // namespace arxdxf
