// What makes two entities exact duplicates: class, layer, colour and geometry, as one text.
#pragma once

#include <dbmain.h>

#include <string>

namespace drawing_check
{

// Equal texts mean exact duplicates. An entity of a class that the check does not know gets a text of its own, so that
// it is never called a duplicate.
std::string Describe(const AcDbEntity& entity);

} // namespace drawing_check
