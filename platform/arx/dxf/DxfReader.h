// Reads ASCII DXF files of the releases R9 to 2018.
//
// Read are layers, blocks and the entities of model space that the program can draw; other entities are counted, and
// all other contents are passed over. Text is decoded by the file's code page, by UTF-8 from AC1021 on.
#pragma once

#include "DxfResult.h"

#include <stddef.h>

class AcDbDatabase;

namespace arxdxf
{

// Reads the file into a database made without default contents or with an unchanged default drawing. Either the
// whole file arrives in the database, or an error is reported and the database stays as it was. Never throws.
ARX_API bool ReadDxf(const wchar_t* path, AcDbDatabase& database, DxfResult& result);

// The same for a file's contents in memory.
ARX_API bool ReadDxfText(const char* data, size_t size, AcDbDatabase& database, DxfResult& result);

} // namespace arxdxf
