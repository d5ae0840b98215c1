// The box around one entity, blocks included: exact for lines, arcs and ellipses, through tessellation for splines, by
// estimated widths for texts.
#pragma once

#include "arx/Api.h"

class AcDbEntity;
class AcDbExtents;

namespace arxgi
{

// Adds the entity's box; false, and nothing is added, when it has no picture.
ARX_API bool AddEntityExtents(const AcDbEntity& entity, AcDbExtents& extents);

} // namespace arxgi
