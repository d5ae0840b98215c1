// Reads a drawing's model space into the plain records that the checks work on.
#pragma once

#include "Checks.h"

#include <dbmain.h>

#include <functional>
#include <string>
#include <vector>

namespace drawing_check
{

// An entity that names a block or a layer that the drawing does not have.
struct MissingReference
{
    std::size_t object = 0;
    std::wstring what; // "图块" or "图层"
    std::wstring name;
};

// Indices in the lists are indices into `ids`: one for each entity of the model space, in drawing order.
struct Drawing
{
    std::vector<AcDbObjectId> ids;
    std::vector<std::string> descriptions; // equal exactly when two entities are exact duplicates
    std::vector<OpenCurve> lines;
    std::vector<OpenCurve> ends; // lines and arcs
    std::vector<OpenCurve> polylines;
    std::vector<Box> boxes;
    std::vector<std::size_t> boxed; // the entity of each box; one without an extent has none
    std::vector<std::size_t> flatTexts;
    std::vector<MissingReference> missing;
    Box sheet;
    bool hasSheet = false;
};

// Told how many of the entities have been read; true ends the reading with those.
using ReadStop = std::function<bool(std::size_t read, std::size_t all)>;

// Reads the database. An entity that cannot be opened is left out.
Drawing ReadDrawing(AcDbDatabase& database, const ReadStop& stop = ReadStop());

} // namespace drawing_check
