// What the hover window says about an entity: a line each, with a Chinese label.
#pragma once

#include <dbmain.h>

#include <string>
#include <vector>

namespace entity_hover
{

typedef std::vector<std::wstring> Lines;

// Kind, layer and colour, the geometry of the kinds that are known, the handle. No line is empty: the window would take
// it for the end of the list.
Lines PropertiesOf(const AcDbEntity& entity);

} // namespace entity_hover
